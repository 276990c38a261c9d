#include "maps/TopicText.h"
#include "store/ProcessorTime.h"
#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(TopicText, FramesEveryReferenceWithSpaces)
{
    EXPECT_EQ(referenceEntries("Mt:5:3-12\\Lk:6:20-26\\Jn:1:1"),
              QStringList({" Mt:5:3-12 ", " Lk:6:20-26 ", " Jn:1:1 "}));
    EXPECT_EQ(referenceEntries("Mt:5:3"), QStringList({" Mt:5:3 "}));
}

TEST(TopicText, EmptyListHasNoEntry)
{
    EXPECT_EQ(referenceEntries(""), QStringList());
}

TEST(TopicText, TrailingBackslashAddsNoEntry)
{
    EXPECT_EQ(referenceEntries("Mt:5:3\\"), QStringList({" Mt:5:3 "}));
}

TEST(TopicText, AdjacentBackslashesAddAnEntryOfTwoSpaces)
{
    EXPECT_EQ(referenceEntries("Mt:5:3\\\\Lk:6:20"), QStringList({" Mt:5:3 ", "  ", " Lk:6:20 "}));
    EXPECT_EQ(referenceEntries("\\Mt:5:3"), QStringList({"  ", " Mt:5:3 "}));
}

// A walk that copies its rest at each reference copies 250,000 million characters for this list.
TEST(TopicText, WalksALongListOnce)
{
    const int count = 500'000;
    const auto begun = processorTime();
    const QStringList entries = referenceEntries(QString("a\\").repeated(count));
    EXPECT_LT(processorTime() - begun, 5s);
    ASSERT_EQ(entries.size(), count);
    EXPECT_EQ(entries.back(), " a ");
}

TEST(TopicText, EntryOpensTheVerseBeforeItsFirstHyphen)
{
    EXPECT_EQ(referenceOf(" Mt:5:3-12 "), "Mt:5:3");
    EXPECT_EQ(referenceOf(" Mt:21:28-22:14 "), "Mt:21:28");
    EXPECT_EQ(referenceOf(" 1Cor:15:5 - 7-8 "), "1Cor:15:5");
    EXPECT_EQ(referenceOf(" Lk:4:23 "), "Lk:4:23");
    EXPECT_EQ(referenceOf("  "), "");
}

TEST(TopicText, TopicComesBackWithoutItsLeadingSpaces)
{
    EXPECT_EQ(topicEntry("The Sower"), " The Sower");
    EXPECT_EQ(topicOf(" The Sower"), "The Sower");
    EXPECT_EQ(topicOf("   The  Sower "), "The  Sower ");
    EXPECT_EQ(topicOf("  "), "");
}
