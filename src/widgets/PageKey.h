#pragma once

#include <QKeyEvent>

/// Which way a key pages: 1 for Page Down, -1 for Page Up, 0 for another key or one with a modifier.
inline int pagesOf(const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return 0;
    return (event.key() == Qt::Key_PageDown) - (event.key() == Qt::Key_PageUp);
}
