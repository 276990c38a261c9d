#include "store/LikePattern.h"

#include "store/DataError.h"
#include "store/LetterCase.h"
#include "store/Utf8.h"
#include <algorithm>

namespace {

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
    m_isPieceAlone = foldCase(pattern) == '*' + m_piece + '*';
}

void LikePattern::readClass(const char*& at, const char* end)
{
    const char* close = std::find(at, end, ']');
    if (close == end)
        refusePattern();
    Class characters{close - at > 1 && *at == '!', {}, {}};
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
    for (std::size_t c = 0; c < characters.ascii.size(); ++c)
        characters.ascii[c] = characters.holds(static_cast<char32_t>(c));
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

bool LikePattern::Class::holds(char32_t character) const
{
    const auto listed = [this](char32_t c) {
        return std::any_of(ranges.begin(), ranges.end(),
                           [c](const Range& range) { return c >= range.first && c <= range.last; });
    };
    return (listed(character) || listed(toOtherCase(character))) != negated;
}

bool LikePattern::accepts(const Step& step, char32_t character) const
{
    switch (step.kind) {
    case Kind::Letter:
        return toSmallLetter(character) == step.value;
    case Kind::Digit:
        return character >= '0' && character <= '9';
    case Kind::Class:
        return character < 0x80 ? m_classes[step.value].ascii[character]
                                : m_classes[step.value].holds(character);
    default:
        return true;
    }
}

bool LikePattern::matches(std::string_view text) const
{
    // When a step fails, only the last run passed needs to be made longer: an earlier one could give no more.
    auto step = m_steps.begin();
    auto afterRun = m_steps.end();
    const char* at = text.data();
    const char* const end = at + text.size();
    const char* runEnd = nullptr;
    for (;;) {
        if (step != m_steps.end() && step->kind == Kind::AnyRun) {
            if (++step == m_steps.end())
                return true;
            afterRun = step;
            runEnd = at;
        } else if (at == end) {
            return step == m_steps.end();
        } else {
            const char* next = at;
            const char32_t character = nextCharacter(next, end);
            if (step != m_steps.end() && accepts(*step, character)) {
                at = next;
                ++step;
            } else if (!runEnd) {
                return false;
            } else {
                if (step != afterRun)
                    nextCharacter(next = runEnd, end);
                at = runEnd = next;
                step = afterRun;
            }
        }
    }
}
