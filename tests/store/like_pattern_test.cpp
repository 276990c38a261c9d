#include "store/DataError.h"
#include "store/LikePattern.h"
#include "support/SlowLike.h"
#include <chrono>
#include <gtest/gtest.h>
#include <random>

namespace {

struct Row
{
    std::string pattern;
    std::string text;
    bool matches;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.pattern;
}

class LikeTable : public testing::TestWithParam<Row>
{
};

TEST_P(LikeTable, Decides)
{
    const Row& row = GetParam();
    EXPECT_EQ(LikePattern(row.pattern).matches(row.text), row.matches) << row.pattern << " on " << row.text;
    EXPECT_EQ(slow_like::matches(row.pattern, row.text), row.matches) << "the witness disagrees";
}

INSTANTIATE_TEST_SUITE_P(wildcards, LikeTable,
                         testing::Values(Row{"", "", true}, Row{"", "a", false}, Row{"*", "", true},
                                         Row{"**", "ab", true}, Row{"a*", "a", true}, Row{"*a", "ba", true},
                                         Row{"*a", "ab", false}, Row{"a*b*c", "aXbXbXc", true},
                                         Row{"a*b*c", "aXbXbX", false}, Row{"?", "", false},
                                         Row{"?", "é", true}, Row{"?", "éa", false},
                                         Row{"Lord?s", "Lord's", true}, Row{"#", "7", true},
                                         Row{"#", "0", true}, Row{"#", "9", true}, Row{"#", "/", false},
                                         Row{"#", ":", false}, Row{"#", "x", false}, Row{"#", "٣", false},
                                         Row{"Mt:2*", "Mt:20:1", true}, Row{"Mt:2:*", "Mt:20:1", false},
                                         Row{"%", "a", false}, Row{"_", "a", false}, Row{"a", "ab", false}));
INSTANTIATE_TEST_SUITE_P(letterCase, LikeTable,
                         testing::Values(Row{"mt:24:43", "Mt:24:43", true}, Row{"É", "é", true},
                                         Row{"ção", "ÇÃO", true}, Row{"×", "÷", false}, Row{"@", "`", false},
                                         Row{"k", "\u212A", false}, Row{"i", "İ", false}, Row{"ÿ", "Ÿ", true},
                                         Row{"σ", "Σ", true}, Row{"я", "Я", true}, Row{"e", "é", false}));
INSTANTIATE_TEST_SUITE_P(
    classes, LikeTable,
    testing::Values(Row{"[abc]", "b", true}, Row{"[abc]", "B", true}, Row{"[abc]", "d", false},
                    Row{"[abc]", "", false}, Row{"[a-f]", "E", true}, Row{"[A-F]", "e", true},
                    Row{"[a-f]", "é", false}, Row{"[à-ö]", "É", true}, Row{"[@-C]", "c", true},
                    Row{"[@-C]", "[", false}, Row{"[!a-z]", "é", true}, Row{"[!a-z]", "Q", false},
                    Row{"[!a-z]", "", false}, Row{"[!0-9a-zA-Z]", " ", true}, Row{"[*]", "*", true},
                    Row{"[*]", "x", false}, Row{"[?]", "?", true}, Row{"[#]", "#", true},
                    Row{"[#]", "1", false}, Row{"[[]", "[", true}, Row{"]", "]", true},
                    Row{"a]b", "a]b", true}, Row{"!", "!", true}, Row{"[a!]", "!", true}));
INSTANTIATE_TEST_SUITE_P(
    oddClasses, LikeTable,
    testing::Values(Row{"[]", "", true}, Row{"a[]b", "ab", true}, Row{"[]", "x", false},
                    Row{"[]a]", "a]", true}, Row{"[!]", "!", true}, Row{"[!]", "x", false},
                    Row{"[-a]", "-", true}, Row{"[-a]", "a", true}, Row{"[-a]", "5", false},
                    Row{"[a-]", "-", true}, Row{"[a-]", "b", false}, Row{"[!-]", "-", false},
                    Row{"[!-]", "a", true}, Row{"[a-c-e]", "-", true}, Row{"[a-c-e]", "d", false},
                    Row{"[a-c-e]", "e", true}, Row{"[-]", "-", true}, Row{"[a-a]", "a", true},
                    Row{"[!!]", "!", false}, Row{"[+--]", ",", true}, Row{"[!!-#]", "\"", false}));
INSTANTIATE_TEST_SUITE_P(strayBytes, LikeTable,
                         testing::Values(Row{"\xFF", "\xFF", true}, Row{"\xFF", "\xFE", false},
                                         Row{"?", "\xFF", true}, Row{"??", "\xC3(", true},
                                         Row{"?", "\xC3", true}, Row{"*\xA9", "é", false},
                                         Row{"\xC3*", "é", false}, Row{"???", "\xED\xA0\x80", true},
                                         Row{"??", "\xC0\x80", true}, Row{"[\xFF]", "\xFF", true},
                                         Row{"[!a]", "\xFF", true}, Row{"????", "\xF4\x90\x80\x80", true}));

TEST(LikePattern, RefusesWhatCannotBeValid)
{
    for (const char* pattern :
         {"[", "[a", "*[", "[!", "[a-", "[z-a]", "[a-Z]", "a[b]c[", "[9-0]", "[a--]", "[]["}) {
        try {
            LikePattern{pattern};
            ADD_FAILURE() << pattern;
        } catch (const DataError& error) {
            EXPECT_EQ(error.number(), 93);
            EXPECT_EQ(error.description(), "Invalid pattern string");
        }
        EXPECT_FALSE(slow_like::parse(pattern)) << pattern;
    }
}

TEST(LikePattern, WholeWordNeedsACharacterOnBothSides)
{
    const LikePattern word("*[!0-9a-zA-Z]amor[!0-9a-zA-Z]*");
    EXPECT_TRUE(word.matches(" Amor, sim"));
    EXPECT_FALSE(word.matches("Amor, sim"));
    EXPECT_FALSE(word.matches(" o amor"));
    EXPECT_FALSE(word.matches(" amores "));
    EXPECT_TRUE(word.matches(" o amoré amor é"));
}

TEST(LikePattern, TellsWhatEveryMatchBeginsWithAndContains)
{
    EXPECT_EQ(LikePattern("Ps:119:1*").prefix(), "ps:119:1");
    EXPECT_EQ(LikePattern("*a").prefix(), "");
    EXPECT_EQ(LikePattern("*[!a]AMOR[]es*").piece(), "amores");
    EXPECT_EQ(LikePattern("*?*").piece(), "");
    EXPECT_EQ(LikePattern("ab*ÉFÉ").piece(), "éfé");
    EXPECT_EQ(LikePattern("abσcÿde").piece(), "ab");
    EXPECT_TRUE(LikePattern("*Amor*").isPieceAlone());
    EXPECT_FALSE(LikePattern("*Amor").isPieceAlone());
    EXPECT_FALSE(LikePattern("*Amorσ*").isPieceAlone());
    EXPECT_FALSE(LikePattern("*[a]mor*").isPieceAlone());
}

TEST(LikePattern, AgreesWithTheWitnessOnRandomPatterns)
{
    const std::vector<std::string> letters = {"a", "B", "b", "é", "É", "×",    "÷",    "σ", "Σ", "5",
                                              "-", "!", "@", "`", " ", "\xFF", "\xC3", "ÿ", "Ÿ", "\u212A"};
    const std::vector<std::string> signs = {"*",  "*", "?",   "#",    "[",    "]",
                                            "[!", "-", "a-f", "[ab]", "[!é]", "[À-ÿ]"};
    std::mt19937 random(20);
    const auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    int matching = 0;
    int invalid = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string pattern;
        std::string text;
        for (std::size_t i = below(8); i > 0; --i)
            pattern += below(3) ? letters[below(letters.size())] : signs[below(signs.size())];
        for (std::size_t i = below(8); i > 0; --i)
            text += letters[below(below(2) ? 3 : letters.size())];
        const auto expected = slow_like::matches(pattern, text);
        std::optional<bool> actual;
        try {
            actual = LikePattern(pattern).matches(text);
        } catch (const DataError&) {
        }
        ASSERT_EQ(actual, expected) << pattern << " on " << text;
        matching += expected.value_or(false);
        invalid += !expected;
    }
    EXPECT_GT(matching, 1000);
    EXPECT_GT(invalid, 1000);
}

