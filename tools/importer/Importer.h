#pragma once

#include "importer/VerseList.h"

#include <filesystem>
#include <vector>

/// The published text made ready for the database: corrections first, then the typography rules.
struct ImportedText
{
    std::vector<Verse> verses;
    std::size_t corrections = 0; ///< how many were applied
    bool hasCorrections = false; ///< whether a list of corrections lay beside the text
};

/// Imports the list at a path, mended by the "corrections.tsv" that lies beside it, if any. Throws
/// InputError.
ImportedText importText(const std::filesystem::path& list);

/// Puts every verse through the typography rules. Throws InputError naming a verse of which nothing is left.
void mendTypography(std::vector<Verse>& verses);
