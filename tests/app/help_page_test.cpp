// Which page of the help belongs to what is in use.
#include "app/HelpPage.h"
#include "support/Session.h"
#include <QAbstractItemView>
#include <QComboBox>

class HelpPageOf : public Session
{
};

TEST_F(HelpPageOf, AnOpenListIsThatOfItsWindow)
{
    auto& box = control<QComboBox>(get<ChildSelect>(), "Combo1");
    box.showPopup();
    EXPECT_EQ(helpPageOf(box.view()), "ChildSelect");
    EXPECT_EQ(helpPageOf(box.view()->window()), "ChildSelect");
    box.hidePopup();
}

TEST_F(HelpPageOf, AnOpenMenuIsThatOfTheActiveWindow)
{
    QMenu* file = frame().menuBar()->actions().first()->menu();
    file->popup({});
    EXPECT_EQ(helpPageOf(file), "ChildSelect");
    file->close();
}

TEST_F(HelpPageOf, WithNothingInUseIsThatOfTheFrame)
{
    EXPECT_EQ(helpPageOf(nullptr), "MDIParent");
}
