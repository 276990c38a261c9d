#pragma once

#include <QWidget>

/// Sizes and positions are laid out in twips, 1/1440 inch: 15 to a device-independent pixel.
constexpr int twipsPerPixel = 15;

/// Twips in the nearest whole number of device-independent pixels.
inline int toPixels(qreal twips)
{
    return qRound(twips / twipsPerPixel);
}

/// Device-independent pixels in twips.
constexpr int toTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

constexpr QSize toTwips(QSize pixels)
{
    return pixels * twipsPerPixel;
}

/// A wanted width or height, or the present one where the wanted one is negative: a window too small for its
/// layout leaves that step of it out.
constexpr int possibleLength(int wanted, int present)
{
    return wanted >= 0 ? wanted : present;
}

/// Puts a control at a place of its window, all in twips.
inline void place(QWidget& control, int left, int top, int width, int height)
{
    control.setGeometry(toPixels(left), toPixels(top), toPixels(width), toPixels(height));
}
