#include "app/Application.h"

#include "app/FrameStyle.h"
#include "desktop/MsgBox.h"
#include "widgets/Fonts.h"
#include "widgets/Hourglass.h"
#include <cstdlib>
#include <exception>
#include <QLoggingCategory>
#include <QPixmapCache>

namespace {

QtMessageHandler printMessage = nullptr;

// QThread::start() only prints when there is no memory for a thread. Qt then waits for ever for what that
// thread should do, so the process ends here instead.
void endWithoutThreads(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    printMessage(type, context, message);
    if (message.startsWith("QThread::start: Thread creation error"))
        std::_Exit(1);
}

} // namespace

int Application::argumentCount = 1;

Application::Application(char* programName[])
    : QApplication((printMessage = qInstallMessageHandler(endWithoutThreads), argumentCount), programName)
{
    setApplicationName("kestrel-reader");
    setApplicationDisplayName(""); // captions are the windows' own
    setDesktopFileName("io.github.kestrelreader.KestrelReader");
    // Qt's warnings on standard error about two things that the windows handle: a damaged picture is left out
    // or shown as far as it goes, and a message box tells when another program took the clipboard.
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false\nqt.qpa.clipboard=false");
    setStyle(new FrameStyle);
    // Fusion caches a pixmap of each message box's buttons. Qt's own limit of 10 MB lets the memory grow
    // without making anything faster.
    QPixmapCache::setCacheLimit(512); // kB
    Fonts::install();
    setFont(Fonts::captionsOf(9));
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    if (m_ending && event->type() == QEvent::Timer)
        return true;
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        endWith(QString::fromUtf8(error.what()));
        return true;
    }
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
