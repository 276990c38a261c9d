#include "widgets/Hourglass.h"
#include <gtest/gtest.h>
#include <QApplication>

TEST(Hourglass, ComesBackOnEveryPath)
{
    {
        Hourglass hourglass;
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        hourglass.restore();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_THROW(
        {
            const Hourglass hourglass;
            throw 1;
        },
        int);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
