// The results list by events: opening verses by mouse and keys, the tip, copying.
#include "search/SearchSession.h"
#include "text/Phrases.h"
#include "widgets/DataControl.h"
#include "widgets/ListLines.h"
#include "widgets/SoftBttn.h"
#include <QAccessible>
#include <QClipboard>
#include <QToolTip>

namespace {

class SearchResults : public SearchSession
{
protected:
    void SetUp() override
    {
        SearchSession::SetUp();
        search("amor");
        boxes.shown.clear();
        ASSERT_GT(list().count(), 20);
    }

    QString key(int line) { return list().text(line).section(' ', 0, 0); }
    QString shownVerse() { return open<ChildRead>() ? get<ChildRead>().currentKey() : "none"; }
    void back() { window().activate(), list().setFocus(); }
    /// Sent, since a system may tell of its own pointer later.
    void pointAt(const QPoint& point)
    {
        QMouseEvent move(QEvent::MouseMove, point, list().viewport()->mapToGlobal(point), Qt::NoButton, {},
                         {});
        QApplication::sendEvent(list().viewport(), &move);
    }
    /// The second click of a double click, which Qt gives another name.
    void clickOnceMore(int place)
    {
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, pointOf(place));
        QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, pointOf(place));
    }
};

} // namespace

TEST_F(SearchResults, OpenAVerseByOneClick)
{
    clickLine(2);
    EXPECT_EQ(shownVerse(), key(2));
    EXPECT_EQ(activeForm(), open<ChildRead>());
    EXPECT_EQ(QString::fromStdString(control<DataControl>(get<ChildRead>(), "DataCtl").recordSource()),
              "SELECT * FROM NewTestament WHERE VerseId = '" + key(2) + "'");
}

TEST_F(SearchResults, RestoreTheReadingWindowWhenItIsMinimised)
{
    clickLine(0);
    outer(get<ChildRead>()).showMinimized();
    back();
    clickLine(1);
    EXPECT_FALSE(outer(get<ChildRead>()).isMinimized());
    EXPECT_EQ(shownVerse(), key(1));
    EXPECT_EQ(activeForm(), open<ChildRead>());
}

TEST_F(SearchResults, OpenTheSameLineAgain)
{
    clickLine(1);
    control<SoftBttn>(get<ChildRead>(), "cmdNext").click();
    back();
    clickLine(1);
    EXPECT_EQ(shownVerse(), key(1));
}

TEST_F(SearchResults, OpenByEachClickOfADoubleClick)
{
    clickLine(1);
    ASSERT_EQ(shownVerse(), key(1));
    back();
    clickOnceMore(1);
    EXPECT_EQ(activeForm(), open<ChildRead>());
    EXPECT_EQ(shownVerse(), key(1));
}

TEST_F(SearchResults, OpenAtTheSecondOfTwoQuickClicksAfterAKey)
{
    press(Qt::Key_Shift);
    clickLine(1);
    EXPECT_EQ(shownVerse(), "none");
    clickOnceMore(1);
    EXPECT_EQ(shownVerse(), key(1));
}

TEST_F(SearchResults, OpenTheSelectedLineWhileCtrlOrShiftIsHeld)
{
    clickLine(1);
    for (Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier}) {
        press(Qt::Key_F12);
        ASSERT_NE(shownVerse(), key(1));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, modifier, pointOf(1));
        EXPECT_EQ(shownVerse(), key(1));
    }
}

