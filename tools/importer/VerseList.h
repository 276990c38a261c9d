#pragma once

#include "importer/Versification.h"
#include <string>
#include <string_view>
#include <vector>

struct Verse
{
    VerseKey key;
    std::string text; ///< UTF-8
};

/// The verse key in the first three columns of a line: book, chapter and verse as they are written, so that
/// "01" is not "1".
std::string writtenKey(const std::vector<std::string_view>& columns);

/// Reads a list of the whole Bible: one verse a line, book abbreviation, chapter, verse and text parted by
/// tabs, in canonical order, no header. Throws InputError naming the line and the verse when a verse is
/// missing, repeated, out of order, unknown or empty, or when a line is malformed. `file` is the name that
/// errors give.
std::vector<Verse> readVerseList(std::string_view bytes, const std::string& file);

/// The verses in the form readVerseList() takes.
std::string writeVerseList(const std::vector<Verse>& verses);
