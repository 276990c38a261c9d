#pragma once

#include <cstdint>
#include <QString>

/// The number of the last verse, after which the first follows. A literal, not the length of the table: the
/// rule of the wrap is about this number, whatever a database holds.
constexpr int lastVerse = 31102;

/// The number at the start of a text; 0 for an empty or non-numeric one.
double leadingNumber(const QString& text);

/// The number of the verse after, or before, the one whose number a label shows. The wraps at 31102 and 1 are
/// tests for equality on the number shown, not for range: an empty label (0) steps forward to 1 and back to
/// -1, which is no verse.
std::int32_t verseAfter(const QString& serial);
std::int32_t verseBefore(const QString& serial);

/// The interval of the automatic advance in milliseconds for a number of seconds as text.
int intervalOf(const QString& seconds);
