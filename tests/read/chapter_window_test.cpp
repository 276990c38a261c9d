// The chapter window, filled from the reading window and used by keys, clicks and menus.
#include "desktop/Clipboard.h"
#include "read/Chapter.h"
#include "read/TextBox.h"
#include "read/VerseLabel.h"
#include "store/DataError.h"
#include "support/CutTexts.h"
#include "support/Session.h"
#include "widgets/DataControl.h"
#include "widgets/SoftBttn.h"
#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>

namespace {

/// Tells of the events of whatever it is installed on.
class Watcher : public QObject
{
public:
    explicit Watcher(std::function<void(QEvent::Type)> seen)
        : m_seen(std::move(seen))
    {
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_seen(event->type());
        return false;
    }

private:
    std::function<void(QEvent::Type)> m_seen;
};

class ChapterWindow : public Session
{
protected:
    /// Shows a verse in the reading window, which comes to the front.
    void read(const std::string& key)
    {
        frame().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId = '" + key + "'");
    }

    /// Shows a verse and presses F9.
    ChapRead& openChapterOf(const std::string& key)
    {
        read(key);
        press(Qt::Key_F9);
        return get<ChapRead>();
    }

    QString chapter(const QString& reference)
    {
        DataSource source;
        source.setDatabaseName(KESTREL_INSTALL_DIR "/KESTRPT.DAT");
        return gatherChapter(source, reference);
    }

    /// The key and text of the verse in the reading window.
    QString currentVerse()
    {
        return frame().readingWindow().currentKey() +
               control<VerseLabel>(frame().readingWindow(), "VerseText").text();
    }

    static TextBox& textOf(const ChapRead& window) { return control<TextBox>(window, "ChapText"); }

    /// From the first line of the selection to its last one, in the viewport.
    static QRect selectionIn(const TextBox& box)
    {
        QTextCursor start = box.textCursor();
        QTextCursor end = start;
        start.setPosition(start.selectionStart());
        end.setPosition(end.selectionEnd());
        return {QPoint(0, box.cursorRect(start).top()), QPoint(9, box.cursorRect(end).bottom())};
    }

    static QString clipboard() { return QApplication::clipboard()->text(); }
};

} // namespace

TEST_F(ChapterWindow, ShowsTheChapterOfTheVerseInTheReadingWindow)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(activeForm(), &window);
    EXPECT_EQ(window.caption(), chapterCaption("Mt:24:"));
    EXPECT_EQ(textOf(window).text(), chapter("Mt:24:"));
    EXPECT_EQ(textOf(window).text().count("\r\n"), 51);
    EXPECT_TRUE(textOf(window).isVisible());
}

TEST_F(ChapterWindow, OpensFromTheButtonAndTheMenuToo)
{
    read("Gn:1:1");
    click(control<SoftBttn>(frame().readingWindow(), "cmdChap"));
    EXPECT_EQ(get<ChapRead>().caption(), chapterCaption("Gn:1:"));
    read("Gn:2:1");
    choose("mnuChap");
    EXPECT_EQ(get<ChapRead>().caption(), chapterCaption("Gn:2:"));
    EXPECT_EQ(textOf(get<ChapRead>()).text(), chapter("Gn:2:"));
}

TEST_F(ChapterWindow, ShowsTheLastChapterOfTheCanonInFull)
{
    const QString text = textOf(openChapterOf("Mal:4:6")).text();
    EXPECT_EQ(text, chapter("Mal:4:"));
    EXPECT_EQ(text.count("\r\n"), 6);
    EXPECT_TRUE(text.endsWith("\r\n(PT)"));
    EXPECT_TRUE(textOf(get<ChapRead>()).selText().startsWith("Mal:4:6 "));
}

TEST_F(ChapterWindow, HighlightsTheCurrentVerse)
{
    const TextBox& box = textOf(openChapterOf("Mt:24:43"));
    EXPECT_EQ(box.selText(), currentVerse());
    EXPECT_TRUE(box.selText().startsWith("Mt:24:43 "));
    EXPECT_EQ(box.selStart(), box.text().indexOf("Mt:24:43 "));
}

