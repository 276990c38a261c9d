#include "app/KeyPreview.h"

#include "help/Help.h"
#include "widgets/ActiveWidget.h"
#include "widgets/Form.h"
#include <QKeyEvent>

namespace {

bool isHelpKey(const QKeyEvent& key)
{
    return key.type() == QEvent::KeyPress && key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier &&
           !key.isAutoRepeat();
}

/// Leaves the key itself to the widget that has the focus.
bool keepFromShortcuts(QKeyEvent& key)
{
    key.accept();
    return key.type() == QEvent::ShortcutOverride;
}

/// While an assistive program listens, Qt keeps each key until AT-SPI has answered, and then sends a copy.
/// That of Alt, after the letter of an access key, would make QMenuBar take Alt for pressed alone.
bool isCopyOfAlt(const QKeyEvent& key)
{
    return key.type() == QEvent::ShortcutOverride && key.key() == Qt::Key_Alt && !key.spontaneous();
}

void tellOfClick(QObject* watched, const QFocusEvent& event)
{
    auto* control = qobject_cast<QWidget*>(watched);
    Form* form = event.reason() == Qt::MouseFocusReason ? Form::of(control) : nullptr;
    if (form)
        form->focusedByMouse(*control);
}

} // namespace

KeyPreview::KeyPreview(Help& help)
    : m_help(help)
{
    qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        tellOfClick(watched, static_cast<QFocusEvent&>(*event));
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    // Only at the widget that the key is for: one that it leaves alone passes here again on its way up.
    if (!isKey || watched != activeWidget())
        return false;
    auto& key = static_cast<QKeyEvent&>(*event);
    Form* form = Form::of(activeWidget());
    if (isCopyOfAlt(key) || (form && form->isMoved()))
        return keepFromShortcuts(key);
    if (isHelpKey(key)) // the control sees it all the same, and first
        QMetaObject::invokeMethod(&m_help, &Help::open, Qt::QueuedConnection);
    return form && form->preview(key);
}
