#pragma once

#include <QList>
#include <QString>

/// One page of the help.
struct HelpPage
{
    QString name;  ///< the class name of the window it is about, or a name of its own
    QString title; ///< its heading
    QString html;
};

/// The pages in a help text, in their order. The text is HTML; a page is
/// <section id="name"><h1>title</h1>...</section>, and a link to it is "#name".
QList<HelpPage> helpPages(const QString& text);

/// The pages of a help file; none when it cannot be read.
QList<HelpPage> readHelpFile(const QString& path);
