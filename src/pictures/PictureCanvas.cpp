#include "pictures/PictureCanvas.h"

namespace {

QPainterPath openPath(std::initializer_list<QPointF> points)
{
    QPainterPath path;
    for (const QPointF& point : points) {
        if (path.elementCount() == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return path;
}

} // namespace

QPainterPath polygon(std::initializer_list<QPointF> points)
{
    QPainterPath path = openPath(points);
    path.closeSubpath();
    return path;
}

PictureCanvas::PictureCanvas(QPainter& painterToUse, const PictureColors& inkToUse)
    : painter(painterToUse)
    , ink(inkToUse)
{
}

void PictureCanvas::stroke(const QPainterPath& path, const QColor& color, double width)
{
    painter.strokePath(path, QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void PictureCanvas::stroke(std::initializer_list<QPointF> points, const QColor& color, double width)
{
    stroke(openPath(points), color, width);
}

void PictureCanvas::fill(const QPainterPath& path, const QColor& color)
{
    painter.fillPath(path, color);
}

void PictureCanvas::shape(const QPainterPath& path, const QColor& color)
{
    fill(path, color);
    stroke(path, ink.line);
}

void PictureCanvas::dot(QPointF center, double radius, const QColor& color)
{
    QPainterPath path;
    path.addEllipse(center, radius, radius);
    fill(path, color);
}

void PictureCanvas::page(const QRectF& rect, double foldedCorner)
{
    const QPointF foldLeft = rect.topRight() - QPointF(foldedCorner, 0);
    const QPointF foldBottom = rect.topRight() + QPointF(0, foldedCorner);
    shape(polygon({rect.topLeft(), foldLeft, foldBottom, rect.bottomRight(), rect.bottomLeft()}), ink.paper);
    if (foldedCorner > 0)
        stroke({foldLeft, {foldLeft.x(), foldBottom.y()}, foldBottom}, ink.line, 1.25);
}

void PictureCanvas::textLines(double left, double right, std::initializer_list<double> tops)
{
    for (const double top : tops)
        stroke({{left, top}, {right, top}}, ink.line, 1);
}

void PictureCanvas::openBook()
{
    for (const int side : {-1, 1}) {
        const auto x = [side](double distance) { return 12 + side * distance; };
        QPainterPath leaf;
        leaf.moveTo(12, 7);
        leaf.cubicTo(x(2), 5.2, x(5), 4.75, x(8.25), 4.75);
        leaf.lineTo(x(8.25), 17.25);
        leaf.cubicTo(x(5), 17.25, x(2), 17.8, 12, 19.75);
        leaf.closeSubpath();
        shape(leaf, ink.paper);
    }
}

void PictureCanvas::foldedMap(const QRectF& rect)
{
    const double third = rect.width() / 3;
    const double slant = rect.height() / 8;
    const auto corner = [&](int fold, bool bottom) {
        const bool low = (fold % 2 == 0);
        const double y = bottom ? rect.bottom() - (low ? 0 : slant) : rect.top() + (low ? slant : 0);
        return QPointF(rect.left() + fold * third, y);
    };
    shape(polygon({corner(0, false), corner(1, false), corner(2, false), corner(3, false), corner(3, true),
                   corner(2, true), corner(1, true), corner(0, true)}),
          ink.paper);
    stroke({corner(1, false), corner(1, true)}, ink.line, 1);
    stroke({corner(2, false), corner(2, true)}, ink.line, 1);
}

void PictureCanvas::magnifier()
{
    stroke({{15.2, 15.2}, {19.6, 19.6}}, ink.accent, 2.75);
    QPainterPath glass;
    glass.addEllipse(QPointF(10.25, 10.25), 6.5, 6.5);
    shape(glass, ink.paper);
}

void PictureCanvas::letterI(QPointF center, double height)
{
    const double top = center.y() - height / 2;
    dot({center.x(), top + height * 0.11}, height * 0.13, ink.cool);
    stroke({{center.x(), top + height * 0.42}, {center.x(), top + height}}, ink.cool, height * 0.2);
}

void PictureCanvas::questionMark(QPointF center, double height)
{
    const double unit = height / 10;
    const auto at = [&](double x, double y) { return center + QPointF(x, y) * unit; };
    QPainterPath hook;
    hook.moveTo(at(-2.6, -2.9));
    hook.cubicTo(at(-2.4, -6), at(2.8, -6), at(2.8, -2.6));
    hook.cubicTo(at(2.8, -0.4), at(0, -0.4), at(0, 2));
    stroke(hook, ink.cool, 1.9 * unit);
    dot(at(0, 4.6), 1.15 * unit, ink.cool);
}
