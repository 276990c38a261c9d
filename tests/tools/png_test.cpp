#include "database/Png.h"
#include "importer/InputError.h"
#include "tools/Samples.h"
#include <gtest/gtest.h>
#include <QBuffer>
#include <QImage>

namespace {

/// A picture as Qt writes it, which gives it a resolution of its own.
std::string picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.setPixel(3, 2, qRgb(1, 2, 3));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

QImage shown(const std::string& png)
{
    return QImage::fromData(QByteArray::fromStdString(png), "PNG");
}

int occurrences(const std::string& bytes, const std::string& piece)
{
    int count = 0;
    for (std::size_t at = bytes.find(piece); at != std::string::npos; at = bytes.find(piece, at + 1))
        ++count;
    return count;
}

} // namespace

TEST(Png, GetsTheResolutionOfItsNaturalSize)
{
    const std::string before = picture(90, 40);
    const std::string after = withNaturalSize(before, 60, 40);
    const QImage image = shown(after);
    EXPECT_EQ(image.size(), QSize(90, 40));
    EXPECT_EQ(image.dotsPerMeterX(), 5669); // 90 / 60 * 96 / 0.0254
    EXPECT_EQ(image.dotsPerMeterY(), 3780);
    EXPECT_EQ(image.pixel(3, 2), qRgb(1, 2, 3));
    EXPECT_EQ(occurrences(before, "pHYs"), 1) << "The resolution it had is replaced.";
    EXPECT_EQ(occurrences(after, "pHYs"), 1);
    EXPECT_EQ(after.find("pHYs"), 8u + 25 + 4) << "It follows the header.";
    EXPECT_EQ(withNaturalSize(after, 60, 40), after);
}

TEST(Png, GetsAResolutionThatItLacked)
{
    std::string bare = picture(90, 40);
    bare.erase(bare.find("pHYs") - 4, 21);
    EXPECT_EQ(shown(withNaturalSize(bare, 45, 20)).dotsPerMeterX(), 7559);
}

TEST(Png, IsRefusedWhenCutOffAnywhere)
{
    const std::string whole = picture(9, 4);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_NE(complaint<InputError>([&] { withNaturalSize(whole.substr(0, length), 9, 4); }), "")
            << length;
}

TEST(Png, IsRefusedWhenDamaged)
{
    std::string damaged = picture(9, 4);
    damaged[damaged.find("IDAT") + 6] ^= 1;
    EXPECT_EQ(complaint<InputError>([&] { withNaturalSize(damaged, 9, 4); }), "the PNG picture is damaged.");
    EXPECT_EQ(complaint<InputError>([&] { withNaturalSize("GIF89a", 9, 4); }), "the picture is not a PNG.");
}
