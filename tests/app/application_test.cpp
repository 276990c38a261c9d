// The top level of the program: an error that nobody caught, lists that open where they must not.
#include "app/Application.h"
#include "support/Recorders.h"
#include "widgets/Fonts.h"
#include <cstdio>
#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLoggingCategory>
#include <QPalette>
#include <QPixmapCache>
#include <QTest>
#include <QTimer>
#include <stdexcept>

namespace {

/// Fails at every event of its own.
class Failing : public QObject
{
protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User)
            throw std::runtime_error("disk I/O error");
        return QObject::event(event);
    }
};

void fail(Failing& failing)
{
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&failing, &event);
}

/// The last message of a program in which a timer ticks and more goes wrong meanwhile. What was seen goes to
/// standard error.
[[noreturn]] void endWithALastMessage()
{
    RecordedBoxes boxes;
    Failing failing;
    QTimer timer;
    int ticks = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(0);
    boxes.whileShown = [&] {
        fail(failing);
        QTest::qWait(20);
    };
    QTimer::singleShot(0, [&] {
        ticks = 0;
        fail(failing);
    });
    const int code = QCoreApplication::exec();
    std::fprintf(stderr, "%d message: %s; %d ticks, timer %s\n", static_cast<int>(boxes.shown.size()),
                 qPrintable(boxes.shown.value(0).text), ticks, timer.isActive() ? "goes on" : "rests");
    std::exit(code);
}

} // namespace

TEST(UncaughtError, IsShownOnceAsTheLastThingWhileTimersRest)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(endWithALastMessage(), testing::ExitedWithCode(1),
                "1 message: disk I/O error; 0 ticks, timer rests");
}

TEST(OpenedList, ClosesBehindAMessageAndStaysElsewhere)
{
    QWidget window;
    QComboBox box(&window);
    box.addItems({"all of these words", "any of these words"});
    window.show();
    box.showPopup();
    QTest::qWait(0);
    EXPECT_TRUE(box.view()->isVisible());
    box.hidePopup();
    QDialog message;
    message.setModal(true);
    message.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
    box.showPopup();
    QTest::qWait(0);
    EXPECT_FALSE(box.view()->isVisible());
}

TEST(QtsWarnings, AreLeftOutWhereTheyAreOfWhatIsHandled)
{
    for (const char* name :
         {"qt.gui.imageio", "qt.qpa.clipboard", "qt.accessibility.atspi", "qt.qpa.wayland"})
        EXPECT_FALSE(QLoggingCategory(name).isWarningEnabled()) << name;
}

TEST(TheApplication, HasItsNameAndAddsNothingToCaptions)
{
    EXPECT_EQ(QApplication::applicationName(), "kestrel-reader");
    EXPECT_EQ(QApplication::applicationDisplayName(), "");
    EXPECT_EQ(QApplication::desktopFileName(), "io.github.kestrelreader.KestrelReader");
}

TEST(TheApplication, KeepsFewPicturesOfButtonsInMemory)
{
    EXPECT_EQ(QPixmapCache::cacheLimit(), 512); // kB
}

TEST(TheApplication, HasOneTypeAndOneColorOfSelections)
{
    EXPECT_EQ(QApplication::font(), Fonts::captionsOf(9));
    const QPalette colors = QApplication::palette();
    EXPECT_EQ(colors.color(QPalette::Active, QPalette::Highlight), QColor(0x12559c));
    EXPECT_EQ(colors.color(QPalette::Active, QPalette::HighlightedText), QColor(Qt::white));
    EXPECT_EQ(colors.color(QPalette::Inactive, QPalette::Highlight), QColor(0x6391c0));
    EXPECT_EQ(colors.color(QPalette::Inactive, QPalette::HighlightedText), QColor(Qt::black));
}

TEST(QtsWarnings, AreKeptQuietUntilThereIsAnApplication)
{
    ASSERT_TRUE(QLoggingCategory::defaultCategory()->isWarningEnabled());
    qputenv("XKB_LOG_LEVEL", "debug"); // someone looks for a fault
    Application::keepLibrariesQuiet();
    EXPECT_EQ(qgetenv("XKB_LOG_LEVEL"), "debug");
    qunsetenv("XKB_LOG_LEVEL");
    EXPECT_FALSE(QLoggingCategory::defaultCategory()->isWarningEnabled());
    EXPECT_TRUE(QLoggingCategory::defaultCategory()->isCriticalEnabled());
    QLoggingCategory::setFilterRules("");
}
