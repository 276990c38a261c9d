#include "importer/Corrections.h"
#include "importer/InputError.h"
#include "tools/Samples.h"
#include <gtest/gtest.h>

namespace {

const std::string header = "book\tchapter\tverse\tbefore\tafter\twitness\n";

/// The text of Genesis 1:1 after corrections of the published text "a água e a terra".
std::string corrected(const std::string& corrections)
{
    std::vector<Verse> verses = {{{"Gn", 1, 1}, "a água e a terra"}, {{"Gn", 1, 2}, "outro"}};
    applyCorrections(verses, readCorrections(header + corrections, "list"), "list");
    EXPECT_EQ(verses[1].text, "outro");
    return verses[0].text;
}

std::string complaintAbout(const std::string& corrections)
{
    return complaint<InputError>([&] { corrected(corrections); });
}

} // namespace

TEST(Corrections, MendsAPiece)
{
    EXPECT_EQ(corrected("Gn\t1\t1\tágua\táguia\tspelling\n"), "a águia e a terra");
}

TEST(Corrections, CountUpperAndLowerCase)
{
    EXPECT_EQ(complaintAbout("Gn\t1\t1\tÁgua\táguia\tspelling\n"),
              "list, line 2: Gn:1:1: the piece \"Água\" does not occur in the published verse.");
}

TEST(Corrections, SeekEveryPieceInThePublishedVerse)
{
    // The first puts in what the second seeks; both orders give the same.
    const std::string first = "Gn\t1\t1\tágua\tterra e terra\tspelling\n";
    const std::string second = "Gn\t1\t1\te a terra\te o mar\tspelling\n";
    EXPECT_EQ(corrected(first + second), "a terra e terra e o mar");
    EXPECT_EQ(corrected(second + first), "a terra e terra e o mar");
}

TEST(Corrections, MayTouchEachOtherButNotOverlap)
{
    EXPECT_EQ(corrected("Gn\t1\t1\tágua e\tx\tw\nGn\t1\t1\t a terra\ty\tw\n"), "a xy");
    EXPECT_EQ(complaintAbout("Gn\t1\t1\tágua e \tx\tw\nGn\t1\t1\te a terra\ty\tw\n"),
              "list, line 3: Gn:1:1: the piece \"e a terra\" overlaps another piece of the same verse.");
    EXPECT_EQ(complaintAbout("Gn\t1\t1\te a terra\tx\tw\nGn\t1\t1\tágua e \ty\tw\n"),
              "list, line 3: Gn:1:1: the piece \"água e \" overlaps another piece of the same verse.");
    EXPECT_EQ(complaintAbout("Gn\t1\t1\tágua\tx\tw\nGn\t1\t1\tágua\ty\tw\n"),
              "list, line 3: Gn:1:1: the piece \"água\" overlaps another piece of the same verse.");
}

TEST(Corrections, RefuseAPieceThatOccursTwice)
{
    EXPECT_EQ(complaintAbout("Gn\t1\t1\ta \to \tspelling\n"),
              "list, line 2: Gn:1:1: the piece \"a \" occurs more than once in the published verse.");
}

TEST(Corrections, RefuseAPieceThatOccursTwiceOverlappingItself)
{
    std::vector<Verse> verses = {{{"Gn", 1, 1}, "anana"}};
    const auto corrections = readCorrections(header + "Gn\t1\t1\tana\tx\tspelling\n", "list");
    EXPECT_NE(complaint<InputError>([&] { applyCorrections(verses, corrections, "list"); }), "");
}

TEST(Corrections, RefuseAVerseThatDoesNotExist)
{
    EXPECT_EQ(complaintAbout("Gn\t1\t99\tágua\táguia\tspelling\n"),
              "list, line 2: Gn:1:99: the piece \"água\" belongs to a verse that does not exist.");
}

TEST(Corrections, RefuseMalformedLists)
{
    EXPECT_EQ(complaint<InputError>([] { readCorrections("", "list"); }),
              "list, line 1: the header line of the corrections is missing.");
    EXPECT_EQ(complaint<InputError>([] { readCorrections("Gn\t1\t1\ta\tb\tw\n", "list"); }),
              "list, line 1: the header line of the corrections is missing.");
    EXPECT_EQ(
        complaintAbout("Gn\t1\t1\tágua\táguia\n"),
        "list, line 2: there are 5 columns, not the six of book, chapter, verse, before, after and witness.");
    EXPECT_EQ(complaintAbout("Gn\t1\t1\t\táguia\tspelling\n"),
              "list, line 2: the piece to be mended is empty.");
    EXPECT_EQ(complaintAbout("Gn\t1\t1\t\xff\táguia\tspelling\n"), "list, line 2: this is not valid UTF-8.");
}
