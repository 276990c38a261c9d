// Building the query: words, range, SQL text, and whether it is the last one again.
#include "search/SearchQuery.h"
#include "search/SearchRanges.h"
#include <gtest/gtest.h>
#include <QStringList>

namespace {

SearchMemory memoryOf(const QString& text1, const QString& text2, std::int16_t connective = 0,
                      std::int16_t range = 44, std::int16_t wholeWord = 0)
{
    SearchMemory memory;
    memory.LastText1 = text1;
    memory.LastText2 = text2;
    memory.LastConnective = connective;
    memory.LastRange = range;
    memory.LastWholeWord = wholeWord;
    return memory;
}

SearchInputs inputsOf(const QString& text1, const QString& text2, std::int16_t connective = 0,
                      std::int16_t range = 44, std::int16_t wholeWord = 0)
{
    return {text1, text2, connective, range, wholeWord, "The Four Gospels"};
}

const QString selectWhere = "SELECT * FROM NewTestament WHERE ";

QString sqlOf(const QString& word1, const QString& word2, int connective, const QString& range)
{
    const auto sql = searchSql(word1, word2, connective, range);
    return sql ? QString::fromStdString(*sql) : "none";
}

QStringList entries()
{
    QStringList entries;
    for (const SearchRange& range : searchRanges())
        entries << range.entry;
    return entries;
}

} // namespace

TEST(SearchMemory, BeginsEmpty)
{
    const SearchMemory memory;
    EXPECT_TRUE(memory.LastText1.isEmpty() && memory.LastText2.isEmpty());
    EXPECT_EQ(memory.LastConnective, 0);
    EXPECT_EQ(memory.LastRange, 0);
    EXPECT_EQ(memory.LastWholeWord, 0);
    EXPECT_EQ(memory.LastOutcome, 0);
    EXPECT_EQ(memory.ListKeyFlag, 0);
}

TEST(SearchWords, HaveEachApostropheReplacedAndNothingElse)
{
    EXPECT_EQ(escapeQuotes("Lord's"), "Lord?s");
    EXPECT_EQ(escapeQuotes("''"), "??");
    EXPECT_EQ(escapeQuotes("*a?b#[c]\"’%_"), "*a?b#[c]\"’%_");
}

TEST(SearchWords, AreWrappedToStandAlone)
{
    EXPECT_EQ(wrapWholeWord("sea"), "[!0-9a-zA-Z]sea[!0-9a-zA-Z]");
}

TEST(SearchRanges, HoldTheEntriesInTheirOrder)
{
    const QStringList expected =
        QString(
            "Gn --> Dt (Pentateuch)|Jos --> Est (Historical)|Jb --> Sg (Poetical)|Is --> Mal (Prophetic)|"
            "All Old "
            "Testament|Gn|Ex|Lv|Nm|Dt|Jos|Jgs|Ru|1Sm|2Sm|1Kgs|2Kgs|1Chr|2Chr|Ezr|Neh|Est|Jb|Ps|Prv|Eccl|Sg|"
            "Is|Jer|Lam|Ez|Dn|Hos|Jl|Am|Ob|Jon|Mi|Na|Hb|Zep|Hg|Zec|Mal|The Four Gospels|Rom --> Heb|Jms --> "
            "Jude|"
            "All New "
            "Testament|Mt|Mk|Lk|Jn|Acts|Rom|1Cor|2Cor|Gal|Eph|Phil|Col|1Thes|2Thes|1Tm|2Tm|Ti|Phlm|Heb|"
            "Jms|1Pt|2Pt|1Jn|2Jn|3Jn|Jude|Rv")
            .split('|');
    EXPECT_EQ(entries(), expected);
    EXPECT_EQ(entries().size(), 75);
}

TEST(SearchRanges, GiveNineGroupsTheirBounds)
{
    const struct
    {
        int place;
        const char* bounds;
    } rows[] = {{0, "7958 AND 13809"},  {1, "13810 AND 20827"}, {2, "20828 AND 25612"},
                {3, "25613 AND 31102"}, {4, "7958 AND 31102"},  {44, "1 AND 3779"},
                {45, "4787 AND 7122"},  {46, "7123 AND 7553"},  {47, "1 AND 7957"}};
    for (const auto& row : rows)
        EXPECT_EQ(rangeCondition(row.place, "Gn"), QString("VerseNumber BETWEEN %1 AND ").arg(row.bounds));
}

