// How a child window lives in the frame's area.
#include "support/Session.h"
#include "widgets/Form.h"
#include "widgets/Twips.h"
#include <gtest/gtest.h>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>

namespace {

/// A window that writes down what happens to it.
class Diary : public Form
{
public:
    explicit Diary(Shell& shell)
        : Form(shell, "Diary")
        , first(new QLineEdit(this))
        , second(new QPushButton("second", this))
    {
        second->move(0, 40);
        makeMenus({});
    }

    using Form::frameInnerSize;
    using Form::innerSize;
    using Form::setOuterPosition;
    using Form::setOuterSize;

    QStringList events;
    bool swallow = false;
    QLineEdit* first;
    QPushButton* second;

protected:
    void Form_Load() override { events << "Load"; }
    void Form_Activate() override { events << "Activate"; }
    void Form_Deactivate() override { events << "Deactivate"; }
    void Form_Resize() override { events << "Resize"; }
    void Form_Unload() override { events << "Unload"; }
    bool Form_KeyDown(QKeyEvent& event) override
    {
        events << QString("Key %1").arg(event.key());
        return swallow;
    }
};

/// A window that takes every event of its life as it comes.
class Quiet : public Form
{
public:
    explicit Quiet(Shell& shell)
        : Form(shell, "Quiet")
        , field(new QLineEdit(this))
    {
    }

    QLineEdit* field;
};

class ChildWindow : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        diary = new Diary(frame());
        diary->loadInto(*frame().area());
        diary->activate();
    }

    QPointer<Diary> diary;
};

} // namespace

TEST_F(ChildWindow, LoadsBeforeItIsSizedAndActivated)
{
    EXPECT_EQ(diary->events.first(), "Load");
    EXPECT_TRUE(diary->events.contains("Activate"));
    EXPECT_EQ(diary->events.count("Activate"), 1);
}

TEST_F(ChildWindow, GivesTheFocusToTheFirstControlThenToTheOneThatHadItLast)
{
    EXPECT_TRUE(diary->first->hasFocus());
    diary->second->setFocus();
    frame().openSelection();
    diary->activate();
    EXPECT_TRUE(diary->second->hasFocus());
}

TEST_F(ChildWindow, TellsWhenAnotherWindowBecomesActive)
{
    diary->events.clear();
    frame().openSelection();
    EXPECT_EQ(diary->events, QStringList("Deactivate"));
    diary->activate();
    EXPECT_EQ(diary->events, QStringList({"Deactivate", "Activate"}));
}

TEST_F(ChildWindow, PreviewsEachKeyOnceAndPassesItOn)
{
    diary->events.clear();
    QTest::keyClicks(diary->first, "a");
    EXPECT_EQ(diary->events, QStringList(QString("Key %1").arg(int(Qt::Key_A))));
    EXPECT_EQ(diary->first->text(), "a");
    diary->second->setFocus(); // a control that leaves keys alone: they pass up through the window
    diary->events.clear();
    press(Qt::Key_A);
    EXPECT_EQ(diary->events.size(), 1);
}

TEST_F(ChildWindow, KeepsASwallowedKeyFromTheControl)
{
    diary->swallow = true;
    QTest::keyClicks(diary->first, "x");
    EXPECT_EQ(diary->first->text(), "");
}

TEST_F(ChildWindow, DoesNotSeeTheKeysOfOtherWindows)
{
    frame().openSelection();
    diary->events.clear();
    press(Qt::Key_A);
    EXPECT_TRUE(diary->events.isEmpty());
}

TEST_F(ChildWindow, MeasuresItsOuterAndInnerSizeInTwips)
{
    diary->setOuterSize(6000, 4500);
    EXPECT_EQ(diary->outerWidth(), 6000);
    EXPECT_EQ(diary->outerHeight(), 4500);
    EXPECT_EQ(diary->innerSize(), diary->size() * twipsPerPixel);
    EXPECT_EQ(diary->frameInnerSize(), frame().area()->viewport()->size() * twipsPerPixel);
    diary->setOuterPosition(150, 300);
    EXPECT_EQ(outer(*diary).pos(), QPoint(10, 20));
}

TEST_F(ChildWindow, IgnoresSizesUnlessItIsInTheNormalState)
{
    diary->setState(Form::Maximized);
    const QSize before = outer(*diary).size();
    diary->setOuterSize(3000, 3000);
    diary->setOuterPosition(150, 300);
    EXPECT_EQ(outer(*diary).size(), before);
    diary->setState(Form::Minimized);
    EXPECT_EQ(diary->state(), Form::Minimized);
    diary->setOuterSize(3000, 3000);
    EXPECT_EQ(diary->state(), Form::Minimized);
}

TEST_F(ChildWindow, ReportsEveryChangeOfState)
{
    for (const Form::WindowState state : {Form::Maximized, Form::Normal, Form::Minimized, Form::Normal}) {
        diary->events.clear();
        diary->setState(state);
        EXPECT_EQ(diary->state(), state);
        EXPECT_TRUE(diary->events.contains("Resize")) << state;
    }
}

TEST_F(ChildWindow, RestoreAndActivateLeavesAMaximisedWindowMaximised)
{
    diary->setState(Form::Maximized);
    diary->restoreAndActivate();
    EXPECT_EQ(diary->state(), Form::Maximized);
    diary->setState(Form::Minimized);
    diary->restoreAndActivate();
    EXPECT_NE(diary->state(), Form::Minimized);
}

