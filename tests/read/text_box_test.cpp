// The text box: exact text and offsets, selecting by keyboard, copying, scrolling, colours.
#include "read/TextBox.h"
#include "support/ActiveWindow.h"
#include "support/Recorders.h"
#include <cmath>
#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

namespace {

class Box : public testing::Test
{
protected:
    void SetUp() override
    {
        window.resize(300, 200);
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(box);
        layout->addWidget(other);
        other->setFocusPolicy(Qt::StrongFocus);
        window.show();
        makeActive(&window);
        box->setFocus();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(box, key, modifiers);
    }

    QString copied()
    {
        QApplication::clipboard()->clear();
        press(Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    }

    /// How many pixels of the text area have a colour.
    int pixels(QColor color)
    {
        const QImage image = box->viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == color;
        return count;
    }

    /// Whether the whole line of an offset of the text is on show.
    bool onShow(qsizetype offset)
    {
        const qsizetype start = box->selStart();
        const qsizetype length = box->selLength();
        const int scrolled = box->verticalScrollBar()->value();
        QTextCursor cursor = box->textCursor();
        cursor.setPosition(static_cast<int>(offset - box->text().left(offset).count("\r\n")));
        const bool shown = box->viewport()->rect().contains(box->cursorRect(cursor));
        EXPECT_EQ(box->selStart(), start);
        EXPECT_EQ(box->selLength(), length);
        EXPECT_EQ(box->verticalScrollBar()->value(), scrolled);
        return shown;
    }

    static QString manyLines(int count)
    {
        QString text;
        for (int line = 1; line <= count; ++line)
            text += QString("line %1\r\n").arg(line);
        return text;
    }

    QWidget window;
    TextBox* box = new TextBox(&window);
    QWidget* other = new QWidget(&window);
};

double luminance(const QColor& color)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double contrast(const QColor& one, const QColor& two)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(two) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

} // namespace

TEST_F(Box, KeepsCarriageReturnsAndNoBreakBlanks)
{
    const QString text = QString::fromUtf8("a\u00a0b\r\n\r\nc\r\n");
    box->setText(text);
    EXPECT_EQ(box->text(), text);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box->selText(), text);
    EXPECT_EQ(copied(), text);
}

TEST_F(Box, EveryOffsetOfTheTextComesBackFromASelection)
{
    // A lone CR, LF or paragraph mark starts a line too, but is one character, not two.
    const QString text = QString::fromUtf8("ab\r\n\r\nc\u00a0\u00e9\nd\re\u2029f\u2028g\r\n");
    box->setText(text);
    for (qsizetype start = 0; start <= text.size(); ++start)
        for (qsizetype end = start; end <= text.size(); ++end) {
            const auto splitsLineEnd = [&](qsizetype at) { return at > 0 && text.mid(at - 1, 2) == "\r\n"; };
            if (splitsLineEnd(start) || splitsLineEnd(end))
                continue;
            box->setSelection(start, end - start);
            ASSERT_EQ(box->selStart(), start);
            ASSERT_EQ(box->selLength(), end - start);
            ASSERT_EQ(box->selText(), text.mid(start, end - start));
        }
}

TEST_F(Box, AnOffsetBetweenCrAndLfIsTheEndOfTheLine)
{
    box->setText("ab\r\ncd");
    box->setSelection(3, 2);
    EXPECT_EQ(box->selStart(), 2);
    EXPECT_EQ(box->selText(), "\r\nc");
}

TEST_F(Box, ASelectionBeyondTheTextEndsWithIt)
{
    box->setText("ab\r\ncd");
    box->setSelection(4, 100);
    EXPECT_EQ(box->selText(), "cd");
    box->setText({});
    box->setSelection(4, 100);
    EXPECT_EQ(box->selText(), "");
}

TEST_F(Box, ANewTextIsShownFromItsStartWithNothingSelected)
{
    box->setText(manyLines(100));
    box->setSelection(900, 20);
    box->setText(manyLines(90));
    EXPECT_EQ(box->selStart(), 0);
    EXPECT_EQ(box->selLength(), 0);
    EXPECT_EQ(box->verticalScrollBar()->value(), 0);
}

TEST_F(Box, OffersPlainTextAlone)
{
    box->setText("ab\r\ncd");
    box->setSelection(1, 4);
    copied();
    EXPECT_EQ(QApplication::clipboard()->mimeData()->formats(), QStringList({"text/plain"}));
    EXPECT_EQ(QApplication::clipboard()->mimeData()->data("text/plain"), "b\r\nc");
}

TEST_F(Box, SelectsByKeyboard)
{
    box->setText("ab\r\ncd\r\nef");
    press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box->selStart(), 1);
    EXPECT_EQ(copied(), "b\r\ncd");
    press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(copied(), "b\r\ncd\r\nef");
}

TEST_F(Box, ShowsACaretThatTheArrowKeysMove)
{
    box->setText("ab\r\ncd");
    const QColor ink(0, 0, 31); // the surface inverted
    EXPECT_GT(pixels(ink), 5);
    other->setFocus();
    EXPECT_EQ(pixels(ink), 0);
    box->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(box->selStart(), 4);
}

TEST_F(Box, IsForReadingOnly)
{
    box->setText("ab\r\ncd");
    QApplication::clipboard()->setText("pasted");
    press(Qt::Key_X);
    press(Qt::Key_Delete);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    EXPECT_EQ(box->text(), "ab\r\ncd");
    EXPECT_EQ(box->toPlainText(), "ab\ncd");
    EXPECT_TRUE(box->isReadOnly());
}

