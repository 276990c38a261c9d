// The main function of every test program that shows windows: on no screen, unless QT_QPA_PLATFORM names one.
#include "app/Application.h"
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    Application application(argv);
    return RUN_ALL_TESTS();
}
