#pragma once

#include <QApplication>

/// The widget that a key goes to; nullptr while another program is in front.
inline QWidget* activeWidget()
{
    QWidget* const focused = QApplication::focusWidget();
    return focused ? focused : QApplication::activeWindow();
}
