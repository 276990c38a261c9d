#pragma once

#include "database/Maps.h"
#include "database/Topics.h"
#include "importer/VerseList.h"
#include <filesystem>
#include <vector>

/// The program refuses a database of any other length than pages times page size.
inline constexpr int databasePageSize = 2048;
inline constexpr int databasePages = 3337;

/// Builds the database at a path, in place of any that is there, and returns how many of its pages are free.
/// The same contents give the same bytes. Throws InputError when the contents do not fit, saying how many
/// bytes too many they are, or when the file cannot be written; what was there then stays.
int buildDatabase(const std::filesystem::path& path, const std::vector<Verse>& verses,
                  const std::vector<Topic>& topics, const std::vector<Map>& maps);
