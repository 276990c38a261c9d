#include "KeyIndex.h"

#include "LetterCase.h"
#include <algorithm>

namespace {

/// A folded key and its row. The first bytes as one number decide nearly every comparison.
struct Entry
{
    std::uint64_t head;
    std::uint32_t row;
};

std::uint64_t headOf(std::string_view folded)
{
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8 | (i < folded.size() ? static_cast<unsigned char>(folded[i]) : 0);
    return head;
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
