#include "pictures/Colors.h"
#include "support/Recorders.h"
#include "widgets/SoftBttn.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

namespace {
class PictureButton : public testing::Test
{
protected:
    PictureButton()
    {
        window.resize(200, 100);
        button.setGeometry(10, 10, 24, 24);
        other.setGeometry(60, 10, 24, 24);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QImage shot()
    {
        QImage image(button.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        button.render(&image);
        return image;
    }

    QWidget window;
    SoftBttn button{PictureId::Search, "Search", &window};
    SoftBttn other{PictureId::Help, "Help", &window};
    QSignalSpy clicks{&button, &QAbstractButton::clicked};
};

/// Sees whether what it watches has been painted.
class Painted : public QObject
{
public:
    bool since = false;
    bool eventFilter(QObject*, QEvent* event) override
    {
        since = since || event->type() == QEvent::Paint;
        return false;
    }
};

// How many pixels of an image have a colour.
int count(const QImage& image, const QColor& color)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            pixels += (image.pixelColor(x, y) == color);
    }
    return pixels;
}
} // namespace

TEST_F(PictureButton, AMouseClickClicks)
{
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PictureButton, SpaceClicks)
{
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PictureButton, EnterIsLeftToTheWindow)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&button, &press);
        EXPECT_FALSE(press.isAccepted());
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(&button, &release);
        EXPECT_FALSE(release.isAccepted());
    }
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PictureButton, ADisabledButtonDoesNotClick)
{
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(PictureButton, TabAndMouseGiveItTheFocus)
{
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(PictureButton, IsAPushButtonNamedByItsToolTip)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::PushButton);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Search");
    button.setToolTip("Study Aids");
    EXPECT_EQ(spoken->text(QAccessible::Name), "Study Aids");
    button.setProperty("tooltiptext", "Notepad");
    EXPECT_EQ(spoken->text(QAccessible::Name), "Notepad");
    EXPECT_EQ(button.toolTip(), "Notepad");
}

TEST_F(PictureButton, AScreenReaderSeesStatesAndCanPress)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(spoken, nullptr);
    EXPECT_FALSE(spoken->state().disabled);
    EXPECT_TRUE(spoken->state().focusable);
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([this] { return clicks.count() == 1; }));
    button.setEnabled(false);
    EXPECT_TRUE(spoken->state().disabled);
    button.hide();
    EXPECT_TRUE(spoken->state().invisible);
}

TEST_F(PictureButton, TheFaceIsThePalettesUntilAColourIsSet)
{
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(10, 200, 30));
    button.setPalette(palette);
    EXPECT_EQ(button.backColor(), QColor(10, 200, 30));
    EXPECT_GT(count(shot(), QColor(10, 200, 30)), 100);
    button.setProperty("backcolor", QColor(200, 220, 240));
    EXPECT_GT(count(shot(), QColor(200, 220, 240)), 100);
}

TEST_F(PictureButton, MaskColourLetsTheFaceThroughOnlyWhenUsed)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::green);
    QPainter(&pixmap).fillRect(4, 4, 6, 6, Qt::blue);
    button.setPicture(pixmap);
    button.setBackColor(Qt::yellow);
    button.setMaskColor(Qt::green);
    EXPECT_EQ(shot().pixelColor(16, 16), QColor(Qt::green));
    button.setUseMaskColor(true);
    EXPECT_EQ(shot().pixelColor(16, 16), QColor(Qt::yellow));
    EXPECT_EQ(shot().pixelColor(6, 6), QColor(Qt::blue));
}

TEST_F(PictureButton, PressedIsSunkenWithThePictureOnePixelOff)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(8, 8, 4, 4, Qt::blue);
    button.setPicture(pixmap);
    const QImage up = shot();
    EXPECT_EQ(up.pixelColor(8, 8), QColor(Qt::blue));
    EXPECT_NE(up.pixelColor(12, 12), QColor(Qt::blue));
    QTest::mousePress(&button, Qt::LeftButton);
    const QImage down = shot();
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_NE(down.pixelColor(8, 8), QColor(Qt::blue));
    EXPECT_EQ(down.pixelColor(12, 12), QColor(Qt::blue));
    EXPECT_LT(down.pixelColor(18, 18).lightness(), up.pixelColor(18, 18).lightness());
}

