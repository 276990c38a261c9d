#pragma once

#include "pictures/Colors.h"
#include <QPalette>

/// The colour of links on a background of the palette: the desktop's own where it can be read there, else
/// that of the text, which the underline then tells apart.
inline QColor linkColor(const QPalette& palette, QPalette::ColorRole background, QPalette::ColorRole text)
{
    constexpr double readable = 4.5;
    const QColor link = palette.color(QPalette::Link);
    return contrastRatio(link, palette.color(background)) >= readable ? link : palette.color(text);
}
