#pragma once

#include <QStringList>

/// The languages that the help is written in.
enum class HelpLanguage { English, Portuguese };

/// The one to open the help in; English where neither is wanted. wanted: the languages of the desktop, the
/// dearest first, as QLocale::uiLanguages() names them.
HelpLanguage helpLanguage(const QStringList& wanted);

/// The language to which the help can be switched.
HelpLanguage otherThan(HelpLanguage language);
