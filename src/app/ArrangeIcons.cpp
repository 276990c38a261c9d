#include "app/ArrangeIcons.h"

#include <QMdiArea>
#include <QMdiSubWindow>

void lineUpIcons(QMdiArea& area)
{
    const QRect room = area.viewport()->rect();
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow* window : area.subWindowList()) {
        if (!window->isMinimized())
            continue;
        if (left > 0 && left + window->width() > room.width()) {
            left = 0;
            bottom -= window->height();
        }
        window->move(left, bottom - window->height());
        left += window->width();
    }
}
