// Long use at a fast clock: ten thousand turns of the verses by the timer, a thousand searches.
#include "support/Session.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <chrono>
#include <fstream>
#include <malloc.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>
#include <sys/syscall.h>
#include <sys/time.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

long wallClockOffset = 0; ///< seconds

} // namespace

// These stand before the system's own in every library of this process.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    const int result = static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && clock == CLOCK_REALTIME)
        time->tv_sec += wallClockOffset;
    return result;
}
extern "C" int gettimeofday(timeval* time, void*) noexcept
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}
extern "C" time_t time(time_t* time) noexcept
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return time ? *time = now.tv_sec : now.tv_sec;
}

extern "C" [[gnu::weak]] void __asan_init(); // there only in a sanitizer build

namespace {

qint64 realSeconds()
{
    timespec time{};
    syscall(SYS_clock_gettime, CLOCK_REALTIME, &time);
    return time.tv_sec;
}

/// Lets the reading window's timer see the time that it waits for go by at once.
class FastClock : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        window = &frame().readingWindow();
        window->restoreAndActivate();
        control<QCheckBox>(*window, "chkAuto").setChecked(true);
        ASSERT_TRUE(timer().isActive());
    }

    void TearDown() override
    {
        wallClockOffset = 0;
        Session::TearDown();
    }

    void tick()
    {
        QTimerEvent event(timer().timerId());
        QCoreApplication::sendEvent(&timer(), &event);
    }

    QTimer& timer() const { return control<QTimer>(*window, "Timer1"); }
    int number() const { return window->currentNumber(); }

    ChildRead* window = nullptr;
};

TEST_F(FastClock, TenThousandTicksAreTenThousandSteps)
{
    constexpr int ticks = 10'000;
    window->fetch("SELECT * FROM NewTestament WHERE VerseNumber = 30000");
    for (int i = 1; i <= ticks; ++i) {
        tick();
        const int expected = (30'000 + i - 1) % 31'102 + 1;
        ASSERT_EQ(number(), expected);
        ASSERT_EQ(window->caption(), ChildRead::captionOf(window->currentKey()));
        ASSERT_TRUE(timer().isActive());
    }
}

TEST_F(FastClock, AfterALongSleepTheTimerTicksOnce)
{
    timer().setInterval(500);
    const int before = number();
    std::this_thread::sleep_for(1600ms); // three intervals without an event, as when the computer sleeps
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(number(), before + 1);
}

TEST_F(FastClock, AWallClockSetBackOrAheadChangesNothing)
{
    for (const int hours : {-24, 24}) {
        wallClockOffset = hours * 3600;
        const qint64 wall = QDateTime::currentSecsSinceEpoch();
        ASSERT_NEAR(wall - realSeconds(), hours * 3600, 2) << "the clock of this test moves nothing";
        timer().setInterval(500);
        const int before = number();
        QTest::qWait(50);
        EXPECT_EQ(number(), before) << hours;
        EXPECT_TRUE(QTest::qWaitFor([&] { return number() == before + 1; }, 5000)) << hours;
        timer().setInterval(4000);
        QTest::qWait(100);
        EXPECT_EQ(number(), before + 1) << hours;
    }
}

class Soak : public Session
{
protected:
    void search(const QString& word)
    {
        frame().openSearch();
        auto& window = get<frmAdvSearch>();
        if (control<ListBox>(window, "List1").isVisible())
            click(control<SoftBttn>(window, "cmdHideList"));
        control<QLineEdit>(window, "Text1").setText(word);
        control<QComboBox>(window, "Combo2").setCurrentIndex(47); // the whole Bible
        click(control<SoftBttn>(window, "cmdOK"));
        found += control<ListBox>(window, "List1").count();
        control<ListBox>(window, "List1").setFocus();
        press(Qt::Key_Down);
        press(Qt::Key_Return); // the first result, in the reading window
        press(Qt::Key_F12);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        boxes.shown.clear();
    }

    void searchAndRead(int times)
    {
        static const QStringList words = {"amor", "casa", "luz", "jardim", "pastor", "trigo"};
        for (int i = 0; i < times; ++i)
            search(words[i % words.size()]);
    }

    static long residentKilobytes()
    {
        malloc_trim(0); // what is free is no growth
        std::ifstream status("/proc/self/status");
        std::string word;
        while (status >> word && word != "VmRSS:") {
        }
        long kilobytes = 0;
        status >> kilobytes;
        return kilobytes;
    }

    long long found = 0;
};

TEST_F(Soak, AThousandSearchesLeaveTheMemoryFlat)
{
    if (__asan_init)
        GTEST_SKIP() << "the sanitizer keeps freed memory";
    searchAndRead(100);
    const long before = residentKilobytes();
    found = 0;
    searchAndRead(1'000);
    const long after = residentKilobytes();
    EXPECT_LE(after - before, 1024) << before << " kB before, " << after << " kB after";
    EXPECT_GT(found, 10'000);
}

} // namespace
