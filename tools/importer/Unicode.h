#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The code points of a UTF-8 text, or nothing when it is not valid UTF-8.
std::optional<std::u32string> fromUtf8(std::string_view text);

std::string toUtf8(std::u32string_view text);

/// A character of one of the Unicode categories L*.
bool isLetter(char32_t character);
/// A character of the Unicode category Cc: tab, line ends, NUL and their kind.
bool isControl(char32_t character);
