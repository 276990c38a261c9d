#include "maps/MapPicture.h"
#include "widgets/Twips.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QBuffer>
#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

QImage imageOf(int width, int height, int dotsPerInch)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    image.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    return image;
}

class Picture : public testing::Test
{
protected:
    void pressAt(QPoint place) { QTest::mousePress(&picture, Qt::LeftButton, {}, place); }

    void moveTo(QPointF place)
    {
        QMouseEvent move(QEvent::MouseMove, place, picture.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&picture, &move);
    }

    QWidget window;
    MapPicture picture{&window};
};

} // namespace

TEST_F(Picture, HasTheDesignedSizeBeforeAnImageComes)
{
    EXPECT_EQ(picture.extent(), QSizeF(735, 735));
    EXPECT_EQ(picture.size(), QSize(49, 49));
}

TEST_F(Picture, TakesTheNaturalSizeByTheResolution)
{
    picture.setImage(imageOf(400, 300, 192));
    EXPECT_EQ(picture.size(), QSize(200, 150));
    EXPECT_NEAR(picture.extent().width(), 3000, 0.1);
    EXPECT_NEAR(picture.extent().height(), 2250, 0.1);
}

TEST_F(Picture, CountsPixelsWhereThereIsNoResolution)
{
    picture.setImage(QImage(300, 200, QImage::Format_RGB32));
    EXPECT_EQ(picture.extent(), QSizeF(4500, 3000));
}

TEST_F(Picture, CountsPixelsWhereTheResolutionIsAbsurd)
{
    picture.setImage(imageOf(30, 20, 1));
    EXPECT_EQ(picture.size(), QSize(30, 20));
    picture.setImage(imageOf(710, 710, 71));
    EXPECT_EQ(picture.size(), QSize(710, 710));
    picture.setImage(imageOf(720, 720, 72)); // the lowest that there is
    EXPECT_EQ(picture.size(), QSize(960, 960));
}

TEST_F(Picture, EmptyPictureIsAsHighAsTheButtonsBesideItNeed)
{
    picture.setImage(imageOf(400, 300, 192));
    picture.setImage({});
    EXPECT_EQ(picture.extent(), QSizeF(735, 990));
    EXPECT_TRUE(picture.pixmap().isNull());
    picture.setStretch(true);
    picture.setExtent({6000, 3000});
    picture.setImage({});
    EXPECT_EQ(picture.extent(), QSizeF(735, 990));
}

TEST_F(Picture, StretchedPictureKeepsItsSizeForAnotherImage)
{
    picture.setStretch(true);
    picture.setExtent({6000, 3000});
    picture.setImage(imageOf(400, 300, 192));
    EXPECT_EQ(picture.size(), QSize(400, 200));
    EXPECT_EQ(picture.pixmap().size(), QSize(400, 200));
}

TEST_F(Picture, WithoutStretchingTheNaturalSizeComesBack)
{
    picture.setImage(imageOf(400, 300, 192));
    picture.setStretch(true);
    picture.setExtent(picture.extent() * 1.2);
    EXPECT_EQ(picture.size(), QSize(240, 180));
    picture.setStretch(false);
    EXPECT_EQ(picture.size(), QSize(200, 150));
}

TEST_F(Picture, PaintsFinelyWhatIsScaledDown)
{
    // Lines of one pixel, black and white in turn: scaled to half they are an even grey.
    QImage lines = imageOf(400, 300, 192);
    for (int x = 0; x < lines.width(); ++x)
        for (int y = 0; y < lines.height(); ++y)
            lines.setPixel(x, y, x % 2 ? 0xffffffff : 0xff000000);
    picture.setImage(lines);
    const QImage shown = picture.grab().toImage();
    ASSERT_EQ(shown.size(), QSize(200, 150) * shown.devicePixelRatio());
    EXPECT_NEAR(qGray(shown.pixel(shown.rect().center())), 127, 3);
}

// Maps are large and have a palette of few colours, of which scaling mixes more than a palette holds.
TEST_F(Picture, ShowsAColourOfAPaletteAsItIs)
{
    constexpr int side = 1100;
    const QColor sea(207, 223, 231);
    QImage image(side, side, QImage::Format_Indexed8);
    QList<QRgb> colours{sea.rgb()};
    for (int i = 1; i < 240; ++i)
        colours += qRgb(i, 255 - i, i * 37 % 256);
    image.setColorTable(colours);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixel(x, y, x < side / 2 ? 0 : 1 + (x * x * 31 + y * y * 17 + x * y) % 239);
    picture.setStretch(true);
    picture.setImage(image);
    for (const int shown : {side / 2, side * 6 / 5}) {
        picture.setExtent(QSizeF(toTwips(shown), toTwips(shown)));
        const QImage drawn = picture.pixmap().toImage();
        for (int x = 0; x < shown / 2 - 2; ++x)
            ASSERT_EQ(drawn.pixelColor(x, shown / 2), sea) << "at " << x << " of " << shown;
    }
}

