#include "importer/Typography.h"

#include "importer/Unicode.h"
#include <algorithm>

namespace {

using Text = std::u32string;

constexpr char32_t blank = U' ';
constexpr char32_t hyphen = U'-';
constexpr char32_t dash = U'\u2013';
constexpr char32_t noBreakSpace = U'\u00A0';
constexpr char32_t acuteAccent = U'\u00B4';
constexpr char32_t openingQuote = U'\u2018';
/// The closing quote is not among the closing marks, because it is also the apostrophe.
constexpr char32_t closingQuote = U'\u2019';

bool isOneOf(char32_t character, std::u32string_view set)
{
    return set.find(character) != std::u32string_view::npos;
}

bool isOpening(char32_t character)
{
    return isOneOf(character, U"([\u201C\u2018");
}

bool isClosing(char32_t character)
{
    return isOneOf(character, U")]\u201D");
}

bool isPoint(char32_t character)
{
    return isOneOf(character, U",.;:?!");
}

/// The character at a place, or U+0000, which is in no set, before the start and after the end.
char32_t charAt(const Text& text, std::size_t place)
{
    return place < text.size() ? text[place] : U'\0';
}

char32_t before(const Text& text, std::size_t place)
{
    return place == 0 ? U'\0' : text[place - 1];
}

/// Deletes the runs of blanks [begin, end) of which `condition(text, begin, end)` holds.
template <typename Condition>
void deleteBlanks(Text& text, Condition condition)
{
    Text result;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i;
        while (charAt(text, end) == blank)
            ++end;
        if (end == i) {
            result += text[i++];
            continue;
        }
        if (!condition(text, i, end))
            result.append(text, i, end - i);
        i = end;
    }
    text = result;
}

/// Puts a blank between the neighbours of which `condition(left, right, after)` holds; `after` follows the
/// right one.
template <typename Condition>
void insertBlanks(Text& text, Condition condition)
{
    Text result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text[i];
        if (i + 1 < text.size() && condition(text[i], text[i + 1], charAt(text, i + 2)))
            result += blank;
    }
    text = result;
}

void joinBlanks(Text& text)
{
    std::replace(text.begin(), text.end(), noBreakSpace, blank);
    const auto bothBlank = [](char32_t left, char32_t right) { return left == blank && right == blank; };
    text.erase(std::unique(text.begin(), text.end(), bothBlank), text.end());
    deleteBlanks(text, [](const Text& t, std::size_t begin, std::size_t end) {
        return begin == 0 || end == t.size();
    });
}

void curlStraightQuotes(Text& text)
{
    const Text original = text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (original[i] == U'\'' || original[i] == acuteAccent)
            text[i] = i == 0 || isOneOf(original[i - 1], U" ([\u201C") ? openingQuote : closingQuote;
    }
}

void makeDashes(Text& text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == hyphen && charAt(text, i + 1) == blank && (i == 0 || text[i - 1] == blank))
            text[i] = dash;
    }
}

void closeUpAfterHyphens(Text& text)
{
    const auto letterOrBracket = [](char32_t character) { return isLetter(character) || character == U'['; };
    deleteBlanks(text, [&](const Text& t, std::size_t begin, std::size_t end) {
        return before(t, begin) == hyphen && letterOrBracket(before(t, begin - 1)) &&
               letterOrBracket(charAt(t, end));
    });
}

void closeUpBeforeHyphens(Text& text)
{
    deleteBlanks(text, [](const Text& t, std::size_t begin, std::size_t end) {
        const char32_t left = before(t, begin);
        if (isLetter(left))
            return charAt(t, end) == U'[' && charAt(t, end + 1) == hyphen && isLetter(charAt(t, end + 2));
        return left == U']' && charAt(t, end) == hyphen && isLetter(charAt(t, end + 1));
    });
}

void closeUpAfterOpenings(Text& text)
{
    deleteBlanks(text,
                 [](const Text& t, std::size_t begin, std::size_t) { return isOpening(before(t, begin)); });
}

void closeUpBeforePoints(Text& text)
{
    deleteBlanks(text, [](const Text& t, std::size_t, std::size_t end) {
        const char32_t right = charAt(t, end);
        return isPoint(right) || isClosing(right) || right == closingQuote;
    });
}

void partLetterFromBracket(Text& text)
{
    insertBlanks(text, [](char32_t left, char32_t right, char32_t after) {
        return isLetter(left) && (right == U'(' || (right == U'[' && after != hyphen));
    });
}

void partPointFromNext(Text& text)
{
    insertBlanks(text, [](char32_t left, char32_t right, char32_t) {
        return isPoint(left) && (isLetter(right) || isOpening(right));
    });
}

void partClosingFromNext(Text& text)
{
    insertBlanks(text, [](char32_t left, char32_t right, char32_t) {
        return isClosing(left) && (isLetter(right) || isOpening(right));
    });
}

} // namespace

std::string mendTypography(std::string_view verse)
{
    auto text = fromUtf8(verse);
    if (!text)
        return std::string(verse);
    joinBlanks(*text);
    curlStraightQuotes(*text);
    makeDashes(*text);
    closeUpAfterHyphens(*text);
    closeUpBeforeHyphens(*text);
    closeUpAfterOpenings(*text);
    closeUpBeforePoints(*text);
    partLetterFromBracket(*text);
    partPointFromNext(*text);
    partClosingFromNext(*text);
    return toUtf8(*text);
}
