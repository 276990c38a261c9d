// What assistive programs are told of a scroll bar, and what they set.
#include <gtest/gtest.h>
#include <QAccessible>
#include <QDialog>
#include <QScrollBar>
#include <QTest>

namespace {

class SpokenScrollBar : public testing::Test
{
protected:
    void SetUp() override
    {
        bar.setRange(5, 90);
        bar.setSingleStep(3);
        bar.setValue(40);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(&bar); }
    QAccessibleValueInterface& value() { return *spoken().valueInterface(); }

    QWidget window;
    QScrollBar bar{Qt::Vertical, &window};
};

} // namespace

TEST_F(SpokenScrollBar, TellsItsValueAndItsRange)
{
    EXPECT_EQ(spoken().role(), QAccessible::ScrollBar);
    EXPECT_EQ(spoken().textInterface(), nullptr);
    EXPECT_EQ(spoken().text(QAccessible::Value), "40");
    EXPECT_EQ(value().currentValue(), QVariant(40));
    EXPECT_EQ(value().minimumValue(), QVariant(5));
    EXPECT_EQ(value().maximumValue(), QVariant(90));
    EXPECT_EQ(value().minimumStepSize(), QVariant(3));
}

TEST_F(SpokenScrollBar, HasANameOfItsOwnBesideItsValue)
{
    bar.setAccessibleName("Scroll the verse");
    EXPECT_EQ(spoken().text(QAccessible::Name), "Scroll the verse");
    EXPECT_EQ(spoken().text(QAccessible::Description), "");
}

TEST_F(SpokenScrollBar, IsSetWithinItsRange)
{
    value().setCurrentValue(60);
    EXPECT_EQ(bar.value(), 60);
    value().setCurrentValue(1000);
    EXPECT_EQ(bar.value(), 90);
}

TEST_F(SpokenScrollBar, IsNotSetBehindAMessage)
{
    QDialog message;
    message.setModal(true);
    message.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
    value().setCurrentValue(60);
    EXPECT_EQ(bar.value(), 40);
    message.close();
    value().setCurrentValue(60);
    EXPECT_EQ(bar.value(), 60);
}
