#include "store/LikePattern.h"

#include "store/DataError.h"
#include "store/LetterCase.h"
#include "store/Utf8.h"
#include <algorithm>
#include <array>

namespace {

constexpr std::size_t wordBits = 64;
// Of Latin-1; other characters are rare enough to be looked at each time.
constexpr char32_t tableSize = 0x100;

[[noreturn]] void refusePattern()
{
    throw DataError(93, "Invalid pattern string");
}

bool differsInCaseBitAtMost(char32_t letter)
{
    return letter < 0x80 || (letter >= 0xC0 && letter < 0xFF);
}

} // namespace

LikePattern::LikePattern(std::string_view pattern)
{
    for (const char *at = pattern.data(), *end = at + pattern.size(); at != end;) {
        const char32_t character = nextCharacter(at, end);
        if (character == '[')
            readClass(at, end);
        else if (character == '?')
            m_steps.push_back({Kind::AnyCharacter, 0});
        else if (character == '#')
            m_steps.push_back({Kind::Digit, 0});
        else if (character != '*')
            m_steps.push_back({Kind::Letter, toSmallLetter(character)});
        else if (m_steps.empty() || m_steps.back().kind != Kind::AnyRun)
            m_steps.push_back({Kind::AnyRun, 0});
    }
    findPieces();
    layOut();
    m_isPieceAlone = foldCase(pattern) == '*' + m_piece + '*';
}

void LikePattern::readClass(const char*& at, const char* end)
{
    const char* close = std::find(at, end, ']');
    if (close == end)
        refusePattern();
    Class characters{close - at > 1 && *at == '!', {}};
    at += characters.negated;
    while (at != close) {
        const char32_t first = nextCharacter(at, close);
        char32_t last = first;
        if (close - at > 1 && *at == '-')
            last = nextCharacter(++at, close);
        if (last < first)
            refusePattern();
        characters.ranges.push_back({first, last});
    }
    at = close + 1;
    if (characters.ranges.empty())
        return;
    m_steps.push_back({Kind::Class, static_cast<char32_t>(m_classes.size())});
    m_classes.push_back(std::move(characters));
}

void LikePattern::findPieces()
{
    for (const Step& step : m_steps) {
        if (step.kind != Kind::Letter)
            break;
        appendCharacter(m_prefix, step.value);
    }
    std::string run;
    for (const Step& step : m_steps) {
        if (step.kind == Kind::Letter && differsInCaseBitAtMost(step.value))
            appendCharacter(run, step.value);
        else
            run.clear();
        if (run.size() > m_piece.size())
            m_piece = run;
    }
}

bool LikePattern::accepts(const Step& step, char32_t character, char32_t otherCase) const
{
    switch (step.kind) {
    case Kind::Letter:
        return character == step.value || otherCase == step.value;
    case Kind::Digit:
        return character >= '0' && character <= '9';
    case Kind::Class: {
        const Class& characters = m_classes[step.value];
        const auto lists = [&](const Range& range) {
            return (character >= range.first && character <= range.last) ||
                   (otherCase >= range.first && otherCase <= range.last);
        };
        return std::any_of(characters.ranges.begin(), characters.ranges.end(), lists) != characters.negated;
    }
    default:
        return true;
    }
}

/// Fills in the places whose next step accepts a character, and gives them back.
const LikePattern::Places* LikePattern::findAccepting(char32_t character, Places* places) const
{
    std::fill_n(places, m_runs.size(), 0);
    const char32_t otherCase = toOtherCase(character);
    std::size_t place = 0;
    for (const Step& step : m_steps) {
        if (step.kind == Kind::AnyRun)
            continue;
        if (accepts(step, character, otherCase))
            places[place / wordBits] |= Places{1} << place % wordBits;
        ++place;
    }
    return places;
}

/// Turns the steps into bits.
void LikePattern::layOut()
{
    const auto isNoRun = [](const Step& step) { return step.kind != Kind::AnyRun; };
    const auto steps = std::count_if(m_steps.begin(), m_steps.end(), isNoRun);
    const std::size_t words = static_cast<std::size_t>(steps) / wordBits + 1;
    m_runs.assign(words, 0);
    m_accepts.assign(tableSize * words, 0);
    for (const Step& step : m_steps) {
        const std::size_t word = m_end / wordBits;
        const Places place = Places{1} << m_end % wordBits;
        const auto accept = [&](char32_t character) {
            if (character < tableSize)
                m_accepts[character * words + word] |= place;
        };
        if (step.kind == Kind::AnyRun) {
            m_runs[word] |= place;
            continue;
        }
        ++m_end;
        if (step.kind == Kind::Letter) {
            accept(step.value);
            accept(toOtherCase(step.value));
            continue;
        }
        for (char32_t character = 0; character < tableSize; ++character) {
            if (accepts(step, character, toOtherCase(character)))
                accept(character);
        }
    }
}

bool LikePattern::matches(std::string_view text) const
{
    if (text.size() < m_end) // every step takes a byte at least
        return false;
    if (m_runs.size() == 1)
        return matchesFrom(std::array<Places, 1>{1}, std::array<Places, 1>{}, text);
    std::vector<Places> reached(m_runs.size(), 0);
    reached[0] = 1;
    return matchesFrom(std::move(reached), std::vector<Places>(m_runs.size()), text);
}

/// Follows all ways through the pattern at once: `reached` holds the places that the text so far leads to. A
/// character moves each of them whose next step accepts it on by one; a place with a run stays reached, too.
/// So "a*b", with a run at place 1, takes "axb" from {0} by "a" to {1}, by "x" to {1}, by "b" to {1, 2}, and
/// 2 is the end. `rare` is room for the places of a character that the table lacks.
template <class Words>
bool LikePattern::matchesFrom(Words reached, Words rare, std::string_view text) const
{
    const std::size_t words = reached.size();
    const Places end = Places{1} << m_end % wordBits;
    for (const char *at = text.data(), *stop = at + text.size(); at != stop;) {
        const char32_t character = nextCharacter(at, stop);
        const Places* accepting =
            character < tableSize ? &m_accepts[character * words] : findAccepting(character, rare.data());
        Places carry = 0;
        for (std::size_t word = 0; word < words; ++word) {
            const Places moved = reached[word] & accepting[word];
            const Places stayed = reached[word] & m_runs[word];
            reached[word] = moved << 1 | carry | stayed;
            carry = moved >> (wordBits - 1);
        }
        if (reached[words - 1] & m_runs[words - 1] & end) // a run takes the rest
            return true;
    }
    return reached[words - 1] & end;
}
