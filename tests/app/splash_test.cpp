// From the splash to the frame.
#include "app/StartupChecks.h"
#include "support/Session.h"
#include <QElapsedTimer>
#include <QTimer>

class Splash : public Session
{
    void SetUp() override { program = std::make_unique<Program>(KESTREL_INSTALL_DIR); }
};

TEST_F(Splash, GivesWayToTheFrameTwoSecondsAfterItIsShownAndNotEarlier)
{
    ASSERT_TRUE(program->start());
    QElapsedTimer clock;
    clock.start();
    QPointer<frmStart> splash = program->startWindow();
    while (!program->frame() && clock.elapsed() < 5000)
        QTest::qWait(1);
    EXPECT_GE(clock.elapsed(), 1990); // the splash was shown a moment before the clock started
    ASSERT_NE(program->frame(), nullptr);
    QTRY_VERIFY(splash.isNull());
    EXPECT_NE(open<ChildSelect>(), nullptr);
}

TEST_F(Splash, TicksOnce)
{
    ASSERT_TRUE(program->start());
    const QTimer* timer = &control<QTimer>(*program->startWindow(), "Timer1");
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 2000);
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_EQ(timer->timerType(), Qt::PreciseTimer) << "another may tick earlier";
}
