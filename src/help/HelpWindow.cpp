#include "help/HelpWindow.h"

#include "desktop/Platform.h"
#include "help/HelpBrowser.h"
#include "pictures/Pictures.h"
#include "widgets/Fonts.h"
#include "widgets/Twips.h"
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

namespace {

constexpr int minZoom = -3;
constexpr int maxZoom = 20;

/// Gives a command its text, and the tip that tells the key besides.
void setTextOf(QAction& command, const QString& text)
{
    command.setText(text);
    command.setToolTip(text + " (" + command.shortcut().toString(QKeySequence::NativeText) + ")");
}

} // namespace

HelpWindow::HelpWindow(const QList<HelpPage>& pages, HelpLanguage language)
    : back(addCommand("back", "Back", {Qt::ALT | Qt::Key_Left}))
    , forward(addCommand("forward", "Forward", {Qt::ALT | Qt::Key_Right}))
    , copy(addCommand("copy", "Copy", {Qt::CTRL | Qt::Key_C}))
    , larger(addCommand("larger", "Larger", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}))
    , smaller(addCommand("smaller", "Smaller", {Qt::CTRL | Qt::Key_Minus}))
    , normalSize(addCommand("normalSize", "Normal Size", {Qt::CTRL | Qt::Key_0}))
    , find(addCommand("find", "Find", {Qt::CTRL | Qt::Key_F}))
    , findNext(addCommand("findNext", "Next", {Qt::Key_F3}))
    , findPrevious(addCommand("findPrevious", "Previous", {Qt::SHIFT | Qt::Key_F3}))
    , otherLanguage(addCommand("otherLanguage", "Português", {Qt::CTRL | Qt::Key_L}))
    , searchText(new QLineEdit(this))
    , contents(new QListWidget(this))
    , browser(new HelpBrowser(this))
    , m_allPages(pages)
    , m_language(language)
{
    setObjectName("HelpWindow");
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle("Kestrel Reader Help");
    setWindowIcon(iconOf(PictureId::Application));
    searchText->setObjectName("searchText");
    searchText->setAccessibleName("Find:");
    contents->setObjectName("contents");
    contents->setAccessibleName("Contents");
    browser->setObjectName("browser");
    browser->setFont(Fonts::tahomaOf(10));
    makeToolbar();
    statusBar()->setSizeGripEnabled(false);

    auto* split = new QSplitter(this);
    split->addWidget(contents);
    split->addWidget(browser);
    split->setStretchFactor(1, 1);
    split->setSizes({toPixels(3000), toPixels(9000)});
    setCentralWidget(split);
    resize(QSize(toPixels(12600), toPixels(9000)).boundedTo(screen()->availableSize() * 0.92));

    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(back, &QAction::triggered, browser, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser, &QTextBrowser::forward);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(copy, &QAction::triggered, browser, &QTextEdit::copy);
    connect(browser, &QTextEdit::copyAvailable, copy, &QAction::setEnabled);
    connect(larger, &QAction::triggered, this, [this] { zoom(1); });
    connect(smaller, &QAction::triggered, this, [this] { zoom(-1); });
    connect(normalSize, &QAction::triggered, this, [this] { zoom(-m_zoom); });
    connect(find, &QAction::triggered, searchText, &QLineEdit::selectAll);
    connect(find, &QAction::triggered, searchText, [this] { searchText->setFocus(); });
    connect(findNext, &QAction::triggered, this, [this] { search(false); });
    connect(findPrevious, &QAction::triggered, this, [this] { search(true); });
    connect(otherLanguage, &QAction::triggered, this, [this] { setLanguage(otherThan(m_language)); });
    connect(searchText, &QLineEdit::returnPressed, this, [this] { search(false); });
    connect(contents, &QListWidget::currentRowChanged, this, &HelpWindow::contentsChosen);
    connect(browser, &QTextBrowser::historyChanged, this, &HelpWindow::pageChanged);
    for (QAction* unavailable : {back, forward, copy})
        unavailable->setEnabled(false);
    const bool asWanted = !pagesIn(pages, language).isEmpty();
    otherLanguage->setVisible(asWanted && !pagesIn(pages, otherThan(language)).isEmpty());
    setLanguage(asWanted ? language : otherThan(language));
    browser->setFocus();
}

void HelpWindow::showPage(const QString& name)
{
    browser->showPage(name);
}

void HelpWindow::standBeside(const QWidget* modal)
{
    // Qt blocks every window while a modal one is open, except the modal window's transient children, and
    // decides that when a window is shown: the native window must exist and have its parent before show().
    winId();
    QWindow* const owner = modal ? modal->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != owner) {
        hide();
        windowHandle()->setTransientParent(owner);
    }
    if (isMinimized())
        showNormal();
    show();
}

void HelpWindow::pageChanged()
{
    for (int row = 0; row < m_pages.size(); ++row)
        if (m_pages[row].name == browser->page())
            contents->setCurrentRow(row);
    browser->setAccessibleName(contents->currentItem() ? contents->currentItem()->text() : QString());
    statusBar()->clearMessage();
}

void HelpWindow::contentsChosen(int row)
{
    if (row >= 0 && m_pages[row].name != browser->page())
        showPage(m_pages[row].name);
}

void HelpWindow::search(bool backward)
{
    statusBar()->clearMessage();
    if (searchText->text().isEmpty() || browser->findText(searchText->text(), backward))
        return;
    statusBar()->showMessage("The help does not have \"" + searchText->text() + "\".");
    Platform::current().beep();
}

void HelpWindow::zoom(int step)
{
    const int wanted = qBound(minZoom, m_zoom + step, maxZoom);
    browser->zoomIn(wanted - m_zoom);
    m_zoom = wanted;
}

void HelpWindow::setLanguage(HelpLanguage language)
{
    m_language = language;
    m_pages = pagesIn(m_allPages, language);
    setTextOf(*otherLanguage, language == HelpLanguage::English ? "Português" : "English");
    {
        const QSignalBlocker samePage(contents); // in other words
        contents->clear();
        for (const HelpPage& page : m_pages)
            contents->addItem(page.title);
    }
    browser->setPages(m_pages);
    pageChanged();
}

QAction* HelpWindow::addCommand(const QString& name, const QString& text, const QList<QKeySequence>& keys)
{
    auto* action = new QAction(this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    setTextOf(*action, text);
    addAction(action);
    return action;
}

void HelpWindow::makeToolbar()
{
    auto* toolbar = addToolBar("Help Toolbar");
    toolbar->setObjectName("toolbar");
    toolbar->setAccessibleName(toolbar->windowTitle()); // as Qt did by itself before 6.8
    toolbar->setMovable(false);
    toolbar->addActions({back, forward});
    toolbar->addSeparator();
    auto* label = new QLabel("Find: ", toolbar);
    label->setBuddy(searchText);
    toolbar->addWidget(label);
    toolbar->addWidget(searchText);
    toolbar->addActions({findNext, findPrevious});
    toolbar->addSeparator();
    toolbar->addActions({copy, larger, smaller, normalSize});
    toolbar->addSeparator();
    toolbar->addAction(otherLanguage);
    toolbar->widgetForAction(otherLanguage)->setObjectName(otherLanguage->objectName());
    for (auto* button : toolbar->findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
    for (QAction* action : {back, forward, findNext, findPrevious, copy, larger, smaller, normalSize})
        toolbar->widgetForAction(action)->setObjectName(action->objectName());
    setContextMenuPolicy(Qt::NoContextMenu); // the toolbar cannot be hidden
}
