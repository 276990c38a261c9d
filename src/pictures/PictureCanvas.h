#pragma once

#include "pictures/Colors.h"
#include <initializer_list>
#include <QPainter>
#include <QPainterPath>

/// Drawing on the grid of 24 x 24 units that all pictures share, and the shapes that more than one of them
/// uses.
class PictureCanvas
{
public:
    PictureCanvas(QPainter& painter, const PictureColors& ink);

    QPainter& painter;
    const PictureColors ink;

    void stroke(const QPainterPath& path, const QColor& color, double width = 1.5);
    void stroke(std::initializer_list<QPointF> points, const QColor& color, double width = 1.5);
    void fill(const QPainterPath& path, const QColor& color);
    /// Filled and outlined in the line colour.
    void shape(const QPainterPath& path, const QColor& color);
    void dot(QPointF center, double radius, const QColor& color);

    void page(const QRectF& rect, double foldedCorner = 0);
    void textLines(double left, double right, std::initializer_list<double> tops);
    void openBook();
    void foldedMap(const QRectF& rect);
    void magnifier();
    void letterI(QPointF center, double height);
    void questionMark(QPointF center, double height);
};

QPainterPath polygon(std::initializer_list<QPointF> points);
