// The main function of every test program that shows windows: on no screen, unless QT_QPA_PLATFORM names one.
#include "app/Application.h"
#include <gtest/gtest.h>

namespace {

QtMessageHandler printMessage = nullptr;

/// A failure is to be found among what is printed, so what the platform without a screen cannot do is left
/// out.
void printAllButLimits(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        printMessage(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    printMessage = qInstallMessageHandler(printAllButLimits);
    Application application(argv);
    return RUN_ALL_TESTS();
}
