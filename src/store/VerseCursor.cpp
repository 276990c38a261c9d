#include "store/VerseCursor.h"

#include "store/LetterCase.h"
#include <algorithm>
#include <bit>

namespace {

constexpr std::size_t wordBits = 64;

} // namespace

VerseCursor::VerseCursor(const Verses& verses)
    : m_block(&*verses.block)
    , m_keys(&*verses.keys)
    , m_end(m_block->size())
{
}

void VerseCursor::keepKey(std::string_view key)
{
    // All keys that begin so and, letter case aside, are as long; the engine compares them once more.
    narrowToPrefix(foldCase(key));
}

void VerseCursor::keepKeysLike(std::string_view pattern)
{
    m_keyPatterns.emplace_back(pattern);
    if (const std::string& prefix = m_keyPatterns.back().prefix(); !prefix.empty())
        narrowToPrefix(prefix);
}

void VerseCursor::keepTextsLike(std::string_view pattern)
{
    m_textSearches.emplace_back(*m_block, pattern);
}

void VerseCursor::narrowToPrefix(std::string_view folded)
{
    if (!m_candidates.empty())
        return;
    // The index gives rows by key; marking them brings them back into the order of their numbers.
    m_candidates.resize(m_block->size() / wordBits + 1);
    for (const std::uint32_t row : m_keys->rowsWithPrefix(folded))
        m_candidates[row / wordBits] |= std::uint64_t{1} << row % wordBits;
}

std::size_t VerseCursor::nextCandidate(std::size_t row) const
{
    std::size_t word = row / wordBits;
    std::uint64_t bits = m_candidates[word] & ~std::uint64_t{0} << row % wordBits;
    while (!bits && ++word < m_candidates.size())
        bits = m_candidates[word];
    return bits ? word * wordBits + std::countr_zero(bits) : m_end;
}

void VerseCursor::seek()
{
    for (; m_row < m_end; ++m_row) {
        m_row = m_candidates.empty() ? nextTextMatch(m_row) : nextCandidate(m_row);
        if (m_row < m_end && fits(m_row))
            return;
    }
}

std::size_t VerseCursor::nextTextMatch(std::size_t row) const
{
    // Every search leaps to its own next row, until all stand on the same.
    for (std::size_t agreed = 0; row < m_end && agreed < m_textSearches.size();) {
        agreed = 0;
        for (const TextSearch& search : m_textSearches) {
            const std::size_t found = search.next(row, m_end);
            agreed += found == row;
            row = found;
        }
    }
    return row;
}

bool VerseCursor::fits(std::size_t row) const
{
    return std::all_of(m_keyPatterns.begin(), m_keyPatterns.end(),
                       [&](const LikePattern& pattern) { return pattern.matches(m_block->key(row)); }) &&
           (m_candidates.empty() ||
            std::all_of(m_textSearches.begin(), m_textSearches.end(),
                        [row](const TextSearch& search) { return search.matches(row); }));
}
