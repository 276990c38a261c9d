#include "database/Topics.h"
#include "importer/InputError.h"
#include "tools/Samples.h"
#include <gtest/gtest.h>

namespace {

std::vector<Topic> read(const std::string& bytes)
{
    std::set<std::string> names;
    return readTopics(bytes, "events.txt", "Events", names);
}

struct BadTopic
{
    const char* name;
    const char* line;
    const char* complaint;
};

class BadTopics : public testing::TestWithParam<BadTopic>
{
};

} // namespace

TEST(Topics, JoinReferencesByBackslashes)
{
    const auto topics = read("# The beginning\n\nBirth of Jesus\tMt:1:25 Lk:2:1-7\nThe Word\tJn:1:1\n");
    ASSERT_EQ(topics.size(), 2u);
    EXPECT_EQ(topics[0].name, "Birth of Jesus");
    EXPECT_EQ(topics[0].verseList, "Mt:1:25\\Lk:2:1-7");
    EXPECT_EQ(topics[0].type, "Events");
    EXPECT_EQ(topics[1].verseList, "Jn:1:1");
}

TEST(Topics, TakeRangesWrittenInThreeWays)
{
    EXPECT_EQ(read("A\tMt:5:3-12 Mt:5:1-7:29 Mal:4:6-Mt:1:1\n")[0].verseList,
              "Mt:5:3-12\\Mt:5:1-7:29\\Mal:4:6-Mt:1:1");
}

TEST(Topics, HaveNamesUniqueOverAllFiles)
{
    std::set<std::string> names;
    readTopics("The Sower\tMt:13:3\n", "parables.txt", "Parables", names);
    EXPECT_EQ(
        complaint<InputError>([&] { readTopics("The Sower\tMt:13:3\n", "events.txt", "Events", names); }),
        "events.txt, line 1: the name \"The Sower\" is taken by another topic.");
}

TEST_P(BadTopics, AreRefusedNamingTheLine)
{
    const std::string bytes = std::string("Good\tMt:1:1\n") + GetParam().line + "\n";
    EXPECT_EQ(complaint<InputError>([&] { read(bytes); }),
              std::string("events.txt, line 2: ") + GetParam().complaint);
}

INSTANTIATE_TEST_SUITE_P(
    Topics, BadTopics,
    testing::Values(
        BadTopic{"NoSuchVerse", "A\tMt:1:26", "there is no verse \"Mt:1:26\"."},
        BadTopic{"NoSuchBook", "A\tMat:1:1", "there is no verse \"Mat:1:1\"."},
        BadTopic{"RangeToNoVerse", "A\tMt:1:1-26", "\"Mt:1:1-26\" ends at a verse that does not exist."},
        BadTopic{"RangeToNothing", "A\tMt:1:1-", "\"Mt:1:1-\" ends at a verse that does not exist."},
        BadTopic{"RangeToNoChapter", "A\tMt:1:1-29:1",
                 "\"Mt:1:1-29:1\" ends at a verse that does not exist."},
        BadTopic{"RangeBackwards", "A\tMt:1:9-3", "\"Mt:1:9-3\" does not end after it starts."},
        BadTopic{"RangeOfOne", "A\tMt:1:9-9", "\"Mt:1:9-9\" does not end after it starts."},
        BadTopic{"TwoBlanks", "A\tMt:1:1  Mt:1:2", "there is no verse \"\"."},
        BadTopic{"Comma", "A\tMt:1:1, Mt:1:2", "there is no verse \"Mt:1:1,\"."},
        BadTopic{"Apostrophe", "Peter's Boat\tMt:1:1",
                 "the name \"Peter's Boat\" holds an apostrophe or a backslash."},
        BadTopic{"Backslash", "A\\B\tMt:1:1", "the name \"A\\B\" holds an apostrophe or a backslash."},
        BadTopic{"LeadingBlank", " A\tMt:1:1", "the name is empty or has a blank at an end."},
        BadTopic{"NoName", "\tMt:1:1", "the name is empty or has a blank at an end."},
        BadTopic{"NoReferences", "A\t", "the topic has no references."},
        BadTopic{"NoTab", "A Mt:1:1", "a topic is a name, one tab and its references."},
        BadTopic{"NameTaken", "Good\tMt:1:2", "the name \"Good\" is taken by another topic."}),
    [](const auto& row) { return std::string(row.param.name); });
