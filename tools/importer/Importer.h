#pragma once

#include "importer/VerseList.h"
#include <filesystem>
#include <vector>

/// The published text made ready for the database: corrections first, then the typography rules.
struct ImportedText
{
    std::vector<Verse> verses;
    std::size_t corrections = 0; ///< how many were applied
};

/// Imports the list at a path, mended by a list of corrections; an empty path stands for none. Throws
/// InputError.
ImportedText importText(const std::filesystem::path& list, const std::filesystem::path& corrections);

/// Puts every verse through the typography rules. Throws InputError naming a verse of which nothing is left.
void mendTypography(std::vector<Verse>& verses);
