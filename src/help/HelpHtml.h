#pragma once

#include <optional>
#include <QString>

/// How much a help file may hold, all its pages together. Qt needs twice the time for each table within a
/// table, and a thousand times the time for a word thirty times as long; within these limits any page shows
/// in a moment.
namespace HelpLimits {
constexpr qint64 bytes = qint64(4) * 1024 * 1024;
constexpr int pages = 200;
constexpr int tags = 20'000;
constexpr int cells = 5'000;
constexpr int words = 100'000;
constexpr int wordLength = 200; ///< characters without a blank or a new line between them
constexpr int nesting = 16;     ///< tags that are open at one time
} // namespace HelpLimits

/// A help text with nothing in it but what help is written in: sections, headings, paragraphs, lists, tables,
/// links and a few kinds of letters. Other tags are left out, and all attributes but names of sections,
/// addresses of links and borders of tables: nothing is left that could name a picture, a style or a file.
/// Nothing at all when the text holds more than HelpLimits allow, or its sections are not closed one by one.
std::optional<QString> cleanedHelp(QStringView html);
