#include "store/LetterCase.h"
#include "store/Utf8.h"
#include <clocale>
#include <gtest/gtest.h>

namespace {

std::size_t utf8Length(char32_t c)
{
    std::string text;
    appendCharacter(text, c);
    return text.size();
}

TEST(LetterCase, PairsAreMutualAndEquallyLong)
{
    for (char32_t c = 0; c < 0x110100; ++c) {
        const char32_t other = toOtherCase(c);
        ASSERT_EQ(toOtherCase(other), c) << std::hex << static_cast<unsigned>(c);
        ASSERT_EQ(toSmallLetter(other), toSmallLetter(c));
        if (other != c) {
            ASSERT_EQ(utf8Length(other), utf8Length(c));
        }
    }
}

TEST(LetterCase, LeavesLettersWithoutAnEquallyLongPartnerAlone)
{
    for (const char32_t c : {U'×', U'÷', U'ß', U'\u212A' /* Kelvin */, U'İ', U'ı', U'ẞ', U'ſ'}) {
        EXPECT_EQ(toSmallLetter(c), c);
        EXPECT_EQ(toOtherCase(c), c);
    }
    EXPECT_EQ(toSmallLetter(U'Ÿ'), U'ÿ');
}

TEST(LetterCase, FoldingKeepsEveryByteInItsPlace)
{
    EXPECT_EQ(foldCase("ÁGUA É Vida ΣΙΩΝ Бог"), "água é vida σιων бог");
    const std::string stray = "A\xFF\xC3(\xE2\x82\xF0\x9F\x98";
    EXPECT_EQ(foldCase(stray), "a\xFF\xC3(\xE2\x82\xF0\x9F\x98");
}

TEST(LetterCase, IsTheSameInATurkishLocale)
{
    std::setlocale(LC_ALL, "tr_TR.UTF-8");
    EXPECT_EQ(foldCase("I"), "i");
    std::setlocale(LC_ALL, "C");
}

} // namespace
