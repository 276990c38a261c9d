#include "store/KeyIndex.h"

#include "store/LetterCase.h"
#include <algorithm>

KeyIndex::KeyIndex(const VerseBlock& block)
    : m_block(block)
{
    std::string_view last;
    for (std::size_t row = 0; row < block.size(); ++row) {
        const std::string_view head = block.key(row).substr(0, block.key(row).rfind(':') + 1);
        if (row == 0 || head != last) {
            m_starts.push_back(row);
            m_heads.push_back(foldCase(head));
        }
        last = head;
    }
    m_starts.push_back(block.size());
}

std::size_t KeyIndex::next(std::string_view prefix, std::size_t row) const
{
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), row);
    for (auto chapter = static_cast<std::size_t>(after - m_starts.begin()); chapter <= m_heads.size();
         ++chapter) {
        const std::string_view head = m_heads[chapter - 1];
        const std::size_t common = std::min(head.size(), prefix.size());
        const std::size_t end = m_starts[chapter];
        if (head.substr(0, common) != prefix.substr(0, common)) {
            row = end;
            continue;
        }
        for (const std::string_view rest = prefix.substr(common); row < end; ++row) {
            if (rest.empty() || foldCase(m_block.key(row).substr(common)).starts_with(rest))
                return row;
        }
    }
    return row;
}
