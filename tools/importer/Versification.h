#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The place of one verse.
struct VerseKey
{
    std::string_view book; ///< abbreviation of the book catalog
    int chapter;
    int verse;

    /// As the database writes it, as in "Mt:24:43".
    std::string text() const;
};

/// Every verse of the Bible in canonical order, Genesis 1:1 first, divided as in the King James version.
const std::vector<VerseKey>& canonicalVerses();

/// The place of a verse in canonicalVerses(), from 0, by its key as text; none when there is no such verse.
std::optional<std::size_t> canonicalPosition(const std::string& key);