TEST(LikePattern, AgreesWithTheWitnessOnLongPatternsMadeFromTheirTexts)
{
    const std::vector<std::string> letters = {"a", "B", "é", "Ã", " ", "5", "“", "σ", "\xFF"};
    const std::vector<std::string> signs = {"?", "*", "*?", "[!q]", "[aeéãb]", "[]", "#", "x"};
    std::mt19937 random(64);
    const auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    };
    int matching = 0;
    for (int round = 0; round < 1000; ++round) {
        // Around the lengths at which the pattern needs another word of bits.
        const std::size_t length = 64 * (1 + below(3)) - 4 + below(8);
        std::string pattern = below(2) ? "*" : "";
        std::string text = below(2) ? "aé" : "";
        for (std::size_t i = 0; i < length; ++i) {
            const std::string& letter = letters[below(letters.size())];
            text += letter;
            const std::string sign = below(4) ? letter : signs[below(below(50) ? 4 : signs.size())];
            pattern += below(100) ? sign : sign + "*";
        }
        pattern += below(2) ? "*" : "";
        text += below(2) ? "Bé" : "";
        const auto expected = slow_like::matches(pattern, text);
        ASSERT_EQ(LikePattern(pattern).matches(text), expected) << pattern << " on " << text;
        matching += *expected;
    }
    EXPECT_GT(matching, 100);
    EXPECT_LT(matching, 900);
}

