// What the help says, in both languages: the same pages, whole sentences, captions and keys that there are.
#include "help/ShippedHelp.h"
#include <gtest/gtest.h>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr HelpLanguage both[] = {HelpLanguage::English, HelpLanguage::Portuguese};

QStringList allMatches(const QString& pattern, const QString& text)
{
    QStringList found;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        found << matches.next().captured(1);
    return found;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// The keys of a page as the English text names them.
QStringList keysOf(const QString& html)
{
    static const QList<std::pair<QString, QString>> words = {
        {"Seta para a esquerda", "Left"},
        {"Seta para a direita", "Right"},
        {"Seta para cima", "Up"},
        {"Seta para baixo", "Down"},
        {"Espaço", "Space"},
        {"Shift+setas", "Shift+arrow keys"},
        {"Setas", "Arrow keys"},
        {", depois ", ", then "},
        {"Alt e a letra sublinhada", "Alt and the underlined letter"}};
    QStringList keys = allMatches("<kbd>(.*?)</kbd>", html);
    for (QString& key : keys)
        for (const auto& [portuguese, english] : words)
            key.replace(portuguese, english);
    return keys;
}

class EveryPage : public testing::TestWithParam<int>
{
protected:
    const HelpPage& page(HelpLanguage language) const { return shippedPages(language)[GetParam()]; }
    QString html(HelpLanguage language) const { return page(language).html; }
};

} // namespace

TEST(HelpInBothLanguages, HasTheSamePagesInTheSameOrder)
{
    const auto names = [](HelpLanguage language) {
        QStringList found;
        for (const HelpPage& page : shippedPages(language))
            found << page.name;
        return found;
    };
    EXPECT_EQ(names(HelpLanguage::English), names(HelpLanguage::Portuguese));
    EXPECT_EQ(names(HelpLanguage::English).size(), 21);
    for (const char* window : {"MDIParent", "ChildSelect", "ChildRead", "ChapRead", "frmAdvSearch",
                               "ChildMapSel", "ChildMapDsp", "frmStart", "frmDN", "frmQORV", "HelpWindow"})
        for (const HelpLanguage language : both)
            EXPECT_NE(shippedPage(window, language), "") << window;
}

TEST_P(EveryPage, HasTheSameLinksExamplesAndKeysInBothLanguages)
{
    const QString english = html(HelpLanguage::English);
    const QString portuguese = html(HelpLanguage::Portuguese);
    for (const char* pattern : {"<a href=\"([^\"]*)\"", "<code>(.*?)</code>"})
        EXPECT_EQ(sorted(allMatches(pattern, english)), sorted(allMatches(pattern, portuguese)));
    EXPECT_EQ(sorted(keysOf(english)), sorted(keysOf(portuguese)));
    for (const char* block : {"<h2>", "<li>", "<tr>"})
        EXPECT_EQ(english.count(block), portuguese.count(block)) << block;
}

TEST_P(EveryPage, IsWrittenInWholeSentences)
{
    static const QRegularExpression tags("<[^>]*>");
    for (const HelpLanguage language : both) {
        const QString text = html(language).remove(QRegularExpression("<br>\n.*?:</?b>"));
        for (QString block : allMatches("<(?:p|li)>(.*?)</(?:p|li)>", text.simplified())) {
            block.remove(tags);
            EXPECT_TRUE(QString(".!:;").contains(block.back()) || block.endsWith(".\""))
                << block.toStdString();
            EXPECT_FALSE(block.front().isLower() && !block.endsWith(';') && !block.endsWith('.'))
                << block.toStdString();
        }
    }
}

TEST_P(EveryPage, IsSpelledAsInAmericaInEnglish)
{
    static const QRegularExpression british(
        "(?i)\\b\\w*(?:[a-z]imis|[ao]lis(?:e|ing)|gnis(?:e|ing)|colour|licence|centre|behaviour|favour|"
        "neighbour|"
        "honour|labelled|cancelled|travell|fulfil\\b|fulfils|fulfilm|grey|programme|judgement)\\w*");
    EXPECT_EQ(british.match(html(HelpLanguage::English)).captured(), "");
}

TEST_P(EveryPage, HasOnlyLinksThatLeadSomewhere)
{
    for (const HelpLanguage language : both)
        for (const QString& link : allMatches("<a href=\"#([^\"]*)\"", html(language)))
            EXPECT_NE(shippedPage(link, language), "") << link.toStdString();
}

TEST_P(EveryPage, HasAllItsKeysAmongTheKeysOfAllWindows)
{
    for (const HelpLanguage language : both)
        for (const QString& row : allMatches("<tr>(<td><kbd>(?!F1<).*?)</tr>", html(language)))
            EXPECT_TRUE(shippedPage("Keys", language).contains(row)) << row.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Pages, EveryPage, testing::Range(0, 21),
                         [](const testing::TestParamInfo<int>& number) {
                             return shippedPages(HelpLanguage::English)[number.param].name.toStdString();
                         });

TEST(HelpInPortuguese, TellsWhoTranslatedTheBible)
{
    const QString page =
        shippedPage("Credits", HelpLanguage::Portuguese).remove(QRegularExpression("<[^>]*>"));
    EXPECT_TRUE(page.contains("Todas as Escrituras em português citadas são da Bíblia Livre (BLIVRE)"));
    EXPECT_TRUE(page.contains("O que se mudou"));
    EXPECT_TRUE(page.contains("OpenBible.info, CC BY 4.0"));
    EXPECT_TRUE(page.contains("GSHHG 2.3.7"));
}

TEST(HelpOnReferences, WarnsOfBothCharactersThatEndTheProgram)
{
    EXPECT_TRUE(shippedPage("References", HelpLanguage::English)
                    .contains("Never type an apostrophe (') or an opening bracket ([) in a reference."));
    EXPECT_TRUE(shippedPage("References", HelpLanguage::Portuguese)
                    .contains("Nunca digite um apóstrofo (') nem um colchete que abre ([)"));
}

// As data/maps/README.md counts them.
TEST(HelpOnMaps, NamesWhatIsConjectureOnThePlanOfJerusalem)
{
    const QString english = shippedPage("ListsAndMaps", HelpLanguage::English);
    for (const char* place : {"Second Wall", "two gates", "Annas and Caiaphas", "Upper Room", "Golgotha"})
        EXPECT_TRUE(english.contains(place)) << place;
    const QString portuguese = shippedPage("ListsAndMaps", HelpLanguage::Portuguese);
    for (const char* place : {"segunda muralha", "duas portas", "Anás e de Caifás", "cenáculo", "Gólgota"})
        EXPECT_TRUE(portuguese.contains(place)) << place;
}
