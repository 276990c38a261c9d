#include "app/Application.h"

#include "app/ButtonAccess.h"
#include "app/FrameStyle.h"
#include "app/LineEditAccess.h"
#include "app/ScrollBarAccess.h"
#include "desktop/MsgBox.h"
#include "widgets/Fonts.h"
#include "widgets/Hourglass.h"
#include "widgets/Modality.h"
#include <exception>
#include <QAccessible>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QTimer>
#include <QWidget>

namespace {

/// One for every selection: dark blue with white letters (7 to 1) where the keys go, paler with black ones
/// (6 to 1) elsewhere, both on light and on dark desktops.
QPalette selectionColors()
{
    QPalette colors;
    const QColor pale(0x6391c0);
    colors.setColor(QPalette::Highlight, QColor(0x12559c));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    colors.setColor(QPalette::Inactive, QPalette::Highlight, pale);
    colors.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    return colors;
}

} // namespace

int Application::argumentCount = 1;

void Application::keepLibrariesQuiet()
{
    QLoggingCategory::setFilterRules("default.warning=false");
    if (!qEnvironmentVariableIsSet("XKB_LOG_LEVEL"))
        qputenv("XKB_LOG_LEVEL", "crit");
}

Application::Application(char* programName[])
    : QApplication(argumentCount, programName)
{
    setApplicationName("kestrel-reader");
    setApplicationDisplayName(""); // captions are the windows' own
    setDesktopFileName("io.github.kestrelreader.KestrelReader");
    // Qt's warnings on standard error about what is handled: a damaged picture is left out or shown as far as
    // it goes, a message box tells when another program took the clipboard, an assistive program that asks
    // for a window just closed is told that there is none, and no window needs the plugin for OpenGL on
    // Wayland, which may be missing.
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false\nqt.qpa.clipboard=false\n"
                                     "qt.accessibility.atspi*=false\nqt.qpa.wayland.warning=false");
    QAccessible::installFactory(buttonAccess);
    QAccessible::installFactory(lineEditAccess);
    QAccessible::installFactory(scrollBarAccess);
    setStyle(new FrameStyle);
    setPalette(selectionColors());
    // Fusion caches a pixmap of each message box's buttons. Qt's own limit of 10 MB lets the memory grow
    // without making anything faster.
    QPixmapCache::setCacheLimit(512); // kB
    Fonts::install(applicationDirPath() + "/fonts");
    setFont(Fonts::captionsOf(9));
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    if (m_ending && event->type() == QEvent::Timer && stopTimer(receiver))
        return true;
    if (event->type() == QEvent::Show)
        closeBehindModalWindow(receiver);
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        endWith(QString::fromUtf8(error.what()));
        return true;
    }
}

// While the last message stands, AutoJump and the clip rest. They are stopped, because Qt calls a timer whose
// tick nobody takes again and again; Qt's own timers go on, and stop themselves.
bool Application::stopTimer(QObject* receiver)
{
    auto* timer = qobject_cast<QTimer*>(receiver);
    if (timer)
        timer->stop();
    return timer;
}

// An assistive program can open a menu or a combo box's list behind a modal window, over which it would
// stand.
void Application::closeBehindModalWindow(QObject* receiver)
{
    auto* popup = qobject_cast<QWidget*>(receiver);
    if (popup && popup->windowType() == Qt::Popup && popup->parentWidget() &&
        isBehindModalWindow(*popup->parentWidget()))
        QMetaObject::invokeMethod(popup, &QWidget::close, Qt::QueuedConnection);
}

void Application::endWith(const QString& message)
{
    if (m_ending)
        return;
    m_ending = true;
    Hourglass::restoreAll();
    MsgBox::show(message, MsgIcon::Stop);
    exit(1);
}
