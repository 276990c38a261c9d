#pragma once

#include <QString>

/// A directory with one separator at its end: added unless it is there already, as it is at a drive's root.
QString withSeparator(QString directory);

/// The names of the installed files, all in the program's directory.
inline const QString databaseFileName = QStringLiteral("KESTRPT.DAT");
inline const QString clipFileName = QStringLiteral("SEARCH.AVI");
inline const QString helpFileName = QStringLiteral("KESTREL.HLP");

/// The path of the database, as a data source takes it, in a directory with a separator at its end.
inline std::string databasePath(const QString& basePath)
{
    return (basePath + databaseFileName).toStdString();
}