TEST(SearchRanges, TakeEveryOtherEntryAsTheBeginningOfTheKey)
{
    for (int place = -1; place <= 80; ++place) {
        const bool isGroup = (place >= 0 && place <= 4) || (place >= 44 && place <= 47);
        const QString entry = entries().value(place);
        const QString byKey = "VerseId LIKE '" + entry + "*' AND ";
        EXPECT_EQ(rangeCondition(place, entry) == byKey, !isGroup) << place;
    }
}

TEST(SearchSql, SearchesForOneWord)
{
    EXPECT_EQ(sqlOf("[!0-9a-zA-Z]sea[!0-9a-zA-Z]", "", 0, rangeCondition(47, "")),
              "SELECT * FROM NewTestament WHERE VerseNumber BETWEEN 1 AND 7957 AND "
              "KJVerseText LIKE '*[!0-9a-zA-Z]sea[!0-9a-zA-Z]*'");
}

TEST(SearchSql, IgnoresTheConnectiveWithoutASecondWord)
{
    for (int connective : {-1, 0, 1, 2, 3})
        EXPECT_EQ(sqlOf("a", "", connective, "R AND "), selectWhere + "R AND KJVerseText LIKE '*a*'");
}

TEST(SearchSql, JoinsTwoWords)
{
    EXPECT_EQ(sqlOf("a", "b", 0, "R AND "),
              selectWhere + "R AND KJVerseText LIKE '*a*' AND KJVerseText LIKE '*b*'");
    EXPECT_EQ(sqlOf("a", "b", 1, "R AND "),
              selectWhere + "R AND KJVerseText LIKE '*a*' AND KJVerseText NOT LIKE '*b*'");
    EXPECT_EQ(sqlOf("a", "b", 2, "R AND "),
              selectWhere + "R AND (KJVerseText LIKE '*a*' OR KJVerseText LIKE '*b*')");
}

TEST(SearchSql, IsNoneForAnyOtherConnective)
{
    EXPECT_EQ(sqlOf("a", "b", -1, "R AND "), "none");
    EXPECT_EQ(sqlOf("a", "b", 3, "R AND "), "none");
}

TEST(SearchSql, KeepsAccentedLetters)
{
    EXPECT_EQ(sqlOf("Êxodo", "coração", 0, ""),
              selectWhere + "KJVerseText LIKE '*Êxodo*' AND KJVerseText LIKE '*coração*'");
}

TEST(LastQuery, IsTheSameWhateverTheLetterCase)
{
    EXPECT_TRUE(isLastQuery(inputsOf("LOVE", ""), memoryOf("love", "")));
    EXPECT_TRUE(isLastQuery(inputsOf("ÊXODO", "CORAÇÃO"), memoryOf("êxodo", "coração")));
}

TEST(LastQuery, ComparesNothingElseLoosely)
{
    EXPECT_FALSE(isLastQuery(inputsOf("o  amor", ""), memoryOf("o amor", "")));
    EXPECT_FALSE(isLastQuery(inputsOf("coracao", ""), memoryOf("coração", "")));
}

TEST(LastQuery, OfOneWordIgnoresTheConnective)
{
    EXPECT_TRUE(isLastQuery(inputsOf("a", "", 2), memoryOf("a", "", 0)));
}

TEST(LastQuery, OfTwoWordsComparesTheConnective)
{
    EXPECT_TRUE(isLastQuery(inputsOf("a", "b", 2), memoryOf("a", "b", 2)));
    EXPECT_FALSE(isLastQuery(inputsOf("a", "b", 2), memoryOf("a", "b", 0)));
}

TEST(LastQuery, DiffersByEitherWordRangeOrWholeWords)
{
    EXPECT_FALSE(isLastQuery(inputsOf("a", ""), memoryOf("b", "")));
    EXPECT_FALSE(isLastQuery(inputsOf("a", "b"), memoryOf("a", "c")));
    EXPECT_FALSE(isLastQuery(inputsOf("a", ""), memoryOf("a", "b")));
    EXPECT_FALSE(isLastQuery(inputsOf("a", "b"), memoryOf("a", "")));
    EXPECT_FALSE(isLastQuery(inputsOf("a", "", 0, 47), memoryOf("a", "", 0, 44)));
    EXPECT_FALSE(isLastQuery(inputsOf("a", "", 0, 44, 1), memoryOf("a", "", 0, 44, 0)));
}
