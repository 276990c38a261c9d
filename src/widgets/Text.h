#pragma once

#include <QString>
#include <string_view>

/// A text of the database for the windows.
inline QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Leading and trailing blanks cut off, no other white space.
QString trimBlanks(const QString& text);
