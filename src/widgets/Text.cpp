#include "widgets/Text.h"

QString trimBlanks(const QString& text)
{
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text[first] == ' ')
        ++first;
    while (end > first && text[end - 1] == ' ')
        --end;
    return text.mid(first, end - first);
}
