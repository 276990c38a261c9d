#pragma once

#include "store/VerseBlock.h"
#include <span>

/// The rows of a block in the order of their keys, letter case aside. The block must outlive it.
class KeyIndex
{
public:
    explicit KeyIndex(const VerseBlock& block);

    /// The rows whose key, folded by foldCase(), begins with `prefix`.
    std::span<const std::uint32_t> rowsWithPrefix(std::string_view prefix) const;

private:
    const VerseBlock& m_block;
    std::vector<std::uint32_t> m_rows;
};
