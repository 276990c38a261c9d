#pragma once

#include <string>
#include <string_view>
#include <vector>

/// One line of the list of maps.
struct MapEntry
{
    int number;
    std::string file;
    int width; ///< pixels at which the map is shown on a screen of 96 dots an inch
    int height;
    std::string description;
};

/// A map with its picture, as the database holds it.
struct Map
{
    int number;
    std::string description;
    std::string picture;
};

inline constexpr int mapCount = 11;

/// Reads the list of the eleven maps, 1 to 11 in order: a header line, then number, file, width, height and
/// description parted by tabs. Throws InputError naming the line when one is malformed or a map is missing.
std::vector<MapEntry> readMapList(std::string_view bytes, const std::string& file);
