#include "pictures/Emblem.h"

#include <QPainter>
#include <QPainterPath>

namespace {

const QColor chestnut(0xb8602a);
const QColor deepChestnut(0x8f4519);
const QColor slate(0x495e73);
const QColor dark(0x26323e);
const QColor cream(0xfbf6ea);

// One wing; side is -1 for the left, 1 for the right. The leading edge bends at the wrist, the tip is
// pointed.
QPainterPath wing(int side)
{
    const auto at = [side](double x, double y) { return QPointF(side * x, y); };
    QPainterPath path;
    path.moveTo(at(0, -19));
    path.cubicTo(at(6, -19), at(13, -23), at(21, -22));
    path.cubicTo(at(31, -20), at(43, -11), at(51, 3));
    path.cubicTo(at(43, -1), at(35, -2), at(28, 0));
    path.cubicTo(at(19, 2), at(9, 3), at(4.6, 15));
    path.lineTo(0, 15);
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
    const auto half = [](double y) { return 3.2 + (y - 10) * 0.14; };
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
    path.cubicTo(9, -16, 9, 2, 3.4, 18);
    path.lineTo(-3.4, 18);
    path.cubicTo(-9, 2, -9, -16, 0, -20);
    return path;
}

void paintSpots(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(deepChestnut);
    for (const int side : {-1, 1}) {
        for (const QPointF spot : {QPointF(3, -9), QPointF(3.4, -1), QPointF(2.4, 6), QPointF(9, -13),
                                   QPointF(10, -6), QPointF(15, -17), QPointF(16, -9), QPointF(21, -14)})
            painter.drawEllipse(QPointF(side * spot.x(), spot.y()), 1, 1.3);
    }
}

} // namespace

void paintKestrel(QPainter& painter, bool fineMarks)
{
    painter.fillPath(tail(10, 47), cream);
    painter.fillPath(tail(10, 44), dark);
    painter.fillPath(tail(10, 36.5), slate);
    for (const int side : {-1, 1}) {
        painter.fillPath(wing(side), chestnut);
        painter.fillPath(hand(side), dark);
    }
    painter.fillPath(body(), chestnut);
    if (fineMarks)
        paintSpots(painter);
    QPainterPath head;
    head.addEllipse(QPointF(0, -21), 6.2, 7.2);
    QPainterPath beak;
    beak.moveTo(-2.8, -26);
    beak.quadTo(0, -38, 2.8, -26);
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
        cover.cubicTo(at(15, -4), at(35, -3), at(49, 0));
        cover.quadTo(at(50, 0), at(50, -1.5));
        cover.lineTo(at(47.5, -35));
        cover.lineTo(at(0, -32));
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
            text.cubicTo(at(14, y - 3), at(28, y - 4.5), at(41, y - 2));
            painter.strokePath(text, QPen(QColor(0xc3bba8), 1, Qt::SolidLine, Qt::RoundCap));
        }
    }
}