TEST_F(ChapterWindow, HighlightsTheFirstVerseToo)
{
    const ChapRead& window = openChapterOf("Mt:24:1");
    EXPECT_EQ(textOf(window).selText(), currentVerse());
    EXPECT_EQ(textOf(window).selStart(), 0);
}

TEST_F(ChapterWindow, ASecondPressForTheSameChapterRunsNoQueryAndMovesTheHighlight)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    int queries = 0;
    control<DataControl>(window, "DataCtrl").currentRowChanged = [&queries] { ++queries; };
    openChapterOf("Mt:24:2");
    EXPECT_EQ(queries, 0);
    EXPECT_EQ(textOf(window).selText(), currentVerse());
    EXPECT_EQ(textOf(window).selStart(), textOf(window).text().indexOf("Mt:24:2 "));
    openChapterOf("Mt:25:1");
    EXPECT_EQ(queries, 46 + 1);
}

TEST_F(ChapterWindow, SaysPleaseWaitWithTheHourglassAndTheTextHiddenWhileItGathers)
{
    ChapRead& window = openChapterOf("Ps:117:1");
    int queries = 0;
    control<DataControl>(window, "DataCtrl").currentRowChanged = [&] {
        ++queries;
        EXPECT_EQ(window.caption(), "Please wait...");
        EXPECT_EQ(outer(window).windowTitle(), "Please wait...");
        EXPECT_TRUE(textOf(window).isHidden());
        EXPECT_EQ(textOf(window).text(), "");
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    };
    openChapterOf("Ps:118:1");
    EXPECT_EQ(queries, 29 + 1);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(textOf(window).isVisible());
}

TEST_F(ChapterWindow, ALongChapterBringsItsHighlightIntoView)
{
    TextBox& box = textOf(openChapterOf("Ps:119:176"));
    EXPECT_EQ(box.text().count("\r\n"), 176);
    for (const char* key : {"Ps:119:176", "Ps:119:1", "Ps:119:90"}) {
        openChapterOf(key);
        QTextCursor start = box.textCursor();
        start.setPosition(start.selectionStart());
        EXPECT_TRUE(box.viewport()->rect().contains(box.cursorRect(start))) << key;
        EXPECT_TRUE(box.viewport()->rect().contains(box.cursorRect())) << key;
    }
}

TEST_F(ChapterWindow, OpensWithTheCurrentVerseInTheMiddle)
{
    for (const char* key : {"Ps:119:90", "Ps:119:40", "Mt:24:25"}) {
        const TextBox& box = textOf(openChapterOf(key));
        const QRect verse = selectionIn(box);
        const int line = box.fontMetrics().lineSpacing();
        EXPECT_NEAR(verse.center().y(), box.viewport()->height() / 2, 2 * line) << key;
    }
    const TextBox& box = textOf(openChapterOf("Ps:119:1"));
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
    openChapterOf("Ps:119:176");
    EXPECT_EQ(box.verticalScrollBar()->value(), box.verticalScrollBar()->maximum());
    EXPECT_TRUE(box.viewport()->rect().contains(selectionIn(box)));
}

TEST_F(ChapterWindow, AnotherTypeKeepsAHighlightThatShowsInView)
{
    ChapRead& window = openChapterOf("Ps:119:90");
    const TextBox& box = textOf(window);
    for (const char* name : {"cmdFont", "cmdFntFace", "cmdFont", "cmdFntFace", "cmdFont"}) {
        click(control<SoftBttn>(window, name));
        EXPECT_TRUE(box.viewport()->rect().contains(selectionIn(box))) << name;
    }
    box.verticalScrollBar()->setValue(0); // scrolled away by the reader
    click(control<SoftBttn>(window, "cmdFont"));
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(ChapterWindow, PageKeysOnAButtonScrollTheTextAndNeverTheFramesArea)
{
    ChapRead& window = openChapterOf("Ps:119:1");
    frame().resize(600, 300);
    settle();
    QScrollBar& area = *frame().area()->verticalScrollBar();
    ASSERT_GT(area.maximum(), 0);
    control<SoftBttn>(window, "cmdTip").setFocus();
    const int before = area.value();
    QScrollBar& bar = *textOf(window).verticalScrollBar();
    press(Qt::Key_PageDown);
    EXPECT_GT(bar.value(), 0);
    press(Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), 0);
    bar.setValue(bar.maximum());
    press(Qt::Key_PageDown);
    textOf(window).setFocus();
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(area.value(), before);
}

