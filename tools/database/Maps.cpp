#include "database/Maps.h"

#include "importer/InputError.h"
#include "importer/Lines.h"
#include <charconv>

namespace {

constexpr int maxSide = 10000;

/// A whole number from 1 to `maximum`.
int readNumber(std::string_view text, int maximum, const std::string& what)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 1 || number > maximum)
        throw InputError(what + " \"" + std::string(text) + "\" is not a number from 1 to " +
                         std::to_string(maximum) + ".");
    return number;
}

} // namespace

std::vector<MapEntry> readMapList(std::string_view bytes, const std::string& file)
{
    const auto lines = readLines(bytes, file);
    if (lines.empty() || !lines[0].starts_with("MapNumber\t"))
        throw InputError(at(file, 1) + "the header line, which begins with MapNumber, is missing.");
    std::vector<MapEntry> maps;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string place = at(file, i + 1);
        const auto columns = splitAtTabs(lines[i]);
        if (columns.size() != 5)
            throw InputError(place + "a map is a number, a file, a width, a height and a description.");
        const int number = readNumber(columns[0], mapCount, place + "the map number");
        if (number != static_cast<int>(i))
            throw InputError(place + "map " + std::to_string(i) + " is missing or out of order.");
        if (columns[1].empty() || columns[4].empty())
            throw InputError(place + "the map has no file or no description.");
        maps.push_back({number, std::string(columns[1]), readNumber(columns[2], maxSide, place + "the width"),
                        readNumber(columns[3], maxSide, place + "the height"), std::string(columns[4])});
    }
    if (maps.size() < mapCount)
        throw InputError(at(file, lines.size() + 1) + "map " + std::to_string(maps.size() + 1) +
                         " is missing.");
    return maps;
}
