#pragma once

#include <QPalette>

/// The pale-yellow surface on which the Bible's text is read, with dark text of its own, so that a dark theme
/// keeps it readable (20 to 1).
inline QPalette readingSurface(QPalette palette)
{
    const QColor paleYellow(255, 255, 224);
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base})
        palette.setColor(role, paleYellow);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
        palette.setColor(role, Qt::black);
    return palette;
}
