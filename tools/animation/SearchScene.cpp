#include "animation/SearchScene.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

const QColor background(0xf4, 0xf1, 0xea);
const QColor paper(0xff, 0xfd, 0xf6);
const QColor paperEdge(0xb9, 0xa8, 0x88);
const QColor cover(0x7a, 0x3b, 0x2a);
const QColor ink(0x8d, 0x86, 0x7a);
const QColor foundInk(0xc0, 0x7a, 0x1e);
const QColor metal(0x3d, 0x4a, 0x57);
const QColor handle(0x8a, 0x5a, 0x33);

// In pixels of the scene.
constexpr double spineX = 120;
constexpr double pageWidth = 82;
constexpr double pageTop = 9;
constexpr double pageHeight = 42;
constexpr double sag = 3;
constexpr int linesOnAPage = 6;
constexpr double lensRadius = 12;
constexpr double magnification = 1.7;

/// How far a page sinks at a distance from the spine, 0 to 1 of its width: down at the spine and bent at the
/// edge.
double bend(double distance)
{
    return sag * (1 - std::sin(distance * std::numbers::pi * 0.85 + 0.35));
}

/// A page's outline; `side` is -1 for the left and 1 for the right page.
QPainterPath pageOutline(int side)
{
    constexpr int steps = 24;
    QPainterPath path;
    for (int i = 0; i <= steps; ++i) {
        const double distance = static_cast<double>(i) / steps;
        const QPointF point(spineX + side * distance * pageWidth, pageTop + bend(distance));
        i == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    for (int i = steps; i >= 0; --i) {
        const double distance = static_cast<double>(i) / steps;
        path.lineTo(spineX + side * distance * pageWidth, pageTop + pageHeight + bend(distance));
    }
    path.closeSubpath();
    return path;
}

void drawPage(QPainter& painter, int side)
{
    // Two more leaves below, then the page itself, darker towards the spine.
    for (int leaf = 2; leaf >= 1; --leaf) {
        painter.setPen(QPen(paperEdge, 0.6));
        painter.setBrush(paper.darker(100 + 4 * leaf));
        painter.drawPath(pageOutline(side).translated(side * leaf * 1.3, leaf * 1.1));
    }
    QLinearGradient shade(spineX, 0, spineX + side * pageWidth, 0);
    shade.setColorAt(0, paper.darker(118));
    shade.setColorAt(0.18, paper);
    shade.setColorAt(1, paper);
    painter.setPen(QPen(paperEdge, 0.6));
    painter.setBrush(shade);
    painter.drawPath(pageOutline(side));
}

/// The words of a line as stretches of its length. Their lengths only need to look like those of a text.
void drawLine(QPainter& painter, int side, int line, bool found)
{
    const double y = pageTop + 6.5 + line * 6;
    const double begin = side < 0 ? -pageWidth + 7 : 7;
    const double end = side < 0 ? -7 : pageWidth - 7;
    unsigned seed = static_cast<unsigned>(line * 7 + (side > 0 ? 41 : 3));
    int word = 0;
    for (double x = begin; x < end - 2; ++word) {
        seed = seed * 1103515245u + 12345u;
        const double length = std::min(4.0 + (seed >> 16) % 9, end - x);
        const bool isFound = found && word == 3;
        painter.setPen(QPen(isFound ? foundInk : ink, isFound ? 2.2 : 1.5, Qt::SolidLine, Qt::RoundCap));
        const double left = y + bend(std::abs(x) / pageWidth);
        const double right = y + bend(std::abs(x + length) / pageWidth);
        painter.drawLine(QPointF(spineX + x, left), QPointF(spineX + x + length, right));
        x += length + 3.4;
    }
}

void drawBook(QPainter& painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(cover);
    painter.drawRoundedRect(QRectF(spineX - pageWidth - 5, pageTop + 3, 2 * pageWidth + 10, pageHeight + 5),
                            2, 2);
    for (const int side : {-1, 1}) {
        drawPage(painter, side);
        for (int line = 0; line < linesOnAPage; ++line)
            drawLine(painter, side, line, side > 0 && line == 2);
    }
}

/// The glass drifts along the lines of both pages and comes back along lower ones.
QPointF lensCentre(double moment)
{
    const double angle = 2 * std::numbers::pi * moment;
    return {spineX - 58 * std::cos(angle), 28 - 7 * std::sin(angle)};
}

void drawHandle(QPainter& painter, const QPointF& centre)
{
    const QPointF direction(std::numbers::sqrt2 / 2, std::numbers::sqrt2 / 2);
    painter.setPen(QPen(metal, 2.6, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(centre + direction * lensRadius, centre + direction * (lensRadius + 4));
    painter.setPen(QPen(handle, 4.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre + direction * (lensRadius + 5), centre + direction * (lensRadius + 15));
}

void drawGlass(QPainter& painter, const QPointF& centre)
{
    QPainterPath lens;
    lens.addEllipse(centre, lensRadius, lensRadius);

    // What lies under the lens, enlarged about its centre.
    painter.save();
    painter.setClipPath(lens);
    painter.fillPath(lens, background);
    painter.translate(centre);
    painter.scale(magnification, magnification);
    painter.translate(-centre);
    drawBook(painter);
    painter.restore();

    painter.fillPath(lens, QColor(0xbf, 0xe2, 0xf5, 40));
    painter.setPen(QPen(QColor(255, 255, 255, 190), 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    const double shine = lensRadius - 3;
    painter.drawArc(QRectF(centre.x() - shine, centre.y() - shine, 2 * shine, 2 * shine), 110 * 16, 55 * 16);
    painter.setPen(QPen(metal, 2.4));
    painter.drawEllipse(centre, lensRadius, lensRadius);
}

} // namespace

QImage drawSearchScene(double moment)
{
    // Drawn large and shrunk, which smooths what antialiasing leaves at the edge of the lens.
    constexpr int enlargement = 4;
    QImage large(sceneWidth * enlargement, sceneHeight * enlargement, QImage::Format_RGB32);
    large.fill(background);
    QPainter painter(&large);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(enlargement, enlargement);
    drawBook(painter);
    drawHandle(painter, lensCentre(moment));
    drawGlass(painter, lensCentre(moment));
    painter.end();
    return large.scaled(sceneWidth, sceneHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
