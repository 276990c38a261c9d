#include "search/AccessKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

namespace {

/// Does what the Alt key of this control does.
void use(QWidget& control)
{
    control.setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->click();
}

} // namespace

AccessKeys::AccessKeys(QWidget& window)
    : QObject(&window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!(isOverride || event->type() == QEvent::KeyPress) || !isForWindow(watched))
        return false;
    QWidget* control = controlOf(static_cast<QKeyEvent&>(*event));
    if (!control)
        return false;
    if (isOverride)
        event->accept(); // the press then comes here instead of to the menus
    else
        use(*control);
    return true;
}

bool AccessKeys::isForWindow(QObject* receiver) const
{
    const QWidget* focus = QApplication::focusWidget();
    return receiver == focus && (focus == &m_window || m_window.isAncestorOf(focus));
}

QWidget* AccessKeys::controlOf(const QKeyEvent& key) const
{
    if (key.modifiers() != Qt::AltModifier)
        return nullptr;
    const QKeySequence pressed(key.keyCombination());
    for (QWidget* child : m_window.findChildren<QWidget*>()) {
        QWidget* control = child;
        QString caption;
        if (const auto* label = qobject_cast<QLabel*>(child)) {
            control = label->buddy();
            caption = label->text();
        } else if (const auto* button = qobject_cast<QAbstractButton*>(child)) {
            caption = button->text();
        }
        if (control && control->isVisible() && control->isEnabled() &&
            QKeySequence::mnemonic(caption) == pressed)
            return control;
    }
    return nullptr;
}