TEST_F(ChapterWindow, APageKeyOnAButtonLeavesOneLineOnShow)
{
    const ChapRead& window = openChapterOf("Ps:119:1");
    const QScrollBar& bar = *textOf(window).verticalScrollBar();
    control<SoftBttn>(window, "cmdTip").setFocus();
    settle(); // what is painted is laid out, and counts with all its lines
    const int page = bar.pageStep();
    press(Qt::Key_PageDown);
    EXPECT_EQ(bar.value(), page - 1);
    settle();
    press(Qt::Key_PageDown);
    EXPECT_EQ(bar.value(), 2 * (page - 1));
    settle();
    press(Qt::Key_PageUp);
    EXPECT_EQ(bar.value(), page - 1);
}

TEST_F(ChapterWindow, LeavesTheSelectionAloneWhenTheVerseIsNotInIt)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    control<VerseLabel>(frame().readingWindow(), "VerseText").setText(" quite another text");
    textOf(window).setSelection(7, 5);
    frame().readingWindow().activate();
    press(Qt::Key_F9);
    EXPECT_EQ(activeForm(), &window);
    EXPECT_EQ(textOf(window).selStart(), 7);
    EXPECT_EQ(textOf(window).selLength(), 5);
}

TEST_F(ChapterWindow, SearchesTheHighlightWithRegardToCase)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    control<VerseLabel>(frame().readingWindow(), "VerseText")
        .setText(control<VerseLabel>(frame().readingWindow(), "VerseText").text().toUpper());
    textOf(window).setSelection(7, 5);
    frame().readingWindow().activate();
    press(Qt::Key_F9);
    EXPECT_EQ(textOf(window).selStart(), 7);
}

TEST_F(ChapterWindow, ShowsTheMarkAloneWhenNoVerseIsCurrent)
{
    ChapRead& window = openChapterOf("no such verse");
    EXPECT_EQ(window.caption(), "Chapter Window -- ");
    EXPECT_EQ(textOf(window).text(), "(PT)");
    EXPECT_EQ(textOf(window).selLength(), 0);
}

TEST_F(ChapterWindow, IsRestoredWhenItWasMinimised)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    window.setState(Form::Minimized);
    openChapterOf("Mt:24:44");
    EXPECT_EQ(window.state(), Form::Normal);
    EXPECT_EQ(activeForm(), &window);
    EXPECT_TRUE(textOf(window).selText().startsWith("Mt:24:44 "));
}

TEST_F(ChapterWindow, StaysMaximisedWhenItWas)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    window.setState(Form::Maximized);
    openChapterOf("Mt:25:1");
    EXPECT_EQ(window.state(), Form::Maximized);
}

TEST_F(ChapterWindow, GathersAgainAfterItWasClosed)
{
    outer(openChapterOf("Mt:24:43")).close();
    EXPECT_EQ(open<ChapRead>(), nullptr);
    EXPECT_EQ(textOf(openChapterOf("Mt:24:43")).text(), chapter("Mt:24:"));
}

