#pragma once

#include <functional>
#include <QKeySequence>
#include <QString>

class QAction;
class QMenu;
class QWidget;
class Shell;

/// The menus that the frame and its windows share, made in one place. Each belongs to its owner; the shell
/// must outlive it.
namespace Menus {

QMenu* file(QWidget& owner, Shell& shell);
QMenu* search(QWidget& owner, Shell& shell);
/// plainItem: two windows name the item "Study Aids", without an access key and without the shortcut, on
/// purpose.
QMenu* tools(QWidget& owner, Shell& shell, bool plainItem = false);
/// Lists the frame's open windows whenever it is about to show.
QMenu* window(QWidget& owner, Shell& shell);
QMenu* help(QWidget& owner, Shell& shell);

/// An empty menu, and an item for it. Names are those in the code: `mnuEdit`, `mnuCopy`.
QMenu* make(QWidget& owner, const QString& name, const QString& caption);
QAction* addItem(QMenu* menu, const QString& name, const QString& caption, const QKeySequence& shortcut,
                 std::function<void()> command);
void addSeparator(QMenu* menu, const QString& name);

} // namespace Menus
