// The picture of a map on a desktop of two screens, the second of which has twice as many pixels to an inch.
#include "maps/MapPicture.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace {

/// Columns that are red and blue in turns: what is scaled from fewer pixels shows neither.
QImage columns(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, x % 2 ? Qt::blue : Qt::red);
    image.setDotsPerMeterX(qRound(192 / 0.0254));
    image.setDotsPerMeterY(qRound(192 / 0.0254));
    return image;
}

QScreen* screenNamed(const QString& name)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&](const QScreen* screen) { return screen->name() == name; });
    return found == screens.end() ? nullptr : *found;
}

} // namespace

TEST(TwoScreens, ThePictureIsScaledAnewOnTheDenserOne)
{
    if (!qEnvironmentVariableIsSet("QT_SCREEN_SCALE_FACTORS"))
        GTEST_SKIP() << "needs two screens; ctest -R two_screens gives them";
    QScreen* const plain = screenNamed("plain");
    QScreen* const dense = screenNamed("dense");
    ASSERT_TRUE(plain && dense);
    QWidget onPlain;
    onPlain.setScreen(plain);
    QWidget onDense;
    onDense.setScreen(dense);
    onDense.move(dense->geometry().topLeft());
    MapPicture picture(&onPlain);
    picture.setImage(columns(80, 60));
    ASSERT_EQ(picture.size(), QSize(40, 30));
    onPlain.show();
    onDense.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&onPlain) && QTest::qWaitForWindowExposed(&onDense));
    ASSERT_EQ(onDense.devicePixelRatioF(), 2);
    ASSERT_EQ(picture.devicePixelRatioF(), 1);
    picture.grab();

    picture.setParent(&onDense);
    picture.show();
    ASSERT_EQ(picture.devicePixelRatioF(), 2);
    const QImage shown = picture.grab().toImage();
    ASSERT_EQ(shown.size(), QSize(80, 60));
    EXPECT_EQ(shown.pixelColor(40, 30), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(41, 30), QColor(Qt::blue));
}
