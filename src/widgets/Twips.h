#pragma once

#include <QWidget>

/// Sizes and positions are laid out in twips, 1/1440 inch: 15 to a device-independent pixel.
constexpr int twipsPerPixel = 15;

/// The nearest whole number of device-independent pixels.
inline int twips(qreal count)
{
    return qRound(count / twipsPerPixel);
}

/// Device-independent pixels in twips.
constexpr int toTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

/// A wanted width or height in twips, or the one in pixels that a control has already where the wanted one
/// is negative: a window too small for its layout leaves that step of it out.
constexpr int possibleTwips(int wanted, int pixels)
{
    return wanted >= 0 ? wanted : toTwips(pixels);
}

/// Puts a control at a place of its window, all in twips.
inline void place(QWidget& control, int left, int top, int width, int height)
{
    control.setGeometry(twips(left), twips(top), twips(width), twips(height));
}
