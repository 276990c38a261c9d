#pragma once

#include <optional>
#include <QDateTime>
#include <QString>

/// What the shipped database file must carry: its length in bytes, and its time of modification in local
/// time.
constexpr qint64 databaseLength = 6'834'176;
inline const QDateTime databaseTime(QDate(1998, 5, 5), QTime(5, 0));

/// A reason not to start: what the message says, and its title.
struct Refusal
{
    QString text;
    QString title;
};

/// Whether a file can be opened for reading. A folder or a pipe cannot.
bool isPresent(const QString& path);

/// Whether the file's length, and its time to the second, are those of the shipped database.
bool isUnmodified(const QString& path);

/// The checks in their order, ending with the first that fails: another copy running, the clip, the database,
/// and the database's time and length. basePath ends with a separator.
std::optional<Refusal> startupRefusal(const QString& basePath);
