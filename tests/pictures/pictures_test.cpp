#include "pictures/Colors.h"
#include "pictures/Pictures.h"
#include <gtest/gtest.h>
#include <QPainter>
#include <set>

namespace {
QImage painted(PictureId id, int side, const QColor& face, QIcon::Mode mode = QIcon::Normal)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(face);
    QPainter painter(&image);
    painter.setBackground(face);
    iconOf(id).paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

double strongestContrast(const QImage& image, const QColor& face)
{
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            strongest = std::max(strongest, contrastRatio(image.pixelColor(x, y), face));
    }
    return strongest;
}

const QList<QColor> faces{QColor(0xefefef), QColor(0xd4d0c8), QColor(0x2b2f33), QColor(Qt::black)};
} // namespace

TEST(Pictures, StandInTheOrderOfTheirIds)
{
    for (qsizetype i = 0; i < allPictures().size(); ++i)
        EXPECT_EQ(static_cast<qsizetype>(allPictures()[i]), i);
    EXPECT_EQ(allPictures().last(), PictureId::Application);
}

TEST(Pictures, NoTwoAreAlike)
{
    std::set<QByteArray> seen;
    for (const PictureId id : allPictures()) {
        const QImage image = painted(id, 24, faces.first());
        EXPECT_TRUE(
            seen.emplace(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()).second)
            << static_cast<int>(id);
    }
    EXPECT_EQ(seen.size(), 27u);
}

TEST(Pictures, AreReadableOnLightAndDarkFaces)
{
    for (const QColor& face : faces) {
        for (const PictureId id : allPictures())
            EXPECT_GE(strongestContrast(painted(id, 24, face), face), 3) << static_cast<int>(id);
    }
}

TEST(Pictures, AreGreyedWhenDisabled)
{
    for (const QColor& face : faces) {
        for (const PictureId id : allPictures()) {
            if (id == PictureId::Application)
                continue;
            const double disabled = strongestContrast(painted(id, 24, face, QIcon::Disabled), face);
            EXPECT_GT(disabled, 1.2) << static_cast<int>(id);
            EXPECT_LT(disabled, 3) << static_cast<int>(id);
        }
    }
}

TEST(Pictures, KeepTheButtonsEdgeFree)
{
    for (const PictureId id : allPictures()) {
        if (id == PictureId::Application)
            continue;
        QImage image = painted(id, 24, Qt::white);
        QPainter(&image).fillRect(2, 2, 20, 20, Qt::white);
        EXPECT_LT(strongestContrast(image, Qt::white), 1.05) << static_cast<int>(id);
    }
}

TEST(Pictures, ArePaintedAtTheSizeAskedFor)
{
    const QPixmap pixmap = iconOf(PictureId::Application).pixmap(QSize(48, 48), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(96, 96));
    EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
}

TEST(Pictures, TheSplashHasItsSizeAtEveryDensity)
{
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        const QPixmap splash = splashPicture(ratio);
        EXPECT_EQ(splash.deviceIndependentSize(), QSizeF(480, 376));
        EXPECT_EQ(splash.devicePixelRatio(), ratio);
    }
}

TEST(Pictures, StayTheSameInACopyOfTheirIcon)
{
    const QIcon icon = iconOf(PictureId::Search);
    QIcon copy = icon;
    copy.detach();
    ASSERT_NE(copy.cacheKey(), 0);
    EXPECT_EQ(copy.pixmap(24, 24).toImage(), icon.pixmap(24, 24).toImage());
    EXPECT_NE(copy.pixmap(24, 24).toImage(), iconOf(PictureId::Help).pixmap(24, 24).toImage());
}

TEST(FocusRing, IsBlackOrWhiteOnAFaceThatNeitherBlueIsSeenOn)
{
    EXPECT_EQ(focusRingColor(QColor(0x6f6f6f)), QColor(Qt::white));
    EXPECT_EQ(focusRingColor(QColor(0x808080)), QColor(Qt::black));
}
