#include "search/CopiedResults.h"

#include "widgets/ListLines.h"
#include "widgets/Text.h"

CopiedResults copiedResults(const ListLines& lines)
{
    constexpr qsizetype limit = 30500;
    const QString lineBreak = "\r\n";
    QString text = "Search Results:";
    int copied = 0;
    while (copied < lines.count() && text.size() <= limit)
        text += lineBreak + toText(lines.line(copied++));
    return {text + lineBreak + "(PT)", copied, copied < lines.count()};
}
