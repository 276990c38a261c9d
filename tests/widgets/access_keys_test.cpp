// The keys that captions underline.
#include "support/ActiveWindow.h"
#include "widgets/AccessKeys.h"
#include <gtest/gtest.h>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

namespace {

class AccessKey : public testing::Test
{
protected:
    AccessKey()
    {
        label.setBuddy(&field);
        window.show();
        makeActive(&window);
        button.setFocus();
    }

    bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::AltModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        return pressAccessKey(window, event);
    }

    QWidget window;
    QLabel label{"&Word", &window};
    QLabel text{"&Nothing", &window};
    QLineEdit field{&window};
    QPushButton button{"&Find", &window};
    QSignalSpy clicks{&button, &QPushButton::clicked};
};

} // namespace

TEST_F(AccessKey, GivesTheControlOfALabelTheFocus)
{
    EXPECT_TRUE(press(Qt::Key_W));
    EXPECT_EQ(window.focusWidget(), &field);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AccessKey, FocusesAndClicksAButton)
{
    field.setFocus();
    EXPECT_TRUE(press(Qt::Key_F));
    EXPECT_EQ(window.focusWidget(), &button);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AccessKey, IsClaimedBeforeAShortcutAndPressedOnce)
{
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F, Qt::AltModifier);
    event.ignore();
    EXPECT_TRUE(pressAccessKey(window, event));
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AccessKey, IsThatOfAltAloneAndOfACaption)
{
    EXPECT_FALSE(press(Qt::Key_F, Qt::NoModifier));
    EXPECT_FALSE(press(Qt::Key_F, Qt::AltModifier | Qt::ShiftModifier));
    EXPECT_FALSE(press(Qt::Key_X));
    EXPECT_FALSE(press(Qt::Key_N)) << "of a label that belongs to no control";
    EXPECT_EQ(window.focusWidget(), &button);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(AccessKey, DoesNothingForAControlThatIsHiddenOrDisabled)
{
    button.setEnabled(false);
    EXPECT_FALSE(press(Qt::Key_F));
    field.hide();
    EXPECT_FALSE(press(Qt::Key_W));
}
