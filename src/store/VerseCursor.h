#pragma once

#include "store/LikePattern.h"
#include "store/TextSearch.h"
#include "store/Verses.h"
#include <algorithm>

/// A walk over the rows of a block that fulfil every condition given, in order. The verses must hold a block
/// and outlive it. First the conditions are given, then start() is called.
class VerseCursor
{
public:
    explicit VerseCursor(const Verses& verses);

    void keepNone() { m_end = m_row = 0; }
    void keepFrom(std::size_t row) { m_row = std::max(m_row, row); }
    void keepBefore(std::size_t row) { m_end = std::min(m_end, row); }
    /// Leaves more rows than those of the key: all whose key begins so, letter case aside.
    void keepKey(std::string_view key);
    /// This and the next throw DataError 93, "Invalid pattern string".
    void keepKeysLike(std::string_view pattern);
    void keepTextsLike(std::string_view pattern);

    /// Stands on the first row.
    void start() { seek(); }
    /// Must not be at the end.
    void next()
    {
        ++m_row;
        if (!takesAll())
            seek();
    }
    bool atEnd() const { return m_row >= m_end; }
    /// The current row; must not be at the end.
    std::size_t row() const { return m_row; }

private:
    bool takesAll() const { return m_prefix.empty() && m_keyPatterns.empty() && m_textSearches.empty(); }
    void seek();
    bool fits(std::size_t row) const;
    std::size_t nextTextMatch(std::size_t row) const;

    const VerseBlock* m_block;
    const KeyIndex* m_keys;
    std::size_t m_row = 0;
    std::size_t m_end;
    std::string m_prefix; ///< what the keys begin with, folded; empty when nothing is known of it
    std::vector<LikePattern> m_keyPatterns;
    std::vector<TextSearch> m_textSearches;
};
