#include "database/Topics.h"

#include "importer/InputError.h"
#include "importer/Lines.h"
#include "importer/Versification.h"
#include <algorithm>

namespace {

/// The whole key of the end of a range, which may leave out what it shares with the start.
std::string rangeEnd(const std::string& start, const std::string& end)
{
    switch (std::count(end.begin(), end.end(), ':')) {
    case 0:
        return start.substr(0, start.rfind(':') + 1) + end;
    case 1:
        return start.substr(0, start.find(':') + 1) + end;
    default:
        return end;
    }
}

void checkReference(const std::string& reference, const std::string& place)
{
    const std::size_t hyphen = reference.find('-');
    const std::string start = reference.substr(0, hyphen);
    const auto first = canonicalPosition(start);
    if (!first)
        throw InputError(place + "there is no verse \"" + start + "\".");
    if (hyphen == std::string::npos)
        return;
    const std::string end = rangeEnd(start, reference.substr(hyphen + 1));
    const auto last = canonicalPosition(end);
    if (!last)
        throw InputError(place + "\"" + reference + "\" ends at a verse that does not exist.");
    if (*last <= *first)
        throw InputError(place + "\"" + reference + "\" does not end after it starts.");
}

std::string joinReferences(std::string_view references, const std::string& place)
{
    std::string list;
    while (!references.empty()) {
        const std::size_t end = std::min(references.find(' '), references.size());
        const std::string reference(references.substr(0, end));
        checkReference(reference, place);
        list += (list.empty() ? "" : "\\") + reference;
        references.remove_prefix(std::min(end + 1, references.size()));
    }
    if (list.empty())
        throw InputError(place + "the topic has no references.");
    return list;
}

void checkName(const std::string& name, const std::string& place)
{
    if (name.empty() || name.front() == ' ' || name.back() == ' ')
        throw InputError(place + "the name is empty or has a blank at an end.");
    if (name.find_first_of("'\\") != std::string::npos)
        throw InputError(place + "the name \"" + name + "\" holds an apostrophe or a backslash.");
}

} // namespace

std::vector<Topic> readTopics(std::string_view bytes, const std::string& file, const std::string& type,
                              std::set<std::string>& names)
{
    std::vector<Topic> topics;
    std::size_t number = 0;
    for (const std::string_view line : readLines(bytes, file)) {
        const std::string place = at(file, ++number);
        if (line.empty() || line.front() == '#')
            continue;
        const auto columns = splitAtTabs(line);
        if (columns.size() != 2)
            throw InputError(place + "a topic is a name, one tab and its references.");
        const std::string name(columns[0]);
        checkName(name, place);
        if (!names.insert(name).second)
            throw InputError(place + "the name \"" + name + "\" is taken by another topic.");
        topics.push_back({name, joinReferences(columns[1], place), type});
    }
    return topics;
}
