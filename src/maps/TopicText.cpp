#include "maps/TopicText.h"

QStringList referenceEntries(QString verseList)
{
    QStringList entries;
    while (!verseList.isEmpty()) {
        const qsizetype end = verseList.indexOf('\\');
        entries += " " + verseList.left(end) + " ";
        verseList = end < 0 ? QString() : verseList.mid(end + 1);
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
