// What a window can do with its data source, where the file may lie, and what nobody can do to it.
#include "store/Database.h"
#include "store/TestDatabase.h"
#include "support/Files.h"
#include <functional>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class SmallSource : public testing::Test
{
protected:
    SmallSource() { makeDatabase(m_folder.file(), smallBible); }

    DataSource& run(const std::string& sql) { return openIn(m_source, m_folder.file(), sql); }
    DataError errorOf(const std::string& sql) const { return ::errorOf(m_folder.file(), sql); }

    TestFolder m_folder;
    DataSource m_source;
};

TEST_F(SmallSource, IsAtItsEndBeforeTheFirstRefresh)
{
    const DataSource source;
    EXPECT_TRUE(source.eof());
    EXPECT_EQ(source.recordCount(), 0);
    EXPECT_EQ(source.field(0), "");
    EXPECT_EQ(source.field("VerseId"), "");
}

TEST_F(SmallSource, WalksItsRowsToTheEnd)
{
    run("SELECT * FROM NewTestament WHERE VerseNumber >= 5");
    EXPECT_EQ(m_source.field(0), "Gn:1:2");
    EXPECT_EQ(m_source.recordCount(), 1);
    m_source.moveNext();
    EXPECT_EQ(m_source.field(0), "Gn:1:3");
    EXPECT_FALSE(m_source.eof());
    m_source.moveNext();
    EXPECT_TRUE(m_source.eof());
    EXPECT_EQ(m_source.recordCount(), 2);
    m_source.moveNext();
    EXPECT_EQ(m_source.recordCount(), 2);
    EXPECT_EQ(m_source.field(0), "");
}

TEST_F(SmallSource, ReadsColumnsByPositionAndByName)
{
    run("SELECT * FROM NewTestament WHERE VerseNumber = 3");
    EXPECT_EQ(m_source.field(0), "Mt:10:1");
    EXPECT_EQ(m_source.field(1), "3");
    EXPECT_EQ(m_source.field(2), " Água e luz.");
    EXPECT_EQ(m_source.field("VerseId"), "Mt:10:1");
    EXPECT_EQ(m_source.field("versenumber"), "3");
    EXPECT_EQ(m_source.field("KJVerseText"), " Água e luz.");
    EXPECT_EQ(m_source.field("Verse"), "");
    EXPECT_EQ(m_source.field(3), "");
    EXPECT_EQ(m_source.field(-1), "");
}

