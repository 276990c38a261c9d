// The rule of one running copy.
#include "desktop/InstanceName.h"
#include "desktop/Platform.h"
#include <gtest/gtest.h>

TEST(OneCopy, IsTheFirstProcessThatAsks)
{
    EXPECT_FALSE(Platform().previousInstance());
    EXPECT_TRUE(Platform().previousInstance()); // the name is taken now, whoever asks again
    Platform().endInstance();
    EXPECT_FALSE(Platform().previousInstance());
    Platform().endInstance();
    Platform().endInstance(); // nothing is held any more
}

TEST(OneCopy, HoldsANameThatIsTheSameEachTime)
{
    EXPECT_EQ(InstanceName::ofThisProgram(), InstanceName::ofThisProgram());
    InstanceName first("kestrel-test-name");
    EXPECT_TRUE(first.take());
    EXPECT_FALSE(InstanceName("kestrel-test-name").take());
    EXPECT_TRUE(InstanceName("kestrel-test-other-name").take());
    first.giveBack();
    EXPECT_TRUE(InstanceName("kestrel-test-name").take());
}
