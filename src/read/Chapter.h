#pragma once

#include <QString>

class DataSource;

/// The chapter of a verse key: its part up to and including the second ":", as in "Mt:24:" for "Mt:24:43".
/// The last ":" keeps chapter 24 apart from chapter 240.
QString chapterReference(const QString& key);

/// The caption of the window that shows a chapter, and the reference that such a caption carries.
QString chapterCaption(const QString& reference);
QString referenceInCaption(const QString& caption);

/// The text of a chapter: for each verse its key, its text (which brings the blank between them) and CR LF;
/// then "(PT)". Asks the source once a verse and stops at the first that does not exist, at the latest after
/// verse 300. Throws DataError.
QString gatherChapter(DataSource& source, const QString& reference);
