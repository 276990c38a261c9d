#include "store/BookCatalog.h"
#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <set>

namespace {

using testing::Pair;
using testing::UnorderedElementsAre;

std::vector<Book> booksOf(std::string_view group)
{
    std::vector<Book> result;
    std::ranges::copy_if(bookCatalog(), std::back_inserter(result),
                         [&](const Book& b) { return b.group == group; });
    return result;
}

TEST(BookCatalog, Holds66BooksOldTestamentFirst)
{
    ASSERT_EQ(bookCatalog().size(), 66U);
    for (std::size_t i = 0; i < 66; ++i) {
        EXPECT_EQ(bookCatalog()[i].place, static_cast<int>(i) + 1);
        EXPECT_EQ(bookCatalog()[i].testament, i < 39 ? "Old Testament" : "New Testament");
    }
}

TEST(BookCatalog, GivesEveryBookItsNameAndAbbreviation)
{
    const std::vector<std::string> expected = {"Gênesis -- Gn",
                                               "Êxodo -- Ex",
                                               "Levítico -- Lv",
                                               "Números -- Nm",
                                               "Deuteronômio -- Dt",
                                               "Josué -- Jos",
                                               "Juízes -- Jgs",
                                               "Rute -- Ru",
                                               "1 Samuel -- 1Sm",
                                               "2 Samuel -- 2Sm",
                                               "1 Reis -- 1Kgs",
                                               "2 Reis -- 2Kgs",
                                               "1 Crônicas -- 1Chr",
                                               "2 Crônicas -- 2Chr",
                                               "Esdras -- Ezr",
                                               "Neemias -- Neh",
                                               "Ester -- Est",
                                               "Jó -- Jb",
                                               "Salmos -- Ps",
                                               "Provérbios -- Prv",
                                               "Eclesiastes -- Eccl",
                                               "Cantares -- Sg",
                                               "Isaías -- Is",
                                               "Jeremias -- Jer",
                                               "Lamentações -- Lam",
                                               "Ezequiel -- Ez",
                                               "Daniel -- Dn",
                                               "Oséias -- Hos",
                                               "Joel -- Jl",
                                               "Amós -- Am",
                                               "Obadias -- Ob",
                                               "Jonas -- Jon",
                                               "Miquéias -- Mi",
                                               "Naum -- Na",
                                               "Habacuque -- Hb",
                                               "Sofonias -- Zep",
                                               "Ageu -- Hg",
                                               "Zacarias -- Zec",
                                               "Malaquias -- Mal",
                                               "Mateus -- Mt",
                                               "Marcos -- Mk",
                                               "Lucas -- Lk",
                                               "João -- Jn",
                                               "Atos -- Acts",
                                               "Romanos -- Rom",
                                               "1 Coríntios -- 1Cor",
                                               "2 Coríntios -- 2Cor",
                                               "Gálatas -- Gal",
                                               "Efésios -- Eph",
                                               "Filipenses -- Phil",
                                               "Colossences -- Col",
                                               "1 Tessalonicenses -- 1Thes",
                                               "2 Tessalonicenses -- 2Thes",
                                               "1 Timóteo -- 1Tm",
                                               "2 Timóteo -- 2Tm",
                                               "Tito -- Ti",
                                               "Filemom -- Phlm",
                                               "Hebreus -- Heb",
                                               "Tiago -- Jms",
                                               "1 Pedro -- 1Pt",
                                               "2 Pedro -- 2Pt",
                                               "1 João -- 1Jn",
                                               "2 João -- 2Jn",
                                               "3 João -- 3Jn",
                                               "Judas -- Jude",
                                               "Apocalipse -- Rv"};
    std::vector<std::string> texts;
    for (const Book& book : bookCatalog())
        texts.push_back(book.treeText());
    EXPECT_EQ(texts, expected);
}

TEST(BookCatalog, CountsItsGroups)
{
    std::map<std::string_view, int> counts;
    for (const Book& book : bookCatalog())
        ++counts[book.group];
    EXPECT_THAT(counts, UnorderedElementsAre(Pair("Pentateuch", 5), Pair("Historical Books", 12),
                                             Pair("Poetical Books", 5), Pair("Prophetic Books", 17),
                                             Pair("The Four Gospels", 4), Pair("Epistles of St. Paul", 14),
                                             Pair("Catholic Epistles", 7), Pair("", 2)));
}

TEST(BookCatalog, ActsAndRevelationBelongToNoGroup)
{
    ASSERT_EQ(booksOf("").size(), 2U);
    EXPECT_EQ(booksOf("")[0].abbreviation, "Acts");
    EXPECT_EQ(booksOf("")[1].abbreviation, "Rv");
}

TEST(BookCatalog, TreeTextHoldsTheDashesOnceBeforeTheAbbreviation)
{
    for (const Book& book : bookCatalog()) {
        const std::string text = book.treeText();
        const auto dashes = text.find("-- ");
        ASSERT_NE(dashes, std::string::npos) << text;
        EXPECT_EQ(text.find("-- ", dashes + 1), std::string::npos) << text;
        EXPECT_EQ(text.substr(dashes + 3), book.abbreviation);
        EXPECT_EQ(text.substr(0, dashes), std::string(book.name) + " ");
    }
}

TEST(BookCatalog, GroupsKeepTheirOrder)
{
    EXPECT_EQ(booksOf("Catholic Epistles").at(0).treeText(), "Tiago -- Jms");
    EXPECT_EQ(booksOf("Epistles of St. Paul").at(3).treeText(), "Gálatas -- Gal");
    EXPECT_EQ(booksOf("Pentateuch").at(0).treeText(), "Gênesis -- Gn");
}

TEST(BookCatalog, OnlyEzIsThePrefixOfAnother)
{
    std::vector<std::pair<std::string_view, std::string_view>> pairs;
    for (const Book& a : bookCatalog()) {
        for (const Book& b : bookCatalog()) {
            if (a.place != b.place && b.abbreviation.starts_with(a.abbreviation))
                pairs.emplace_back(a.abbreviation, b.abbreviation);
        }
    }
    EXPECT_THAT(pairs, testing::ElementsAre(Pair("Ez", "Ezr")));
}

TEST(BookCatalog, PrefixAddressesOneBook)
{
    std::set<std::string> prefixes;
    for (const Book& book : bookCatalog())
        prefixes.insert(book.prefix());
    EXPECT_EQ(prefixes.size(), 66U);
    EXPECT_EQ(bookCatalog()[0].prefix(), "Gn:");
}

} // namespace
