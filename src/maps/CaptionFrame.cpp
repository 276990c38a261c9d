#include "maps/CaptionFrame.h"

#include <QEvent>

bool CaptionFrame::event(QEvent* event)
{
    if (event->type() == QEvent::Shortcut && focusWidget())
        focusWidget()->clearFocus();
    return QGroupBox::event(event);
}
