#include "widgets/AccessKeys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>

namespace {

QWidget* controlOf(const QWidget& window, const QKeyEvent& key)
{
    if (key.modifiers() != Qt::AltModifier)
        return nullptr;
    const QKeySequence pressed(key.keyCombination());
    for (QWidget* child : window.findChildren<QWidget*>()) {
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

} // namespace

bool pressAccessKey(QWidget& window, QKeyEvent& key)
{
    QWidget* control = controlOf(window, key);
    if (!control)
        return false;
    if (key.type() == QEvent::ShortcutOverride) {
        key.accept();
        return true;
    }
    control->setFocus(Qt::ShortcutFocusReason);
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
    return true;
}
