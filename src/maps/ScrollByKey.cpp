#include "maps/ScrollByKey.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr int step = 60; // pixels

// At its end too a bar takes the key: else it would move the focus, and with it the view.
bool scroll(QScrollBar& bar, int way)
{
    bar.setValue(bar.value() + way);
    return bar.maximum() > bar.minimum();
}

bool scroll(QAbstractScrollArea& area, int key)
{
    QScrollBar& across = *area.horizontalScrollBar();
    QScrollBar& down = *area.verticalScrollBar();
    switch (key) {
    case Qt::Key_Left:
        return scroll(across, -step);
    case Qt::Key_Right:
        return scroll(across, step);
    case Qt::Key_Up:
        return scroll(down, -step);
    case Qt::Key_Down:
        return scroll(down, step);
    case Qt::Key_PageUp:
        return scroll(down, -down.pageStep());
    case Qt::Key_PageDown:
        return scroll(down, down.pageStep());
    default:
        return false;
    }
}

} // namespace

bool scrollByKey(const QWidget& widget, const QKeyEvent& event)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    for (QWidget* around = widget.parentWidget(); around; around = around->parentWidget()) {
        auto* area = qobject_cast<QAbstractScrollArea*>(around);
        if (area && scroll(*area, event.key()))
            return true;
    }
    return false;
}
