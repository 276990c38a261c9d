#pragma once

#include <QStringList>

/// The parts of the Bible that can be searched, in the order on which rangeCondition() relies: the groups and
/// books of the Old Testament, then those of the New.
QStringList searchRanges();

/// The condition for the entry at this place, ending in " AND ". A group has the bounds of its verse numbers;
/// every other place, -1 too, takes the entry's own text as the beginning of the verse key. So the entry "Ez"
/// also finds the verses of "Ezr", on purpose.
QString rangeCondition(int place, const QString& entry);
