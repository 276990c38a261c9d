#include "widgets/KeptSelection.h"

#include <QEvent>
#include <QLineEdit>

KeptSelection::KeptSelection(QWidget& focus, QLineEdit& field)
    : QObject(&focus)
    , m_field(field)
{
    focus.installEventFilter(this);
}

bool KeptSelection::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        m_text = m_field.text();
        m_start = m_field.selectionStart();
        m_length = m_field.selectionLength();
    }
    if (event->type() == QEvent::FocusIn && m_start >= 0 && m_text == m_field.text())
        m_field.setSelection(m_start, m_length);
    return false;
}
