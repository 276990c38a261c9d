#pragma once

#include "store/LetterCase.h"
#include <optional>
#include <string_view>
#include <vector>

/// LIKE once more, written to be plainly right instead of fast, as a witness for LikePattern: every pair of
/// places in pattern and text is decided once, from the end backwards. It shares no code with it but the
/// pairs of letters.
namespace slow_like {

/// Characters; a byte that is not UTF-8 is 0x80000000 and the byte.
inline std::vector<char32_t> characters(std::string_view text)
{
    std::vector<char32_t> result;
    for (std::size_t i = 0; i < text.size();) {
        const auto at = [&](std::size_t k) -> unsigned {
            return i + k < text.size() ? static_cast<unsigned char>(text[i + k]) : 0U;
        };
        const auto follows = [&](std::size_t k) { return at(k) >= 0x80 && at(k) <= 0xBF; };
        const unsigned b = at(0);
        char32_t c = 0x80000000U + b;
        std::size_t length = 1;
        if (b < 0x80) {
            c = b;
        } else if (b >= 0xC2 && b <= 0xDF && follows(1)) {
            c = (b - 0xC0) * 64 + at(1) - 0x80;
            length = 2;
        } else if (b >= 0xE0 && b <= 0xEF && follows(1) && follows(2) && !(b == 0xE0 && at(1) < 0xA0) &&
                   !(b == 0xED && at(1) > 0x9F)) {
            c = ((b - 0xE0) * 64 + at(1) - 0x80) * 64 + at(2) - 0x80;
            length = 3;
        } else if (b >= 0xF0 && b <= 0xF4 && follows(1) && follows(2) && follows(3) &&
                   !(b == 0xF0 && at(1) < 0x90) && !(b == 0xF4 && at(1) > 0x8F)) {
            c = (((b - 0xF0) * 64 + at(1) - 0x80) * 64 + at(2) - 0x80) * 64 + at(3) - 0x80;
            length = 4;
        }
        result.push_back(c);
        i += length;
    }
    return result;
}

struct Item
{
    char32_t kind; ///< '*', '?', '#', '[' for a class, 0 for one character
    char32_t character;
    bool negated;
    std::vector<std::pair<char32_t, char32_t>> ranges;

    bool takes(char32_t c) const
    {
        if (kind == '?')
            return true;
        if (kind == '#')
            return c >= '0' && c <= '9';
        const char32_t other = c < 0x80000000U ? toOtherCase(c) : c;
        if (kind == 0)
            return c == character || other == character;
        bool held = false;
        for (const auto& [first, last] : ranges)
            held = held || (c >= first && c <= last) || (other >= first && other <= last);
        return held != negated;
    }
};

/// Nothing when the pattern is invalid.
inline std::optional<std::vector<Item>> parse(std::string_view pattern)
{
    const auto p = characters(pattern);
    std::vector<Item> items;
    for (std::size_t i = 0; i < p.size(); ++i) {
        if (p[i] == '*' || p[i] == '?' || p[i] == '#') {
            items.push_back({p[i], 0, false, {}});
        } else if (p[i] != '[') {
            items.push_back({0, p[i], false, {}});
        } else {
            std::vector<char32_t> inside;
            for (++i; i < p.size() && p[i] != ']'; ++i)
                inside.push_back(p[i]);
            if (i == p.size())
                return std::nullopt;
            Item item{'[', 0, inside.size() > 1 && inside[0] == '!', {}};
            if (item.negated)
                inside.erase(inside.begin());
            for (std::size_t k = 0; k < inside.size(); ++k) {
                const bool range = k + 2 < inside.size() && inside[k + 1] == '-';
                item.ranges.push_back({inside[k], inside[range ? k + 2 : k]});
                if (item.ranges.back().first > item.ranges.back().second)
                    return std::nullopt;
                k += range ? 2 : 0;
            }
            if (!inside.empty())
                items.push_back(item);
        }
    }
    return items;
}

/// Nothing when the pattern is invalid.
inline std::optional<bool> matches(std::string_view pattern, std::string_view text)
{
    const auto items = parse(pattern);
    if (!items)
        return std::nullopt;
    const auto t = characters(text);
    // rest[j]: whether the items from the one in hand on match the text from j on.
    std::vector<char> rest(t.size() + 1, false);
    rest[t.size()] = true;
    for (auto item = items->rbegin(); item != items->rend(); ++item) {
        std::vector<char> now(t.size() + 1, false);
        for (std::size_t j = t.size() + 1; j-- > 0;) {
            if (item->kind == '*')
                now[j] = rest[j] || (j < t.size() && now[j + 1]);
            else
                now[j] = j < t.size() && rest[j + 1] && item->takes(t[j]);
        }
        rest = now;
    }
    return rest[0] != 0;
}

} // namespace slow_like
