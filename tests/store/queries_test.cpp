// Queries over the whole Bible, as it is installed, and over small tables whose rows lie in any order.
#include "store/BookCatalog.h"
#include "store/Database.h"
#include "store/TestDatabase.h"
#include "support/SlowLike.h"
#include <functional>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string bible = KESTREL_INSTALL_DIR "/KESTRPT.DAT";

struct First
{
    std::string condition;
    std::string key;
    std::string number;
};

void PrintTo(const First& first, std::ostream* out)
{
    *out << first.condition;
}

class FirstRow : public testing::TestWithParam<First>
{
};

TEST_P(FirstRow, IsTheLowestNumbered)
{
    DataSource source;
    openIn(source, bible, "SELECT * FROM NewTestament WHERE " + GetParam().condition);
    EXPECT_EQ(source.field(0), GetParam().key);
    EXPECT_EQ(source.field(1), GetParam().number);
    EXPECT_EQ(source.field(2).substr(0, 1), GetParam().key.empty() ? "" : " ");
    EXPECT_EQ(source.recordCount() == 0, GetParam().key.empty());
}

INSTANTIATE_TEST_SUITE_P(byNumber, FirstRow,
                         testing::Values(First{"VerseNumber = 1", "Mt:1:1", "1"},
                                         First{"VerseNumber = 7957", "Rv:22:21", "7957"},
                                         First{"VerseNumber = 7958", "Gn:1:1", "7958"},
                                         First{"VerseNumber = 31102", "Mal:4:6", "31102"},
                                         First{"VerseNumber = 31103", "", ""},
                                         First{"VerseNumber = 0", "", ""}));
INSTANTIATE_TEST_SUITE_P(byKey, FirstRow,
                         testing::Values(First{"VerseId = 'Mt:24:43'", "Mt:24:43", "856"},
                                         First{"VerseId = 'mt:24:43'", "", ""},
                                         First{"VerseId = 'Gn:1:1'", "Gn:1:1", "7958"},
                                         First{"VerseId = ''", "", ""}));
INSTANTIATE_TEST_SUITE_P(
    byPrefix, FirstRow,
    testing::Values(
        First{"VerseId LIKE 'Gn:*'", "Gn:1:1", "7958"}, First{"VerseId LIKE 'Ez*'", "Ezr:1:1", "19975"},
        First{"VerseId LIKE 'Ez:*'", "Ez:1:1", "28423"}, First{"VerseId LIKE 'Mt:2*'", "Mt:2:1", "26"},
        First{"VerseId LIKE 'Mt:24:4*'", "Mt:24:4", "817"},
        First{"VerseId LIKE 'mt:24:43*'", "Mt:24:43", "856"}, First{"VerseId LIKE '1*'", "1Cor:1:1", "5220"},
        First{"VerseId LIKE 'J*'", "Jn:1:1", "2901"}, First{"VerseId LIKE 'Ph*'", "Phil:1:1", "6218"},
        First{"VerseId LIKE 'Jo*'", "Jos:1:1", "13810"}, First{"VerseId LIKE 'Mt:24:43x*'", "", ""},
        First{"VerseId LIKE '*'", "Mt:1:1", "1"}, First{"VerseId LIKE 'Xy:1:1*'", "", ""}));

class WholeBible : public testing::Test
{
protected:
    /// Numbers of all rows, checked to ascend.
    static std::vector<int> numbers(const std::string& conditions)
    {
        DataSource source;
        std::vector<int> result;
        for (openIn(source, bible, "SELECT * FROM NewTestament WHERE " + conditions); !source.eof();
             source.moveNext()) {
            result.push_back(std::stoi(std::string(source.field(1))));
            if (result.size() > 1) {
                EXPECT_LT(result[result.size() - 2], result.back()) << conditions;
            }
        }
        return result;
    }

    /// What all rows cost, in steps of SQLite's.
    static int stepsOf(const std::string& conditions)
    {
        Database database(bible);
        const Statement rows = database.prepare("SELECT * FROM NewTestament WHERE " + conditions);
        while (sqlite3_step(rows.get()) == SQLITE_ROW)
            continue;
        return sqlite3_stmt_status(rows.get(), SQLITE_STMTSTATUS_VM_STEP, 0);
    }
};

