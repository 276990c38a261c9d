#pragma once

#include "help/HelpLanguage.h"
#include <QList>
#include <QString>

/// One page of the help.
struct HelpPage
{
    QString name;  ///< the class name of the window it is about, or a name of its own
    QString title; ///< its heading
    QString html;
    HelpLanguage language = HelpLanguage::English;
};

/// The pages in a help text, in their order. The text is HTML; a page is
/// <section id="name"><h1>title</h1>...</section>, and a link to it is "#name". In Portuguese its id is
/// "pt-name", so that any browser follows the links; such a page is given back as "name", and so are the
/// links in it.
QList<HelpPage> helpPages(const QString& text);

/// Those in one language.
QList<HelpPage> pagesIn(const QList<HelpPage>& pages, HelpLanguage language);

/// The pages of a help file, as cleanedHelp() leaves them; none when it cannot be read or holds too much.
QList<HelpPage> readHelpFile(const QString& path);
