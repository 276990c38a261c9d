// Every window opened and closed, again and again.
#include "support/OnceModal.h"
#include "support/Session.h"
#include <malloc.h>

extern "C" [[gnu::weak]] void __asan_init(); // there only in a sanitizer build

namespace {

/// How often; 10,000 by hand.
int rounds()
{
    bool isNumber = false;
    const int given = qEnvironmentVariableIntValue("KESTREL_OPENINGS", &isNumber);
    return isNumber ? given : 20;
}

class Openings : public Session
{
protected:
    void openAndCloseAll()
    {
        frame().openSelection();
        frame().openSearch();
        frame().openStudyAids();
        frame().readingWindow().restoreAndActivate();
        frame().chapterWindow().restoreAndActivate();
        frame().mapWindow().restoreAndActivate();
        settle();
        EXPECT_EQ(frame().area()->subWindowList().size(), 6);
        const auto about = onceModal([](QWidget& window) { window.close(); });
        frame().about();
        for (QMdiSubWindow* window : frame().area()->subWindowList())
            window->close();
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(frame().area()->subWindowList().isEmpty());
    }

    static std::size_t kilobytesInUse() { return mallinfo2().uordblks / 1024; }
};

TEST_F(Openings, OfEveryWindowLeaveNothingBehind)
{
    openAndCloseAll();
    openAndCloseAll();
    const std::size_t before = kilobytesInUse();
    for (int i = 0; i < rounds() && !HasFailure(); ++i)
        openAndCloseAll();
    if (!__asan_init) { // the sanitizer counts for itself
        EXPECT_LE(kilobytesInUse(), before + 512) << before << " kB before";
    }
}

} // namespace