TEST_F(WholeBible, PassesOverTheRowsThatAConditionLeavesOut)
{
    for (const std::string condition :
         {"VerseNumber = 5", "VerseNumber < 3", "VerseNumber <= 2", "VerseNumber > 31100",
          "VerseNumber >= 31101", "VerseId = 'Mt:24:43'", "VerseId LIKE 'Mt:24:43'",
          "VerseId LIKE 'Mt:24:4?'", "KJVerseText LIKE '*chovia*'"})
        EXPECT_LT(stepsOf(condition), 200) << condition;
}

TEST_F(WholeBible, HasItsRowsInOrderWithoutSorting)
{
    Database database(bible);
    const Statement rows = database.prepare("SELECT * FROM NewTestament ORDER BY VerseNumber");
    sqlite3_step(rows.get());
    EXPECT_EQ(sqlite3_stmt_status(rows.get(), SQLITE_STMTSTATUS_SORT, 0), 0);
}

TEST_F(WholeBible, SearchesForEachOfTwoRareWordsInsteadOfTestingEveryVerse)
{
    EXPECT_LT(stepsOf("(KJVerseText LIKE '*chovia*' OR KJVerseText LIKE '*xyzzy*')"), 200);
}

TEST_F(WholeBible, Has31102VersesNumberedWithoutGaps)
{
    DataSource source;
    int expected = 0;
    for (openIn(source, bible, "SELECT * FROM NewTestament"); !source.eof(); source.moveNext()) {
        ASSERT_EQ(source.field(1), std::to_string(++expected));
        ASSERT_TRUE(source.field(2).starts_with(' '));
        ASSERT_GT(source.field(2).size(), 1U);
        ASSERT_EQ(source.field(0).find(' '), std::string_view::npos);
    }
    EXPECT_EQ(expected, 31102);
    EXPECT_EQ(source.recordCount(), 31102);
}

TEST_F(WholeBible, KeepsEveryBookTogetherNewTestamentFirst)
{
    int next = 1;
    for (const std::string_view testament : {"New Testament", "Old Testament"}) {
        for (const Book& book : bookCatalog()) {
            if (book.testament != testament)
                continue;
            const auto verses = numbers("VerseId LIKE '" + book.prefix() + "*'");
            ASSERT_FALSE(verses.empty()) << book.name;
            EXPECT_EQ(verses.front(), next) << book.name;
            next = verses.back() + 1;
            EXPECT_EQ(verses.size(), static_cast<std::size_t>(next - verses.front())) << book.name;
        }
    }
    EXPECT_EQ(next, 31103);
}

/// All conditions a search can build, with the same said by the plain witness.
struct Shape
{
    std::string conditions;
    std::function<bool(int number, std::string_view key, std::string_view text)> wanted;
};

void PrintTo(const Shape& shape, std::ostream* out)
{
    *out << shape.conditions;
}

bool like(const char* pattern, std::string_view text)
{
    return slow_like::matches(pattern, text).value();
}

class SearchShape : public testing::TestWithParam<Shape>
{
};

TEST_P(SearchShape, FindsWhatAPlainWalkFindsInOrder)
{
    std::vector<std::string> expected;
    DataSource all;
    for (openIn(all, bible, "SELECT * FROM NewTestament"); !all.eof(); all.moveNext()) {
        // The witness is slow; a part of the Bible around the border of the testaments is enough for it.
        const int number = std::stoi(std::string(all.field(1)));
        if (number > 6000 && number < 9500 && GetParam().wanted(number, all.field(0), all.field(2)))
            expected.emplace_back(all.field(0));
    }
    EXPECT_EQ(
        keys(bible, " WHERE VerseNumber > 6000 AND VerseNumber < 9500 AND (" + GetParam().conditions + ")"),
        expected);
    EXPECT_FALSE(expected.empty());
    std::vector<std::string> unranged;
    DataSource source;
    for (openIn(source, bible, "SELECT * FROM NewTestament WHERE " + GetParam().conditions); !source.eof();
         source.moveNext()) {
        const int number = std::stoi(std::string(source.field(1)));
        if (number > 6000 && number < 9500)
            unranged.emplace_back(source.field(0));
    }
    EXPECT_EQ(unranged, expected);
}

