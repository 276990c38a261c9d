#pragma once

#include <QString>

class QWidget;

/// The name of the help page for a widget, which may be nullptr: the class name of the window it is in. A
/// message box belongs to the window that shows it, and what is the frame's own to the active child window.
QString helpPageOf(const QWidget* widget);
