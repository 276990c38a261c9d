#include "app/EscCloses.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

EscCloses::EscCloses(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool EscCloses::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent&>(*event).key() != Qt::Key_Escape)
        return false;
    const auto* control = qobject_cast<QWidget*>(watched);
    if (!control || control->window() != &m_window)
        return false;
    m_window.close();
    return true;
}
