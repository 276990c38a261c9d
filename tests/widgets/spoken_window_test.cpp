// What assistive programs are told of a child window.
#include "support/ActiveWindow.h"
#include "widgets/SpokenWindow.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

namespace {

class SpokenChild : public testing::Test
{
protected:
    void SetUp() override
    {
        speakOfWindows();
        area.resize(400, 300);
        inside = new QLineEdit;
        window = area.addSubWindow(inside);
        window->setWindowTitle("Reading Window");
        window->setGeometry(20, 20, 200, 150);
        area.show();
        makeActive(&area);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    }

    QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(window); }

    QMdiArea area;
    QLineEdit* inside = nullptr;
    QMdiSubWindow* window = nullptr;
};

} // namespace

TEST_F(SpokenChild, IsAWindowNamedByItsCaption)
{
    window->setToolTip("about it");
    EXPECT_EQ(spoken().role(), QAccessible::Window);
    EXPECT_EQ(spoken().text(QAccessible::Name), "Reading Window");
    EXPECT_EQ(spoken().text(QAccessible::Description), "about it");
    EXPECT_EQ(spoken().text(QAccessible::Value), "");
}

TEST_F(SpokenChild, HoldsItsWidgetAndNothingElse)
{
    ASSERT_EQ(spoken().childCount(), 1);
    EXPECT_EQ(spoken().child(0)->object(), inside);
    EXPECT_EQ(spoken().child(1), nullptr);
    EXPECT_EQ(spoken().child(-1), nullptr);
    EXPECT_EQ(spoken().indexOfChild(spoken().child(0)), 0);
    EXPECT_EQ(spoken().indexOfChild(nullptr), -1);
    EXPECT_EQ(spoken().indexOfChild(QAccessible::queryAccessibleInterface(&area)), -1);
}

TEST_F(SpokenChild, HoldsNothingOnceItsWidgetHasGone)
{
    delete inside;
    EXPECT_EQ(spoken().childCount(), 0);
    EXPECT_EQ(spoken().child(0), nullptr);
    EXPECT_EQ(spoken().indexOfChild(QAccessible::queryAccessibleInterface(&area)), -1);
}

TEST_F(SpokenChild, TellsItsState)
{
    inside->setFocus();
    EXPECT_TRUE(spoken().state().focusable && spoken().state().focused);
    EXPECT_TRUE(spoken().state().movable && spoken().state().sizeable);
    EXPECT_FALSE(spoken().state().offscreen || spoken().state().invisible || spoken().state().disabled);
    window->move(390, 290);
    EXPECT_FALSE(spoken().state().offscreen) << "a corner of it shows";
    window->move(1000, 0);
    EXPECT_TRUE(spoken().state().offscreen);
    window->showMaximized();
    EXPECT_FALSE(spoken().state().movable || spoken().state().sizeable);
    window->setEnabled(false);
    EXPECT_TRUE(spoken().state().disabled);
    window->hide();
    EXPECT_TRUE(spoken().state().invisible);
    EXPECT_FALSE(spoken().state().focused);
}

TEST_F(SpokenChild, TakesNoFocusBehindAMessage)
{
    QAccessibleActionInterface& actions = *spoken().actionInterface();
    const QString setFocus = QAccessibleActionInterface::setFocusAction();
    area.setFocus();
    ASSERT_NE(area.focusWidget(), nullptr);
    const QWidget* before = area.focusWidget();
    {
        QDialog message;
        message.setModal(true);
        message.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
        actions.doAction(setFocus);
        EXPECT_EQ(area.focusWidget(), before);
    }
    QLineEdit beside(&area);
    beside.show();
    beside.setFocus();
    actions.doAction(setFocus);
    EXPECT_TRUE(area.focusWidget() == window || area.focusWidget() == inside);
}
