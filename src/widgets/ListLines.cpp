#include "widgets/ListLines.h"

void ListLines::add(std::string_view first, std::string_view second)
{
    m_text += first;
    m_text += second;
    m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
}

std::string_view ListLines::line(int place) const
{
    const auto at = static_cast<std::size_t>(place);
    const std::size_t start = at == 0 ? 0 : m_ends[at - 1];
    return std::string_view(m_text).substr(start, m_ends[at] - start);
}
