#include "pictures/Colors.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool isLight(const QColor& color)
{
    return contrastRatio(color, Qt::black) >= contrastRatio(color, Qt::white);
}

QColor blended(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

PictureColors pictureColors(const QColor& face, bool enabled)
{
    const bool light = isLight(face);
    if (!enabled) {
        const QColor grey = blended(face, light ? Qt::black : Qt::white, light ? 0.32 : 0.28);
        return {grey, face, grey, grey};
    }
    if (light)
        return {QColor(0x2c3b4a), QColor(0xfdfcf8), QColor(0xab5521), QColor(0x2a6493)};
    return {QColor(0xdbe4ec), QColor(0x4a5967), QColor(0xf0a468), QColor(0x86bfe8)};
}

QColor focusRingColor(const QColor& face)
{
    for (const QColor& ring : {QColor(0x1a5fa8), QColor(0x8ccbff)}) {
        if (contrastRatio(ring, face) >= 3)
            return ring;
    }
    return isLight(face) ? Qt::black : Qt::white;
}
