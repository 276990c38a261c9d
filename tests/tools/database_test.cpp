#include "database/Database.h"
#include "importer/Files.h"
#include "importer/Importer.h"
#include "importer/InputError.h"
#include "tools/Samples.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

using Rows = std::vector<std::string>;

/// The rows that SQLite gives for an SQL text, columns joined by "|".
Rows query(const std::filesystem::path& path, const std::string& sql)
{
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    Rows rows;
    const auto addRow = [](void* result, int count, char** values, char**) {
        std::string row;
        for (int i = 0; i < count; ++i)
            row += std::string(i == 0 ? "" : "|") + (values[i] ? values[i] : "NULL");
        static_cast<Rows*>(result)->push_back(row);
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), addRow, &rows, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    sqlite3_close(database);
    return rows;
}

/// A Bible in which every verse tells its own key.
std::vector<Verse> tellingBible()
{
    std::vector<Verse> verses = uniformBible("");
    for (Verse& verse : verses)
        verse.text = "Aqui está " + verse.key.text() + ".";
    return verses;
}

class Database : public testing::Test
{
protected:
    void SetUp() override
    {
        folder = newFolder();
        path = folder / "KESTRPT.DAT";
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::filesystem::path folder;
    std::filesystem::path path;
};

} // namespace

TEST_F(Database, HasTheLengthThatTheProgramAsksFor)
{
    const int freePages = buildDatabase(path, tellingBible(), {}, {});
    EXPECT_EQ(std::filesystem::file_size(path), 6834176u);
    EXPECT_EQ(query(path, "PRAGMA page_size"), Rows{"2048"});
    EXPECT_EQ(query(path, "PRAGMA page_count"), Rows{"3337"});
    EXPECT_EQ(query(path, "PRAGMA freelist_count"), Rows{std::to_string(freePages)});
    EXPECT_EQ(query(path, "PRAGMA integrity_check"), Rows{"ok"});
}

TEST_F(Database, CarriesNoMarkOfAWriteAheadLog)
{
    buildDatabase(path, tellingBible(), {}, {});
    EXPECT_EQ(query(path, "PRAGMA journal_mode"), Rows{"delete"});
    EXPECT_EQ(readFile(path).substr(18, 2), "\x01\x01");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1)
        << "Nothing else is left behind.";
}

TEST_F(Database, KeepsTheColumnsInTheirOrder)
{
    buildDatabase(path, tellingBible(), {}, {});
    const auto columns = [&](const std::string& table) {
        return query(path, "SELECT cid, name, type, pk FROM pragma_table_info('" + table + "')");
    };
    EXPECT_EQ(columns("NewTestament"),
              (Rows{"0|VerseId|TEXT|0", "1|VerseNumber|INTEGER|1", "2|KJVerseText|TEXT|0"}));
    EXPECT_EQ(columns("ClassifiedVerses"),
              (Rows{"0|TopicId|INTEGER|1", "1|Name|TEXT|0", "2|VerseList|TEXT|0", "3|Type|TEXT|0"}));
    EXPECT_EQ(columns("NTMaps"), (Rows{"0|MapNumber|INTEGER|1", "1|MapDesc|TEXT|0", "2|Pic|BLOB|0"}));
    EXPECT_EQ(query(path, "SELECT count(*) FROM sqlite_schema"), Rows{"3"});
}

TEST_F(Database, NumbersTheNewTestamentFirst)
{
    buildDatabase(path, tellingBible(), {}, {});
    EXPECT_EQ(query(path, "SELECT * FROM NewTestament WHERE VerseNumber IN"
                          " (1, 3779, 3780, 4786, 4787, 7122, 7123, 7553, 7554, 7957)"),
              (Rows{"Mt:1:1|1| Aqui está Mt:1:1.", "Jn:21:25|3779| Aqui está Jn:21:25.",
                    "Acts:1:1|3780| Aqui está Acts:1:1.", "Acts:28:31|4786| Aqui está Acts:28:31.",
                    "Rom:1:1|4787| Aqui está Rom:1:1.", "Heb:13:25|7122| Aqui está Heb:13:25.",
                    "Jms:1:1|7123| Aqui está Jms:1:1.", "Jude:1:25|7553| Aqui está Jude:1:25.",
                    "Rv:1:1|7554| Aqui está Rv:1:1.", "Rv:22:21|7957| Aqui está Rv:22:21."}));
    EXPECT_EQ(query(path, "SELECT * FROM NewTestament WHERE VerseNumber IN"
                          " (7958, 13809, 13810, 20827, 20828, 25612, 25613, 31102)"),
              (Rows{"Gn:1:1|7958| Aqui está Gn:1:1.", "Dt:34:12|13809| Aqui está Dt:34:12.",
                    "Jos:1:1|13810| Aqui está Jos:1:1.", "Est:10:3|20827| Aqui está Est:10:3.",
                    "Jb:1:1|20828| Aqui está Jb:1:1.", "Sg:8:14|25612| Aqui está Sg:8:14.",
                    "Is:1:1|25613| Aqui está Is:1:1.", "Mal:4:6|31102| Aqui está Mal:4:6."}));
    EXPECT_EQ(query(path, "SELECT count(*), count(DISTINCT VerseId), min(VerseNumber), max(VerseNumber)"
                          " FROM NewTestament"),
              Rows{"31102|31102|1|31102"});
}

