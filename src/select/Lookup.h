#pragma once

#include <QString>

class ChildRead;

/// The most characters a typed reference may have.
constexpr int maxReferenceLength = 14;

/// Shows the first verse whose key begins with the text, in the reading window. The text is used whole, as
/// typed, as a prefix of the verse key; it is not split and not quoted. When no verse is found, a message
/// says so and the verse shown before comes back. A text that breaks the query lets SQLite's DataError
/// through, on purpose.
void displayVerse(ChildRead& reading, const QString& reference);