TEST_F(SmallSource, TakesAStatementOfLessThanAHundredThousandBytes)
{
    const std::string sql = "SELECT * FROM NewTestament";
    const std::string longest = sql + std::string(99'999 - sql.size(), ' ');
    run(longest);
    EXPECT_EQ(m_source.recordCount(), 1);
    EXPECT_EQ(errorOf(longest + ' ').number(), SQLITE_TOOBIG);
}

TEST_F(SmallSource, AnEmptyTextIsLikeAnyRunAndNullIsLikeNothing)
{
    const auto rows = [this](const std::string& condition) {
        return run("SELECT * FROM ClassifiedVerses WHERE " + condition).recordCount();
    };
    EXPECT_EQ(rows("'' LIKE '*'"), 1);
    EXPECT_EQ(rows("'' NOT LIKE 'a'"), 1);
    EXPECT_EQ(rows("NULL LIKE '*'"), 0);
    EXPECT_EQ(rows("NULL NOT LIKE 'a'"), 0);
    EXPECT_EQ(rows("'a' NOT LIKE NULL"), 0);
}

TEST_F(SmallSource, ReadsTheOtherTablesAsTheyAre)
{
    run("SELECT * FROM ClassifiedVerses WHERE Type = 'Events'");
    EXPECT_EQ(m_source.field(1), "Água");
    EXPECT_EQ(m_source.field(2), "Mt:10:1\\Gn:1:2-3");
    run("SELECT * FROM NTMaps WHERE MapNumber = 1");
    EXPECT_EQ(m_source.field("Pic"), std::string_view("\0\xFF\0A", 4));
    run("SELECT * FROM NTMaps WHERE MapNumber = 2");
    EXPECT_EQ(m_source.recordCount(), 1);
    EXPECT_EQ(m_source.field("Pic"), "");
    EXPECT_EQ(m_source.field("MapDesc"), "");
    run("SELECT * FROM ClassifiedVerses WHERE Name LIKE 'á?U*'");
    EXPECT_EQ(m_source.recordCount(), 1);
}

TEST_F(SmallSource, TellsWhenTheCurrentRowIsAnotherOne)
{
    std::vector<std::string> shown;
    m_source.currentRowChanged = [&] { shown.emplace_back(m_source.field(0)); };
    run("SELECT * FROM NewTestament WHERE VerseNumber > 5");
    m_source.moveNext();
    m_source.moveNext();
    run("SELECT * FROM NewTestament WHERE VerseNumber = 99");
    EXPECT_THAT(shown, ElementsAre("Gn:1:3", "", ""));
}

TEST_F(SmallSource, TellsNothingOfARowThatGoesWithoutAnother)
{
    run("SELECT * FROM NewTestament WHERE VerseNumber = 6");
    m_source.moveNext();
    int told = 0;
    m_source.currentRowChanged = [&] { ++told; };
    m_source.moveNext();
    m_source.setRecordSource("nonsense");
    EXPECT_THROW(m_source.refresh(), DataError);
    m_source.setDatabaseName(m_folder.file("other"));
    EXPECT_EQ(told, 0);
}

TEST_F(SmallSource, MayBeRefreshedByWhoeverIsToldOfTheRow)
{
    m_source.currentRowChanged = [&] {
        if (m_source.eof()) {
            m_source.setRecordSource("SELECT * FROM NewTestament WHERE VerseNumber = 1");
            m_source.refresh();
        }
    };
    run("SELECT * FROM NewTestament WHERE VerseNumber = 99");
    EXPECT_EQ(m_source.field(0), "Mt:1:1");
}

TEST_F(SmallSource, StaysUsableAfterAQueryThatFails)
{
    run("SELECT * FROM NewTestament");
    for (const char* sql : {"SELECT * FROM", "", " ", "nonsense", "SELECT * FROM NoSuchTable"}) {
        m_source.setRecordSource(sql);
        EXPECT_THROW(m_source.refresh(), DataError) << sql;
        EXPECT_TRUE(m_source.eof());
        EXPECT_EQ(m_source.recordCount(), 0);
        EXPECT_EQ(m_source.field(0), "");
    }
    run("SELECT * FROM NewTestament WHERE VerseNumber = 2");
    EXPECT_EQ(m_source.field(0), "Mt:2:1");
}

TEST_F(SmallSource, NewRecordSourceTakesEffectOnlyWithTheRefresh)
{
    run("SELECT * FROM NewTestament WHERE VerseNumber = 2");
    m_source.setRecordSource("SELECT * FROM NewTestament WHERE VerseNumber = 1");
    EXPECT_EQ(m_source.field(0), "Mt:2:1");
    m_source.refresh();
    EXPECT_EQ(m_source.field(0), "Mt:1:1");
}

TEST_F(SmallSource, ForgetsItsResultWithAnotherDatabaseName)
{
    run("SELECT * FROM NewTestament");
    m_source.setDatabaseName(m_folder.file());
    EXPECT_FALSE(m_source.eof());
    m_source.setDatabaseName(m_folder.file("other"));
    EXPECT_TRUE(m_source.eof());
    EXPECT_THROW(m_source.refresh(), DataError);
}

TEST_F(SmallSource, TwoOfThemShareOneBlock)
{
    DataSource other;
    openIn(other, m_folder.file(), "SELECT * FROM NewTestament WHERE VerseNumber = 1");
    run("SELECT * FROM NewTestament WHERE VerseNumber = 1");
    EXPECT_EQ(static_cast<const void*>(other.field(2).data()),
              static_cast<const void*>(m_source.field(2).data()));
    const auto kept = Database::open(m_folder.file());
    EXPECT_EQ(kept, Database::open(m_folder.file()));
}

TEST_F(SmallSource, WalksEachItsOwnRows)
{
    DataSource other;
    openIn(other, m_folder.file(), "SELECT * FROM NewTestament");
    run("SELECT * FROM NewTestament WHERE KJVerseText LIKE '*luz*'");
    other.moveNext();
    m_source.moveNext();
    EXPECT_EQ(other.field(0), "Mt:2:1");
    EXPECT_EQ(m_source.field(0), "Gn:1:3");
}

TEST_F(SmallSource, GoesOnAfterTheFileIsRemovedOrReplaced)
{
    run("SELECT * FROM NewTestament");
    std::filesystem::remove(m_folder.file());
    m_source.moveNext();
    EXPECT_EQ(m_source.field(0), "Mt:2:1");
    EXPECT_EQ(run("SELECT * FROM ClassifiedVerses").recordCount(), 1);
    std::ofstream(m_folder.file("new")) << "not a database";
    std::filesystem::rename(m_folder.file("new"), m_folder.file());
    EXPECT_EQ(run("SELECT * FROM NewTestament WHERE VerseNumber = 6").field(0), "Gn:1:3");
}

TEST_F(SmallSource, ReadsTheFileAnewOnceNobodyHoldsIt)
{
    EXPECT_EQ(keys(m_folder.file(), "").size(), 6U);
    makeDatabase(m_folder.file(), "DELETE FROM NewTestament WHERE VerseNumber > 2");
    EXPECT_THAT(keys(m_folder.file(), ""), ElementsAre("Mt:1:1", "Mt:2:1"));
}

TEST_F(SmallSource, LeavesNoFileBeside)
{
    run("SELECT * FROM NewTestament WHERE KJVerseText LIKE '*a*' OR VerseId LIKE '*1*' ORDER BY KJVerseText");
    const auto files = std::distance(std::filesystem::directory_iterator(m_folder.path()), {});
    EXPECT_EQ(files, 1);
}

TEST_F(SmallSource, OnlyReads)
{
    const auto before = std::filesystem::last_write_time(m_folder.file());
    for (const char* sql :
         {"DELETE FROM NewTestament", "DELETE FROM main.NewTestament",
          "UPDATE ClassifiedVerses SET Name = ''", "INSERT INTO NTMaps VALUES (3, '', NULL)",
          "CREATE TABLE x (y)", "CREATE TEMP TABLE x (y)", "DROP TABLE NTMaps", "DROP VIEW temp.NewTestament",
          "ATTACH ':memory:' AS other", "DETACH temp", "PRAGMA writable_schema = ON",
          "PRAGMA query_only = OFF", "PRAGMA journal_mode = WAL", "VACUUM", "VACUUM INTO 'copy'", "REINDEX",
          "BEGIN", "SAVEPOINT s", "SELECT load_extension('x')"}) {
        const DataError error = errorOf(sql);
        EXPECT_NE(error.number(), SQLITE_OK) << sql;
        EXPECT_NE(error.description(), "") << sql;
    }
    EXPECT_EQ(errorOf("ATTACH ':memory:' AS other").description(), "not authorized");
    EXPECT_EQ(errorOf("PRAGMA page_size").number(), SQLITE_AUTH);
    EXPECT_EQ(std::filesystem::last_write_time(m_folder.file()), before);
    EXPECT_EQ(keys(m_folder.file(), "").size(), 6U);
}

TEST_F(SmallSource, RefusesAnSqlTextOfUnreasonableLength)
{
    const DataError error =
        errorOf("SELECT * FROM NewTestament WHERE KJVerseText LIKE '*" + std::string(200'000, 'a') + "*'");
    EXPECT_EQ(error.number(), SQLITE_TOOBIG);
}

TEST_F(SmallSource, RefusesAnythingBehindTheStatement)
{
    const std::string good = "SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:1:2'";
    for (const std::string rest :
         {";*'", ";", "; SELECT 1", "; --", "--*'", " -- ", "/**'", "/* ", " /* x * /"}) {
        const DataError error = errorOf(good + rest);
        EXPECT_EQ(error.number(), SQLITE_ERROR) << rest;
        EXPECT_EQ(error.description(), "SQL logic error") << rest;
    }
    for (const std::string sound : {"", " ", "\n", " /* closed */", " -- closed\n", " AND 1 /* */"})
        EXPECT_EQ(run(good + sound).field(1), "5") << sound;
    EXPECT_EQ(run("SELECT * FROM NewTestament WHERE VerseId LIKE '--;/*'").recordCount(), 0);
}

TEST_F(SmallSource, FindsNothingForANul)
{
    using namespace std::string_literals;
    for (const std::string& sql :
         {"SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn\0*'"s,
          "SELECT * FROM NewTestament WHERE VerseId LIKE '\0Gn*'"s, "\0"s, "SELECT * FROM NewTestament\0"s}) {
        run("SELECT * FROM NewTestament");
        int changes = 0;
        m_source.currentRowChanged = [&] { ++changes; };
        run(sql);
        EXPECT_EQ(m_source.recordCount(), 0) << sql;
        EXPECT_TRUE(m_source.eof()) << sql;
        EXPECT_EQ(changes, 1) << sql;
        m_source.currentRowChanged = nullptr;
    }
}

/// Ways in which another program can spoil the file's content while it is open.
class SpoiltFile : public testing::TestWithParam<std::function<void(const std::string& path)>>
{
};

TEST_P(SpoiltFile, KeepsTheVersesAndReportsTheRestAsDamage)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible +
                                    "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n WHERE "
                                    "i < 3000) INSERT INTO ClassifiedVerses SELECT i, 'Topic ' || i, "
                                    "'Mt:1:1', 'Events' FROM n;");
    DataSource verses;
    DataSource topics;
    openIn(verses, folder.file(), "SELECT * FROM NewTestament");
    openIn(topics, folder.file(), "SELECT * FROM ClassifiedVerses");
    GetParam()(folder.file());
    verses.moveNext();
    EXPECT_EQ(verses.field(0), "Mt:2:1");
    const auto readAll = [&] {
        while (!topics.eof())
            topics.moveNext();
    };
    EXPECT_THROW(readAll(), DataError);
    EXPECT_TRUE(topics.eof());
    const DataError error = errorOf(folder.file(), "SELECT * FROM ClassifiedVerses WHERE Type = 'Events'");
    EXPECT_NE(error.number(), 0);
    EXPECT_NE(error.description(), "");
    EXPECT_EQ(keys(folder.file(), " WHERE VerseId LIKE 'Gn:*'").size(), 3U);
}

INSTANTIATE_TEST_SUITE_P(
    ways, SpoiltFile,
    testing::Values([](const std::string& path) { std::filesystem::resize_file(path, 0); },
                    [](const std::string& path) { std::filesystem::resize_file(path, 5000); },
                    [](const std::string& path) {
                        const auto size = std::filesystem::file_size(path);
                        std::fstream(path, std::ios::in | std::ios::out) << std::string(size, 'x');
                    },
                    [](const std::string& path) {
                        const auto size = std::filesystem::file_size(path);
                        std::fstream(path, std::ios::in | std::ios::out) << std::string(size, '\0');
                    }));

class OddPath : public testing::TestWithParam<std::string>
{
};

/// Of these names, those that a file may have here.
std::vector<std::string> possible(std::vector<std::string> names)
{
    std::erase_if(names, [](const std::string& name) { return !Files::canBeNamed(name); });
    return names;
}

TEST_P(OddPath, IsTakenLiterally)
{
    const TestFolder folder;
    const std::string path = folder.file(GetParam());
    std::filesystem::create_directories(asPath(path).parent_path());
    makeDatabase(path, smallBible);
    EXPECT_EQ(keys(path, "").size(), 6U);
}

INSTANTIATE_TEST_SUITE_P(names, OddPath,
                         testing::ValuesIn(possible({"with blank", "què?mode=rwc", "#1", "100%", "%41",
                                                     "é ü ñ", "Ж語", "a&b=c", "\xFF", "'", "a+b", "quot\"e",
                                                     "back\\slash", "new\nline", "dir/é?/#/KESTRPT.DAT",
                                                     "dir/é/#/KESTRPT.DAT", std::string(200, 'x')})));

TEST(Paths, MayBeRelativeDoubledOrThroughALink)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_EQ(keys("KESTRPT.DAT", "").size(), 6U);
    std::filesystem::current_path(before);
    std::string doubled = folder.file();
    const std::size_t separator = doubled.find_first_of("/\\");
    doubled.insert(separator, 1, doubled[separator]);
    EXPECT_EQ(keys(doubled, "").size(), 6U) << doubled;
    if (Files::makeLink(folder.file(), folder.file("link"))) {
        EXPECT_EQ(keys(folder.file("link"), "").size(), 6U);
    }
}

