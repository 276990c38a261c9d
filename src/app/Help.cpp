#include "app/Help.h"

#include "app/HelpWindow.h"
#include "app/MDIParent.h"
#include "widgets/Form.h"
#include "widgets/MsgBox.h"
#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>

namespace {

const QWidget* activeWidget()
{
    const QWidget* const focused = QApplication::focusWidget();
    return focused ? focused : QApplication::activeWindow();
}

bool isHelpKey(const QKeyEvent& key)
{
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

} // namespace

Help::Help(const QString& path)
    : m_path(path)
{
    qApp->installEventFilter(this);
}

Help::~Help()
{
    delete m_window;
}

HelpWindow* Help::window() const
{
    return m_window;
}

void Help::open()
{
    const QString page = helpPageOf(activeWidget());
    if (!m_window) {
        const QList<HelpPage> pages = readHelpFile(m_path);
        if (pages.isEmpty()) {
            MsgBox::show("Couldn't find file 'KESTREL.HLP'. Please run Setup.", MsgIcon::Exclamation);
            return;
        }
        m_window = new HelpWindow(pages);
    }
    m_window->showPage(page);
    m_window->standBeside(QApplication::activeModalWidget());
    m_window->raise();
    m_window->activateWindow();
}

bool Help::eventFilter(QObject* watched, QEvent* event)
{
    // Only at the widget with the focus, because a key that it leaves alone passes here again on its way up.
    // The control sees the key all the same, and first.
    if (event->type() == QEvent::KeyPress && watched == activeWidget() &&
        isHelpKey(static_cast<QKeyEvent&>(*event)))
        QMetaObject::invokeMethod(this, &Help::open, Qt::QueuedConnection);
    return false;
}

QString helpPageOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (const auto* frame = qobject_cast<const MDIParent*>(widget)) {
            const QMdiSubWindow* active = frame->area()->currentSubWindow();
            return active && active->widget() ? active->widget()->objectName() : frame->objectName();
        }
        const bool isDialog =
            qobject_cast<const QDialog*>(widget) && !qobject_cast<const QMessageBox*>(widget);
        if (isDialog || qobject_cast<const Form*>(widget) || qobject_cast<const HelpWindow*>(widget))
            return widget->objectName();
    }
    return "MDIParent";
}