TEST_F(ChapterWindow, BringsThePointerBackWhenTheDataFail)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    control<DataControl>(window, "DataCtrl").setDatabaseName("/there is no such file");
    read("Mt:25:1");
    EXPECT_THROW(menuItem("mnuChap")->trigger(), DataError);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ChapterWindow, CopiesTheWholeChapterUnderItsReference)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    const QString expected = "Mt:24:\r\n" + chapter("Mt:24:");
    click(control<SoftBttn>(window, "cmdChapCopy"));
    EXPECT_EQ(clipboard(), expected);
    EXPECT_EQ(QApplication::clipboard()->mimeData()->formats(), QStringList({"text/plain"}));
    QApplication::clipboard()->clear();
    choose("mnuCopy");
    EXPECT_EQ(clipboard(), expected);
    EXPECT_TRUE(expected.startsWith("Mt:24:\r\nMt:24:1 "));
    EXPECT_TRUE(expected.endsWith("\r\n(PT)"));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(ChapterWindow, ReportsAClipboardThatCannotBeWritten)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    services.clipboardWorks = false;
    click(control<SoftBttn>(window, "cmdChapCopy"));
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown.first().text, "Error 521: Can't open Clipboard");
    EXPECT_EQ(boxes.shown.first().title, clipboardErrorTitle);
    EXPECT_EQ(boxes.shown.first().icon, MsgIcon::Exclamation);
    EXPECT_EQ(window.caption(), chapterCaption("Mt:24:"));
    EXPECT_EQ(textOf(window).text(), chapter("Mt:24:"));
}

TEST_F(ChapterWindow, CtrlCCopiesTheSelectionWithItsLineEnds)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    QApplication::clipboard()->clear();
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), currentVerse());
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), textOf(window).text());
    press(Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_Down, Qt::ControlModifier); // no shortcut of a menu
    press(Qt::Key_Home, Qt::ControlModifier);
    for (int step = 0; step < 3; ++step)
        press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Mt:");
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(ChapterWindow, HasTheFocusInItsTextOnceAChapterIsShown)
{
    EXPECT_TRUE(textOf(openChapterOf("Mt:24:43")).hasFocus());
    EXPECT_TRUE(textOf(openChapterOf("Mt:25:1")).hasFocus());
}

TEST_F(ChapterWindow, TellsHowToDragText)
{
    click(control<SoftBttn>(openChapterOf("Mt:24:43"), "cmdTip"));
    ASSERT_EQ(boxes.shown.size(), 1);
    const MsgBox::Message& tip = boxes.shown.first();
    EXPECT_EQ(tip.title, "Try this: Drag text from 'Kestrel Reader' to other programs");
    EXPECT_EQ(tip.icon, MsgIcon::Information);
    EXPECT_EQ(tip.buttons, MsgButtons::Ok);
    EXPECT_EQ(
        tip.text,
        "You can copy text from the Chapter Reading window to other programs by using drag-and-drop "
        "copying. The target program must support OLE.\r\n\r\n"
        "1. Arrange the program windows so that both the Chapter Reading window (source window) and the "
        "destination document are open and visible. You must be able to see the text you want to drag as "
        "well as the location where you want to drop it.\r\n\r\n"
        "2. In the Chapter Reading window select the text you want to copy, and then use the primary "
        "(left) mouse button to drag the selection to the insertion point in the other program.\r\n\r\n"
        "NB: Press CTRL+ C to copy any selected text to the Clipboard. Use the 'Copy Chapter' button to "
        "copy the whole chapter to the Clipboard without pre-selecting it.");
}

TEST_F(ChapterWindow, TheTypeGrowsBySixPointsAndFallsBackFrom24To12)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(textOf(window).font().pointSize(), 12);
    for (int size : {18, 24, 12, 18}) {
        click(control<SoftBttn>(window, "cmdFont"));
        EXPECT_EQ(textOf(window).font().pointSize(), size);
    }
    EXPECT_EQ(textOf(window).selText(), currentVerse());
}