const std::vector<Shape> shapes = {
    Shape{"KJVerseText LIKE '*amor*'", [](int, auto, auto t) { return like("*amor*", t); }},
    Shape{"KJVerseText LIKE '*ÁGUA*'", [](int, auto, auto t) { return like("*água*", t); }},
    Shape{"KJVerseText LIKE '*[!0-9a-zA-Z]rio[!0-9a-zA-Z]*'",
          [](int, auto, auto t) { return like("*[!0-9a-zA-Z]rio[!0-9a-zA-Z]*", t); }},
    Shape{"KJVerseText LIKE '*amor*' AND KJVerseText LIKE '*moleiro*'",
          [](int, auto, auto t) { return like("*amor*", t) && like("*moleiro*", t); }},
    Shape{"KJVerseText LIKE '*moleiro*' AND KJVerseText NOT LIKE '*aldeia*'",
          [](int, auto, auto t) { return like("*moleiro*", t) && !like("*aldeia*", t); }},
    Shape{"(KJVerseText LIKE '*amor*' OR KJVerseText LIKE '*moleiro*')",
          [](int, auto, auto t) { return like("*amor*", t) || like("*moleiro*", t); }},
    // So common that SQLite is quicker testing every row.
    Shape{"(KJVerseText LIKE '*aldeia*' OR KJVerseText LIKE '*moleiro*')",
          [](int, auto, auto t) { return like("*aldeia*", t) || like("*moleiro*", t); }},
    Shape{"VerseId LIKE 'Gn*' AND (KJVerseText LIKE '*terra*' OR KJVerseText LIKE '*moleiro*')",
          [](int, auto k, auto t) { return like("gn*", k) && (like("*terra*", t) || like("*moleiro*", t)); }},
    Shape{"VerseId LIKE 'Gn*' AND KJVerseText LIKE '*terra*'",
          [](int, auto k, auto t) { return like("gn*", k) && like("*terra*", t); }},
    Shape{"VerseNumber BETWEEN 7958 AND 13809 AND KJVerseText LIKE '*luz*'",
          [](int n, auto, auto t) { return n >= 7958 && n <= 13809 && like("*luz*", t); }},
    Shape{"KJVerseText NOT LIKE '*e*'", [](int, auto, auto t) { return !like("*e*", t); }},
    Shape{"VerseId LIKE '*:3:16'", [](int, auto k, auto) { return like("*:3:16", k); }},
    Shape{"(VerseId LIKE 'Gn:2:*' OR VerseId LIKE 'Rv:2:*')",
          [](int, auto k, auto) { return like("gn:2:*", k) || like("rv:2:*", k); }},
    Shape{"(VerseId LIKE 'Gn:2:*' OR KJVerseText LIKE '*amor*' OR VerseNumber = 7000)",
          [](int n, auto k, auto t) { return like("gn:2:*", k) || like("*amor*", t) || n == 7000; }},
    Shape{"VerseId LIKE 'Gn:1*' AND VerseId LIKE '*:5'",
          [](int, auto k, auto) { return like("gn:1*", k) && like("*:5", k); }},
    Shape{"KJVerseText LIKE ' E *.' AND VerseNumber <> 7960",
          [](int n, auto, auto t) { return like(" e *.", t) && n != 7960; }},
    Shape{"VerseNumber IN (8000, 7000, 9000)",
          [](int n, auto, auto) { return n == 7000 || n == 8000 || n == 9000; }},
    Shape{"VerseNumber >= 6999.5 AND VerseNumber <= '7003'",
          [](int n, auto, auto) { return n >= 7000 && n <= 7003; }}};

INSTANTIATE_TEST_SUITE_P(all, SearchShape, testing::ValuesIn(shapes));

// Letters in brackets are no piece of text to look for: each verse is matched.
TEST_F(WholeBible, FindsAPieceOfAnyLength)
{
    std::string piece;
    std::string classes;
    for (const char letter : std::string("porta")) {
        piece += letter;
        classes += std::string("[") + letter + "]";
        const auto found = numbers("KJVerseText LIKE '*" + piece + "*'");
        EXPECT_FALSE(found.empty()) << piece;
        EXPECT_EQ(found, numbers("KJVerseText LIKE '*" + classes + "*'")) << piece;
    }
}

