// Long use at a fast clock: ten thousand turns of the verses by the timer, a thousand searches.
#include "search/ResultsList.h"
#include "support/Session.h"
#include "widgets/SoftBttn.h"
#include <chrono>
#include <fstream>
#include <malloc.h>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>
#include <thread>

using namespace std::chrono_literals;

namespace {

/// Lets the reading window's timer see the time that it waits for go by at once.
class FastClock : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        window = &frame().readingWindow();
        window->restoreAndActivate();
        window->chkAuto->setChecked(true);
        ASSERT_TRUE(window->Timer1->isActive());
    }

    void tick()
    {
        QTimerEvent event(window->Timer1->timerId());
        QCoreApplication::sendEvent(window->Timer1, &event);
    }

    int number() const { return window->lblSerial->text().toInt(); }

    ChildRead* window = nullptr;
};

TEST_F(FastClock, TenThousandTicksAreTenThousandSteps)
{
    constexpr int ticks = 10'000;
    window->DataCtl.setRecordSource("SELECT * FROM NewTestament WHERE VerseNumber = 30000");
    window->DataCtl.refresh();
    for (int i = 1; i <= ticks; ++i) {
        tick();
        const int expected = (30'000 + i - 1) % 31'102 + 1;
        ASSERT_EQ(number(), expected);
        ASSERT_EQ(window->caption(), "Reading Window -- " + window->lblVerseId->text());
        ASSERT_TRUE(window->Timer1->isActive());
    }
}

TEST_F(FastClock, EachTickStartsAFullInterval)
{
    for (int i = 0; i < 50; ++i) {
        QTest::qWait(2);
        tick();
        ASSERT_GE(window->Timer1->remainingTimeAsDuration(), 3995ms);
    }
}

TEST_F(FastClock, AfterALongSleepTheTimerTicksOnce)
{
    window->Timer1->setInterval(100);
    const int before = number();
    std::this_thread::sleep_for(1050ms); // ten intervals without an event, as when the computer sleeps
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(number(), before + 1);
}

class Soak : public Session
{
protected:
    void search(const QString& word)
    {
        frame().openSearch();
        auto& window = get<frmAdvSearch>();
        if (window.List1->isVisible())
            click(*window.cmdHideList);
        window.Text1->setText(word);
        window.Combo2->setCurrentIndex(47); // the whole Bible
        click(*window.cmdOK);
        found += window.List1->count();
        window.List1->setFocus();
        press(Qt::Key_Down);
        press(Qt::Key_Return); // the first result, in the reading window
        press(Qt::Key_F12);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        boxes.shown.clear();
    }

    void searchAndRead(int times)
    {
        static const QStringList words = {"amor", "casa", "luz", "terra", "pastor", "deus", "rei", "e"};
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
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps freed memory";
#endif
    searchAndRead(100);
    const long before = residentKilobytes();
    found = 0;
    searchAndRead(1'000);
    const long after = residentKilobytes();
    EXPECT_LE(after - before, 1024) << before << " kB before, " << after << " kB after";
    EXPECT_GT(found, 1'000'000);
}

} // namespace