TEST_F(ChapterWindow, TheWheelWithCtrlChangesNothing)
{
    ChapRead& window = openChapterOf("Ps:119:1");
    TextBox& box = textOf(window);
    turnWheel(*box.viewport(), Qt::ControlModifier);
    turnWheel(*box.viewport(), Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(box.font().pointSize(), 12);
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
    turnWheel(*box.viewport());
    EXPECT_GT(box.verticalScrollBar()->value(), 0);
    click(control<SoftBttn>(window, "cmdFont"));
    EXPECT_EQ(box.font().pointSize(), 18);
}

TEST_F(ChapterWindow, AScreenReaderLearnsWhereTheCharactersStand)
{
    TextBox& box = textOf(openChapterOf("Ps:119:176"));
    ASSERT_GT(box.verticalScrollBar()->value(), 0);
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&box)->textInterface();
    ASSERT_NE(text, nullptr);
    const QRect seen(box.viewport()->mapToGlobal(QPoint()), box.viewport()->size());
    const int start = box.textCursor().selectionStart();
    for (const int offset : {start, start + 5, start + 40}) {
        const QRect place = text->characterRect(offset);
        EXPECT_TRUE(seen.contains(place)) << offset;
        EXPECT_EQ(text->offsetAtPoint(place.center() - QPoint(1, 0)), offset);
        QTextCursor cursor(box.document());
        cursor.setPosition(offset);
        EXPECT_EQ(place.top(), box.viewport()->mapToGlobal(box.cursorRect(cursor).topLeft()).y());
    }
    EXPECT_LT(text->characterRect(0).bottom(), seen.top());
    EXPECT_EQ(text->offsetAtPoint(seen.topLeft() - QPoint(5, 5)), -1);
    text->scrollToSubstring(0, 5);
    EXPECT_TRUE(seen.contains(text->characterRect(0)));
    EXPECT_EQ(box.textCursor().selectionStart(), start);
}

TEST_F(ChapterWindow, AScreenReaderReadsTheTextInWordsAndLines)
{
    TextBox& box = textOf(openChapterOf("Ps:117:2"));
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&box);
    QAccessibleTextInterface* text = reader->textInterface();
    EXPECT_EQ(reader->role(), QAccessible::EditableText);
    EXPECT_EQ(reader->text(QAccessible::Name), "Chapter text");
    EXPECT_EQ(reader->text(QAccessible::Value), box.toPlainText());
    EXPECT_TRUE(reader->state().readOnly && reader->state().multiLine && reader->state().focused);
    EXPECT_EQ(text->text(0, text->characterCount()), box.toPlainText());
    int start = -1;
    int end = -1;
    EXPECT_TRUE(text->attributes(3, &start, &end).contains("font-size:12pt"));
    EXPECT_EQ(text->textAtOffset(1, QAccessible::WordBoundary, &start, &end), "Ps");
    EXPECT_EQ(start, 0);
    EXPECT_EQ(text->textAtOffset(2, QAccessible::ParagraphBoundary, &start, &end).left(9), "Ps:117:1 ");
    EXPECT_EQ(text->textAfterOffset(2, QAccessible::ParagraphBoundary, &start, &end).left(9), "Ps:117:2 ");
    EXPECT_EQ(text->textBeforeOffset(start, QAccessible::ParagraphBoundary, &start, &end).left(9),
              "Ps:117:1 ");
    EXPECT_EQ(text->textBeforeOffset(0, QAccessible::LineBoundary, &start, &end), "");
    EXPECT_EQ(start, -1);
    EXPECT_EQ(text->textAfterOffset(text->characterCount(), QAccessible::LineBoundary, &start, &end), "");
    EXPECT_EQ(text->selectionCount(), 1);
    text->selection(0, &start, &end);
    EXPECT_EQ(text->text(start, end), box.selText());
    text->setSelection(0, 0, 2);
    EXPECT_EQ(box.selText(), "Ps");
    text->removeSelection(0);
    EXPECT_EQ(text->selectionCount(), 0);
    EXPECT_EQ(text->cursorPosition(), 2);
    text->addSelection(3, 6);
    EXPECT_EQ(box.selText(), "117");
    text->setCursorPosition(100'000);
    EXPECT_EQ(text->cursorPosition(), text->characterCount());
}

TEST_F(ChapterWindow, TypeSizeAndFaceStayOverTheNextGathering)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    click(control<SoftBttn>(window, "cmdFont"));
    click(control<SoftBttn>(window, "cmdFntFace"));
    openChapterOf("Mt:25:1");
    EXPECT_EQ(textOf(window).text(), chapter("Mt:25:"));
    EXPECT_EQ(textOf(window).font().pointSize(), 18);
    EXPECT_EQ(textOf(window).font().family(), "Times New Roman");
}

