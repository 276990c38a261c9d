// Links must be readable on dark desktops whose own colour of links is meant for light ones.
#include "pictures/LinkColor.h"
#include <gtest/gtest.h>

namespace {

QPalette paletteOf(const QColor& background, const QColor& text, const QColor& link)
{
    QPalette palette;
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Link, link);
    return palette;
}

} // namespace

TEST(LinkColor, IsTheDesktopsWhereItCanBeRead)
{
    const QPalette light = paletteOf(Qt::white, Qt::black, Qt::blue);
    EXPECT_EQ(linkColor(light, QPalette::Base, QPalette::Text), QColor(Qt::blue));
}

TEST(LinkColor, IsTheTextsWhereItCannot)
{
    const QPalette dark = paletteOf(QColor(30, 30, 30), Qt::white, Qt::blue);
    EXPECT_EQ(linkColor(dark, QPalette::Base, QPalette::Text), QColor(Qt::white));
}
