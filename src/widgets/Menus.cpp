#include "widgets/Menus.h"

#include "widgets/Form.h"
#include "widgets/Modality.h"
#include "widgets/Shell.h"
#include <QActionGroup>
#include <QMenu>

namespace {

constexpr int maxCaptionWidth = 400; // pixels

// Everything below the separator after "Arrange Icons" is the list of windows, made anew each time.
void listWindows(QMenu& menu, const Shell& shell)
{
    for (QAction* entry : menu.actions())
        if (entry->objectName().isEmpty())
            delete entry;
    auto* oneOfThem = menu.findChild<QActionGroup*>(); // one window is active: the others are the choice
    int number = 0;
    for (Form* window : shell.windows()) {
        const QString caption =
            menu.fontMetrics().elidedText(window->caption(), Qt::ElideMiddle, maxCaptionWidth);
        QAction* entry =
            menu.addAction(QString("&%1 %2").arg(++number).arg(QString(caption).replace("&", "&&")));
        entry->setCheckable(true);
        entry->setChecked(window->isActive());
        entry->setActionGroup(oneOfThem);
        QObject::connect(entry, &QAction::triggered, window, [window] {
            if (!isBehindModalWindow(*window))
                window->restoreAndActivate();
        });
    }
}

} // namespace

QMenu* Menus::make(QWidget& owner, const QString& name, const QString& caption)
{
    auto* menu = new QMenu(caption, &owner);
    menu->setObjectName(name);
    return menu;
}

QAction* Menus::addItem(QMenu* menu, const QString& name, const QString& caption,
                        const QKeySequence& shortcut, std::function<void()> command)
{
    QAction* item = menu->addAction(caption);
    item->setObjectName(name);
    item->setShortcut(shortcut);
    QObject::connect(item, &QAction::triggered, menu, [menu, command = std::move(command)] {
        if (!isBehindModalWindow(*menu->parentWidget())) // an assistive program may press it there
            command();
    });
    return item;
}

void Menus::addSeparator(QMenu* menu, const QString& name)
{
    menu->addSeparator()->setObjectName(name);
}

QMenu* Menus::file(QWidget& owner, Shell& shell)
{
    QMenu* menu = make(owner, "mnuFile", "&File");
    addItem(menu, "mnuSelect", "&Select Verse for Reading", Qt::Key_F2, [&shell] { shell.openSelection(); });
    addSeparator(menu, "mnuSep");
    addItem(menu, "mnuNote", "&Launch Notepad", Qt::CTRL | Qt::Key_N, [&shell] { shell.launchNotepad(); });
    addSeparator(menu, "mnuSep1");
    addItem(menu, "mnuQuit", "E&xit", {}, [&shell] { shell.exit(); });
    return menu;
}

QMenu* Menus::search(QWidget& owner, Shell& shell)
{
    QMenu* menu = make(owner, "mnutopSearch", "&Search");
    addItem(menu, "mnuSearch", "&Search", Qt::Key_F3, [&shell] { shell.openSearch(); });
    return menu;
}

QMenu* Menus::tools(QWidget& owner, Shell& shell, bool plainItem)
{
    QMenu* menu = make(owner, "mnutopTools", "&Tools");
    addItem(menu, "mnuTools", plainItem ? "Study Aids" : "&Study Aids",
            plainItem ? QKeySequence() : Qt::Key_F8, [&shell] { shell.openStudyAids(); });
    return menu;
}

QMenu* Menus::window(QWidget& owner, Shell& shell)
{
    QMenu* menu = make(owner, "mnuWindow", "&Window");
    addItem(menu, "mnuArrangeIco", "&Arrange Icons", {}, [&shell] { shell.arrangeIcons(); });
    addSeparator(menu, "mnuSepWindows");
    new QActionGroup(menu);
    QObject::connect(menu, &QMenu::aboutToShow, &owner, [menu, &shell] { listWindows(*menu, shell); });
    return menu;
}

QMenu* Menus::help(QWidget& owner, Shell& shell)
{
    QMenu* menu = make(owner, "mnuHelp", "&Help");
    addItem(menu, "mnuAbout", "&About...", {}, [&shell] { shell.about(); });
    return menu;
}
