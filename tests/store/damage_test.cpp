// Files that are not as they should be: each is read as far as it is sound or refused in SQLite's own
// words. No crash, no hang, and whatever comes is in order.
#include "store/Database.h"
#include "store/ProcessorTime.h"
#include "store/TestDatabase.h"
#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <random>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs what the windows run; the number of rows of the verse table that came, -1 when it was refused.
int tryEverything(const std::string& path)
{
    int rows = -1;
    for (const char* sql :
         {"SELECT * FROM NewTestament", "SELECT * FROM NewTestament WHERE VerseNumber = 1",
          "SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:*'",
          "SELECT * FROM NewTestament WHERE VerseId = 'Mt:1:1'",
          "SELECT * FROM NewTestament WHERE (KJVerseText LIKE '*luz*' OR KJVerseText LIKE '*deus*')",
          "SELECT * FROM NewTestament WHERE KJVerseText NOT LIKE '*[!a-z]e[!a-z]*'",
          "SELECT * FROM ClassifiedVerses WHERE Type = 'Events'",
          "SELECT * FROM NTMaps WHERE MapNumber = 1"}) {
        try {
            DataSource source;
            long long last = std::numeric_limits<long long>::min();
            for (openIn(source, path, sql); !source.eof(); source.moveNext()) {
                for (int column = 0; column < 4; ++column)
                    source.field(column);
                if (source.field("VerseNumber").empty())
                    continue;
                const long long number = std::stoll(std::string(source.field("VerseNumber")));
                EXPECT_GT(number, last) << sql;
                EXPECT_TRUE(source.field("KJVerseText").starts_with(' '));
                last = number;
            }
            if (sql == std::string("SELECT * FROM NewTestament"))
                rows = source.recordCount();
        } catch (const DataError& error) {
            EXPECT_NE(error.number(), 0);
            EXPECT_NE(error.description(), "");
        }
    }
    return rows;
}

class DamagedCopies : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string sql = smallBible;
        for (int i = 7; i < 1500; ++i) {
            const std::string n = std::to_string(i);
            sql += "INSERT INTO NewTestament VALUES ('Ps:" + n + ":1', " + n + ", ' E veio a conta da luz " +
                   n + ".');";
        }
        makeDatabase(m_folder.file(), "PRAGMA page_size = 2048; BEGIN;" + sql + "COMMIT;");
        m_sound = readFile(m_folder.file());
        ASSERT_GT(m_sound.size(), 50'000U);
    }

    /// Writes the damaged copy, of the sound one's length, and uses it within a time bound.
    int use(std::string damaged)
    {
        damaged.resize(m_sound.size());
        const std::string path = m_folder.file("damaged");
        std::ofstream(path, std::ios::binary) << damaged;
        const auto start = std::chrono::steady_clock::now();
        const int rows = tryEverything(path);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
        return rows;
    }

    std::size_t below(std::size_t n)
    {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random);
    }

    TestFolder m_folder;
    std::string m_sound;
    std::mt19937 m_random{1998};
};

TEST_F(DamagedCopies, SoundOneIsReadWhole)
{
    EXPECT_EQ(use(m_sound), 1499);
}

TEST_F(DamagedCopies, WithFlippedBits)
{
    int refused = 0;
    for (int copy = 0; copy < 200; ++copy) {
        std::string damaged = m_sound;
        for (std::size_t flips = copy % 2 ? 40 : 3; flips > 0; --flips)
            damaged[below(damaged.size())] ^= static_cast<char>(1 << below(8));
        refused += use(damaged) < 0;
    }
    EXPECT_GT(refused, 0);
}

TEST_F(DamagedCopies, WithFlippedBitsInTheHeaderAndTheSchema)
{
    for (int copy = 0; copy < 200; ++copy) {
        std::string damaged = m_sound;
        for (int flips = 0; flips < 2; ++flips)
            damaged[below(copy % 2 ? 108 : 2048)] ^= static_cast<char>(1 << below(8));
        use(damaged);
    }
}

TEST_F(DamagedCopies, CutOffAndFilledWithZeros)
{
    for (int copy = 0; copy < 100; ++copy) {
        const int rows = use(m_sound.substr(0, below(m_sound.size())));
        EXPECT_LT(rows, 1500);
    }
}

