// The main function of every test program that shows windows.
#include "app/Application.h"
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    Application application(argv);
    return RUN_ALL_TESTS();
}
