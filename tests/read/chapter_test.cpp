// A chapter's reference, caption and text, and the gathering over the whole Bible against the list of its
// verses.
#include "read/Chapter.h"
#include "store/DataSource.h"
#include "text/Phrases.h"
#include <fstream>
#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace {

struct ListedChapter
{
    QString reference;
    QString text;
    int verses = 0;
};

/// The chapters as the list of verses has them: book, chapter, verse and text, parted by tabs.
std::vector<ListedChapter> listedChapters()
{
    std::ifstream list(KESTREL_INSTALL_DIR "/../data/scripture.tsv");
    if (!list)
        list.open(KESTREL_INSTALL_DIR "/scripture.tsv");
    std::vector<ListedChapter> chapters;
    for (std::string line; std::getline(list, line);) {
        const QStringList parts = QString::fromStdString(line).split('\t');
        const QString reference = parts[0] + ":" + parts[1] + ":";
        if (chapters.empty() || chapters.back().reference != reference)
            chapters.push_back({reference, {}, 0});
        chapters.back().text += reference + parts[2] + " " + parts[3] + "\r\n";
        ++chapters.back().verses;
    }
    return chapters;
}

/// A database with one chapter, "Xy:1:", of so many verses.
std::string databaseOf(const QTemporaryDir& folder, int verses)
{
    const std::string path = folder.filePath("verses.dat").toStdString();
    std::string sql = "CREATE TABLE NewTestament (VerseId TEXT, VerseNumber INTEGER, KJVerseText TEXT);";
    for (int verse = 1; verse <= verses; ++verse) {
        const std::string number = std::to_string(verse);
        sql += "INSERT INTO NewTestament VALUES ('Xy:1:" + number + "', " + number + ", ' text " + number +
               "');";
    }
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, ("BEGIN;" + sql + "COMMIT;").c_str(), nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(database);
    return path;
}

class Chapter : public testing::Test
{
protected:
    Chapter()
    {
        source.setDatabaseName(KESTREL_INSTALL_DIR "/KESTRPT.DAT");
        source.currentRowChanged = [this] { asked.push_back(source.recordSource()); };
    }

    DataSource source;
    std::vector<std::string> asked; ///< the queries that ran
};

} // namespace

TEST(ChapterReference, IsTheKeyThroughItsSecondColon)
{
    EXPECT_EQ(chapterReference("Mt:24:43"), "Mt:24:");
    EXPECT_EQ(chapterReference("2Thes:3:16"), "2Thes:3:");
    EXPECT_EQ(chapterReference("Ps:119:176"), "Ps:119:");
}

TEST(ChapterReference, OfAnOddKeyIsWhatStandsBeforeItsColons)
{
    EXPECT_EQ(chapterReference(""), "");
    EXPECT_EQ(chapterReference("Mt"), "");
    EXPECT_EQ(chapterReference("Mt:24"), "Mt:");
    EXPECT_EQ(chapterReference("::"), "::");
    EXPECT_EQ(chapterReference("a:b:c:d"), "a:b:");
}

TEST(ChapterCaption, CarriesTheReference)
{
    EXPECT_EQ(chapterCaption("Mt:24:"), "Chapter Window -- Mt:24:");
    EXPECT_EQ(referenceInCaption("Chapter Window -- Mt:24:"), "Mt:24:");
    EXPECT_EQ(referenceInCaption("Chapter Window -- "), "");
}

TEST_F(Chapter, IsOneLineAVerseAndEndsWithTheMark)
{
    EXPECT_EQ(gatherChapter(source, "Ps:117:"), QString::fromUtf8(phrases::psalm117) + "(PT)");
}

TEST_F(Chapter, AsksOnceAVerseAndOnceForTheVerseThatIsMissing)
{
    gatherChapter(source, "Ps:117:");
    EXPECT_EQ(asked, std::vector<std::string>({"SELECT * FROM NewTestament WHERE VerseId LIKE 'Ps:117:1*'",
                                               "SELECT * FROM NewTestament WHERE VerseId LIKE 'Ps:117:2*'",
                                               "SELECT * FROM NewTestament WHERE VerseId LIKE 'Ps:117:3*'"}));
}

TEST_F(Chapter, TakesTheVerseItselfNotALongerNumber)
{
    const QString text = gatherChapter(source, "Mt:24:");
    EXPECT_EQ(text.count("\r\n"), 51);
    EXPECT_TRUE(text.contains("\r\nMt:24:4 "));
    EXPECT_FALSE(text.contains("Mt:2:"));
}

TEST_F(Chapter, EndsAtVerse300)
{
    const QTemporaryDir folder;
    source.setDatabaseName(databaseOf(folder, 305));
    const QString text = gatherChapter(source, "Xy:1:");
    EXPECT_EQ(asked.size(), 300U);
    EXPECT_TRUE(text.endsWith("Xy:1:300 text 300\r\n(PT)"));
}

TEST_F(Chapter, IsTheMarkAloneForAReferenceThatMatchesNothing)
{
    EXPECT_EQ(gatherChapter(source, "Mt:29:"), "(PT)");
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_EQ(gatherChapter(source, ""), "(PT)") << "not 1Cor:1:1, 2Cor:1:1 and 3Jn:1:1";
    EXPECT_EQ(gatherChapter(source, "Mt:"), "(PT)");
}

TEST_F(Chapter, EveryOneOfTheBibleIsGatheredInFull)
{
    const std::vector<ListedChapter> chapters = listedChapters();
    ASSERT_EQ(chapters.size(), 1189U) << "the list of verses is not there";
    std::size_t queries = 0;
    for (const ListedChapter& chapter : chapters) {
        ASSERT_EQ(gatherChapter(source, chapter.reference), chapter.text + "(PT)");
        queries += static_cast<std::size_t>(chapter.verses) + 1;
    }
    EXPECT_EQ(asked.size(), queries);
    EXPECT_EQ(queries, 31102U + 1189U);
}
