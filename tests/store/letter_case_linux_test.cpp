// The pairs of letters against those of the C library, whose tables of Unicode other systems do not have.
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

class LetterCaseOfLibrary : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
    void TearDown() override { std::setlocale(LC_CTYPE, "C"); }
};

TEST_F(LetterCaseOfLibrary, IsTheSameForLatinGreekAndCyrillic)
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

} // namespace
