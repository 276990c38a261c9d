// Whether the text that other tests run on holds what they look for in it.
#include "importer/Files.h"
#include "importer/VerseList.h"
#include "text/Phrases.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <QRegularExpression>
#include <QString>

namespace {

/// The text as it came out of the importer, which has looked at its keys.
class TestText : public testing::Test
{
protected:
    static const std::vector<QString>& verses()
    {
        static const auto all = [] {
            std::vector<QString> texts;
            const std::string file = KESTREL_INSTALL_DIR "/../data/scripture.tsv";
            for (const Verse& verse : readVerseList(readFile(file), file))
                texts.push_back(QString::fromStdString(verse.text));
            return texts;
        }();
        return all;
    }

    static const QString& at(const char* key) { return verses().at(canonicalPosition(key).value()); }

    static qsizetype howMany(const QString& pattern, bool lettersOfEitherCase = false)
    {
        const QRegularExpression regex(pattern,
                                       QRegularExpression::UseUnicodePropertiesOption |
                                           (lettersOfEitherCase ? QRegularExpression::CaseInsensitiveOption
                                                                : QRegularExpression::NoPatternOption));
        return std::ranges::count_if(verses(), [&](const QString& text) { return text.contains(regex); });
    }
};

} // namespace

TEST_F(TestText, HoldsItsPhrasesAsOftenAsTheySay)
{
    EXPECT_EQ(howMany(phrases::onceText, true), 1);
    EXPECT_EQ(at(phrases::onceKey), QString(phrases::onceText) + ".");
    EXPECT_EQ(howMany(phrases::twice, true), 2);
    EXPECT_EQ(howMany(phrases::twice), 0);
    EXPECT_EQ(howMany(phrases::never, true), 0);
    EXPECT_NEAR(static_cast<double>(howMany(phrases::thirdOfAll)) / 31102, 1 / 3.0, 0.02);
    EXPECT_GT(howMany(phrases::cousin), 50);
    EXPECT_LT(howMany(phrases::cousin), 300);
    EXPECT_TRUE(at("Mt:24:43").contains(phrases::inMt_24_43));
    EXPECT_TRUE(at("Mt:1:1").startsWith(phrases::firstWord));
    EXPECT_GT(at(phrases::longestKey).size(), 500);
    for (const char* key : phrases::repeatedKeys)
        EXPECT_EQ(at(key), at(*phrases::repeatedKeys.begin()));
    EXPECT_EQ("Ps:117:1 " + at("Ps:117:1") + "\r\nPs:117:2 " + at("Ps:117:2") + "\r\n",
              QString(phrases::psalm117));
}

TEST_F(TestText, HoldsEveryKindOfCharacter)
{
    for (const char* kind : {"[áàâãéêíóôõúç]", "[ÀÁÉÊÓ]", "“", "”", "‘", "’", "–", "\\b[A-Z]{5,}\\b", "\\d",
                             "\\w-\\w", "\\[\\w+\\]", "\\(.*\\)", "\\?$", ";$", "d’[aeiouá]"})
        EXPECT_GT(howMany(kind), 0) << kind;
    EXPECT_GT(howMany("\\baldeia\\b"), 5000);
    EXPECT_GT(howMany("MOLEIRO"), 1000);
}

TEST_F(TestText, HoldsWordsInsideWordsAndBesideAccentedLetters)
{
    EXPECT_GT(howMany("amor(?=eira)"), 50);
    EXPECT_GT(howMany("\\bamor\\b"), 100);
    EXPECT_GT(howMany("\\bna\\b"), 100);
    EXPECT_GT(howMany("\\bnaç"), 100);
    EXPECT_GT(howMany("^[^eE]*$"), 100) << "without the commonest letter";
}
