#include "store/ProcessorTime.h"
#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;

namespace {

TEST(ProcessorTime, StandsStillWhileTheProcessWaits)
{
    const std::chrono::nanoseconds start = processorTime();
    std::this_thread::sleep_for(500ms);
    EXPECT_LT(processorTime() - start, 100ms);
}

TEST(ProcessorTime, GoesOnWhileTheProcessWorks)
{
    const std::chrono::nanoseconds start = processorTime();
    const auto patience = std::chrono::steady_clock::now() + 60s;
    while (processorTime() - start < 50ms)
        ASSERT_LT(std::chrono::steady_clock::now(), patience);
}

} // namespace
