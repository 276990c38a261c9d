// What a screen reader is told of the large verse, and what it can do with it.
#include "read/VerseKeyLabel.h"
#include "read/VerseLabel.h"
#include "support/Controls.h"
#include "widgets/Fonts.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>

namespace {

const QString longVerse =
    " And they went up from there by the road of the hills, and the river lay beneath them on the left hand; "
    "and when the evening came they set their tents by the well, and slept until the day.";

class VerseReader : public testing::Test
{
protected:
    void SetUp() override
    {
        window.resize(300, 200);
        label.setGeometry(10, 10, 240, 90);
        label.setFont(Fonts::captionsOf(14));
        label.setText(longVerse);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_GT(bar().maximum(), 1) << "the verse is too short to be scrolled";
    }

    QAccessibleInterface& spoken() { return *QAccessible::queryAccessibleInterface(&label); }
    QAccessibleTextInterface& text() { return *spoken().textInterface(); }
    QScrollBar& bar() { return control<QScrollBar>(label, "scrollBar"); }
    int last() { return text().characterCount() - 1; }

    QWidget window;
    VerseLabel label{&window};
    int start = 7;
    int end = 7;
};

} // namespace

TEST_F(VerseReader, IsTextThatNobodyCanWriteSelectOrPress)
{
    EXPECT_EQ(spoken().role(), QAccessible::StaticText);
    EXPECT_TRUE(spoken().state().readOnly && spoken().state().multiLine);
    EXPECT_FALSE(spoken().state().editable || spoken().state().selectableText);
    EXPECT_EQ(spoken().editableTextInterface(), nullptr);
    EXPECT_EQ(spoken().valueInterface(), nullptr);
    EXPECT_NE(spoken().actionInterface(), nullptr);
    text().addSelection(2, 6);
    text().setSelection(0, 2, 6);
    text().removeSelection(0);
    EXPECT_EQ(text().selectionCount(), 0);
    text().selection(0, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(0, 0));
    EXPECT_EQ(text().cursorPosition(), 0);
    EXPECT_EQ(label.text(), longVerse);
}

TEST_F(VerseReader, TellsTheVerseOnceAsItsName)
{
    EXPECT_EQ(spoken().text(QAccessible::Name), longVerse);
    EXPECT_EQ(spoken().text(QAccessible::Description), "");
    EXPECT_EQ(spoken().text(QAccessible::Value), "");
}

TEST_F(VerseReader, TellsTheTypeOfTheWholeVerse)
{
    EXPECT_EQ(text().attributes(3, &start, &end),
              "font-family:\"" + label.font().family() + "\";font-size:14pt;");
    EXPECT_EQ(std::pair(start, end), std::pair(0, text().characterCount()));
    label.setFont(Fonts::captionsOf(18));
    EXPECT_TRUE(text().attributes(3, &start, &end).endsWith("font-size:18pt;"));
}

TEST_F(VerseReader, GoesBackLineByLineFromTheLastToTheFirst)
{
    QStringList lines;
    for (QString line = text().textAtOffset(last(), QAccessible::LineBoundary, &start, &end); !line.isEmpty();
         line = text().textBeforeOffset(start, QAccessible::LineBoundary, &start, &end)) {
        EXPECT_EQ(text().text(start, end), line);
        lines.prepend(line);
    }
    EXPECT_EQ(std::pair(start, end), std::pair(-1, -1)) << "before the first line there is none";
    EXPECT_EQ(lines.join(""), longVerse);
    EXPECT_EQ(lines.size(), bar().maximum() + bar().pageStep() + 1);
}

TEST_F(VerseReader, HasNoLineAfterTheLastNorBeyondTheText)
{
    EXPECT_EQ(text().textAfterOffset(last(), QAccessible::LineBoundary, &start, &end), "");
    EXPECT_EQ(std::pair(start, end), std::pair(-1, -1));
    for (const int beyond : {-1, text().characterCount()}) {
        start = end = 7;
        EXPECT_EQ(text().textAtOffset(beyond, QAccessible::LineBoundary, &start, &end), "");
        EXPECT_EQ(std::pair(start, end), std::pair(-1, -1)) << beyond;
    }
}

TEST_F(VerseReader, GoesWordByWord)
{
    EXPECT_EQ(text().textAtOffset(6, QAccessible::WordBoundary, &start, &end), "they");
    EXPECT_EQ(std::pair(start, end), std::pair(5, 9));
    EXPECT_EQ(text().textAfterOffset(6, QAccessible::CharBoundary, &start, &end), "e");
    EXPECT_EQ(start, 7);
    EXPECT_EQ(text().textBeforeOffset(6, QAccessible::CharBoundary, &start, &end), "t");
    EXPECT_EQ(start, 5);
}

TEST_F(VerseReader, ACharacterStandsWhereItsGlyphIsDrawn)
{
    label.setText(" iiiiii " + QString(QChar(0x2588)) + " iii");
    const QRect place = text().characterRect(8);
    const QRect inside(label.mapFromGlobal(place.topLeft()), place.size());
    QImage picture(label.size(), QImage::Format_RGB32);
    label.render(&picture);
    const QColor ink = label.palette().color(QPalette::WindowText);
    EXPECT_EQ(picture.pixelColor(inside.center()), ink);
    EXPECT_NE(picture.pixelColor(inside.center() - QPoint(inside.width(), 0)), ink);
    EXPECT_NE(picture.pixelColor(inside.center() + QPoint(inside.width(), 0)), ink);
}

