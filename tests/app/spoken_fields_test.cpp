// What assistive programs read in a text field, and what they write there.
#include "support/ActiveWindow.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace {

class SpokenField : public testing::Test
{
protected:
    void SetUp() override
    {
        window.resize(260, 60);
        field.setGeometry(20, 10, 200, 40);
        field.setText("um dois três");
        window.show();
        makeActive(&window);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(&field); }
    QAccessibleTextInterface& text() { return *spoken().textInterface(); }
    QAccessibleEditableTextInterface& writing() { return *spoken().editableTextInterface(); }
    std::pair<int, int> selection(int index)
    {
        std::pair<int, int> found(7, 7);
        text().selection(index, &found.first, &found.second);
        return found;
    }

    /// Whether anything is drawn in the middle of a place on the screen.
    bool isInked(const QRect& place)
    {
        const QPoint middle = field.mapFromGlobal(place.center());
        return qGray(field.grab().toImage().pixel(middle)) < 100;
    }

    QWidget window;
    QLineEdit field{&window};
};

} // namespace

TEST_F(SpokenField, IsTextToWriteInWithItsTextAsItsValue)
{
    EXPECT_EQ(spoken().role(), QAccessible::EditableText);
    EXPECT_TRUE(spoken().state().editable && spoken().state().selectableText);
    EXPECT_FALSE(spoken().state().readOnly);
    EXPECT_EQ(spoken().text(QAccessible::Value), "um dois três");
    EXPECT_EQ(spoken().valueInterface(), nullptr);
    field.setAccessibleName("Word");
    EXPECT_EQ(spoken().text(QAccessible::Name), "Word");
    EXPECT_EQ(spoken().text(QAccessible::Description), "");
}

TEST_F(SpokenField, IsReadInWordsAndWhole)
{
    int start = 0;
    int end = 0;
    EXPECT_EQ(text().characterCount(), 12);
    EXPECT_EQ(text().text(0, 12), "um dois três");
    EXPECT_EQ(text().text(3, 7), "dois");
    EXPECT_EQ(text().textAtOffset(4, QAccessible::WordBoundary, &start, &end), "dois");
    EXPECT_EQ(std::pair(start, end), std::pair(3, 7));
    field.setCursorPosition(5);
    EXPECT_EQ(text().attributes(0, &start, &end), "") << "one type, about which there is nothing to say";
    EXPECT_EQ(std::pair(start, end), std::pair(5, 5));
}

TEST_F(SpokenField, TellsOfTheCaretAndMovesIt)
{
    text().setCursorPosition(3);
    EXPECT_EQ(field.cursorPosition(), 3);
    EXPECT_EQ(text().cursorPosition(), 3);
}

TEST_F(SpokenField, HasOneSelectionAtMost)
{
    EXPECT_EQ(text().selectionCount(), 0);
    EXPECT_EQ(selection(0), std::pair(0, 0));
    text().setSelection(0, 3, 7);
    EXPECT_EQ(field.selectedText(), "dois");
    EXPECT_EQ(text().selectionCount(), 1);
    EXPECT_EQ(selection(0), std::pair(3, 7));
    EXPECT_EQ(selection(1), std::pair(0, 0)) << "there is no second one";
    text().setSelection(1, 0, 2);
    text().removeSelection(1);
    EXPECT_EQ(field.selectedText(), "dois");
    text().addSelection(0, 2);
    EXPECT_EQ(field.selectedText(), "um");
    text().removeSelection(0);
    EXPECT_FALSE(field.hasSelectedText());
}

TEST_F(SpokenField, ACharacterStandsWhereItsGlyphIsDrawn)
{
    QFont large = field.font();
    large.setPixelSize(26);
    field.setFont(large);
    const QChar block(0x2588); // whatever the font, it has ink in its middle
    field.setText("iiii  " + QString(block) + "  iii");
    for (const int caret : {0, 12}) { // measured from the caret, wherever that stands
        field.setCursorPosition(caret);
        const QRect glyph = text().characterRect(6);
        EXPECT_TRUE(isInked(glyph)) << caret;
        EXPECT_FALSE(isInked(text().characterRect(5))) << caret;
        EXPECT_FALSE(isInked(text().characterRect(7))) << caret;
        EXPECT_EQ(glyph.width(), field.fontMetrics().horizontalAdvance(block));
        EXPECT_NEAR(text().characterRect(7).left(), glyph.right() + 1, 1);
    }
}

TEST_F(SpokenField, APointLeadsBackToItsCharacter)
{
    for (const int offset : {0, 3, 11}) {
        const QRect place = text().characterRect(offset);
        EXPECT_EQ(text().offsetAtPoint({place.left() + 1, place.center().y()}), offset);
    }
    EXPECT_EQ(text().offsetAtPoint(window.mapToGlobal(QPoint(1, 1))), -1);
}

TEST_F(SpokenField, ScrollsToACharacterOfATextLongerThanItself)
{
    field.setText("um " + QString("e mais ").repeated(30) + "fim");
    const QRect room(field.mapToGlobal(QPoint()), field.size());
    field.setCursorPosition(0);
    EXPECT_FALSE(room.contains(text().characterRect(200)));
    text().scrollToSubstring(200, 203);
    field.repaint(); // which is when QLineEdit scrolls
    EXPECT_TRUE(room.contains(text().characterRect(200)));
    EXPECT_FALSE(room.contains(text().characterRect(0)));
    EXPECT_EQ(text().cursorPosition(), 200);
}

TEST_F(SpokenField, IsWritten)
{
    QStringList seen;
    QObject::connect(&field, &QLineEdit::textChanged, [&](const QString& now) { seen << now; });
    writing().insertText(2, " ou");
    writing().deleteText(0, 3);
    writing().replaceText(3, 7, "quatro");
    EXPECT_EQ(seen, QStringList({"um ou dois três", "ou dois três", "ou quatro três"}));
}

TEST_F(SpokenField, IsNeitherWrittenNorSelectedBehindAMessage)
{
    const QString focus = QAccessibleActionInterface::setFocusAction();
    field.setCursorPosition(1);
    {
        QDialog message;
        message.setModal(true);
        message.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
        writing().insertText(0, "x");
        writing().deleteText(0, 3);
        writing().replaceText(0, 3, "x");
        text().setSelection(0, 0, 2);
        text().setCursorPosition(4);
        text().scrollToSubstring(4, 5);
        EXPECT_EQ(field.text(), "um dois três");
        EXPECT_FALSE(field.hasSelectedText());
        EXPECT_EQ(field.cursorPosition(), 1);
    }
    field.selectAll();
    QDialog message;
    message.setModal(true);
    message.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&message));
    text().removeSelection(0);
    EXPECT_TRUE(field.hasSelectedText());
}
