// What assistive programs are told of buttons, and what they press.
#include "app/LinkLabel.h"
#include "support/ActiveWindow.h"
#include "widgets/SoftBttn.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

namespace {

const QString press = QAccessibleActionInterface::pressAction();
const QString toggle = QAccessibleActionInterface::toggleAction();
const QString setFocus = QAccessibleActionInterface::setFocusAction();

class SpokenButton : public testing::Test
{
protected:
    void SetUp() override
    {
        button.setGeometry(10, 10, 100, 30);
        check.setGeometry(10, 50, 100, 30);
        window.resize(200, 150);
        window.show();
        makeActive(&window);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    static QAccessibleInterface& spoken(QWidget& widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QString name(QWidget& widget) { return spoken(widget).text(QAccessible::Name); }
    static QString description(QWidget& widget) { return spoken(widget).text(QAccessible::Description); }
    static QAccessibleActionInterface& actions(QWidget& widget) { return *spoken(widget).actionInterface(); }

    QWidget window;
    QPushButton button{"&Find", &window};
    QCheckBox check{"&Whole word", &window};
};

} // namespace

TEST_F(SpokenButton, IsOfItsOwnKind)
{
    QRadioButton option("Whole Bible", &window);
    SoftBttn picture(PictureId::Search, "Search", &window);
    LinkLabel link("mail@example", &window);
    LinkLabel linkedPicture(iconOf(PictureId::About), &window);
    EXPECT_EQ(spoken(button).role(), QAccessible::Button);
    EXPECT_EQ(spoken(check).role(), QAccessible::CheckBox);
    EXPECT_EQ(spoken(option).role(), QAccessible::RadioButton);
    EXPECT_EQ(spoken(picture).role(), QAccessible::Button);
    EXPECT_EQ(spoken(link).role(), QAccessible::Link);
    EXPECT_EQ(spoken(linkedPicture).role(), QAccessible::Graphic);
}

TEST_F(SpokenButton, IsNamedByItsTextWithoutTheMarkOfItsKey)
{
    EXPECT_EQ(name(button), "Find");
    button.setText("&Find && go");
    EXPECT_EQ(name(button), "Find & go");
    button.setAccessibleName("Search the Bible");
    EXPECT_EQ(name(button), "Search the Bible");
}

TEST_F(SpokenButton, IsNotNamedByTheBoxAroundIt)
{
    QGroupBox box("Where", &window);
    QRadioButton option("&Whole Bible", &box);
    EXPECT_EQ(name(option), "Whole Bible");
}

TEST_F(SpokenButton, NeverTellsItsNameTwice)
{
    SoftBttn picture(PictureId::Search, "Search", &window);
    EXPECT_EQ(name(picture), "Search");
    EXPECT_EQ(description(picture), "");
    button.setToolTip("Find");
    EXPECT_EQ(description(button), "");
    button.setToolTip("Looks through every verse");
    EXPECT_EQ(description(button), "Looks through every verse");
    button.setToolTip("Find (Ctrl+F)");
    EXPECT_EQ(description(button), "(Ctrl+F)");
    LinkLabel link(iconOf(PictureId::Mail), &window);
    link.setAccessibleName("E-mail: mail@example");
    link.setToolTip("mailto:mail@example");
    EXPECT_EQ(description(link), "");
}

TEST_F(SpokenButton, TellsWhetherItIsTheDefaultOneDownOrChecked)
{
    EXPECT_FALSE(spoken(button).state().defaultButton);
    button.setDefault(true);
    EXPECT_TRUE(spoken(button).state().defaultButton);
    EXPECT_FALSE(spoken(check).state().defaultButton);
    EXPECT_FALSE(spoken(button).state().checkable);
    EXPECT_TRUE(spoken(check).state().checkable);
    EXPECT_FALSE(spoken(check).state().checked);
    check.setChecked(true);
    EXPECT_TRUE(spoken(check).state().checked);
    button.setDown(true);
    EXPECT_TRUE(spoken(button).state().pressed);
}

TEST_F(SpokenButton, CanBePressedOrToggledUnlessItIsDisabled)
{
    EXPECT_EQ(actions(button).actionNames(), QStringList({press, setFocus}));
    EXPECT_EQ(actions(check).actionNames(), QStringList({toggle, setFocus}));
    button.setEnabled(false);
    EXPECT_EQ(actions(button).actionNames(), QStringList());
}

TEST_F(SpokenButton, TellsTheKeyThatPressesIt)
{
    EXPECT_EQ(actions(button).keyBindingsForAction(press), QStringList("Alt+F"));
    EXPECT_EQ(actions(check).keyBindingsForAction(toggle), QStringList("Alt+W"));
    EXPECT_EQ(actions(button).keyBindingsForAction(setFocus), QStringList());
    button.setText("Find");
    EXPECT_EQ(actions(button).keyBindingsForAction(press), QStringList());
}

TEST_F(SpokenButton, DoesWhatIsAskedOnceTheAskingProgramHasItsAnswer)
{
    QSignalSpy clicks(&button, &QPushButton::clicked);
    actions(button).doAction(press);
    actions(check).doAction(toggle);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_FALSE(check.isChecked());
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_TRUE(check.isChecked());
}

TEST_F(SpokenButton, TakesTheFocusWithoutBeingPressed)
{
    QSignalSpy clicks(&button, &QPushButton::clicked);
    check.setFocus();
    actions(button).doAction(setFocus);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.focusWidget(), &button);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(SpokenButton, PressedTwiceOpensItsWindowOnce)
{
    QDialog message;
    message.setModal(true);
    QSignalSpy clicks(&button, &QPushButton::clicked);
    QObject::connect(&button, &QPushButton::clicked, &message, [&] { message.show(); });
    actions(button).doAction(press);
    actions(button).doAction(press);
    ASSERT_TRUE(QTest::qWaitFor([&] { return message.isVisible(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks.count(), 1) << "the second press came behind the window";
    actions(button).doAction(setFocus);
    check.setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.focusWidget(), &check);
}

TEST_F(SpokenButton, AnotherKindOfButtonIsLeftToQt)
{
    class Own : public QAbstractButton
    {
        void paintEvent(QPaintEvent*) override {}
    };
    Own own;
    own.setText("Own");
    EXPECT_EQ(spoken(own).role(), QAccessible::Button);
    EXPECT_EQ(name(own), "Own");
}