TEST_F(WholeBible, FindsNothingForNull)
{
    EXPECT_THAT(keys(bible, " WHERE KJVerseText LIKE NULL"), IsEmpty());
    EXPECT_THAT(keys(bible, " WHERE KJVerseText NOT LIKE NULL"), IsEmpty());
    EXPECT_THAT(keys(bible, " WHERE VerseId LIKE NULL OR VerseNumber = NULL OR VerseId = NULL"), IsEmpty());
}

TEST_F(WholeBible, AnEmptyBracketAddsNothingToAPattern)
{
    EXPECT_EQ(numbers("VerseId LIKE 'Gn:[]1:1'"), std::vector<int>{7958});
}

TEST_F(WholeBible, ReadsOnlyAsFarAsItIsAsked)
{
    DataSource source;
    openIn(source, bible, "SELECT * FROM NewTestament WHERE VerseId LIKE 'Ps:*'");
    EXPECT_EQ(source.recordCount(), 1);
    source.moveNext();
    EXPECT_EQ(source.recordCount(), 2);
    EXPECT_EQ(source.field(0), "Ps:1:2");
}

TEST_F(WholeBible, HasOneBlankBetweenKeyAndText)
{
    DataSource source;
    openIn(source, bible, "SELECT * FROM NewTestament WHERE VerseId = 'Mt:24:43'");
    const std::string line = std::string(source.field(0)).append(source.field(2));
    EXPECT_EQ(line.substr(0, line.find(' ')), "Mt:24:43");
    EXPECT_NE(line[line.find(' ') + 1], ' ');
}

TEST_F(WholeBible, ReportsInvalidPatternsAsError93WhereverTheyStand)
{
    for (const char* conditions :
         {"KJVerseText LIKE '*[a*'", "KJVerseText NOT LIKE '*[a*'", "VerseId LIKE '[z-a]*'",
          "VerseId NOT LIKE '['", "VerseId LIKE 'Gn*' AND KJVerseText LIKE '['",
          "(KJVerseText LIKE '*x*' OR KJVerseText LIKE '*[')", "VerseNumber = 1 AND KJVerseText NOT LIKE '['",
          "'a' LIKE '['", "VerseId LIKE '[' ORDER BY KJVerseText"}) {
        const DataError error = errorOf(bible, std::string("SELECT * FROM NewTestament WHERE ") + conditions);
        EXPECT_EQ(error.number(), 93) << conditions;
        EXPECT_EQ(error.description(), "Invalid pattern string") << conditions;
    }
}

TEST_F(WholeBible, AnApostropheBreaksTheQueryWithSqlitesOwnText)
{
    const DataError error = errorOf(bible, "SELECT * FROM NewTestament WHERE VerseId LIKE 'd'água*'");
    EXPECT_EQ(error.number(), SQLITE_ERROR);
    EXPECT_EQ(error.description(), "near \"água\": syntax error");
    EXPECT_NE(errorOf(bible, "SELECT * FROM NewTestament WHERE VerseId LIKE ''*'").number(), 0);
}

TEST(SmallBible, ComesInOrderHoweverItIsStored)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    EXPECT_THAT(keys(folder.file(), ""),
                ElementsAre("Mt:1:1", "Mt:2:1", "Mt:10:1", "Gn:1:1", "Gn:1:2", "Gn:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE VerseId LIKE 'Gn:*'"), ElementsAre("Gn:1:1", "Gn:1:2", "Gn:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE VerseId > 'A'"),
                ElementsAre("Mt:1:1", "Mt:2:1", "Mt:10:1", "Gn:1:1", "Gn:1:2", "Gn:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE VerseId LIKE 'Mt:1*' OR KJVerseText LIKE '*luz*'"),
                ElementsAre("Mt:1:1", "Mt:10:1", "Gn:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE VerseId = 'Gn:1:1' OR VerseId = 'Mt:2:1'"),
                ElementsAre("Mt:2:1", "Gn:1:1"));
}