TEST(Paths, AReadOnlyFileInAReadOnlyFolderWillDo)
{
    const TestFolder folder;
    makeDatabase(folder.file(), smallBible + "PRAGMA journal_mode = WAL;");
    constexpr auto writing = std::filesystem::perms::owner_write;
    std::filesystem::permissions(asPath(folder.file()), writing, std::filesystem::perm_options::remove);
    std::filesystem::permissions(folder.path(), writing, std::filesystem::perm_options::remove);
    EXPECT_EQ(keys(folder.file(), "").size(), 6U);
    std::filesystem::permissions(folder.path(), writing, std::filesystem::perm_options::add);
    std::filesystem::permissions(asPath(folder.file()), writing, std::filesystem::perm_options::add);
    EXPECT_FALSE(std::filesystem::exists(folder.file("KESTRPT.DAT-shm")));
}

TEST(Paths, WhatIsNoFileCannotBeOpenedAndIsNotCreated)
{
    const TestFolder folder;
    Files::makePipe(folder.file("pipe"));
    Files::makeLink(folder.file("nowhere"), folder.file("dangling"));
    Files::makeLink(folder.file("circle"), folder.file("circle"));
    for (const std::string& path : {folder.file("missing"), folder.file("pipe"), folder.file("dangling"),
                                    folder.file(""), std::string(), folder.file("missing/KESTRPT.DAT"),
                                    folder.file("circle"), folder.file(std::string(300, 'x'))}) {
        const DataError error = errorOf(path, "SELECT * FROM NewTestament");
        EXPECT_EQ(error.number(), SQLITE_CANTOPEN) << path;
        EXPECT_EQ(error.description(), "unable to open database file") << path;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.file("missing")));
}

} // namespace
