#include "importer/Versification.h"
#include "store/BookCatalog.h"
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace {

/// Numbers of verses, counted over whole groups.
std::map<std::string, int> versesOfGroups()
{
    std::map<std::string_view, std::string> groupOf;
    for (const Book& book : bookCatalog())
        groupOf[book.abbreviation] = std::string(book.group.empty() ? book.name : book.group);
    std::map<std::string, int> counts;
    for (const VerseKey& key : canonicalVerses())
        ++counts[groupOf.at(key.book)];
    return counts;
}

} // namespace

TEST(Versification, CountsTheVersesOfEachGroup)
{
    const std::map<std::string, int> expected = {{"The Four Gospels", 3779},
                                                 {"Atos", 4786 - 3779},
                                                 {"Epistles of St. Paul", 7122 - 4786},
                                                 {"Catholic Epistles", 7553 - 7122},
                                                 {"Apocalipse", 7957 - 7553},
                                                 {"Pentateuch", 13809 - 7957},
                                                 {"Historical Books", 20827 - 13809},
                                                 {"Poetical Books", 25612 - 20827},
                                                 {"Prophetic Books", 31102 - 25612}};
    EXPECT_EQ(versesOfGroups(), expected);
}

TEST(Versification, HasEveryVerseOnceInCanonicalOrder)
{
    const auto& verses = canonicalVerses();
    ASSERT_EQ(verses.size(), 31102u);
    std::set<std::string> keys;
    std::set<std::string> chapters;
    for (const VerseKey& key : verses) {
        keys.insert(key.text());
        chapters.insert(std::string(key.book) + std::to_string(key.chapter));
    }
    EXPECT_EQ(keys.size(), 31102u);
    EXPECT_EQ(chapters.size(), 1189u);
    EXPECT_EQ(verses.front().text(), "Gn:1:1");
    EXPECT_EQ(verses[23144].text(), "Mal:4:6");
    EXPECT_EQ(verses[23145].text(), "Mt:1:1");
    EXPECT_EQ(verses.back().text(), "Rv:22:21");
}