TEST_F(VerseReader, APointLeadsBackToItsCharacter)
{
    for (const int offset : {1, 5, 12}) {
        EXPECT_EQ(text().offsetAtPoint(text().characterRect(offset).center()), offset);
    }
    EXPECT_EQ(text().offsetAtPoint(label.mapToGlobal(QPoint(1, 1))), -1) << "the margin holds none";
    const QPoint hidden = text().characterRect(last()).center();
    EXPECT_EQ(text().offsetAtPoint(hidden), -1) << "scrolled out of sight";
    EXPECT_EQ(text().offsetAtPoint(window.mapToGlobal(QPoint(299, 199))), -1);
}

TEST_F(VerseReader, NoCharacterStandsBeyondTheText)
{
    for (const int beyond : {-1, text().characterCount()}) {
        EXPECT_TRUE(text().characterRect(beyond).isEmpty()) << beyond;
        bar().setValue(1);
        text().scrollToSubstring(beyond, beyond);
        EXPECT_EQ(bar().value(), 1) << beyond;
    }
}

TEST_F(VerseReader, ScrollsNoFurtherThanTheLineItIsAskedFor)
{
    text().textAtOffset(last(), QAccessible::LineBoundary, &start, &end);
    text().textBeforeOffset(start, QAccessible::LineBoundary, &start, &end); // the last line but one
    text().scrollToSubstring(start, end);
    EXPECT_EQ(bar().value(), bar().maximum() - 1);
    text().setCursorPosition(0);
    EXPECT_EQ(bar().value(), 0);
    text().scrollToSubstring(1, 2);
    EXPECT_EQ(bar().value(), 0);
}

TEST(VerseKey, WithoutRoomForItIsTheSmallestInTwoLines)
{
    QWidget column;
    column.resize(8, 8);
    VerseKeyLabel key("1Thes:5:28", &column);
    key.setGeometry(0, 0, 8, 8);
    EXPECT_EQ(key.drawnKey(), "1Thes:\n5:28");
    EXPECT_EQ(key.drawnFont().pointSize(), 7);
}

TEST_F(VerseReader, IsPaintedAnewWhenItIsScrolled)
{
    class Painted : public QObject
    {
    public:
        bool since = false;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                since = since || static_cast<QPaintEvent*>(event)->region().contains(QPoint(20, 20));
            return false;
        }
    } painted;
    QTest::qWait(1);
    label.installEventFilter(&painted);
    bar().setValue(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return painted.since; }, 1000));
}

TEST_F(VerseReader, TheTextStandsSixPixelsInsideTheFrameAndItsScrollBar)
{
    const QRect inside = label.contentsRect();
    EXPECT_EQ(bar().geometry(), QRect(inside.right() + 1 - bar().sizeHint().width(), inside.top(),
                                      bar().sizeHint().width(), inside.height()));
    const QPoint first = label.mapFromGlobal(text().characterRect(0).topLeft());
    EXPECT_EQ(first, inside.topLeft() + QPoint(6, 6));
    label.setText(QString("i ").repeated(400)); // so that a line ends close to where the room does
    text().textAtOffset(0, QAccessible::LineBoundary, &start, &end);
    const int right = label.mapFromGlobal(text().characterRect(end - 2).bottomRight()).x();
    EXPECT_LE(right, bar().x() - 6 - 1);
}

TEST_F(VerseReader, AsManyLinesShowAsHaveRoom)
{
    const int spacing = label.fontMetrics().lineSpacing();
    const int edges = label.height() - label.contentsRect().height() + 2 * 6 - label.fontMetrics().leading();
    label.resize(label.width(), 3 * spacing + edges);
    const int lines = bar().maximum() + 3;
    EXPECT_EQ(bar().pageStep(), 2);
    label.resize(label.width(), 3 * spacing + edges - 1);
    EXPECT_EQ(bar().maximum(), lines - 2);
    EXPECT_EQ(bar().pageStep(), 1);
    label.resize(label.width(), 5);
    EXPECT_EQ(bar().maximum(), lines - 1) << "one always does";
    EXPECT_EQ(bar().pageStep(), 1);
}

TEST_F(VerseReader, HasNoScrollBarWhereTheWholeVerseJustHasRoom)
{
    label.setText(" And");
    const int edges = label.height() - label.contentsRect().height() + 2 * 6 - label.fontMetrics().leading();
    label.resize(label.width(), label.fontMetrics().lineSpacing() + edges);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(bar().maximum(), 0);
    label.setText(longVerse);
    EXPECT_TRUE(bar().isVisible());
}

TEST(VerseKey, IsDrawnInTheLargestTypeThatJustFits)
{
    QWidget column;
    column.resize(300, 300);
    VerseKeyLabel key("1Thes:5:28", &column);
    const auto drawnIn = [&](QSize room) {
        key.setGeometry(QRect(QPoint(), room));
        return key.drawnKey() + "|" + QString::number(key.drawnFont().pointSize());
    };
    const auto sizeOf = [](int points, const QString& text) {
        return QFontMetrics(Fonts::captionsOf(points)).size(0, text);
    };
    const QString one = "1Thes:5:28";
    const QString two = "1Thes:\n5:28";
    EXPECT_EQ(drawnIn(sizeOf(9, one)), one + "|9");
    EXPECT_EQ(drawnIn(sizeOf(9, one) - QSize(1, 0)), one + "|8");
    EXPECT_EQ(drawnIn(sizeOf(9, one) - QSize(0, 1)), one + "|8");
    EXPECT_EQ(drawnIn(sizeOf(8, one)), one + "|8");
    EXPECT_EQ(drawnIn({sizeOf(8, one).width() - 1, sizeOf(9, two).height()}), two + "|9");
    EXPECT_EQ(drawnIn(sizeOf(8, two)), two + "|8");
    EXPECT_EQ(drawnIn(sizeOf(7, one)), one + "|7");
    EXPECT_EQ(drawnIn(sizeOf(7, two)), two + "|7");
}
