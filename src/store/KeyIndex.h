#pragma once

#include "store/VerseBlock.h"

/// Finds the rows of a block whose key begins with given letters. The block must outlive it.
///
/// It knows the chapters: stretches of rows whose keys are alike up to their last colon. Most chapters are
/// passed over at one look, and whatever is found comes in the order of the rows.
class KeyIndex
{
public:
    explicit KeyIndex(const VerseBlock& block);

    /// The first row from `row` on whose key, folded by foldCase(), begins with `prefix`; the number of rows
    /// if there is none.
    std::size_t next(std::string_view prefix, std::size_t row) const;

private:
    const VerseBlock& m_block;
    std::vector<std::size_t> m_starts; ///< the first row of each chapter, and the number of rows
    std::vector<std::string> m_heads;  ///< what the keys of each chapter begin with, folded
};