TEST_F(ChapterWindow, CopyingWithoutAChapterCopiesTheMarkUnderAnEmptyReference)
{
    click(control<SoftBttn>(openChapterOf("no such verse"), "cmdChapCopy"));
    EXPECT_EQ(clipboard(), "\r\n(PT)");
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(ChapterWindow, TheDesignerGivesTheDataControlItsRecordSource)
{
    ChapRead fresh(frame());
    EXPECT_EQ(control<DataControl>(fresh, "DataCtrl").recordSource(), "NewTestament");
}

TEST_F(ChapterWindow, TakesItsStepsInTheirOrder)
{
    ChapRead& window = openChapterOf("Ps:117:1");
    TextBox& box = textOf(window);
    QStringList steps;
    QObject here; // nothing is noted after this test
    const auto note = [&](const QString& step) {
        if (QApplication::overrideCursor())
            steps << step;
        else
            steps << step + " without the hourglass";
    };
    QObject::connect(frame().area(), &QMdiArea::subWindowActivated, &here, [&] { note("active"); });
    QObject::connect(&window, &QWidget::windowTitleChanged, &here,
                     [&](const QString& title) { note(title); });
    QObject::connect(&box, &QPlainTextEdit::textChanged, &here,
                     [&] { note(box.toPlainText().isEmpty() ? "empty" : "text"); });
    QObject::connect(&box, &QPlainTextEdit::selectionChanged, &here, [&] {
        if (!box.selText().isEmpty())
            note("highlight");
    });
    Watcher watcher([&](QEvent::Type type) {
        if (type == QEvent::Hide)
            note("hidden");
        if (type == QEvent::Show)
            note("shown");
    });
    box.installEventFilter(&watcher);
    control<DataControl>(window, "DataCtrl").currentRowChanged = [&] { note("query"); };
    read("Ps:134:3");
    steps.clear();
    press(Qt::Key_F9);
    steps.removeDuplicates();
    EXPECT_EQ(steps, QStringList({"active", "Please wait...", "hidden", "empty", "query", "text",
                                  chapterCaption("Ps:134:"), "shown", "highlight"}));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ChapterWindow, TheFirstPressOfFontFaceGivesTimesNewRoman)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(textOf(window).font().family(), "Tahoma");
    for (const char* face : {"Times New Roman", "Tahoma", "Times New Roman"}) {
        click(control<SoftBttn>(window, "cmdFntFace"));
        EXPECT_EQ(textOf(window).font().family(), face);
    }
    outer(window).close();
    click(control<SoftBttn>(openChapterOf("Mt:24:43"), "cmdFntFace"));
    EXPECT_EQ(textOf(get<ChapRead>()).font().family(), "Times New Roman");
}

TEST_F(ChapterWindow, LoadsInTheCornerOfTheFrameAtItsSize)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(outer(window).geometry(), QRect(0, 0, 581, 380)); // 8720 x 5695 twips
    EXPECT_EQ(textOf(window).geometry(), QRect(4, 4, 528, 345));
}

TEST_F(ChapterWindow, NothingIsCutAtItsLoadSize)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(cutTexts(window), "");
    for (const SoftBttn* button : window.findChildren<SoftBttn*>())
        EXPECT_FALSE(button->geometry().intersects(textOf(window).geometry()));
}

TEST_F(ChapterWindow, TheTextFollowsTheWindowAndTheButtonsStandBesideIt)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    const int top = control<SoftBttn>(window, "cmdTip").y();
    outer(window).resize(800, 500);
    EXPECT_EQ(textOf(window).size(), QSize(747, 465)); // 12000 - 800, 7500 - 520 twips
    for (const SoftBttn* button :
         {&control<SoftBttn>(window, "cmdFont"), &control<SoftBttn>(window, "cmdFntFace"),
          &control<SoftBttn>(window, "cmdChapCopy"), &control<SoftBttn>(window, "cmdTip")})
        EXPECT_EQ(button->x(), 757); // 11200 + 150 twips
    EXPECT_EQ(control<SoftBttn>(window, "cmdTip").y(), top);
    window.setState(Form::Maximized);
    EXPECT_EQ(textOf(window).width(), qRound((outer(window).width() * 15 - 800) / 15.0));
    window.setState(Form::Minimized);
    window.setState(Form::Normal);
    EXPECT_EQ(textOf(window).size(), QSize(747, 465));
}

