#include "help/HelpFile.h"

#include "desktop/OpenFile.h"
#include "help/HelpHtml.h"
#include <algorithm>
#include <iterator>
#include <QRegularExpression>

QList<HelpPage> helpPages(const QString& text)
{
    static const QRegularExpression section(
        "<section id=\"(pt-)?(\\w+)\"[^>]*>\\s*(<h1>(.*?)</h1>.*?)</section>",
        QRegularExpression::DotMatchesEverythingOption);
    QList<HelpPage> pages;
    for (auto matches = section.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool portuguese = match.hasCaptured(1);
        const QString html = match.captured(3).replace("href=\"#pt-", "href=\"#");
        pages += {match.captured(2), match.captured(4), html,
                  portuguese ? HelpLanguage::Portuguese : HelpLanguage::English};
    }
    return pages;
}

QList<HelpPage> pagesIn(const QList<HelpPage>& pages, HelpLanguage language)
{
    QList<HelpPage> found;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(found),
                 [language](const HelpPage& page) { return page.language == language; });
    return found;
}

QList<HelpPage> readHelpFile(const QString& path)
{
    QFile file(path);
    if (!openForReading(file))
        return {};
    const QByteArray text = file.read(HelpLimits::bytes + 1);
    if (text.size() > HelpLimits::bytes)
        return {};
    return helpPages(cleanedHelp(QString::fromUtf8(text)).value_or(QString()));
}
