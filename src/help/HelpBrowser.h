#pragma once

#include "help/HelpFile.h"
#include <QTextBrowser>

/// Shows one page of the help at a time and remembers the way back. Links to pages are followed here; all
/// others are the desktop's.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent);

    /// Takes these pages in place of those before, which may be in another language: the page that is shown
    /// is shown anew, and the way back is kept. Their names are unique.
    void setPages(const QList<HelpPage>& pages);

    /// Shows a page by its name.
    void showPage(const QString& name);
    /// The name of the page that is shown.
    QString page() const;

    /// Selects the next (or previous) place where a text stands, on this page or else on one of the following
    /// (or preceding) ones. False when the help does not have it.
    bool findText(const QString& text, bool backward);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void follow(const QUrl& link);

    QList<HelpPage> m_pages;
};
