#pragma once

#include "widgets/KeepsScrolling.h"
#include <QPlainTextEdit>
#include <QWheelEvent>

/// A text of many lines to read. Its type has the size that its window gives it: the wheel with Ctrl, by
/// which QPlainTextEdit::wheelEvent would zoom, does nothing.
class PlainText : public KeepsScrolling<QPlainTextEdit>
{
    Q_OBJECT

public:
    using KeepsScrolling::KeepsScrolling;

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (event->modifiers() & Qt::ControlModifier)
            event->accept();
        else
            QPlainTextEdit::wheelEvent(event);
    }
};