TEST_F(DamagedCopies, WithAPageOfZerosOrOfAnotherPlace)
{
    const std::size_t pages = m_sound.size() / 2048 + (m_sound.size() % 2048 != 0);
    ASSERT_EQ(m_sound.size() % 2048, 0U);
    for (int copy = 0; copy < 100; ++copy) {
        std::string damaged = m_sound;
        const std::size_t to = below(pages) * 2048;
        damaged.replace(to, 2048,
                        copy % 2 ? std::string(2048, '\0') : m_sound.substr(below(pages) * 2048, 2048));
        use(damaged);
    }
}

TEST_F(DamagedCopies, ThatAreShorterThanTheyShouldBe)
{
    std::ofstream(m_folder.file("damaged"), std::ios::binary) << m_sound.substr(0, m_sound.size() / 2);
    EXPECT_EQ(errorOf(m_folder.file("damaged"), "SELECT * FROM NewTestament").number(), SQLITE_CORRUPT);
}

TEST(NoDatabase, IsRefusedInSqlitesWords)
{
    const TestFolder folder;
    std::ofstream(folder.file()) << std::string(10'000, 'x');
    const DataError error = errorOf(folder.file(), "SELECT * FROM NewTestament");
    EXPECT_EQ(error.number(), SQLITE_NOTADB);
    EXPECT_EQ(error.description(), "file is not a database");
}

TEST(NoDatabase, AnEmptyFileHasNoVerses)
{
    const TestFolder folder;
    std::ofstream(folder.file()).close();
    EXPECT_EQ(errorOf(folder.file(), "SELECT * FROM NewTestament").description(),
              "no such table: main.NewTestament");
}

class ForeignSchema : public testing::Test
{
protected:
    std::string make(const std::string& sql)
    {
        makeDatabase(m_folder.file(), sql);
        return m_folder.file();
    }

    TestFolder m_folder;
};

TEST_F(ForeignSchema, MissingVersesLeaveTheOtherTablesReadable)
{
    make("CREATE TABLE NTMaps (MapNumber INTEGER); INSERT INTO NTMaps VALUES (1);");
    EXPECT_EQ(errorOf(m_folder.file(), "SELECT * FROM NTMaps").number(), 0);
    const DataError error = errorOf(m_folder.file(), "SELECT * FROM NewTestament WHERE VerseNumber = 1");
    EXPECT_EQ(error.number(), SQLITE_ERROR);
    EXPECT_EQ(error.description(), "no such table: main.NewTestament");
}

TEST_F(ForeignSchema, MissingColumnIsNamed)
{
    make("CREATE TABLE NewTestament (VerseId TEXT, VerseNumber INTEGER);");
    EXPECT_EQ(errorOf(m_folder.file(), "SELECT * FROM NewTestament").description(),
              "no such column: KJVerseText");
}

TEST_F(ForeignSchema, ColumnsComeInTheirOrderWhateverTheFiles)
{
    make("CREATE TABLE NewTestament (Note, KJVerseText, VerseNumber, VerseId);"
         "INSERT INTO NewTestament VALUES (0, ' Texto', 1, 'Mt:1:1');");
    DataSource source;
    openIn(source, m_folder.file(), "SELECT * FROM NewTestament");
    EXPECT_EQ(source.field(0), "Mt:1:1");
    EXPECT_EQ(source.field(1), "1");
    EXPECT_EQ(source.field(2), " Texto");
    EXPECT_EQ(source.field(3), "");
}

TEST_F(ForeignSchema, RowsWithoutAWholeNumberAreLeftOut)
{
    make(verseTable +
         "INSERT INTO NewTestament VALUES ('a', 'one', ' x'), ('b', 2.5, ' x'), ('c', NULL, ' x'),"
         "('d', x'01', ' x'), ('e', '7', ' x'), ('f', -3, ' x'), ('g', 9223372036854775807, ' x'),"
         "('h', 6, ' x');");
    EXPECT_THAT(keys(m_folder.file(), ""), ElementsAre("f", "h", "e", "g"));
    EXPECT_THAT(keys(m_folder.file(), " WHERE VerseNumber > 6 AND VerseNumber <= 9223372036854775807"),
                ElementsAre("e", "g"));
}

TEST_F(ForeignSchema, OfTwoRowsWithOneNumberTheFirstIsKept)
{
    make(verseTable + "INSERT INTO NewTestament VALUES ('a', 1, ' x'), ('b', 1, ' y'), ('c', 2, ' z');");
    EXPECT_THAT(keys(m_folder.file(), ""), ElementsAre("a", "c"));
}

TEST_F(ForeignSchema, OneKeyMayStandForSeveralRows)
{
    make(verseTable + "INSERT INTO NewTestament VALUES ('a', 2, ' x'), ('A', 1, ' y'), ('a', 3, ' z');");
    DataSource source;
    openIn(source, m_folder.file(), "SELECT * FROM NewTestament WHERE VerseId = 'a'");
    EXPECT_EQ(source.field(1), "2");
    EXPECT_EQ(keys(m_folder.file(), " WHERE VerseId LIKE 'a'").size(), 3U);
}

TEST_F(ForeignSchema, BlobsNullsAndEmbeddedZerosAreBytesOfText)
{
    make(verseTable + "INSERT INTO NewTestament VALUES (x'FF00', 1, x'20FF'), (NULL, 2, NULL),"
                      "('n', 3, ' a' || char(0) || 'b'), (4, 4, 4);");
    DataSource source;
    openIn(source, m_folder.file(), "SELECT * FROM NewTestament");
    EXPECT_EQ(source.field(0), std::string_view("\xFF\0", 2));
    EXPECT_EQ(source.field(2), " \xFF");
    source.moveNext();
    EXPECT_EQ(source.field(0), "");
    EXPECT_EQ(source.field(2), " ");
    source.moveNext();
    EXPECT_EQ(source.field(2), std::string_view(" a\0b", 4));
    source.moveNext();
    EXPECT_EQ(source.field(0), "4");
    EXPECT_EQ(source.field(2), " 4");
    EXPECT_THAT(keys(m_folder.file(), " WHERE KJVerseText LIKE '*b'"), ElementsAre("n"));
    EXPECT_EQ(keys(m_folder.file(), " WHERE KJVerseText LIKE ''").size(), 0U);
    EXPECT_EQ(keys(m_folder.file(), " WHERE VerseId LIKE ''").size(), 1U);
    EXPECT_EQ(keys(m_folder.file(), " WHERE VerseId NOT LIKE ''").size(), 3U);
}

TEST_F(ForeignSchema, AViewWithoutEndIsInterrupted)
{
    make("CREATE VIEW NewTestament AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) "
         "SELECT 'k' AS VerseId, i AS VerseNumber, ' t' AS KJVerseText FROM n WHERE i > 1;"
         "CREATE VIEW NTMaps AS SELECT * FROM NewTestament;");
    for (const char* sql : {"SELECT * FROM NewTestament", "SELECT * FROM NTMaps"}) {
        const DataError error = errorOf(m_folder.file(), sql);
        EXPECT_EQ(error.number(), SQLITE_INTERRUPT) << sql;
        EXPECT_EQ(error.description(), "interrupted") << sql;
    }
}

TEST_F(ForeignSchema, AViewWithoutEndOfItsWorkIsInterruptedInTime)
{
    // Few steps, each of which handles half a megabyte.
    make("CREATE VIEW NewTestament AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i "
         "< 30000)"
         "SELECT 'k' AS VerseId, i AS VerseNumber, substr(hex(zeroblob(500000 + i % 2)), i, 5) AS "
         "KJVerseText FROM n;"
         "CREATE VIEW NTMaps AS SELECT * FROM NewTestament;");
    const auto kept = Database::open(m_folder.file()); // the first bounded statement
    for (const char* sql : {"SELECT * FROM NewTestament", "SELECT * FROM NTMaps"}) {
        const std::chrono::nanoseconds start = processorTime();
        EXPECT_EQ(errorOf(m_folder.file(), sql).number(), SQLITE_INTERRUPT) << sql;
        EXPECT_LT(processorTime() - start, std::chrono::seconds(10)) << sql;
    }
}

TEST_F(ForeignSchema, ASoundViewIsAsGoodAsATable)
{
    make("CREATE TABLE Rows (i); INSERT INTO Rows VALUES (2), (1);"
         "CREATE VIEW NewTestament AS SELECT 'k' || i AS VerseId, i AS VerseNumber, ' t' AS KJVerseText FROM "
         "Rows;");
    EXPECT_THAT(keys(m_folder.file(), ""), ElementsAre("k1", "k2"));
}

TEST_F(ForeignSchema, ItsOwnTableOfTheNameOfOursIsNotTaken)
{
    make(smallBible + "CREATE TABLE VerseRows (VerseId, VerseNumber, KJVerseText);");
    EXPECT_EQ(keys(m_folder.file(), "").size(), 6U);
}

TEST_F(ForeignSchema, HugeValuesAreTooBig)
{
    make(verseTable + "INSERT INTO NewTestament VALUES ('a', 1, zeroblob(2000000));");
    const DataError error = errorOf(m_folder.file(), "SELECT * FROM NewTestament");
    EXPECT_EQ(error.number(), SQLITE_TOOBIG);
    EXPECT_EQ(error.description(), "string or blob too big");
}

TEST_F(ForeignSchema, WhatNoReaderCouldReadIsDamage)
{
    const auto refusal = [this](const std::string& key, const std::string& text) {
        std::filesystem::remove(m_folder.file());
        make(verseTable + "INSERT INTO NewTestament VALUES ('a', 1, ' x'), ('" + key + "', 2, '" + text +
             "');");
        return errorOf(m_folder.file(), "SELECT * FROM NewTestament WHERE VerseNumber = 1");
    };
    EXPECT_EQ(refusal(std::string(64, 'k'), std::string(8192, 't')).number(), 0);
    for (const DataError& error :
         {refusal(std::string(65, 'k'), "t"), refusal("k", std::string(8193, 't'))}) {
        EXPECT_EQ(error.number(), SQLITE_CORRUPT);
        EXPECT_EQ(error.description(), "database disk image is malformed");
    }
}

TEST_F(ForeignSchema, WhatNoWindowCouldListIsDamage)
{
    const auto refusal = [this](int topics, int listBytes, int nameBytes = 5) {
        std::filesystem::remove(m_folder.file());
        make(smallBible +
             "DELETE FROM ClassifiedVerses; WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
             "WHERE i < " +
             std::to_string(topics) + ") INSERT INTO ClassifiedVerses SELECT i, substr(hex(zeroblob(" +
             std::to_string(nameBytes) + ")), 1, " + std::to_string(nameBytes) +
             "), iif(i = 2, hex(zeroblob(" + std::to_string(listBytes / 2) +
             ")), 'Mt:1:1'), 'Events' FROM n;");
        return errorOf(m_folder.file(), "SELECT * FROM ClassifiedVerses");
    };
    EXPECT_EQ(refusal(5000, 65536).number(), 0);
    EXPECT_EQ(refusal(5001, 2).number(), SQLITE_CORRUPT);
    EXPECT_EQ(refusal(2, 65538).number(), SQLITE_CORRUPT);
    EXPECT_EQ(refusal(2, 2, 1024).number(), 0);
    EXPECT_EQ(refusal(2, 2, 1025).number(), SQLITE_CORRUPT);
}

TEST_F(ForeignSchema, AMapsDescriptionThatFillsNoTitleBarIsDamage)
{
    const auto refusal = [this](int bytes) {
        std::filesystem::remove(m_folder.file());
        make(smallBible + "INSERT INTO NTMaps VALUES (12, '" + std::string(bytes, 'm') + "', x'');");
        return errorOf(m_folder.file(), "SELECT * FROM NTMaps");
    };
    EXPECT_EQ(refusal(1024).number(), 0);
    EXPECT_EQ(refusal(1025).number(), SQLITE_CORRUPT);
}

TEST_F(ForeignSchema, TextsInAnotherEncodingAreRefused)
{
    make("PRAGMA encoding = 'UTF-16'; " + smallBible);
    EXPECT_EQ(errorOf(m_folder.file(), "SELECT * FROM NewTestament").number(), SQLITE_NOTADB);
}

TEST_F(ForeignSchema, AnEmptyTableIsAnEmptyBible)
{
    make(verseTable);
    EXPECT_THAT(keys(m_folder.file(), ""), IsEmpty());
    EXPECT_THAT(
        keys(m_folder.file(), " WHERE VerseId LIKE 'Gn*' OR KJVerseText LIKE '*a*' OR VerseNumber = 1"),
        IsEmpty());
}

TEST_F(ForeignSchema, AnyNumberOfRowsIsIndexed)
{
    for (const int rows : {1, 63, 64, 65, 128}) {
        std::filesystem::remove(m_folder.file());
        make(verseTable + "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
             std::to_string(rows) + ") INSERT INTO NewTestament SELECT 'Gn:' || i, i, ' t' FROM n;");
        EXPECT_EQ(keys(m_folder.file(), " WHERE VerseId LIKE 'gn:*'").size(), static_cast<std::size_t>(rows));
        EXPECT_THAT(keys(m_folder.file(), " WHERE VerseId LIKE 'Gn:" + std::to_string(rows) + "'"),
                    ElementsAre("Gn:" + std::to_string(rows)));
    }
}

} // namespace
