#pragma once

#include <QApplication>

/// Makes a window of the program the active one at once; nullptr when another program comes to the front.
/// Qt 6.5 calls this deprecated and has nothing for it: QWidget::activateWindow() asks the desktop, and
/// cannot ask it for another program.
inline void makeActive(QWidget* window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(window);
    QT_WARNING_POP
}
