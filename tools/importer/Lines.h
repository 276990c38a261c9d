#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The lines of a file held in memory, without their ends. Throws InputError naming the file and the line
/// when a line is not valid UTF-8 or holds a control character other than the tab, or when the last line has
/// no end.
std::vector<std::string_view> readLines(std::string_view bytes, const std::string& file);

/// The pieces of a line between its tabs; one more than there are tabs.
std::vector<std::string_view> splitAtTabs(std::string_view line);

/// How an error names a line of a file: the file, ", line ", the number counted from 1, and ": ".
std::string at(const std::string& file, std::size_t lineNumber);