TEST(SmallBible, FindsKeysByAnyBeginningWhereverTheirColonsAre)
{
    const std::vector<std::string> all = {"Ab:1:1", "Ab:1:2", "ab:1:3", "Ab:10:1", "ab",  "AB:",   "Abc:1:1",
                                          ":",      "::1",    "",       "É:1:1",   "é:1", "Ab:1:4"};
    std::string rows;
    for (std::size_t i = 0; i < all.size(); ++i)
        rows += (i ? "," : "") + std::string("('") + all[i] + "'," + std::to_string(i + 1) + ",' x')";
    const TestFolder folder;
    makeDatabase(folder.file(), verseTable + "INSERT INTO NewTestament VALUES " + rows + ";");
    for (const std::string prefix :
         {"", "A", "ab", "aB:", "Ab:1", "ab:1:", "Ab:1:4", "Ab:1:44", "abc", ":", "::", "é", "É:1:", "x"}) {
        std::vector<std::string> expected;
        for (const std::string& key : all) {
            if (like((prefix + "*").c_str(), key))
                expected.push_back(key);
        }
        EXPECT_EQ(keys(folder.file(), " WHERE VerseId LIKE '" + prefix + "*'"), expected) << prefix;
    }
}

TEST(SmallBible, GetsItsLeadingBlankWhereTheFileLacksIt)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    DataSource source;
    openIn(source, folder.file(), "SELECT * FROM NewTestament WHERE VerseId = 'Gn:1:1'");
    EXPECT_EQ(source.field(2), " Dorme o gato na escada.");
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText LIKE '*[!a-z]Dorme[!a-z]*'"), ElementsAre("Gn:1:1"));
}

TEST(SmallBible, MayEndInTheMiddleOfAPieceThatTheNextVerseContinues)
{
    const TestFolder folder;
    makeDatabase(folder.file(),
                 verseTable + "INSERT INTO NewTestament VALUES ('Mt:1:1', 1, ' um'), ('Mt:1:2', 2, ' dia'),"
                              "('Mt:1:3', 3, ' um dia');");
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText LIKE '*um dia*'"), ElementsAre("Mt:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText NOT LIKE '*um dia*'"),
                ElementsAre("Mt:1:1", "Mt:1:2"));
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText LIKE '*m[!a-z]*'"), ElementsAre("Mt:1:3"));
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText LIKE '*um?'"), IsEmpty());
}

TEST(SmallBible, AnswersAllRowsInDescendingOrderToo)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    EXPECT_THAT(keys(folder.file(), " WHERE KJVerseText NOT LIKE '*luz*' ORDER BY VerseNumber DESC"),
                ElementsAre("Gn:1:2", "Gn:1:1", "Mt:2:1", "Mt:1:1"));
}

TEST(SmallBible, ComparesTextsAndLikensNumbersAsSqliteDoes)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    const auto found = [&](const std::string& condition) {
        return keys(folder.file(), " WHERE " + condition);
    };
    EXPECT_THAT(found("VerseId < 'Gn:1:2'"), ElementsAre("Gn:1:1"));
    EXPECT_THAT(found("VerseId <= 'Gn:1:2'"), ElementsAre("Gn:1:1", "Gn:1:2"));
    EXPECT_THAT(found("VerseId > 'Mt:10:1'"), ElementsAre("Mt:1:1", "Mt:2:1"));
    EXPECT_THAT(found("VerseId >= 'Mt:10:1'"), ElementsAre("Mt:1:1", "Mt:2:1", "Mt:10:1"));
    EXPECT_THAT(found("KJVerseText = ' E vem o padeiro.'"), ElementsAre("Mt:2:1"));
    EXPECT_THAT(found("VerseNumber LIKE '[23]'"), ElementsAre("Mt:2:1", "Mt:10:1"));
    EXPECT_THAT(found("VerseId = x'4D743A313A31'"), IsEmpty()) << "bytes are no text";
}

TEST(SmallBible, ATextIsSoughtAnewForEachRowBesideIt)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    DataSource source;
    std::vector<std::string> pairs;
    for (openIn(source, folder.file(),
                "SELECT a.VerseId || ' ' || b.VerseId FROM NewTestament a CROSS JOIN NewTestament b "
                "WHERE a.VerseNumber < 3 AND NOT b.KJVerseText LIKE '*o*'");
         !source.eof(); source.moveNext())
        pairs.emplace_back(source.field(0));
    EXPECT_THAT(pairs, ElementsAre("Mt:1:1 Mt:10:1", "Mt:1:1 Gn:1:2", "Mt:1:1 Gn:1:3", "Mt:2:1 Mt:10:1",
                                   "Mt:2:1 Gn:1:2", "Mt:2:1 Gn:1:3"));
}

} // namespace
