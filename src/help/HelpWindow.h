#pragma once

#include "help/HelpFile.h"
#include <QMainWindow>

class HelpBrowser;
class QAction;
class QLineEdit;
class QListWidget;

/// The help: a list of its pages, the page itself, and a line to search for a word. It is a window beside the
/// program's others and changes nothing in them.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HelpWindow(const QList<HelpPage>& pages);

    void showPage(const QString& name);
    /// Shows the window so that it can be used while a modal window is open; modal may be nullptr.
    void standBeside(const QWidget* modal);

    QAction* back;
    QAction* forward;
    QAction* copy;
    QAction* larger;
    QAction* smaller;
    QAction* normalSize;
    QAction* find;
    QAction* findNext;
    QAction* findPrevious;
    QLineEdit* searchText;
    QListWidget* contents;
    HelpBrowser* browser;

private:
    void pageChanged();
    void contentsChosen(int row);
    void search(bool backward);
    void zoom(int step);

    QAction* addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys);
    void makeToolbar();

    const QList<HelpPage> m_pages;
    int m_zoom = 0;
};
