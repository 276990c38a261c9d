#pragma once

class QKeyEvent;
class QWidget;

/// Does what the Alt key of a control does, if the key pressed is the one of a control of this window; true
/// if it is. Inside its window that key then wins over the one of a menu with the same letter, where Qt
/// would give it to the two in turn; the menu stays reachable by Alt alone, then the letter.
///
/// The key comes twice: as QEvent::ShortcutOverride, which is accepted so that the press does not go to the
/// menus, and as the press. It serves labels with a buddy and captioned buttons that are visible and enabled.
bool pressAccessKey(QWidget& window, QKeyEvent& key);
