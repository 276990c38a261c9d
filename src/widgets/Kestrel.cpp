#include "widgets/Kestrel.h"
#include <QPainterPath>

namespace {
const QColor chestnut(0xb8602a);
const QColor deepChestnut(0x8f4519);
const QColor slate(0x5d7286);
const QColor dark(0x26323e);
const QColor cream(0xfbf6ea);

// One wing; side is -1 for the left, 1 for the right. The leading edge bends at the wrist, the tip is
// pointed.
QPainterPath wing(int side)
{
    const auto at = [side](double x, double y) { return QPointF(side * x, y); };
    QPainterPath path;
    path.moveTo(at(0, -13));
    path.cubicTo(at(6, -14), at(12, -22), at(20, -21));
    path.cubicTo(at(30, -19), at(42, -6), at(50, 9));
    path.cubicTo(at(42, 3), at(34, 2), at(27, 3));
    path.cubicTo(at(18, 4), at(10, 4), at(4, 8));
    path.lineTo(0, 8);
    path.closeSubpath();
    return path;
}

// The dark outer half of the wing.
QPainterPath hand(int side)
{
    QPainterPath outer;
    const auto at = [side](double x, double y) { return QPointF(side * x, y); };
    outer.moveTo(at(23, -30));
    outer.cubicTo(at(24, -14), at(28, -8), at(24, 10));
    outer.lineTo(at(60, 20));
    outer.lineTo(at(60, -30));
    outer.closeSubpath();
    return wing(side).intersected(outer);
}

QPainterPath tail(double from, double to)
{
    const auto half = [](double y) { return 3 + (y - 10) * 0.13; };
    QPainterPath path;
    path.moveTo(-half(from), from);
    path.lineTo(half(from), from);
    path.lineTo(half(to), to);
    path.quadTo(0, to + 3.5, -half(to), to);
    path.closeSubpath();
    return path;
}

QPainterPath body()
{
    QPainterPath path;
    path.moveTo(0, -20);
    path.cubicTo(8, -16, 7.5, 2, 3.2, 16);
    path.lineTo(-3.2, 16);
    path.cubicTo(-7.5, 2, -8, -16, 0, -20);
    return path;
}

void paintSpots(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(deepChestnut);
    for (const int side : {-1, 1}) {
        for (const QPointF spot : {QPointF(3, -8), QPointF(2.4, 2), QPointF(9, -10), QPointF(8, -3),
                                   QPointF(15, -13), QPointF(15, -5), QPointF(21, -9)})
            painter.drawEllipse(QPointF(side * spot.x(), spot.y()), 1, 1.3);
    }
}
} // namespace

void paintKestrel(QPainter& painter, bool fineMarks)
{
    painter.fillPath(tail(10, 45), cream);
    painter.fillPath(tail(10, 42.5), dark);
    painter.fillPath(tail(10, 35), slate);
    for (const int side : {-1, 1}) {
        painter.fillPath(wing(side), chestnut);
        painter.fillPath(hand(side), dark);
    }
    painter.fillPath(body(), chestnut);
    if (fineMarks)
        paintSpots(painter);
    QPainterPath head;
    head.addEllipse(QPointF(0, -20), 5.6, 6.4);
    QPainterPath beak;
    beak.moveTo(-2.2, -25);
    beak.quadTo(0, -31, 2.2, -25);
    beak.closeSubpath();
    painter.fillPath(beak, dark);
    painter.fillPath(head, slate);
}

void paintOpenBook(QPainter& painter, bool fineMarks)
{
    for (const int side : {-1, 1}) {
        const auto at = [side](double x, double y) { return QPointF(side * x, y); };
        QPainterPath cover;
        cover.moveTo(0, 3);
        cover.cubicTo(at(15, -4), at(35, -3), at(50, 0));
        cover.lineTo(at(50, -34));
        cover.lineTo(at(0, -34));
        cover.closeSubpath();
        painter.fillPath(cover, dark);

        QPainterPath leaf;
        leaf.moveTo(0, -1);
        leaf.cubicTo(at(12, -9), at(32, -8), at(47, -4));
        leaf.lineTo(at(45, -39));
        leaf.cubicTo(at(32, -44), at(12, -43), at(0, -34));
        leaf.closeSubpath();
        QLinearGradient shade(at(0, 0), at(47, 0));
        shade.setColorAt(0, QColor(0xcfc5b0));
        shade.setColorAt(0.18, QColor(0xf3ecdc));
        shade.setColorAt(1, QColor(0xfffdf7));
        painter.fillPath(leaf, shade);

        if (!fineMarks)
            continue;
        for (int row = 0; row < 5; ++row) {
            const double y = -33 + row * 5.4;
            QPainterPath text;
            text.moveTo(at(6, y + 2.2));
            text.cubicTo(at(14, y - 3), at(28, y - 4.5), at(row == 4 ? 28 : 41, y - (row == 4 ? 3.6 : 2)));
            painter.strokePath(text, QPen(QColor(0xa9a08c), 1.1, Qt::SolidLine, Qt::RoundCap));
        }
    }
}
