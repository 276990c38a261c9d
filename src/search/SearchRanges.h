#pragma once

#include <QString>
#include <vector>

/// A part of the Bible that can be searched: a group of books with its verse numbers, or one book.
struct SearchRange
{
    QString entry;
    int first = 0; ///< verse numbers; 0 for one book
    int last = 0;
};

/// All of them, in the order in which they are listed: groups and books of the Old Testament, then of the
/// New.
const std::vector<SearchRange>& searchRanges();

/// The condition for a place in searchRanges(), ending in " AND ". A group has the bounds of its verse
/// numbers; every other place, -1 too, takes the entry's own text as the beginning of the verse key. So the
/// entry "Ez" also finds the verses of "Ezr", on purpose.
QString rangeCondition(int place, const QString& entry);
