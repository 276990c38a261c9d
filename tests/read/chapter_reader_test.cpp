// What a screen reader is told of a chapter's text, and what it can do with it.
#include "read/TextBox.h"
#include "support/ActiveWindow.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QDialog>
#include <QScrollBar>
#include <QTest>
#include <utility>

namespace {

class ChapterReader : public testing::Test
{
protected:
    void SetUp() override
    {
        window.resize(320, 160);
        box.setGeometry(5, 5, 300, 120);
        QStringList verses;
        for (int number = 1; number <= 20; ++number)
            verses << QString(
                          "Gn:1:%1 and the water ran from the hill to the sea, and the wind went over it, "
                          "and over the plain also.")
                          .arg(number);
        box.setText(verses.join("\r\n"));
        window.show();
        makeActive(&window);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_GT(box.verticalScrollBar()->maximum(), 0);
    }

    QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(&box); }
    QAccessibleTextInterface& text() { return *spoken().textInterface(); }
    std::pair<int, int> selection(int index)
    {
        std::pair<int, int> found(7, 7);
        text().selection(index, &found.first, &found.second);
        return found;
    }
    bool isOnShow(int offset)
    {
        const QRect place = text().characterRect(offset);
        return box.viewport()->rect().contains(box.viewport()->mapFromGlobal(place.center()));
    }

    QWidget window;
    QWidget other{&window};
    TextBox box{&window};
    int start = 7;
    int end = 7;
};

} // namespace

TEST_F(ChapterReader, IsTextThatCanBeSelectedAndNotWritten)
{
    EXPECT_EQ(spoken().role(), QAccessible::EditableText);
    EXPECT_TRUE(spoken().state().readOnly && spoken().state().multiLine && spoken().state().selectableText);
    EXPECT_FALSE(spoken().state().editable);
    EXPECT_EQ(spoken().editableTextInterface(), nullptr);
    EXPECT_EQ(spoken().valueInterface(), nullptr);
    EXPECT_NE(spoken().actionInterface(), nullptr);
}

TEST_F(ChapterReader, TellsTheTypeOfTheWholeChapter)
{
    EXPECT_EQ(
        text().attributes(50, &start, &end),
        QString("font-family:\"%1\";font-size:%2pt;").arg(box.font().family()).arg(box.font().pointSize()));
    EXPECT_EQ(std::pair(start, end), std::pair(0, text().characterCount()));
}

TEST_F(ChapterReader, HasOneSelectionAtMost)
{
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_EQ(selection(0), std::pair(0, 0));
    text().setSelection(0, 3, 8);
    EXPECT_EQ(text().selectionCount(), 1);
    EXPECT_EQ(selection(0), std::pair(3, 8));
    EXPECT_EQ(selection(1), std::pair(0, 0)) << "there is no second one";
    text().setSelection(1, 10, 12);
    EXPECT_EQ(selection(0), std::pair(3, 8));
    text().removeSelection(1);
    EXPECT_EQ(selection(0), std::pair(3, 8));
    text().removeSelection(0);
    EXPECT_EQ(text().selectionCount(), 0);
}

TEST_F(ChapterReader, ASelectionThatReachesBeyondTheTextEndsWithIt)
{
    text().setSelection(0, -5, 1'000'000);
    EXPECT_EQ(selection(0), std::pair(0, text().characterCount()));
    EXPECT_EQ(text().text(0, text().characterCount()), box.toPlainText());
}

TEST_F(ChapterReader, GoesLineByLineThroughVersesOfSeveralLines)
{
    int before = text().characterRect(0).top() - 1;
    int lines = 0;
    int shown = 0;
    int next = 0;
    for (QString line = text().textAtOffset(0, QAccessible::LineBoundary, &start, &end); start >= 0;
         line = text().textAfterOffset(start, QAccessible::LineBoundary, &start, &end)) {
        EXPECT_EQ(start, next) << "a line is left out or told twice";
        EXPECT_EQ(line, text().text(start, end));
        const int top = text().characterRect(start).top();
        EXPECT_EQ(text().characterRect(end - 1).top(), top);
        shown += isOnShow(start);
        if (isOnShow(start)) {
            EXPECT_LT(std::exchange(before, top), top);
        }
        next = end + 1; // the character that parts lines belongs to neither
        EXPECT_TRUE(QStringList({" ", "\n", ""}).contains(text().text(end, next))) << end;
        ASSERT_LT(++lines, 200);
    }
    EXPECT_GT(lines, 20);
    EXPECT_GT(shown, 4);
    EXPECT_EQ(next, text().characterCount() + 1);
    EXPECT_EQ(end, -1);
}

