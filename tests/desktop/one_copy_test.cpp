#include "desktop/Platform.h"
#include <gtest/gtest.h>

TEST(Platform, OneProcessIsTheRunningCopy)
{
    EXPECT_FALSE(Platform().previousInstance());
    EXPECT_TRUE(Platform().previousInstance()); // the name is taken now, whoever asks again
    Platform().endInstance();
    EXPECT_FALSE(Platform().previousInstance());
    Platform().endInstance();
    Platform().endInstance(); // nothing is held any more
}
