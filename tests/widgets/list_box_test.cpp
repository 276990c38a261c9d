// The list box by mouse and keys: what counts as a click, and which line is selected then.
#include "support/ActiveWindow.h"
#include "widgets/ListBox.h"
#include "widgets/ListLines.h"
#include "widgets/TypeAhead.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace {

class Lines : public testing::Test
{
protected:
    void SetUp() override
    {
        setLines(5);
        list.resize(200, 160);
        list.show();
        makeActive(&list);
        list.setFocus();
        QObject::connect(&list, &ListBox::lineClicked, [this] { clicks << list.selected(); });
    }

    void setLines(int count)
    {
        ListLines lines;
        for (int i = 0; i < count; ++i)
            lines.add("line ", std::to_string(i));
        list.setLines(std::move(lines));
    }

    QPoint pointOf(int line) { return list.visualRect(list.model()->index(line, 0)).center(); }
    QPoint pointBelow() { return {20, list.viewport()->height() - 3}; }

    void send(QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event(type, point, list.viewport()->mapToGlobal(point), button, held, modifiers);
        QApplication::sendEvent(list.viewport(), &event);
    }
    void press(QPoint point, Qt::KeyboardModifiers modifiers = {})
    {
        send(QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton, modifiers);
    }
    void moveTo(QPoint point) { send(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton); }
    void release(QPoint point, Qt::KeyboardModifiers modifiers = {})
    {
        send(QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton, modifiers);
    }
    void click(QPoint point, Qt::KeyboardModifiers modifiers = {})
    {
        press(point, modifiers);
        release(point, modifiers);
    }

    ListBox list{nullptr};
    QList<int> clicks; ///< the line that was selected at each
};

} // namespace

TEST_F(Lines, CountsAPressAndAReleaseAsOneClickOnTheSelectedLine)
{
    press(pointOf(2));
    EXPECT_EQ(list.selected(), 2);
    EXPECT_TRUE(clicks.isEmpty());
    release(pointOf(2));
    EXPECT_EQ(clicks, QList<int>({2}));
}

TEST_F(Lines, CountsAClickOnTheSelectedLineAgain)
{
    click(pointOf(2));
    click(pointOf(2));
    EXPECT_EQ(clicks, QList<int>({2, 2}));
}

TEST_F(Lines, CountsEachClickOfADoubleClick)
{
    click(pointOf(1));
    send(QEvent::MouseButtonDblClick, pointOf(1), Qt::LeftButton, Qt::LeftButton);
    release(pointOf(1));
    EXPECT_EQ(clicks, QList<int>({1, 1}));
}

TEST_F(Lines, CountsADoubleClickOverTwoLinesOnEachOfThem)
{
    click(pointOf(1));
    send(QEvent::MouseButtonDblClick, pointOf(2), Qt::LeftButton, Qt::LeftButton);
    release(pointOf(2));
    EXPECT_EQ(clicks, QList<int>({1, 2}));
}

TEST_F(Lines, ClicksTheSameWhateverModifierIsHeld)
{
    for (const auto modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::ControlModifier | Qt::ShiftModifier}) {
        clicks.clear();
        click(pointOf(3));
        click(pointOf(3), modifiers);
        click(pointOf(0), modifiers);
        EXPECT_EQ(clicks, QList<int>({3, 3, 0}));
    }
}

TEST_F(Lines, ClicksTheLineThatADragEndsOn)
{
    press(pointOf(0));
    moveTo(pointOf(2));
    moveTo(pointOf(3));
    EXPECT_EQ(list.selected(), 3);
    release(pointOf(3));
    EXPECT_EQ(clicks, QList<int>({3}));
}

TEST_F(Lines, ClicksTheSelectedLineBesideTheLinesToo)
{
    click(pointBelow());
    EXPECT_TRUE(clicks.isEmpty()) << "none is selected";
    click(pointOf(1));
    click(pointBelow());
    EXPECT_EQ(list.selected(), 1);
    EXPECT_EQ(clicks, QList<int>({1, 1}));
}

