#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The lines of a list box, all in one text: a list of the whole Bible costs one copy of it.
class ListLines
{
public:
    /// Adds a line of two parts, UTF-8, with nothing between them.
    void add(std::string_view first, std::string_view second = {});

    int count() const { return static_cast<int>(m_ends.size()); }
    /// UTF-8. place: from 0, less than count().
    std::string_view line(int place) const;

private:
    std::string m_text;
    std::vector<std::uint32_t> m_ends;
};
