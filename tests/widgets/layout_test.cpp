// The table of a window's layout, and how tests find the controls that it names.
#include "support/Controls.h"
#include "widgets/DataControl.h"
#include "widgets/Layout.h"
#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

struct Window : QWidget
{
    QPushButton* made = new QPushButton(this);
    QLabel* between = new QLabel(this);
    QLineEdit* later = new QLineEdit(this);
};

std::string messageOf(const std::function<void()>& search)
{
    try {
        search();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "found";
}

} // namespace

TEST(Layout, NamesAndPlacesTheControls)
{
    Window window;
    window.made->setAccessibleName("its tooltip");
    layOut({{window.made, "cmdGo", "", {30, 45, 400, 412}}, {window.later, "Text1", "Word", {0, 0, 15, 15}}});
    EXPECT_EQ(window.made->objectName(), "cmdGo");
    EXPECT_EQ(window.made->accessibleName(), "its tooltip");
    EXPECT_EQ(window.made->geometry(), QRect(2, 3, 27, 27));
    EXPECT_EQ(window.later->accessibleName(), "Word");
}

TEST(Layout, TheTabKeyFollowsTheTableOverItsLabels)
{
    Window window;
    layOut({{window.later, "Text1", "", {}},
            {window.between, "Label1", "", {}},
            {window.made, "cmdGo", "", {}}});
    QWidget* next = window.later->nextInFocusChain();
    while (next->focusPolicy() == Qt::NoFocus)
        next = next->nextInFocusChain();
    EXPECT_EQ(next, window.made);
}

TEST(Layout, ATestFindsAControlByItsNameOrIsToldWhatIsMissing)
{
    Window window;
    window.setObjectName("frmAny");
    layOut({{window.made, "cmdGo", "", {}}});
    EXPECT_EQ(&control<QPushButton>(window, "cmdGo"), window.made);
    EXPECT_EQ(messageOf([&] { control<QLabel>(window, "lblGo"); }), "frmAny has no QLabel named lblGo");
    EXPECT_EQ(messageOf([&] { control<QLabel>(window, "cmdGo"); }),
              "frmAny has no QLabel named cmdGo, which is a QPushButton");
}

TEST(Layout, ADataControlIsFoundByItsNameAndHasItsDesignersRecordSource)
{
    Window window;
    new DataControl("Data1", "NewTestament", &window);
    EXPECT_EQ(control<DataControl>(window, "Data1").recordSource(), "NewTestament");
}
