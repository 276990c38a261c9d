#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// One row of the classified verses.
struct Topic
{
    std::string name;
    std::string verseList; ///< references joined by backslashes
    std::string type;      ///< "Events", "Miracles", "Parables" or "Prophecy"
};

/// A file of topics and the group that it holds.
struct TopicFile
{
    const char* file;
    const char* type;
};

inline constexpr TopicFile topicFiles[] = {
    {"events.txt", "Events"},
    {"miracles.txt", "Miracles"},
    {"parables.txt", "Parables"},
    {"prophecy.txt", "Prophecy"},
};

/// Reads the topics of one file: a line is a name, a tab, and references parted by blanks, each a verse key
/// or a verse key, "-" and the end of the range as verse, chapter:verse or whole key. Empty lines and lines
/// beginning with "#" say nothing. `names` holds the names taken so far and takes those read. Throws
/// InputError naming file and line when a line is malformed, a verse does not exist, a range does not ascend,
/// or a name is taken or holds an apostrophe or a backslash, which the queries on this table cannot bear.
std::vector<Topic> readTopics(std::string_view bytes, const std::string& file, const std::string& type,
                              std::set<std::string>& names);
