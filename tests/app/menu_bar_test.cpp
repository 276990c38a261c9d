// The frame's menu bar and the Alt key, which gives it the focus when pressed alone.
#include "maps/ChildMapSel.h"
#include "support/Session.h"
#include <QTabBar>
#include <QTest>
#include <QWindow>

namespace {

class FrameMenuBar : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        frame().openStudyAids();
        settle();
        ASSERT_TRUE(tabs().hasFocus());
    }

    QTabBar& tabs() { return control<QTabBar>(get<ChildMapSel>(), "TabStrip1"); }
    QWindow* window() { return frame().windowHandle(); }
    /// Qt asks AT-SPI about each key that a person presses, and when it has the answer sends a copy of its
    /// own, in which Alt is one of Alt's own modifiers.
    void answerOfAtSpi(QEvent::Type type)
    {
        QCoreApplication::postEvent(window(), new QKeyEvent(type, Qt::Key_Alt, Qt::AltModifier));
        settle();
    }
};

} // namespace

TEST_F(FrameMenuBar, GetsTheFocusByAltAlone)
{
    QTest::keyPress(window(), Qt::Key_Alt);
    answerOfAtSpi(QEvent::KeyPress);
    QTest::keyRelease(window(), Qt::Key_Alt);
    answerOfAtSpi(QEvent::KeyRelease);
    EXPECT_TRUE(frame().menuBar()->hasFocus());
}

TEST_F(FrameMenuBar, GetsNoFocusByAnAccessKeyWhereAtSpiAnswersLate)
{
    QTest::keyPress(window(), Qt::Key_Alt);
    QTest::keyPress(window(), Qt::Key_M, Qt::AltModifier);
    ASSERT_EQ(tabs().currentIndex(), 1);
    answerOfAtSpi(QEvent::KeyPress);
    QTest::keyRelease(window(), Qt::Key_Alt);
    answerOfAtSpi(QEvent::KeyRelease);
    EXPECT_TRUE(tabs().hasFocus());
}
