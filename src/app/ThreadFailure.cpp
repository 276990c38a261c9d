#include "app/ThreadFailure.h"

#include <cstdlib>
#include <QString>

namespace {

QtMessageHandler printMessage = nullptr;

void endOnFailure(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    printMessage(type, context, message);
    if (message.startsWith("QThread::start: Thread creation error"))
        std::_Exit(1);
}

} // namespace

void endWhenThreadsFail()
{
    printMessage = qInstallMessageHandler(endOnFailure);
}