TEST_F(Picture, TellsAScreenReaderThatItIsAPicture)
{
    picture.setImage(imageOf(400, 300, 192));
    picture.setAccessibleName("The Journeys of Abraham");
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&picture);
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
    EXPECT_EQ(spoken->text(QAccessible::Name), "The Journeys of Abraham");
}

TEST_F(Picture, CanBeDraggedOutWithAllItsPixels)
{
    window.show();
    picture.setImage(imageOf(400, 300, 192));
    QSignalSpy completed(&picture, &MapPicture::dragCompleted);
    // Where dragging waits for the mouse: on Windows for a real one, which must move over the window.
    QTimer::singleShot(50, &QDrag::cancel);
    pressAt({10, 10});
    QCursor::setPos(picture.mapToGlobal(QPoint(40, 40)));
    moveTo({40, 40});
    const auto* drag = picture.findChild<QDrag*>();
    ASSERT_TRUE(drag);
    EXPECT_EQ(qvariant_cast<QImage>(drag->mimeData()->imageData()).size(), QSize(400, 300));
    EXPECT_EQ(drag->pixmap().size(), QSize(160, 120) * picture.devicePixelRatioF());
    EXPECT_EQ(completed.count(), 1);
}

TEST_F(Picture, IsDraggedOnceTheMouseHasGoneFarEnough)
{
    window.show();
    picture.setImage(imageOf(400, 300, 192));
    QSignalSpy completed(&picture, &MapPicture::dragCompleted);
    pressAt({50, 50});
    moveTo({50.0 + QApplication::startDragDistance() - 1, 50});
    EXPECT_EQ(completed.count(), 0);
    QTimer::singleShot(50, &QDrag::cancel); // where dragging waits for the mouse
    moveTo({50.0 + QApplication::startDragDistance(), 50});
    EXPECT_EQ(completed.count(), 1);
}

TEST_F(Picture, ShortWayOrEmptyPictureStartsNoDrag)
{
    window.show();
    QSignalSpy completed(&picture, &MapPicture::dragCompleted);
    pressAt({10, 10});
    moveTo({40, 40});
    picture.setImage(imageOf(400, 300, 192));
    moveTo({12, 12});
    EXPECT_EQ(completed.count(), 0);
}

TEST(DecodedImage, BytesThatAreNoPictureGiveAnEmptyOne)
{
    EXPECT_TRUE(decodedImage("").isNull());
    EXPECT_TRUE(decodedImage("no picture at all").isNull());
}

TEST(DecodedImage, PartThatDeclaresMoreBytesThanThereAreIsRefused)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(imageOf(12, 8, 96).save(&buffer, "PNG"));
    EXPECT_FALSE(decodedImage(bytes).isNull());
    bytes[bytes.indexOf("IDAT") - 4] = 0x5B; // a length of 1.5 GB
    EXPECT_TRUE(decodedImage(bytes).isNull());
}

TEST(DecodedImage, SizeThatNoMapHasIsRefused)
{
    EXPECT_TRUE(decodedImage("P6 60000 60000 255\n").isNull());
    EXPECT_FALSE(decodedImage("P6 1 1 255\nabc").isNull());
}

TEST_F(Picture, IsNotDraggedWithoutTheLeftButton)
{
    picture.setImage(imageOf(200, 200, 96));
    QSignalSpy drags(&picture, &MapPicture::dragCompleted);
    pressAt({5, 5});
    const QPointF far(150, 150);
    QMouseEvent move(QEvent::MouseMove, far, picture.mapToGlobal(far), Qt::NoButton, Qt::RightButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&picture, &move);
    EXPECT_EQ(drags.count(), 0);
}

TEST(DecodedImage, IsNoneWhereItWouldFillTheMemory)
{
    const auto bitmapOf = [](int width, int height) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImage image(width, height, QImage::Format_Mono);
        image.fill(1);
        image.save(&buffer, "BMP");
        return bytes;
    };
    EXPECT_EQ(decodedImage(bitmapOf(4000, 4000)).size(), QSize(4000, 4000));
    EXPECT_TRUE(decodedImage(bitmapOf(4000, 4001)).isNull());
}
