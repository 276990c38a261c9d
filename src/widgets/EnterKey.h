#pragma once

#include <QKeyEvent>

/// Whether the key is Enter, on either part of the keyboard.
inline bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}