TEST_F(Database, GivesTheRowsInTheOrderOfTheirNumbers)
{
    buildDatabase(path, tellingBible(), {}, {});
    const Rows numbers = query(path, "SELECT VerseNumber FROM NewTestament");
    ASSERT_EQ(numbers.size(), 31102u);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        ASSERT_EQ(numbers[i], std::to_string(i + 1));
}

TEST_F(Database, HoldsTopicsAndMaps)
{
    const std::string picture("\x89PNG\0\xff", 6);
    buildDatabase(path, tellingBible(),
                  {{"The Sower", "Mt:13:3-9\\Mk:4:3", "Parables"}, {"B", "Mt:1:1", "Events"}},
                  {{1, "Ur to Canaan", picture}});
    EXPECT_EQ(query(path, "SELECT * FROM ClassifiedVerses"),
              (Rows{"1|The Sower|Mt:13:3-9\\Mk:4:3|Parables", "2|B|Mt:1:1|Events"}));
    EXPECT_EQ(query(path, "SELECT MapNumber, MapDesc, hex(Pic), typeof(Pic) FROM NTMaps"),
              Rows{"1|Ur to Canaan|89504E4700FF|blob"});
}

TEST_F(Database, IsTheSameBytesFromTheSameContents)
{
    const auto build = [&](const char* name) {
        buildDatabase(folder / name, tellingBible(), {{"The Sower", "Mt:13:3", "Parables"}},
                      {{1, "Ur to Canaan", std::string(50000, 'x')}});
        return readFile(folder / name);
    };
    EXPECT_TRUE(build("first") == build("second"));
}

TEST_F(Database, TakesTheLastFreePageAndNotOneMore)
{
    const int freePages = buildDatabase(path, tellingBible(), {}, {});
    // A picture's row spills over into pages of 2044 bytes each; the table's own page is there already.
    const auto withPages = [&](int pages) {
        return buildDatabase(path, tellingBible(), {},
                             {{1, "A", std::string(static_cast<std::size_t>(pages) * 2044 + 100, 'x')}});
    };
    for (const int left : {2, 1, 0}) {
        EXPECT_EQ(withPages(freePages - left), left);
        EXPECT_EQ(query(path, "PRAGMA page_count"), Rows{"3337"});
        EXPECT_EQ(query(path, "PRAGMA integrity_check"), Rows{"ok"});
    }
    const std::string before = readFile(path);
    EXPECT_EQ(complaint<InputError>([&] { withPages(freePages + 3); }),
              "The data are 6144 bytes too long for a database of 6834176 bytes.");
    EXPECT_TRUE(readFile(path) == before) << "What was there stays.";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}

TEST_F(Database, FillsWithZeros)
{
    const int freePages = buildDatabase(path, tellingBible(), {}, {});
    const std::string bytes = readFile(path);
    const std::string lastPages = bytes.substr(bytes.size() - 400 * 2048);
    ASSERT_GT(freePages, 400);
    // All but the pages that list the free ones.
    EXPECT_GT(std::count(lastPages.begin(), lastPages.end(), '\0'), 398 * 2048);
}

TEST_F(Database, NamesAPlaceThatCannotBeWritten)
{
    const auto nowhere = folder / "missing" / "KESTRPT.DAT";
    EXPECT_EQ(complaint<InputError>([&] { buildDatabase(nowhere, tellingBible(), {}, {}); }),
              "Cannot write " + nowhere.string() + ".new: unable to open database file.");
}

TEST_F(Database, HoldsTheReferenceTextWithRoomForTopicsAndMaps)
{
    if (referenceText().empty())
        GTEST_SKIP() << noReferenceText;
    const auto verses = importText(referenceText(), ourCorrections).verses;
    EXPECT_GE(buildDatabase(path, verses, {}, {}) * databasePageSize, 1500000);
    EXPECT_EQ(query(path, "SELECT KJVerseText FROM NewTestament WHERE VerseId = 'Jn:11:35'"),
              Rows{" " + verses[*canonicalPosition("Jn:11:35")].text});
    EXPECT_EQ(query(path, "SELECT count(*) FROM NewTestament WHERE KJVerseText NOT GLOB ' [^ ]*'"),
              Rows{"0"});
}
