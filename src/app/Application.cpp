#include "app/Application.h"

#include "app/FrameStyle.h"
#include "widgets/Fonts.h"
#include "widgets/MsgBox.h"
#include <cstdlib>
#include <exception>
#include <QLoggingCategory>
#include <QPixmapCache>

namespace {

QtMessageHandler printMessage = nullptr;

// Without memory for a thread the toolkit says so and goes on, to wait for ever for what the thread should
// do.
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
    // A damaged picture is left out, or shown as far as it goes; of a clipboard that another program takes at
    // the same time tells a message. What the toolkit says of either serves nobody.
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false\nqt.qpa.clipboard=false");
    setStyle(new FrameStyle);
    // The style keeps pictures of buttons, which every message makes anew. Ten megabytes serve nobody.
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
    while (overrideCursor())
        restoreOverrideCursor();
    MsgBox::show(message, MsgIcon::Stop);
    exit(1);
}
