#include "importer/VerseList.h"

#include "importer/InputError.h"
#include "importer/Lines.h"
#include "store/Limits.h"

namespace {

constexpr std::size_t maxTextBytes = limits::maxVerseBytes - 1; // the database puts a blank before it

/// Says what is wrong with a line that does not hold the verse expected at this position.
std::string misplaced(const std::string& found, std::size_t expected)
{
    const std::optional<std::size_t> position = canonicalPosition(found);
    if (!position)
        return "there is no verse " + found + ".";
    if (expected == canonicalVerses().size())
        return found + " stands after the last verse.";
    const std::string wanted = canonicalVerses()[expected].text();
    if (*position < expected)
        return found + " is repeated or out of order; " + wanted + " should stand here.";
    return wanted + " is missing; " + found + " stands in its place.";
}

} // namespace

std::string writtenKey(const std::vector<std::string_view>& columns)
{
    return std::string(columns[0]) + ":" + std::string(columns[1]) + ":" + std::string(columns[2]);
}

std::vector<Verse> readVerseList(std::string_view bytes, const std::string& file)
{
    const std::vector<VerseKey>& keys = canonicalVerses();
    std::vector<Verse> verses;
    verses.reserve(keys.size());
    for (const std::string_view line : readLines(bytes, file)) {
        const std::string place = at(file, verses.size() + 1);
        const auto columns = splitAtTabs(line);
        if (columns.size() != 4)
            throw InputError(place + "there are " + std::to_string(columns.size()) +
                             " columns, not the four of book, chapter, verse and text.");
        const std::string found = writtenKey(columns);
        if (verses.size() == keys.size() || found != keys[verses.size()].text())
            throw InputError(place + misplaced(found, verses.size()));
        if (columns[3].find_first_not_of(' ') == std::string_view::npos)
            throw InputError(place + found + " has no text.");
        if (columns[3].size() > maxTextBytes)
            throw InputError(place + found + " is too long; the program reads verses of " +
                             std::to_string(maxTextBytes) + " bytes at most.");
        verses.push_back({keys[verses.size()], std::string(columns[3])});
    }
    if (verses.size() < keys.size())
        throw InputError(at(file, verses.size() + 1) + keys[verses.size()].text() +
                         " is missing; the list ends here.");
    return verses;
}

std::string writeVerseList(const std::vector<Verse>& verses)
{
    std::string list;
    for (const Verse& verse : verses)
        list += std::string(verse.key.book) + "\t" + std::to_string(verse.key.chapter) + "\t" +
                std::to_string(verse.key.verse) + "\t" + verse.text + "\n";
    return list;
}
