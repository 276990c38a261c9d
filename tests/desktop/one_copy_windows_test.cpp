// The name that a copy holds, and what strangers may put in its place.
#include "desktop/InstanceName.h"
#include <gtest/gtest.h>
#include <windows.h>

namespace {

const std::wstring global = L"Global\\kestrel-test-stranger";

} // namespace

TEST(OneCopyAmongStrangers, PassesANameByThatIsNoMutex)
{
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, global.c_str());
    ASSERT_NE(event, nullptr);
    InstanceName first("kestrel-test-stranger");
    EXPECT_TRUE(first.take());
    EXPECT_FALSE(InstanceName("kestrel-test-stranger").take()) << "there are two copies";
    CloseHandle(event);
    EXPECT_FALSE(InstanceName("kestrel-test-stranger").take()) << "the stranger has gone";
}

TEST(OneCopyAmongStrangers, HoldsANameThatIsSeenInEverySession)
{
    InstanceName first("kestrel-test-stranger");
    ASSERT_TRUE(first.take());
    const HANDLE mutex = OpenMutexW(READ_CONTROL, FALSE, global.c_str());
    EXPECT_NE(mutex, nullptr);
    CloseHandle(mutex);
    first.giveBack();
    EXPECT_EQ(OpenMutexW(READ_CONTROL, FALSE, global.c_str()), nullptr);
}

TEST(OneCopyAmongStrangers, StartsWhenStrangersHoldEveryName)
{
    QList<HANDLE> events;
    for (int i = 0; i < InstanceName::candidates; ++i)
        events << CreateEventW(nullptr, TRUE, FALSE,
                               (i == 0 ? global : global + L"-" + std::to_wstring(i)).c_str());
    EXPECT_TRUE(InstanceName("kestrel-test-stranger").take());
    for (const HANDLE event : events)
        CloseHandle(event);
}
