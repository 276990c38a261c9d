#pragma once

#include "importer/VerseList.h"
#include <string>
#include <string_view>
#include <vector>

/// One place of the published text to be mended.
struct Correction
{
    std::string key; ///< the verse, as in "Mt:24:43"
    std::string before;
    std::string after;
    std::size_t line; ///< where it stands in its file
};

/// Reads a list of corrections: a header line, then book, chapter, verse, before, after and witness parted by
/// tabs. Throws InputError naming the line when one is malformed.
std::vector<Correction> readCorrections(std::string_view bytes, const std::string& file);

/// Mends the verses. All pieces of one verse are sought in the verse as it was published, so their order does
/// not matter. Throws InputError naming verse and piece when the verse does not exist, when a piece does not
/// occur in it exactly once, or when two pieces overlap. `file` is where the corrections were read.
void applyCorrections(std::vector<Verse>& verses, const std::vector<Correction>& corrections,
                      const std::string& file);