TEST_F(SearchResults, OpenTheLineThatADragEndsOn)
{
    QTest::mousePress(list().viewport(), Qt::LeftButton, {}, pointOf(1));
    QMouseEvent move(QEvent::MouseMove, pointOf(4), list().viewport()->mapToGlobal(pointOf(4)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(list().viewport(), &move);
    EXPECT_EQ(shownVerse(), "none");
    QTest::mouseRelease(list().viewport(), Qt::LeftButton, {}, pointOf(4));
    EXPECT_EQ(shownVerse(), key(4));
}

TEST_F(SearchResults, DoNothingForARightClick)
{
    press(Qt::Key_Down);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {}, pointOf(3));
    EXPECT_EQ(list().selected(), 0);
    EXPECT_EQ(shownVerse(), "none");
}

TEST_F(SearchResults, RememberAKeyInTheListWhenTheWindowIsClosed)
{
    press(Qt::Key_Shift);
    click(cmdCancel());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    frame().openSearch();
    search("amor");
    clickLine(2);
    EXPECT_EQ(shownVerse(), "none") << "the click only clears the flag";
    clickLine(2);
    EXPECT_EQ(shownVerse(), key(2));
}

TEST_F(SearchResults, AreNotOpenedByMovingThroughThemWithKeys)
{
    for (Qt::Key move : {Qt::Key_Down, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Home})
        press(move);
    EXPECT_EQ(list().selected(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(list().selected(), 1);
    EXPECT_EQ(open<ChildRead>(), nullptr);
}

TEST_F(SearchResults, AreSelectedFromTheFirstOnWithTheArrowKeys)
{
    press(Qt::Key_Down);
    EXPECT_EQ(list().selected(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(list().selected(), 1);
}

TEST_F(SearchResults, AreSelectedByAJumpRightAfterTheSearch)
{
    press(Qt::Key_Home);
    EXPECT_EQ(list().selected(), 0);
    newSearch();
    search({.text1 = "amor", .range = Gospels});
    press(Qt::Key_PageUp);
    EXPECT_EQ(list().selected(), 0);
    newSearch();
    search("amor");
    press(Qt::Key_End);
    EXPECT_EQ(list().selected(), list().count() - 1);
    EXPECT_EQ(open<ChildRead>(), nullptr);
}

TEST_F(SearchResults, AreSelectedByAnyJumpWhenThereIsOne)
{
    const std::pair<Qt::Key, Range> jumps[] = {{Qt::Key_Home, Gospels},
                                               {Qt::Key_End, NewTestament},
                                               {Qt::Key_PageUp, John},
                                               {Qt::Key_PageDown, NoRange}};
    for (const auto& [jump, range] : jumps) {
        newSearch();
        search({.text1 = phrases::onceText, .range = range}); // another range, so that the list is made anew
        ASSERT_EQ(list().count(), 1);
        press(jump);
        EXPECT_EQ(list().selected(), 0);
    }
}

TEST_F(SearchResults, AreNotSelectedByAKeyThatMovesNowhere)
{
    press(Qt::Key_Shift);
    press(Qt::Key_Left);
    EXPECT_EQ(list().selected(), -1);
}

TEST_F(SearchResults, AreOpenedByEnterAndBySpace)
{
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(shownVerse(), key(0));
    back();
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(shownVerse(), key(1));
    back();
    press(Qt::Key_Down);
    press(Qt::Key_Enter);
    EXPECT_EQ(shownVerse(), key(2));
}

TEST_F(SearchResults, OpenNothingByEnterWhileNoneIsSelected)
{
    press(Qt::Key_Return);
    EXPECT_EQ(open<ChildRead>(), nullptr);
}

TEST_F(SearchResults, SwallowTheClickAfterAKeyThatSelectsNothing)
{
    press(Qt::Key_Shift);
    clickLine(3);
    EXPECT_EQ(list().selected(), 3);
    EXPECT_EQ(open<ChildRead>(), nullptr);
    clickLine(3);
    EXPECT_EQ(shownVerse(), key(3));
}

TEST_F(SearchResults, OpenByAClickAfterAnArrowKey)
{
    press(Qt::Key_Down); // its own click clears the flag
    clickLine(3);
    EXPECT_EQ(shownVerse(), key(3));
}

TEST_F(SearchResults, SwallowTheClickAfterAnArrowKeyAtTheEnd)
{
    press(Qt::Key_End);
    press(Qt::Key_Down);
    clickLine(list().count() - 2);
    EXPECT_EQ(open<ChildRead>(), nullptr);
}

TEST_F(SearchResults, OpenTheVerseAfterEnterAgainByOneClick)
{
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    back();
    clickLine(3);
    EXPECT_EQ(shownVerse(), key(3));
}

TEST_F(SearchResults, ShowNoVerseForALineWithoutABlank)
{
    clickLine(0);
    back();
    ListLines lines;
    lines.add("Mt:1:1", "");
    list().setLines(std::move(lines));
    clickLine(0);
    EXPECT_EQ(shownVerse(), "");
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(SearchResults, ShowTheWholeLineInATip)
{
    pointAt(pointOf(2));
    EXPECT_EQ(list().toolTip(), list().text(2));
    pointAt(pointOf(4));
    EXPECT_EQ(list().toolTip(), list().text(4));
    QHelpEvent help(QEvent::ToolTip, pointOf(4), list().viewport()->mapToGlobal(pointOf(4)));
    QApplication::sendEvent(list().viewport(), &help);
    EXPECT_TRUE(QToolTip::text().contains(list().text(4).toHtmlEscaped()));
    QToolTip::hideText();
}

TEST_F(SearchResults, ShowNoTipBelowTheLastLine)
{
    ListLines lines;
    lines.add("Mt:1:1", " a");
    lines.add("Mt:1:2", " b");
    list().setLines(std::move(lines));
    pointAt(pointOf(1));
    EXPECT_EQ(list().toolTip(), "Mt:1:2 b");
    pointAt({20, list().viewport()->height() - 2});
    EXPECT_EQ(list().toolTip(), "");
}

TEST_F(SearchResults, LeaveTheTipWhileAButtonIsHeld)
{
    pointAt(pointOf(2));
    QTest::mousePress(list().viewport(), Qt::RightButton, {}, pointOf(2));
    QMouseEvent move(QEvent::MouseMove, pointOf(4), list().viewport()->mapToGlobal(pointOf(4)), Qt::NoButton,
                     Qt::RightButton, {});
    QApplication::sendEvent(list().viewport(), &move);
    EXPECT_EQ(list().toolTip(), list().text(2));
    QTest::mouseRelease(list().viewport(), Qt::RightButton, {}, pointOf(4));
    EXPECT_EQ(open<ChildRead>(), nullptr);
}

TEST_F(SearchResults, AreReadLineByLineByAScreenReader)
{
    newSearch();
    search({.text1 = "*", .range = NoRange});
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&list());
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::List);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Search results:");
    ASSERT_EQ(spoken->childCount(), 31102);
    for (int line : {0, 1, 15000, 31101}) {
        EXPECT_EQ(spoken->child(line)->text(QAccessible::Name), list().text(line));
        EXPECT_EQ(spoken->child(line)->role(), QAccessible::ListItem);
    }
}

TEST_F(SearchResults, AreCopiedByTheButtonAndTheMenu)
{
    newSearch();
    search({.text1 = phrases::onceText, .range = Gospels});
    boxes.shown.clear();
    const QString expected = "Search Results:\r\n" + list().text(0) + "\r\n(PT)";
    click(cmdCopySR());
    EXPECT_EQ(QApplication::clipboard()->text(), expected);
    QApplication::clipboard()->clear();
    choose("mnuCopySR");
    EXPECT_EQ(QApplication::clipboard()->text(), expected);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(SearchResults, AreCopiedUpToTheLimitWithAWordAboutIt)
{
    newSearch();
    search({.text1 = phrases::thirdOfAll, .range = NoRange});
    boxes.shown.clear();
    QApplication::clipboard()->setText("before");
    QString atMessage;
    boxes.whileShown = [&] {
        atMessage = QApplication::clipboard()->text();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    };
    click(cmdCopySR());
    EXPECT_EQ(atMessage, "before") << "the word comes first";
    QString expected = "Search Results:";
    int copied = 0;
    while (expected.size() <= 30500)
        expected += "\r\n" + list().text(copied++);
    EXPECT_EQ(box(), QString("information|Kestrel Reader: Portuguese Version|"
                             "Only the first %1 verses will be copied to the Clipboard!")
                         .arg(copied));
    EXPECT_EQ(QApplication::clipboard()->text(), expected + "\r\n(PT)");
}

TEST_F(SearchResults, ReportAClipboardThatTakesNothing)
{
    services.clipboardWorks = false;
    const int count = list().count();
    click(cmdCopySR());
    EXPECT_EQ(box(), "exclamation|Clipboard Error|Error 521: Can't open Clipboard");
    EXPECT_EQ(list().count(), count);
    EXPECT_TRUE(isInResultsMode());
}

TEST_F(SearchResults, EndOnAWholeLineOfSeventeenPixelsOrMore)
{
    const auto lineHeight = [this] { return list().visualRect(list().model()->index(0, 0)).height(); };
    EXPECT_GE(lineHeight(), 17);
    EXPECT_EQ(list().viewport()->height() % lineHeight(), 0);
    outer(get<frmAdvSearch>()).showMaximized();
    for (const int height : {700, 701, 705, 713}) {
        frame().resize(1000, height);
        settle();
        EXPECT_EQ(list().viewport()->height() % lineHeight(), 0) << height;
    }
}

TEST_F(SearchResults, AreNotToBeCoveredByTheirCount)
{
    newSearch();
    boxes.shown.clear();
    click(cmdOK());
    EXPECT_EQ(boxes.shown.at(0).announced, QRect(list().mapToGlobal(QPoint()), list().size()));
}