TEST_F(Box, TabLeavesIt)
{
    press(Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(Box, ScrollsASelectionIntoView)
{
    const QString text = manyLines(300);
    box->setText(text);
    for (const char* line : {"line 200\r\n", "line 3\r\n", "line 299\r\n", "line 150\r\n"}) {
        const qsizetype start = text.indexOf(line);
        const qsizetype length = qstrlen(line) - 2;
        box->setSelection(start, length);
        EXPECT_TRUE(onShow(start)) << line;
        EXPECT_TRUE(onShow(start + length)) << line;
    }
}

TEST_F(Box, ShowsTheStartOfASelectionThatHasNoRoom)
{
    const QString text = manyLines(300);
    box->setText(text);
    const qsizetype start = text.indexOf("line 100\r\n");
    box->setSelection(start, text.indexOf("line 200\r\n") - start);
    EXPECT_TRUE(onShow(start));
    EXPECT_FALSE(onShow(text.indexOf("line 200\r\n")));
}

TEST_F(Box, SelectingWhatIsOnShowDoesNotScroll)
{
    const QString text = manyLines(300);
    box->setText(text);
    box->setSelection(text.indexOf("line 200\r\n"), 8);
    const int scrolled = box->verticalScrollBar()->value();
    box->setSelection(text.indexOf("line 199\r\n"), 8);
    EXPECT_EQ(box->verticalScrollBar()->value(), scrolled);
}

TEST_F(Box, TheSelectionStaysVisibleAndIsPalerWithoutTheFocus)
{
    const QColor highlight = box->palette().color(QPalette::Active, QPalette::Highlight);
    const QColor paler = box->palette().color(QPalette::Inactive, QPalette::Highlight);
    EXPECT_GT(paler.lightness(), highlight.lightness());
    box->setText("ab cd ef");
    EXPECT_EQ(pixels(highlight), 0);
    box->setSelection(0, 8);
    EXPECT_GT(pixels(highlight), 100);
    other->setFocus();
    EXPECT_EQ(pixels(highlight), 0);
    EXPECT_GT(pixels(paler), 100);
}

TEST_F(Box, IsReadableInADarkTheme)
{
    QWidget dark;
    QPalette palette;
    for (QPalette::ColorRole role : {QPalette::Base, QPalette::Window, QPalette::Button})
        palette.setColor(role, QColor(30, 30, 30));
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(role, Qt::white);
    dark.setPalette(palette);
    const TextBox inDark(&dark);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const auto color = [&](QPalette::ColorRole role) { return inDark.palette().color(group, role); };
        EXPECT_EQ(color(QPalette::Base), QColor(255, 255, 224));
        EXPECT_GT(contrast(color(QPalette::Base), color(QPalette::Text)), 15);
        EXPECT_GT(contrast(color(QPalette::Highlight), color(QPalette::HighlightedText)), 4.5);
        EXPECT_GT(contrast(color(QPalette::Highlight), color(QPalette::Base)), 3);
    }
    EXPECT_EQ(inDark.verticalScrollBar()->palette().color(QPalette::Base), QColor(30, 30, 30));
}

TEST_F(Box, AlwaysHasItsVerticalScrollBar)
{
    EXPECT_TRUE(box->verticalScrollBar()->isVisible());
    box->setText(QString("word ").repeated(500));
    EXPECT_FALSE(box->horizontalScrollBar()->isVisible());
    EXPECT_GT(box->verticalScrollBar()->maximum(), 0);
}

TEST_F(Box, IsEmptyAtFirst)
{
    EXPECT_EQ(box->selStart(), 0);
    EXPECT_EQ(box->selLength(), 0);
    box->setSelection(3, 5);
    EXPECT_EQ(box->selText(), "");
}

TEST_F(Box, ASelectionWithoutRoomIsCenteredFromItsStart)
{
    const QString text = manyLines(300);
    box->setText(text);
    const qsizetype start = text.indexOf("line 100\r\n");
    box->setSelection(start, text.indexOf("line 200\r\n") - start);
    box->centerSelection();
    EXPECT_TRUE(onShow(start));
    EXPECT_EQ(box->selStart(), start);
}

TEST_F(Box, CentersTheMiddleOfASelection)
{
    box->setText(manyLines(300));
    box->setSelection(box->text().indexOf("line 150\r\n"), 8);
    box->centerSelection();
    const int middle = box->viewport()->height() / 2;
    EXPECT_NEAR(box->cursorRect().center().y(), middle, box->fontMetrics().lineSpacing());
}

TEST_F(Box, AnotherTypeDoesNotScrollToACaretWithoutSelection)
{
    box->setText(manyLines(300));
    box->setSelection(box->text().indexOf("line 100\r\n"), 0);
    const int before = box->verticalScrollBar()->value();
    QFont larger = box->font();
    larger.setPointSize(larger.pointSize() + 6);
    box->setType(larger);
    EXPECT_EQ(box->verticalScrollBar()->value(), before);
}

// As when the window cuts the last line that shows.
TEST_F(Box, ASelectionOfWhichOnePixelShowsStaysOnShowInAnotherType)
{
    box->setText(manyLines(300));
    const qsizetype below = box->text().indexOf("line 8\r\n");
    box->setSelection(below, 6);
    box->verticalScrollBar()->setValue(0);
    const int hidden = box->viewport()->height() - box->cursorRect().top() - 1;
    box->setFixedHeight(box->height() - hidden);
    QCoreApplication::processEvents();
    ASSERT_EQ(box->cursorRect().top(), box->viewport()->rect().bottom());
    QFont larger = box->font();
    larger.setPointSize(larger.pointSize() + 6);
    box->setType(larger);
    EXPECT_TRUE(onShow(below));
}
