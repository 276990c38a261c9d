// The text that is copied from a results list, and where it is cut.
#include "search/CopiedResults.h"
#include "widgets/ListLines.h"
#include <gtest/gtest.h>

namespace {

constexpr int header = 15; // "Search Results:"

/// A list whose text, heading included, becomes exactly this long with its first line; more lines may follow.
ListLines listOfLength(int characters, int moreLines)
{
    ListLines lines;
    lines.add("Mt:1:1", " " + std::string(static_cast<std::size_t>(characters - header - 2 - 7), 'x'));
    for (int i = 0; i < moreLines; ++i)
        lines.add("Mt:1:2", " y");
    return lines;
}

} // namespace

TEST(CopiedResults, FrameOneLine)
{
    ListLines lines;
    lines.add("Gn:1:3", " Abre a porta.");
    const CopiedResults copied = copiedResults(lines);
    EXPECT_EQ(copied.text, "Search Results:\r\nGn:1:3 Abre a porta.\r\n(PT)");
    EXPECT_EQ(copied.lines, 1);
    EXPECT_FALSE(copied.isCutShort);
}

TEST(CopiedResults, KeepTheOrderOfTheLines)
{
    ListLines lines;
    lines.add("Gn:1:1", " a");
    lines.add("Gn:1:2", " b");
    EXPECT_EQ(copiedResults(lines).text, "Search Results:\r\nGn:1:1 a\r\nGn:1:2 b\r\n(PT)");
}

TEST(CopiedResults, GoOnAtExactlyTheLimit)
{
    const CopiedResults copied = copiedResults(listOfLength(30500, 2));
    EXPECT_EQ(copied.lines, 2);
    EXPECT_TRUE(copied.isCutShort);
}

TEST(CopiedResults, StopAfterTheLineThatCrossesTheLimit)
{
    const CopiedResults copied = copiedResults(listOfLength(30501, 2));
    EXPECT_EQ(copied.lines, 1);
    EXPECT_TRUE(copied.isCutShort);
    EXPECT_EQ(copied.text.size(), 30501 + 6);
    EXPECT_TRUE(copied.text.endsWith("x\r\n(PT)"));
}

TEST(CopiedResults, AreWholeWhenTheLastLineCrossesTheLimit)
{
    const CopiedResults copied = copiedResults(listOfLength(30501, 0));
    EXPECT_EQ(copied.lines, 1);
    EXPECT_FALSE(copied.isCutShort);
}

TEST(CopiedResults, AreCountedInCharactersNotBytes)
{
    ListLines lines;
    for (int i = 0; i < 2; ++i) {
        std::string text = " ";
        for (int letter = 0; letter < 15000; ++letter)
            text += "ç";
        lines.add("Mt:1:1", text);
    }
    lines.add("Mt:1:2", " fim");
    EXPECT_EQ(copiedResults(lines).lines, 3); // 30,033 characters, 60,033 bytes with two lines
}
