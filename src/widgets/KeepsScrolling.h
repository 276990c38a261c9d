#pragma once

#include <QKeyEvent>
#include <QWheelEvent>

/// A text, list or tree that keeps the wheel and the keys that move in it, also where it has come to its end:
/// QAbstractScrollArea leaves them there to what lies behind, which would move.
template <class View>
class KeepsScrolling : public View
{
public:
    using View::View;

protected:
    bool event(QEvent* event) override
    {
        const bool done = View::event(event); // of its scroll bars, too
        return event->type() == QEvent::Wheel ? keep(*event) : done;
    }

    bool viewportEvent(QEvent* event) override
    {
        const bool done = View::viewportEvent(event);
        return event->type() == QEvent::Wheel ? keep(*event) : done;
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        View::keyPressEvent(event);
        if (event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown) // the arrow keys lie between
            event->accept();
    }

private:
    static bool keep(QEvent& event)
    {
        event.accept();
        return true;
    }
};
