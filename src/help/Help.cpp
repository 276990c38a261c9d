#include "help/Help.h"

#include "desktop/MsgBox.h"
#include "help/HelpWindow.h"
#include <QApplication>
#include <QKeyEvent>
#include <QLocale>

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

Help::Help(const QString& path, PageOf pageOf)
    : m_path(path)
    , m_pageOf(std::move(pageOf))
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
    const QString page = m_pageOf(activeWidget());
    if (!m_window) {
        const QList<HelpPage> pages = readHelpFile(m_path);
        if (pages.isEmpty()) {
            MsgBox::show("Couldn't find file 'KESTREL.HLP'. Please run Setup.", MsgIcon::Exclamation);
            return;
        }
        m_window = new HelpWindow(pages, helpLanguage(QLocale().uiLanguages()));
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
