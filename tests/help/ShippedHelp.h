#pragma once

#include "help/HelpFile.h"

inline const QString helpSource = QStringLiteral(KESTREL_SOURCE_DIR "/data/help/kestrel.html");

/// The pages of the help as it is shipped, in one language.
inline const QList<HelpPage>& shippedPages(HelpLanguage language)
{
    static const QList<HelpPage> all = readHelpFile(helpSource);
    static const QList<HelpPage> english = pagesIn(all, HelpLanguage::English);
    static const QList<HelpPage> portuguese = pagesIn(all, HelpLanguage::Portuguese);
    return language == HelpLanguage::English ? english : portuguese;
}

inline QString shippedPage(const QString& name, HelpLanguage language)
{
    for (const HelpPage& page : shippedPages(language))
        if (page.name == name)
            return page.html;
    return {};
}