TEST_F(ChapterWindow, ASizeThatCannotBeIsLeftOutAndTheRestOfTheLayoutApplied)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    outer(window).setMinimumSize(1, 1);
    outer(window).resize(300, 30); // too low for any text: 4500 - 800 wide
    EXPECT_EQ(textOf(window).size(), QSize(247, 345));
    EXPECT_EQ(control<SoftBttn>(window, "cmdTip").x(), 257); // 3700 + 150
    outer(window).resize(40, 300);                           // too narrow: 4500 - 520 high
    EXPECT_EQ(textOf(window).size(), QSize(247, 265));
    EXPECT_EQ(control<SoftBttn>(window, "cmdTip").x(), 257);
}

TEST_F(ChapterWindow, HasItsMenusInOrder)
{
    openChapterOf("Mt:24:43");
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Edit", "&Search", "&Tools", "&Window", "&Help"}));
    const QList<QAction*> bar = frame().menuBar()->actions();
    EXPECT_EQ(itemsOf(*bar[1]->menu()), QStringList({"mnuCopy|&Copy Chapter to Clipboard|"}));
    EXPECT_EQ(itemsOf(*bar[3]->menu()), QStringList({"mnuTools|Study Aids|"}));
}

TEST_F(ChapterWindow, NamesItsControls)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    EXPECT_EQ(window.objectName(), "ChapRead");
    EXPECT_EQ(textOf(window).objectName(), "ChapText");
    EXPECT_EQ(textOf(window).accessibleName(), "Chapter text");
    const QList<SoftBttn*> buttons = {
        &control<SoftBttn>(window, "cmdFont"), &control<SoftBttn>(window, "cmdFntFace"),
        &control<SoftBttn>(window, "cmdChapCopy"), &control<SoftBttn>(window, "cmdTip")};
    const QStringList names = {"cmdFont", "cmdFntFace", "cmdChapCopy", "cmdTip"};
    const QStringList tips = {"Font Size", "Font Face", "Copy Chapter to Clipboard", "Tip"};
    for (int i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i]->objectName(), names[i]);
        EXPECT_EQ(buttons[i]->toolTip(), tips[i]);
        EXPECT_EQ(buttons[i]->accessibleName(), tips[i]);
    }
}

TEST_F(ChapterWindow, TabGoesFromTheTextThroughTheButtons)
{
    ChapRead& window = openChapterOf("Mt:24:43");
    for (QWidget* next :
         QList<QWidget*>{&control<SoftBttn>(window, "cmdFont"), &control<SoftBttn>(window, "cmdFntFace"),
                         &control<SoftBttn>(window, "cmdChapCopy"), &control<SoftBttn>(window, "cmdTip")}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
}

TEST_F(ChapterWindow, ItsButtonsStandWhereTheyWereDesigned)
{
    const ChapRead& window = openChapterOf("Mt:24:43");
    int top = 4;
    for (const char* name : {"cmdFont", "cmdFntFace", "cmdChapCopy", "cmdTip"}) {
        EXPECT_EQ(control<SoftBttn>(window, name).geometry(), QRect(538, top, 27, 27)) << name;
        top += 28;
    }
}

TEST_F(ChapterWindow, ItsScrollBarHasTheColorsOfTheWindow)
{
    const ChapRead& window = openChapterOf("Mt:24:43");
    const QScrollBar& bar = *textOf(window).verticalScrollBar();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::WindowText, QPalette::Text})
        EXPECT_EQ(bar.palette().color(role), window.palette().color(role));
}
