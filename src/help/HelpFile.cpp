#include "help/HelpFile.h"

#include "desktop/OpenFile.h"
#include <QRegularExpression>

QList<HelpPage> helpPages(const QString& text)
{
    static const QRegularExpression section("<section id=\"(\\w+)\">\\s*(<h1>(.*?)</h1>.*?)</section>",
                                            QRegularExpression::DotMatchesEverythingOption);
    QList<HelpPage> pages;
    for (auto matches = section.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        pages += {match.captured(1), match.captured(3), match.captured(2)};
    }
    return pages;
}

QList<HelpPage> readHelpFile(const QString& path)
{
    QFile file(path);
    if (!openForReading(file))
        return {};
    return helpPages(QString::fromUtf8(file.readAll()));
}
