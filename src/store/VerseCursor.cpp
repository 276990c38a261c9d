#include "store/VerseCursor.h"

#include "store/LetterCase.h"
#include <algorithm>

VerseCursor::VerseCursor(const Verses& verses)
    : m_block(&*verses.block)
    , m_keys(&*verses.keys)
    , m_end(m_block->size())
{
}

void VerseCursor::keepKey(std::string_view key)
{
    // SQLite compares once more: of the keys that begin so, some are longer or differ in letter case.
    if (m_prefix.empty())
        m_prefix = foldCase(key);
}

void VerseCursor::keepKeysLike(std::string_view pattern)
{
    m_keyPatterns.emplace_back(pattern);
    if (m_prefix.empty())
        m_prefix = m_keyPatterns.back().prefix();
}

void VerseCursor::keepTextsLike(std::string_view pattern)
{
    m_textSearches.emplace_back(*m_block, pattern);
}

void VerseCursor::seek()
{
    for (; m_row < m_end; ++m_row) {
        m_row = m_prefix.empty() ? nextTextMatch(m_row) : m_keys->next(m_prefix, m_row);
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
           (m_prefix.empty() || std::all_of(m_textSearches.begin(), m_textSearches.end(),
                                            [row](const TextSearch& search) { return search.matches(row); }));
}
