#pragma once

#include <string_view>

/// What tests look for in the text that make_text.cpp writes; the Python tests have the same in
/// tests/e2e/phrases.py. Whole verses stand in tests/text/fixed_verses.tsv. Common besides: "aldeia" in a
/// third of all verses, "moleiro" and "MOLEIRO" in a sixth, "amor" in one of fifty; "na" in "nação", "rio" in
/// "armário".
namespace phrases {

inline constexpr auto onceText = "Chovia";  ///< in one verse of all, which is that word alone:
inline constexpr auto onceKey = "Jn:11:35"; ///< in John
inline constexpr auto twice = "JARDIM"; ///< in two verses of the Gospels, in small letters, and nowhere else
inline constexpr auto thirdOfAll = "aldeia";
inline constexpr auto never = "xyzzy";
inline constexpr auto cousin = "Olinda"; ///< a name that few verses hold
inline constexpr auto inMt_24_43 = "lampião";
inline constexpr auto firstWord = "Caderno";                                 ///< of Mt:1:1
inline constexpr auto longestKey = "Est:8:9";                                ///< over 500 characters
inline constexpr auto repeatedKeys = {"Ps:107:8", "Ps:107:15", "Ps:107:21"}; ///< the same text in each

/// Psalm 117 as the chapter window has it: two lines, each with its end.
inline constexpr auto psalm117 =
    "Ps:117:1 Chegou cedo o MOLEIRO, com dez sacos de trigo; abriu a porta, acendeu a luz.\r\n"
    "Ps:117:2 Porque a farinha se gastou na véspera, e o forno da padaria [ficou] frio durante a noite "
    "inteira. "
    "Paciência!\r\n";

} // namespace phrases
