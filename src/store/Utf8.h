#pragma once

#include <string>

/// The character at `at`, which moves past it; `at` stands before `end`. Any byte that is not part of
/// well-formed UTF-8 counts as one character of its own, beyond Unicode, so that it equals only the same
/// byte.
inline char32_t nextCharacter(const char*& at, const char* end)
{
    constexpr char32_t strayByte = 0x110000;
    const auto lead = static_cast<unsigned char>(*at++);
    if (lead < 0x80)
        return lead;
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || end - at < more)
        return strayByte + lead;
    char32_t character = lead & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
        const auto byte = static_cast<unsigned char>(at[i]);
        if ((byte & 0xC0) != 0x80)
            return strayByte + lead;
        character = character << 6 | (byte & 0x3F);
    }
    const bool overlong = character < (more == 3 ? 0x10000U : more == 2 ? 0x800U : 0x80U);
    if (overlong || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000))
        return strayByte + lead;
    at += more;
    return character;
}

/// Writes back what nextCharacter() read.
inline void appendCharacter(std::string& text, char32_t character)
{
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte & 0xFF); };
    if (character < 0x80 || character > 0x10FFFF) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else {
        if (character < 0x10000) {
            put(0xE0 | character >> 12);
        } else {
            put(0xF0 | character >> 18);
            put(0x80 | (character >> 12 & 0x3F));
        }
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}
