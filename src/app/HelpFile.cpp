#include "app/HelpFile.h"

#include <QFile>
#include <QFileInfo>
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
    // The kind of file is asked first, because opening a pipe would wait for its writer.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return helpPages(QString::fromUtf8(file.readAll()));
}
