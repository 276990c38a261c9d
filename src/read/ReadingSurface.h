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

/// The palette of a scroll bar on that surface: the one of the window around it. What it leaves open the
/// scroll bar would take from the surface.
inline QPalette besideReadingSurface(QPalette palette)
{
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::WindowText, QPalette::Text})
        palette.setColor(role, palette.color(role));
    return palette;
}
