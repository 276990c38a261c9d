#include "app/ArrangeIcons.h"

#include "widgets/Form.h"
#include <QMdiArea>

void lineUpIcons(QMdiArea& area)
{
    const QRect room = area.viewport()->rect();
    int left = 0;
    int bottom = room.height();
    for (const Form* form : Form::allIn(area)) {
        if (form->state() != Form::Minimized)
            continue;
        QWidget* icon = form->parentWidget(); // the whole window, as small as it is now
        if (left > 0 && left + icon->width() > room.width()) {
            left = 0;
            bottom -= icon->height();
        }
        icon->move(left, bottom - icon->height());
        left += icon->width();
    }
}
