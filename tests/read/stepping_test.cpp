#include "read/Stepping.h"
#include <gtest/gtest.h>

TEST(Stepping, WrapsAtBothEndsByEquality)
{
    EXPECT_EQ(verseAfter("1"), 2);
    EXPECT_EQ(verseAfter("31101"), 31102);
    EXPECT_EQ(verseAfter("31102"), 1);
    EXPECT_EQ(verseAfter("31103"), 31104); // no range test
    EXPECT_EQ(verseBefore("2"), 1);
    EXPECT_EQ(verseBefore("1"), 31102);
    EXPECT_EQ(verseBefore("31102"), 31101);
}

TEST(Stepping, FromAnEmptyLabelGoesToOneOrToNoVerse)
{
    EXPECT_EQ(verseAfter(""), 1);
    EXPECT_EQ(verseBefore(""), -1);
}

TEST(Stepping, ReadsTheNumberAtTheStartOfAText)
{
    EXPECT_EQ(leadingNumber("42"), 42);
    EXPECT_EQ(leadingNumber("1234567890"), 1234567890);
    EXPECT_EQ(leadingNumber("  42 and more"), 42);
    EXPECT_EQ(leadingNumber("-3"), -3);
    EXPECT_EQ(leadingNumber("Mt:1:1"), 0);
    EXPECT_EQ(leadingNumber(""), 0);
}

TEST(Stepping, GivesIntervalsInMilliseconds)
{
    EXPECT_EQ(intervalOf("3"), 3000);
    EXPECT_EQ(intervalOf("12"), 12000);
}
