#include "importer/InputError.h"
#include "importer/VerseList.h"
#include "tools/Samples.h"
#include <algorithm>
#include <functional>
#include <gmock/gmock.h>

using testing::StrEq;

namespace {

using Lines = std::vector<std::string>;

Lines goodLines()
{
    Lines lines;
    for (const Verse& verse : uniformBible("Texto."))
        lines.push_back(std::string(verse.key.book) + "\t" + std::to_string(verse.key.chapter) + "\t" +
                        std::to_string(verse.key.verse) + "\tTexto.");
    return lines;
}

std::string joined(const Lines& lines)
{
    std::string list;
    for (const std::string& line : lines)
        list += line + "\n";
    return list;
}

std::string complaintAbout(const std::string& list)
{
    return complaint<InputError>([&] { readVerseList(list, "list"); });
}

struct BadList
{
    const char* name;
    std::function<void(Lines&)> spoil;
    const char* complaint;
};

class BadLists : public testing::TestWithParam<BadList>
{
};

} // namespace

TEST(VerseList, ReadsWhatItWrites)
{
    std::vector<Verse> verses = uniformBible("E disse o guarda: Abre.");
    verses[31101].text = "Fim.";
    const auto read = readVerseList(writeVerseList(verses), "list");
    ASSERT_EQ(read.size(), 31102u);
    EXPECT_EQ(read[0].text, "E disse o guarda: Abre.");
    EXPECT_EQ(read[31101].key.text(), "Rv:22:21");
    EXPECT_EQ(read[31101].text, "Fim.");
    EXPECT_EQ(writeVerseList(read), writeVerseList(verses));
}

TEST(VerseList, TakesAVerseAsLongAsTheProgramReads)
{
    Lines lines = goodLines();
    lines[1] = "Gn\t1\t2\t" + std::string(8191, 'a');
    EXPECT_EQ(complaintAbout(joined(lines)), "");
}

TEST(VerseList, RefusesAnEmptyList)
{
    EXPECT_EQ(complaintAbout(""), "list, line 1: Gn:1:1 is missing; the list ends here.");
}

TEST(VerseList, RefusesALastLineThatIsCutOff)
{
    std::string list = joined(goodLines());
    list.pop_back();
    EXPECT_EQ(complaintAbout(list),
              "list, line 31102: the line has no line feed at its end; the file may be cut off.");
}

TEST_P(BadLists, AreRefusedNamingTheLineAndTheVerse)
{
    Lines lines = goodLines();
    GetParam().spoil(lines);
    EXPECT_THAT(complaintAbout(joined(lines)), StrEq(GetParam().complaint));
}

INSTANTIATE_TEST_SUITE_P(
    VerseList, BadLists,
    testing::Values(
        BadList{"Missing", [](Lines& l) { l.erase(l.begin() + 1); },
                "list, line 2: Gn:1:2 is missing; Gn:1:3 stands in its place."},
        BadList{"LastVerseOfAChapterMissing", [](Lines& l) { l.erase(l.begin() + 30); },
                "list, line 31: Gn:1:31 is missing; Gn:2:1 stands in its place."},
        BadList{"LastOfAllMissing", [](Lines& l) { l.pop_back(); },
                "list, line 31102: Rv:22:21 is missing; the list ends here."},
        BadList{"Repeated", [](Lines& l) { l.insert(l.begin() + 1, l[0]); },
                "list, line 2: Gn:1:1 is repeated or out of order; Gn:1:2 should stand here."},
        BadList{"Swapped", [](Lines& l) { std::swap(l[4], l[5]); },
                "list, line 5: Gn:1:5 is missing; Gn:1:6 stands in its place."},
        BadList{"NewTestamentFirst", [](Lines& l) { std::rotate(l.begin(), l.begin() + 23145, l.end()); },
                "list, line 1: Gn:1:1 is missing; Mt:1:1 stands in its place."},
        BadList{"BeyondTheChapter", [](Lines& l) { l.insert(l.begin() + 31, "Gn\t1\t32\tTexto."); },
                "list, line 32: there is no verse Gn:1:32."},
        BadList{"AfterTheEnd", [](Lines& l) { l.push_back(l[0]); },
                "list, line 31103: Gn:1:1 stands after the last verse."},
        BadList{"UnknownBook", [](Lines& l) { l[0] = "gn\t1\t1\tTexto."; },
                "list, line 1: there is no verse gn:1:1."},
        BadList{"LeadingZero", [](Lines& l) { l[0] = "Gn\t01\t1\tTexto."; },
                "list, line 1: there is no verse Gn:01:1."},
        BadList{"Empty", [](Lines& l) { l[1] = "Gn\t1\t2\t"; }, "list, line 2: Gn:1:2 has no text."},
        BadList{"Blank", [](Lines& l) { l[1] = "Gn\t1\t2\t  "; }, "list, line 2: Gn:1:2 has no text."},
        BadList{"TooFewColumns", [](Lines& l) { l[2] = "Gn\t1\t3"; },
                "list, line 3: there are 3 columns, not the four of book, chapter, verse and text."},
        BadList{"TooManyColumns", [](Lines& l) { l[2] += "\tmais"; },
                "list, line 3: there are 5 columns, not the four of book, chapter, verse and text."},
        BadList{"EmptyLine", [](Lines& l) { l[2].clear(); },
                "list, line 3: there are 1 columns, not the four of book, chapter, verse and text."},
        BadList{"InvalidUtf8", [](Lines& l) { l[2] += "\xe9"; }, "list, line 3: this is not valid UTF-8."},
        BadList{"OverlongUtf8", [](Lines& l) { l[2] += "\xc0\xaf"; },
                "list, line 3: this is not valid UTF-8."},
        BadList{"SurrogateInUtf8", [](Lines& l) { l[2] += "\xed\xa0\x80"; },
                "list, line 3: this is not valid UTF-8."},
        BadList{"NulCharacter", [](Lines& l) { l[2] += '\0'; },
                "list, line 3: there is a control character."},
        BadList{"CarriageReturn", [](Lines& l) { l[0] += "\r"; },
                "list, line 1: there is a carriage return; lines must end with a line feed alone."},
        BadList{"ByteOrderMark", [](Lines& l) { l[0].insert(0, "\xef\xbb\xbf"); },
                "list, line 1: there is a byte order mark; take it away."},
        BadList{"VerseTooLong", [](Lines& l) { l[1] = "Gn\t1\t2\t" + std::string(8192, 'a'); },
                "list, line 2: Gn:1:2 is too long; the program reads verses of 8191 bytes at most."},
        BadList{"LineTooLong", [](Lines& l) { l[1] = std::string(1 << 20, 'a'); },
                "list, line 2: the line is too long."}),
    [](const auto& row) { return std::string(row.param.name); });
