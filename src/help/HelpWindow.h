#pragma once

#include "help/HelpFile.h"
#include <QMainWindow>

class HelpBrowser;
class QAction;
class QLineEdit;
class QListWidget;

/// The help: a list of its pages, the page itself, a line to search for a word and a switch of language. It
/// is a window beside the program's others and changes nothing in them.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// pages: of both languages, or of one; language: the one to begin with, where there is a choice.
    HelpWindow(const QList<HelpPage>& pages, HelpLanguage language);

    void showPage(const QString& name);
    /// Shows the window so that it can be used while a modal window is open; modal may be nullptr.
    void standBeside(const QWidget* modal);

private:
    void pageChanged();
    void contentsChosen(int row);
    void search(bool backward);
    void zoom(int step);
    void setLanguage(HelpLanguage language);

    QAction* addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys);
    void makeToolbar();

    QAction* back;
    QAction* forward;
    QAction* copy;
    QAction* larger;
    QAction* smaller;
    QAction* normalSize;
    QAction* find;
    QAction* findNext;
    QAction* findPrevious;
    QAction* otherLanguage; ///< bears its name, in that language
    QLineEdit* searchText;
    QListWidget* contents;
    HelpBrowser* browser;

    const QList<HelpPage> m_allPages;
    QList<HelpPage> m_pages; ///< those in the language that is shown
    HelpLanguage m_language;
    int m_zoom = 0;
};
