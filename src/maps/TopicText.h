#pragma once

#include <QString>
#include <QStringList>

/// The entries of the list of references, made of a topic's verse list, whose references are separated by
/// backslashes. Each is framed by one space on either side. An empty list and a trailing backslash give no
/// entry; between two adjacent backslashes stands an entry of two spaces. Takes time in proportion to the
/// list's length.
QStringList referenceEntries(const QString& verseList);

/// The verse that an entry opens: what stands before its first hyphen, without the framing spaces.
QString referenceOf(const QString& entry);

/// The entry of the list of topics for a topic's name, led by one space; and the name of an entry.
QString topicEntry(const QString& name);
QString topicOf(const QString& entry);