TEST_F(ChapterReader, GoesCharacterByCharacter)
{
    EXPECT_EQ(text().textAtOffset(3, QAccessible::CharBoundary, &start, &end), "1");
    EXPECT_EQ(text().textAfterOffset(3, QAccessible::CharBoundary, &start, &end), ":");
    EXPECT_EQ(std::pair(start, end), std::pair(4, 5));
    EXPECT_EQ(text().textBeforeOffset(3, QAccessible::CharBoundary, &start, &end), ":");
    EXPECT_EQ(std::pair(start, end), std::pair(2, 3));
}

TEST_F(ChapterReader, GoesVerseByVerseThereAndBack)
{
    QStringList there;
    for (QString verse = text().textAtOffset(0, QAccessible::ParagraphBoundary, &start, &end); start >= 0;
         verse = text().textAfterOffset(start, QAccessible::ParagraphBoundary, &start, &end))
        there << verse;
    QStringList back;
    for (QString verse =
             text().textAtOffset(text().characterCount(), QAccessible::ParagraphBoundary, &start, &end);
         start >= 0; verse = text().textBeforeOffset(start, QAccessible::ParagraphBoundary, &start, &end))
        back.prepend(verse);
    EXPECT_EQ(there.size(), 20);
    EXPECT_EQ(back, there);
    EXPECT_TRUE(there.last().startsWith("Gn:1:20 "));
}

TEST_F(ChapterReader, ACharacterIsAsWideAsItsLetter)
{
    const int letter = box.toPlainText().indexOf("w");
    const QRect place = text().characterRect(letter);
    EXPECT_EQ(place.width(), box.fontMetrics().horizontalAdvance('w'));
    EXPECT_NEAR(place.right() + 1, text().characterRect(letter + 1).left(), 1);
    EXPECT_EQ(text().offsetAtPoint({place.left() + 1, place.center().y()}), letter);
}

TEST_F(ChapterReader, ScrollsToAStretchAndKeepsTheSelection)
{
    text().setSelection(0, 3, 8);
    const int last = text().characterCount() - 1;
    ASSERT_FALSE(isOnShow(last));
    text().scrollToSubstring(last - 3, last);
    EXPECT_TRUE(isOnShow(last));
    EXPECT_EQ(selection(0), std::pair(3, 8));
    text().scrollToSubstring(0, last);
    EXPECT_TRUE(isOnShow(0)) << "where both ends have no room, the start shows";
}

TEST_F(ChapterReader, DoesNothingBehindAMessage)
{
    const QString focus = QAccessibleActionInterface::setFocusAction();
    other.setFocusPolicy(Qt::StrongFocus);
    other.setFocus();
    {
        QDialog message;
        message.setModal(true);
        message.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
        text().setSelection(0, 3, 8);
        text().setCursorPosition(5);
        text().scrollToSubstring(text().characterCount(), text().characterCount());
        spoken().actionInterface()->doAction(focus);
        EXPECT_EQ(text().selectionCount(), 0);
        EXPECT_EQ(text().cursorPosition(), 0);
        EXPECT_EQ(box.verticalScrollBar()->value(), 0);
        EXPECT_NE(window.focusWidget(), &box);
    }
    spoken().actionInterface()->doAction(focus);
    EXPECT_EQ(window.focusWidget(), &box);
    text().setCursorPosition(5);
    EXPECT_EQ(text().cursorPosition(), 5);
}

TEST_F(ChapterReader, ScrollsBackToTheCaretThatItWasScrolledAwayFrom)
{
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    ASSERT_FALSE(isOnShow(0));
    text().scrollToSubstring(0, 0);
    EXPECT_TRUE(isOnShow(0));
}