/// The least of many times, each too short for other programs to come between: what the pattern takes.
std::chrono::nanoseconds timeFor(const std::string& pattern, const std::string& text)
{
    const LikePattern like(pattern);
    auto least = std::chrono::nanoseconds::max();
    for (int run = 0; run < 40; ++run) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(like.matches(text)) << pattern;
        least = std::min<std::chrono::nanoseconds>(least, std::chrono::steady_clock::now() - start);
    }
    return least;
}

TEST(LikePattern, TakesTheSameTimeWhateverItsStepsAre)
{
    std::string text;
    while (text.size() < 20'000)
        text += "E houve tarde e manhã, aaaaaaaaaaaaaa. ";
    const auto times = [](int count, const std::string& part) {
        std::string all;
        for (int i = 0; i < count; ++i)
            all += part;
        return all;
    };
    const std::chrono::nanoseconds shortest = timeFor("*#*", text);
    for (const std::string& pattern :
         {"*e" + times(57, "?") + "#*", "*" + times(41, "?") + "#*", "*" + times(14, "[!q]") + "#*",
          "*" + times(60, "[a-zã., ]") + "#*", "*" + times(14, "e*") + "#*", "*" + times(62, "a") + "*"})
        EXPECT_LT(timeFor(pattern, text), 5 * shortest) << pattern;
}

TEST(LikePattern, DoesNotBlowUpOnManyRuns)
{
    std::string pattern;
    for (int i = 0; i < 500; ++i)
        pattern += "*a";
    const std::string text(20000, 'a');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(LikePattern(pattern + "*b").matches(text));
    EXPECT_FALSE(LikePattern("*" + std::string(500, 'a') + "b").matches(text));
    EXPECT_TRUE(LikePattern(pattern + "*").matches(text));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

} // namespace
