#include "store/KeyIndex.h"

#include "store/LetterCase.h"
#include <algorithm>
#include <compare>

namespace {

/// The first bytes of a folded key, as numbers that compare like it.
struct Head
{
    std::uint64_t first;
    std::uint64_t second;

    auto operator<=>(const Head&) const = default;
};

/// A key and its row. The head decides nearly every comparison: sound keys are no longer.
struct Entry
{
    Head head;
    std::uint32_t row;
};

std::uint64_t bytesFrom(std::string_view text, std::size_t from)
{
    std::uint64_t bytes = 0;
    for (std::size_t i = from; i < from + sizeof bytes; ++i)
        bytes = bytes << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return bytes;
}

Head headOf(std::string_view folded)
{
    return {bytesFrom(folded, 0), bytesFrom(folded, sizeof(std::uint64_t))};
}

} // namespace

KeyIndex::KeyIndex(const VerseBlock& block)
    : m_block(block)
{
    std::vector<Entry> entries;
    entries.reserve(block.size());
    for (std::uint32_t row = 0; row < block.size(); ++row)
        entries.push_back({headOf(foldCase(block.key(row))), row});
    std::sort(entries.begin(), entries.end(), [&block](const Entry& a, const Entry& b) {
        return a.head != b.head ? a.head < b.head : foldCase(block.key(a.row)) < foldCase(block.key(b.row));
    });
    m_rows.reserve(entries.size());
    for (const Entry& entry : entries)
        m_rows.push_back(entry.row);
}

std::span<const std::uint32_t> KeyIndex::rowsWithPrefix(std::string_view prefix) const
{
    const auto start = [this, prefix](std::uint32_t row) {
        return foldCase(m_block.key(row)).substr(0, prefix.size());
    };
    const auto first = std::partition_point(m_rows.begin(), m_rows.end(),
                                            [&](std::uint32_t row) { return start(row) < prefix; });
    const auto last =
        std::partition_point(first, m_rows.end(), [&](std::uint32_t row) { return start(row) == prefix; });
    return {first, last};
}
