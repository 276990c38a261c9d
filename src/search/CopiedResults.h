#pragma once

#include <QString>

class ListLines;

/// The text of a results list for the clipboard, and how much of the list it holds.
struct CopiedResults
{
    QString text; ///< with CR LF between its lines
    int lines;
    bool isCutShort; ///< more lines would follow
};

/// A heading, the lines, and "(PT)". Ends after the line that brings heading and lines over 30,500
/// characters, line breaks counted.
CopiedResults copiedResults(const ListLines& lines);
