// Characters from bytes and back, the ill-formed ones too.
#include "store/Utf8.h"
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr char32_t strayByte = 0x110000;

std::vector<char32_t> charactersOf(const std::string& text)
{
    std::vector<char32_t> characters;
    for (const char* at = text.data(); at != text.data() + text.size();)
        characters.push_back(nextCharacter(at, text.data() + text.size()));
    return characters;
}

std::vector<char32_t> strayBytes(const std::string& bytes)
{
    std::vector<char32_t> characters;
    for (const char byte : bytes)
        characters.push_back(strayByte + static_cast<unsigned char>(byte));
    return characters;
}

} // namespace

TEST(Utf8, ReadsCharactersOfOneToFourBytesAndWritesThemBack)
{
    const std::string text = "a\u00E9\u20AC\U0001F426z";
    const std::vector<char32_t> characters = {'a', 0xE9, 0x20AC, 0x1F426, 'z'};
    EXPECT_EQ(charactersOf(text), characters);
    std::string written;
    for (const char32_t character : characters)
        appendCharacter(written, character);
    EXPECT_EQ(written, text);
}

TEST(Utf8, ReadsTheFirstAndTheLastCharacterOfEachLength)
{
    for (const char32_t edge : {0x1, 0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF}) {
        std::string written;
        appendCharacter(written, edge);
        EXPECT_EQ(charactersOf(written), std::vector<char32_t>({edge})) << static_cast<int>(edge);
    }
}

class IllFormed : public testing::TestWithParam<std::string>
{
};

TEST_P(IllFormed, IsReadByteByByteAndWrittenBackAsItWas)
{
    EXPECT_EQ(charactersOf(GetParam()), strayBytes(GetParam()));
    std::string written;
    for (const char32_t character : charactersOf(GetParam()))
        appendCharacter(written, character);
    EXPECT_EQ(written, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Utf8, IllFormed,
                         testing::Values("\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x90", "\xC0\xAF",
                                         "\xE0\x80\xAF", "\xF0\x80\x80\xAF", "\xC1\xBF", "\xE0\x9F\xBF",
                                         "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                         "\xF8\x88\x80\x80\x80", "\xFF"));
