#include "help/HelpLanguage.h"

#include <QLocale>

HelpLanguage helpLanguage(const QStringList& wanted)
{
    for (const QString& name : wanted) {
        const QLocale::Language language = QLocale(name).language();
        if (language == QLocale::Portuguese)
            return HelpLanguage::Portuguese;
        if (language == QLocale::English)
            return HelpLanguage::English;
    }
    return HelpLanguage::English;
}

HelpLanguage otherThan(HelpLanguage language)
{
    return language == HelpLanguage::English ? HelpLanguage::Portuguese : HelpLanguage::English;
}
