#include "read/TypeSize.h"
#include "widgets/Fonts.h"
#include <gtest/gtest.h>

TEST(TypeSize, GoesFromTwentyFourToTwelveElseSixUp)
{
    EXPECT_EQ(nextTypeSize(Fonts::tahomaOf(12)).pointSize(), 18);
    EXPECT_EQ(nextTypeSize(Fonts::tahomaOf(18)).pointSize(), 24);
    EXPECT_EQ(nextTypeSize(Fonts::tahomaOf(24)).pointSize(), 12);
    EXPECT_EQ(nextTypeSize(Fonts::tahomaOf(30)).pointSize(), 36); // exactly 24, not from 24
}
