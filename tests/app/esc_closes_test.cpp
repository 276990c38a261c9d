// Esc closes the window that it is pressed in, and no other.
#include "app/EscCloses.h"
#include <gtest/gtest.h>
#include <QLineEdit>
#include <QTest>

namespace {

class Esc : public testing::Test
{
protected:
    void SetUp() override
    {
        new EscCloses(closing);
        closing.show();
        other.show();
    }

    QWidget closing;
    QLineEdit field{&closing};
    QLineEdit other;
};

} // namespace

TEST_F(Esc, ClosesTheWindowOfTheControlThatHasTheFocus)
{
    QTest::keyClick(&field, Qt::Key_A);
    EXPECT_TRUE(closing.isVisible());
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_FALSE(closing.isVisible());
}

TEST_F(Esc, InAnotherWindowClosesNothing)
{
    QTest::keyClick(&other, Qt::Key_Escape);
    EXPECT_TRUE(closing.isVisible());
}

// Qt hands the key to the window of the window system first, which is no widget.
TEST_F(Esc, IsNotTakenFromTheWindowOfTheWindowSystem)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QObject window;
    QCoreApplication::sendEvent(&window, &key);
    EXPECT_TRUE(closing.isVisible());
}
