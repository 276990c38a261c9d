#include "store/LetterCase.h"
#include "store/Utf8.h"
#include <clocale>
#include <cwctype>
#include <gtest/gtest.h>

namespace {

std::size_t utf8Length(char32_t c)
{
    std::string text;
    appendCharacter(text, c);
    return text.size();
}

/// The C library's opinion, where it has a pair of two equally long letters.
char32_t smallLetterOfLibrary(char32_t c)
{
    const auto small = static_cast<char32_t>(std::towlower(static_cast<std::wint_t>(c)));
    const bool pair = static_cast<char32_t>(std::towupper(static_cast<std::wint_t>(small))) == c;
    return pair && utf8Length(small) == utf8Length(c) ? small : c;
}

class LetterCase : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
    void TearDown() override { std::setlocale(LC_CTYPE, "C"); }
};

TEST_F(LetterCase, AgreesWithTheLibraryOnLatinGreekAndCyrillic)
{
    const std::pair<char32_t, char32_t> scripts[] = {{0x00, 0x24F},    {0x370, 0x3FF},   {0x400, 0x52F},
                                                     {0x1E00, 0x1FFF}, {0x2C60, 0x2C7F}, {0xA640, 0xA69F},
                                                     {0xA720, 0xA7BF}};
    int pairs = 0;
    for (const auto& [first, last] : scripts) {
        for (char32_t c = first; c <= last; ++c) {
            EXPECT_EQ(toSmallLetter(c), smallLetterOfLibrary(c)) << std::hex << static_cast<unsigned>(c);
            pairs += toSmallLetter(c) != c;
        }
    }
    EXPECT_GT(pairs, 600);
}

TEST_F(LetterCase, PairsAreMutualAndEquallyLong)
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

TEST_F(LetterCase, LeavesLettersWithoutAnEquallyLongPartnerAlone)
{
    for (const char32_t c : {U'×', U'÷', U'ß', U'\u212A' /* Kelvin */, U'İ', U'ı', U'ẞ', U'ſ'}) {
        EXPECT_EQ(toSmallLetter(c), c);
        EXPECT_EQ(toOtherCase(c), c);
    }
    EXPECT_EQ(toSmallLetter(U'Ÿ'), U'ÿ');
}

TEST_F(LetterCase, FoldingKeepsEveryByteInItsPlace)
{
    EXPECT_EQ(foldCase("ÁGUA É Vida ΣΙΩΝ Бог"), "água é vida σιων бог");
    const std::string stray = "A\xFF\xC3(\xE2\x82\xF0\x9F\x98";
    EXPECT_EQ(foldCase(stray), "a\xFF\xC3(\xE2\x82\xF0\x9F\x98");
}

TEST_F(LetterCase, IsTheSameInATurkishLocale)
{
    std::setlocale(LC_ALL, "tr_TR.UTF-8");
    EXPECT_EQ(foldCase("I"), "i");
}

} // namespace