TEST_F(PictureButton, TheFocusRingStandsOutOnLightAndDark)
{
    for (const QColor& face : {QColor(0xefefef), QColor(0xffffe0), QColor(0x2b2f33), QColor(0x808080)}) {
        button.setBackColor(face);
        other.setFocus();
        EXPECT_EQ(count(shot(), focusRingColor(face)), 0);
        button.setFocus();
        EXPECT_GT(count(shot(), focusRingColor(face)), 2 * 4 * 16);
        EXPECT_GE(contrastRatio(focusRingColor(face), face), 3);
    }
}

TEST_F(PictureButton, HoverAndDisabledLookDifferent)
{
    const QImage normal = shot();
    button.setAttribute(Qt::WA_UnderMouse);
    EXPECT_NE(shot(), normal);
    button.setEnabled(false);
    EXPECT_NE(shot(), normal);
    EXPECT_EQ(count(shot(), pictureColors(button.backColor()).line), 0) << "a disabled picture is grey";
}

TEST_F(PictureButton, IsSharpAtTwiceTheDensity)
{
    QImage dense(button.size() * 2, QImage::Format_ARGB32);
    dense.setDevicePixelRatio(2);
    dense.fill(Qt::transparent);
    button.render(&dense);
    const QImage stretched = shot().scaled(dense.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int different = 0;
    for (int y = 4; y < 44; ++y) {
        for (int x = 4; x < 44; ++x)
            different +=
                qAbs(dense.pixelColor(x, y).lightness() - stretched.pixelColor(x, y).lightness()) > 24;
    }
    EXPECT_GT(different, 100);
}

TEST_F(PictureButton, AClickBeepsOnlyWithPlaySounds)
{
    RecordedServices services;
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(services.beeps, 0);
    button.setProperty("playsounds", true);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(services.beeps, 1);
}

TEST_F(PictureButton, TellsItsPropertiesByTheirNames)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::blue);
    button.setProperty("picture", QIcon(pixmap));
    EXPECT_EQ(qvariant_cast<QIcon>(button.property("picture")).cacheKey(), button.picture().cacheKey());
    EXPECT_EQ(shot().pixelColor(12, 12), QColor(Qt::blue));
    EXPECT_EQ(button.property("maskcolor"), QColor(Qt::magenta)) << "until another is set";
    EXPECT_EQ(button.property("usemaskcolor"), false);
    EXPECT_EQ(button.property("playsounds"), false);
    button.setProperty("maskcolor", QColor(Qt::blue));
    button.setProperty("usemaskcolor", true);
    button.setProperty("playsounds", true);
    button.setProperty("backcolor", QColor(Qt::yellow));
    EXPECT_EQ(button.property("maskcolor"), QColor(Qt::blue));
    EXPECT_EQ(button.property("usemaskcolor"), true);
    EXPECT_EQ(button.property("playsounds"), true);
    EXPECT_EQ(button.property("backcolor"), QColor(Qt::yellow));
    EXPECT_EQ(button.property("tooltiptext"), "Search");
    EXPECT_EQ(shot().pixelColor(12, 12), QColor(Qt::yellow));
}

TEST_F(PictureButton, IsPaintedAnewWhenItsLookIsSet)
{
    Painted painted;
    button.installEventFilter(&painted);
    const auto paintedAfter = [&](const char* property, const QVariant& value) {
        QTest::qWait(1);
        painted.since = false;
        button.setProperty(property, value);
        return QTest::qWaitFor([&] { return painted.since; }, 1000);
    };
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::blue);
    EXPECT_TRUE(paintedAfter("picture", QIcon(pixmap)));
    EXPECT_TRUE(paintedAfter("usemaskcolor", true));
    EXPECT_TRUE(paintedAfter("maskcolor", QColor(Qt::blue)));
    EXPECT_TRUE(paintedAfter("backcolor", QColor(Qt::yellow)));
}

TEST_F(PictureButton, AsksForTheSizeOfAToolbarsButton)
{
    EXPECT_EQ(button.sizeHint(), QSize(24, 24));
}

TEST_F(PictureButton, IsLighterUnderThePointerOnADarkDesktopToo)
{
    button.setBackColor(QColor(0x2b2f33));
    const int resting = shot().pixelColor(3, 12).lightness();
    button.setAttribute(Qt::WA_UnderMouse);
    EXPECT_GT(shot().pixelColor(3, 12).lightness(), resting);
    button.setDown(true);
    EXPECT_LT(shot().pixelColor(3, 12).lightness(), resting);
}

TEST_F(PictureButton, TheFocusRingLeavesThePictureInSight)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::blue);
    button.setPicture(pixmap);
    button.setFocus();
    EXPECT_EQ(shot().pixelColor(12, 12), QColor(Qt::blue));
}
