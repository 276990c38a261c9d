#pragma once

#include <string>
#include <string_view>

// Letter case of the Latin, Greek and Cyrillic scripts, the same in every locale.
//
// Only pairs count: one capital and one small letter that stand for each other and are equally long in UTF-8.
// So folding never moves a byte, and the Kelvin sign, the dotted I, the sharp s and the final sigma equal
// only themselves.

/// For characters from 0x80 on; toSmallLetter() is for all.
char32_t toSmallLetterBeyondAscii(char32_t character);

/// The small letter of a capital; any other character itself.
inline char32_t toSmallLetter(char32_t character)
{
    if (character >= 0x80)
        return toSmallLetterBeyondAscii(character);
    return character >= 'A' && character <= 'Z' ? character + 0x20 : character;
}

/// The other letter of the pair; the character itself when it has none.
char32_t toOtherCase(char32_t character);

/// The text with every capital of a pair made small; of the same length.
std::string foldCase(std::string_view text);
