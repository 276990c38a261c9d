#include "maps/TopicText.h"

QStringList referenceEntries(const QString& verseList)
{
    QStringList entries;
    for (qsizetype start = 0; start < verseList.size();) {
        const qsizetype backslash = verseList.indexOf('\\', start);
        const qsizetype end = backslash < 0 ? verseList.size() : backslash;
        entries += " " + verseList.mid(start, end - start) + " ";
        start = end + 1;
    }
    return entries;
}

QString referenceOf(const QString& entry)
{
    return entry.left(entry.indexOf('-')).trimmed();
}

QString topicEntry(const QString& name)
{
    return " " + name;
}

QString topicOf(const QString& entry)
{
    qsizetype start = 0;
    while (entry.mid(start, 1) == " ")
        ++start;
    return entry.mid(start);
}