TEST_F(Lines, IsNotClickedWhenTheButtonGoesUpOutsideOrWentDownThere)
{
    press(pointOf(1));
    release({20, -30});
    EXPECT_TRUE(clicks.isEmpty());
    release(pointOf(2));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(Lines, DoesNothingForOtherButtons)
{
    click(pointOf(1));
    clicks.clear();
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        send(QEvent::MouseButtonPress, pointOf(3), button, button);
        send(QEvent::MouseButtonRelease, pointOf(3), button, Qt::NoButton);
        send(QEvent::MouseButtonDblClick, pointOf(3), button, button);
        send(QEvent::MouseButtonRelease, pointOf(3), button, Qt::NoButton);
    }
    EXPECT_EQ(list.selected(), 1);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(Lines, KeepsAClickOfTheLeftButtonWhileAnotherGoesDownAndUp)
{
    press(pointOf(1));
    send(QEvent::MouseButtonPress, pointOf(1), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    send(QEvent::MouseButtonRelease, pointOf(1), Qt::RightButton, Qt::LeftButton);
    EXPECT_TRUE(clicks.isEmpty());
    release(pointOf(1));
    EXPECT_EQ(clicks, QList<int>({1}));
}

TEST_F(Lines, TellsOfAKeyThenOfTheMoveThenOfTheChoice)
{
    QStringList told;
    QObject::connect(&list, &ListBox::keyDown, [&] { told << QString("key on %1").arg(list.selected()); });
    QObject::connect(&list, &ListBox::lineClicked,
                     [&] { told << QString("click on %1").arg(list.selected()); });
    QObject::connect(&list, &ListBox::choosingKeyPressed, [&] { told << "choice"; });
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Shift);
    EXPECT_EQ(told, QStringList({"key on -1", "click on 0", "key on 0", "click on 1", "key on 1", "choice",
                                 "key on 1"}));
}

TEST_F(Lines, MovesWithCtrlAsWithoutIt)
{
    QTest::keyClick(&list, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(list.selected(), 1);
}

TEST_F(Lines, SelectsTheFirstLineByAKeyAfterItsLinesWereReplaced)
{
    QTest::keyClick(&list, Qt::Key_End);
    setLines(3);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.selected(), 0);
}

TEST_F(Lines, StaysEmptyWithoutLines)
{
    list.clear();
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp})
        QTest::keyClick(&list, key);
    list.selectCurrentLine();
    click({20, 20});
    EXPECT_EQ(list.selected(), -1);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(Lines, DoesNotCopyItsLine)
{
    QApplication::clipboard()->setText("before");
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
}

TEST_F(Lines, ShowsATipOnlyWhereItHasOne)
{
    const auto ask = [this] {
        QHelpEvent help(QEvent::ToolTip, pointOf(2), list.viewport()->mapToGlobal(pointOf(2)));
        QApplication::sendEvent(list.viewport(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(ask(), "");
    list.setToolTip("a < b");
    EXPECT_EQ(ask(), "<p>a &lt; b</p>");
    QToolTip::hideText();
}

TEST_F(Lines, HasItsLinesAtOneLevel)
{
    EXPECT_EQ(list.model()->rowCount(), 5);
    EXPECT_EQ(list.model()->rowCount(list.model()->index(2, 0)), 0);
    EXPECT_FALSE(list.model()->data({}).isValid());
    EXPECT_FALSE(list.model()->data(list.model()->index(2, 0), Qt::DecorationRole).isValid());
    EXPECT_EQ(list.text(2), "line 2");
    EXPECT_EQ(list.text(5), "");
}

TEST_F(Lines, GoesToTheLineThatIsTyped)
{
    const QModelIndex first = list.model()->index(0, 0);
    EXPECT_EQ(rowOfTyped(first, "line 3"), QModelIndexList({list.model()->index(3, 0)}));
    EXPECT_EQ(rowOfTyped(first, "nowhere"), QModelIndexList());
    EXPECT_EQ(rowOfTyped({}, "line 3"), QModelIndexList()) << "from no line at all";
}

TEST_F(Lines, TellWhereThePointerMovesWhileNoButtonIsHeld)
{
    QList<QPoint> places;
    QObject::connect(&list, &ListBox::pointerMoved, [&](const QPoint& point) { places << point; });
    EXPECT_TRUE(list.viewport()->hasMouseTracking()) << "or Qt tells of no such move";
    send(QEvent::MouseMove, pointOf(2), Qt::NoButton, Qt::NoButton);
    moveTo(pointOf(3));
    EXPECT_EQ(places, QList<QPoint>({pointOf(2)}));
}

TEST_F(Lines, AreSoughtRoundAndByTheWordAfterAnArticle)
{
    EXPECT_EQ(rowOfTyped(list.model()->index(3, 0), "line 1"), QModelIndexList({list.model()->index(1, 0)}));
    ListLines lines;
    for (const char* line : {"The Ark", "A Lamb", "An Altar", "Another", "Theft"})
        lines.add(line, "");
    list.setLines(std::move(lines));
    const QModelIndex first = list.model()->index(0, 0);
    const auto rowOf = [&](const char* typed) { return rowOfTyped(first, typed).value(0).row(); };
    EXPECT_EQ(rowOf("ark"), 0);
    EXPECT_EQ(rowOf("lamb"), 1);
    EXPECT_EQ(rowOf("altar"), 2);
    EXPECT_EQ(rowOf("other"), -1) << "which stands after no article";
    EXPECT_EQ(rowOf("the"), 0);
    EXPECT_EQ(rowOf("thef"), 4);
}