TEST_F(ChildWindow, IsOnTheScreenButNotActiveUntilItIsActivated)
{
    auto* other = new Diary(frame());
    diary->events.clear();
    other->loadInto(*frame().area());
    EXPECT_TRUE(other->isVisible());
    EXPECT_TRUE(other->isEnabled());
    EXPECT_FALSE(other->isActive());
    EXPECT_EQ(activeForm(), diary);
    EXPECT_TRUE(diary->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(diary->events, QStringList());
    EXPECT_FALSE(other->events.contains("Activate"));
    switchProgramsAndBack();
    EXPECT_EQ(activeForm(), diary);
    other->activate();
    EXPECT_EQ(other->events.count("Activate"), 1);
}

TEST_F(ChildWindow, OpensMaximisedWhileAnotherIs)
{
    diary->setState(Form::Maximized);
    auto* other = new Diary(frame());
    other->loadInto(*frame().area());
    EXPECT_EQ(diary->state(), Form::Maximized);
    EXPECT_EQ(activeForm(), diary);
    other->restoreAndActivate();
    EXPECT_EQ(activeForm(), other);
    EXPECT_EQ(other->state(), Form::Maximized);
    EXPECT_TRUE(other->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ChildWindow, AMinimisedWindowComesBackWhileAnotherIsMaximised)
{
    auto* other = new Diary(frame());
    other->loadInto(*frame().area());
    other->activate();
    other->setState(Form::Minimized);
    diary->activate();
    diary->setState(Form::Maximized);
    other->restoreAndActivate();
    EXPECT_NE(other->state(), Form::Minimized);
    EXPECT_EQ(activeForm(), other);
    EXPECT_TRUE(other->isAncestorOf(QApplication::focusWidget()));
    EXPECT_TRUE(other->first->isVisible());
}

TEST_F(ChildWindow, AFirstClickIntoAControlLeavesTheFocusThere)
{
    frame().openSelection();
    QTest::mouseClick(diary->second, Qt::LeftButton);
    EXPECT_TRUE(diary->isActive());
    EXPECT_TRUE(diary->second->hasFocus());
}

TEST_F(ChildWindow, ClosingUnloadsItOnceAndDeletesIt)
{
    QStringList seen;
    QObject::connect(diary, &Form::unloaded, [&] { seen = diary->events; });
    outer(*diary).close();
    EXPECT_EQ(seen.count("Unload"), 1);
    EXPECT_EQ(seen.last(), "Unload");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(diary.isNull());
}

TEST_F(ChildWindow, ItsCaptionStandsOnTheTitleBar)
{
    diary->setCaption("A caption");
    EXPECT_EQ(outer(*diary).windowTitle(), "A caption");
}

TEST_F(ChildWindow, BeforeItIsLoadedItHasNoPlaceAndNothingMovesIt)
{
    Diary fresh(frame());
    fresh.resize(20, 10);
    fresh.setState(Form::Maximized);
    fresh.setOuterSize(6000, 4500);
    fresh.setOuterPosition(150, 300);
    fresh.activate();
    fresh.becomeCurrent();
    fresh.unload();
    EXPECT_EQ(fresh.state(), Form::Normal);
    EXPECT_FALSE(fresh.isVisible());
    EXPECT_EQ(fresh.outerWidth(), 0);
    EXPECT_EQ(fresh.outerHeight(), 0);
    EXPECT_EQ(fresh.pos(), QPoint());
    EXPECT_EQ(fresh.innerSize(), QSize(20, 10) * twipsPerPixel);
    EXPECT_EQ(fresh.frameInnerSize(), QSize());
    EXPECT_EQ(fresh.events, QStringList());
    EXPECT_EQ(activeForm(), diary);
}

TEST_F(ChildWindow, ThatAddsNothingToItsLifeLivesAsWell)
{
    QPointer<Quiet> quiet = new Quiet(frame());
    quiet->loadInto(*frame().area());
    quiet->activate();
    EXPECT_EQ(activeForm(), quiet);
    outer(*quiet).resize(300, 200);
    QTest::keyClicks(quiet->field, "a");
    EXPECT_EQ(quiet->field->text(), "a");
    diary->activate();
    EXPECT_FALSE(quiet->isActive());
    quiet->unload();
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(quiet.isNull());
}

TEST_F(ChildWindow, IsClosedByTheKeysOfInnerWindows)
{
    for (const Qt::Key key : {Qt::Key_F4, Qt::Key_W}) {
        QPointer<Quiet> quiet = new Quiet(frame());
        quiet->loadInto(*frame().area());
        quiet->activate();
        press(key, Qt::ControlModifier);
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(quiet.isNull()) << key;
    }
}

TEST_F(ChildWindow, GivesNoFocusToAControlThatIsDisabledOrHidden)
{
    for (const bool hidden : {true, false}) {
        diary->first->setFocus();
        frame().openSelection();
        hidden ? diary->first->hide() : diary->first->setEnabled(false);
        diary->activate();
        EXPECT_TRUE(diary->second->hasFocus()) << hidden;
        diary->first->show();
    }
}
