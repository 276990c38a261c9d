#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The lines of the results list, all in one text: a list of the whole Bible costs one copy of it.
class ResultLines
{
public:
    /// Adds a line: verse key and verse text with nothing between them; the text begins with a blank.
    void add(std::string_view key, std::string_view text);

    int count() const { return static_cast<int>(m_ends.size()); }
    /// UTF-8.
    std::string_view line(int place) const;

private:
    std::string m_text;
    std::vector<std::uint32_t> m_ends;
};
