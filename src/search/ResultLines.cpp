#include "search/ResultLines.h"

void ResultLines::add(std::string_view key, std::string_view text)
{
    m_text += key;
    m_text += text;
    m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
}

std::string_view ResultLines::line(int place) const
{
    const auto at = static_cast<std::size_t>(place);
    const std::size_t start = at == 0 ? 0 : m_ends[at - 1];
    return std::string_view(m_text).substr(start, m_ends[at] - start);
}
