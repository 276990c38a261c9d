// The reading window through events.
#include "pictures/Colors.h"
#include "read/Stepping.h"
#include "read/VerseKeyLabel.h"
#include "read/VerseLabel.h"
#include "support/CutTexts.h"
#include "support/Session.h"
#include "text/Phrases.h"
#include "widgets/DataControl.h"
#include "widgets/Fonts.h"
#include "widgets/SoftBttn.h"
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

class Reading : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        window = &frame().readingWindow();
        window->activate();
    }

    /// What a caller does to show a verse here.
    void hand(const std::string& condition)
    {
        window->showFirst("SELECT * FROM NewTestament WHERE " + condition);
    }

    void handNumber(int number) { hand("VerseNumber = " + std::to_string(number)); }

    QString serial() const { return label("lblSerial").text(); }
    QString key() const { return label("lblVerseId").text(); }

    /// Chooses seconds with the keyboard and checks the box with the mouse.
    void startAuto(const QString& choice)
    {
        while (seconds().currentText() != choice)
            QTest::keyClick(&seconds(), choice == "3" ? Qt::Key_Up : Qt::Key_Down);
        QTest::mouseClick(&autoJump(), Qt::LeftButton, {}, QPoint(8, autoJump().height() / 2));
        ASSERT_TRUE(autoJump().isChecked());
    }

    SoftBttn& button(const QString& name) const { return control<SoftBttn>(*window, name); }
    QLabel& label(const QString& name) const { return control<QLabel>(*window, name); }
    VerseLabel& verse() const { return control<VerseLabel>(*window, "VerseText"); }
    QCheckBox& autoJump() const { return control<QCheckBox>(*window, "chkAuto"); }
    QComboBox& seconds() const { return control<QComboBox>(*window, "cboSeconds"); }
    QTimer& timer() const { return control<QTimer>(*window, "Timer1"); }
    DataControl& data() const { return control<DataControl>(*window, "DataCtl"); }

    ChildRead* window = nullptr;
};

TEST_F(Reading, OpensOnTheFirstVerse)
{
    EXPECT_EQ(key(), "Mt:1:1");
    EXPECT_EQ(serial(), "1");
    EXPECT_TRUE(verse().text().startsWith(QString(" ") + phrases::firstWord));
    EXPECT_EQ(window->caption(), "Reading Window -- Mt:1:1");
    EXPECT_EQ(data().recordSource(), "SELECT * FROM NewTestament WHERE VerseNumber = 1");
}

TEST_F(Reading, HasTheDesignedSizeAndPlace)
{
    EXPECT_EQ(outer(*window).size(), QSize(504, 353));
    const QSize area = frame().area()->viewport()->size();
    const QSize inner = window->size();
    EXPECT_NEAR(outer(*window).x(), (area.width() - inner.width()) / 3.0, 1);
    EXPECT_NEAR(outer(*window).y(), (area.height() - inner.height()) / 3.0 + 10, 1);
}

TEST_F(Reading, NamesAndTooltipsAreTheContract)
{
    const QList<std::pair<SoftBttn*, QString>> buttons = {
        {&button("cmdPrev"), "Previous Verse"},  {&button("cmdNext"), "Next Verse"},
        {&button("cmdChap"), "Current Chapter"}, {&button("cmdCopy"), "Copy Verse to Clipboard"},
        {&button("cmdFont"), "Font Size"},       {&button("cmdFntFace"), "Font Face"},
    };
    for (const auto& [button, tip] : buttons) {
        EXPECT_EQ(button->toolTip(), tip);
        EXPECT_EQ(button->accessibleName(), tip);
    }
    EXPECT_EQ(autoJump().text(), "&AutoJump to next verse after");
    EXPECT_EQ(autoJump().accessibleName(), "AutoJump to next verse after");
    EXPECT_EQ(label("Label2").text(), "secon&ds");
    EXPECT_EQ(seconds().accessibleName(), "seconds");
    EXPECT_EQ(autoJump().font().family(), "Tahoma");
    EXPECT_EQ(seconds().font().family(), "Tahoma");
    EXPECT_EQ(label("Label2").font().family(), "Tahoma");
    EXPECT_TRUE(verse().accessibleName().isEmpty());
    EXPECT_TRUE(label("lblVerseId").accessibleName().isEmpty());
    EXPECT_FALSE(label("lblSerial").isVisible());
    for (const QWidget* control : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
}

TEST_F(Reading, HasEditAndViewMenusAndAToolsItemWithoutAccessKey)
{
    EXPECT_EQ(menuBarCaptions(),
              QStringList({"&File", "&Edit", "&View", "&Search", "&Tools", "&Window", "&Help"}));
    EXPECT_EQ(menuItem("mnuCopy")->text(), "&Copy Verse to Clipboard");
    EXPECT_EQ(menuItem("mnuCopy")->shortcut(), QKeySequence("Ctrl+C"));
    EXPECT_EQ(menuItem("mnuChap")->text(), "&Current Chapter");
    EXPECT_EQ(menuItem("mnuChap")->shortcut(), QKeySequence("F9"));
    EXPECT_EQ(menuItem("mnuPrev")->text(), "&Previous Verse");
    EXPECT_EQ(menuItem("mnuPrev")->shortcut(), QKeySequence("F11"));
    EXPECT_EQ(menuItem("mnuNext")->text(), "&Next Verse");
    EXPECT_EQ(menuItem("mnuNext")->shortcut(), QKeySequence("F12"));
    EXPECT_EQ(menuItem("mnuTools")->text(), "Study Aids");
    EXPECT_TRUE(menuItem("mnuTools")->shortcut().isEmpty());
    QStringList view;
    for (const QAction* item : frame().menuBar()->actions()[2]->menu()->actions())
        view << item->objectName();
    EXPECT_EQ(view, QStringList({"mnuChap", "mnuSep2", "mnuPrev", "mnuNext"}));
    EXPECT_TRUE(menuItem("mnuSep2")->isSeparator());
}

TEST_F(Reading, NextOnTheLastVerseShowsTheFirst)
{
    handNumber(31102);
    EXPECT_EQ(key(), "Mal:4:6");
    click(button("cmdNext"));
    EXPECT_EQ(key(), "Mt:1:1");
    handNumber(31102);
    choose("mnuNext");
    EXPECT_EQ(serial(), "1");
    handNumber(31102);
    press(Qt::Key_F12);
    EXPECT_EQ(serial(), "1");
}

TEST_F(Reading, PreviousOnTheFirstVerseShowsTheLast)
{
    click(button("cmdPrev"));
    EXPECT_EQ(serial(), "31102");
    EXPECT_EQ(key(), "Mal:4:6");
    handNumber(1);
    press(Qt::Key_F11);
    EXPECT_EQ(serial(), "31102");
    handNumber(1);
    choose("mnuPrev");
    EXPECT_EQ(serial(), "31102");
}

TEST_F(Reading, StepsOverTheSeamOfTheTestaments)
{
    handNumber(7957);
    EXPECT_EQ(key(), "Rv:22:21");
    click(button("cmdNext"));
    EXPECT_EQ(key(), "Gn:1:1");
    EXPECT_EQ(serial(), "7958");
    EXPECT_EQ(data().recordSource(), "SELECT * FROM NewTestament WHERE VerseNumber = 7958");
    click(button("cmdPrev"));
    EXPECT_EQ(key(), "Rv:22:21");
}

TEST_F(Reading, TheCaptionFollowsEveryVerse)
{
    click(button("cmdNext"));
    EXPECT_EQ(window->caption(), "Reading Window -- Mt:1:2");
    EXPECT_EQ(outer(*window).windowTitle(), "Reading Window -- Mt:1:2");
    hand("VerseId = 'Gn:1:1'");
    EXPECT_EQ(window->caption(), "Reading Window -- Gn:1:1");
}

TEST_F(Reading, AnEmptyResultBlanksTheLabelsAndStepsFromThereToOneOrNowhere)
{
    hand("VerseId = 'Xy:1:1'");
    EXPECT_EQ(key(), "");
    EXPECT_EQ(serial(), "");
    EXPECT_EQ(verse().text(), "");
    EXPECT_EQ(window->caption(), "Reading Window -- ");
    click(button("cmdPrev"));
    EXPECT_EQ(data().recordSource(), "SELECT * FROM NewTestament WHERE VerseNumber = -1");
    EXPECT_EQ(serial(), "");
    click(button("cmdNext"));
    EXPECT_EQ(serial(), "1");
}

TEST_F(Reading, AutoJumpIsOffAtFirstWithFourSecondsChosen)
{
    EXPECT_FALSE(autoJump().isChecked());
    EXPECT_FALSE(timer().isActive());
    EXPECT_EQ(timer().interval(), 4000);
    EXPECT_EQ(seconds().currentText(), "4");
    QStringList items;
    for (int i = 0; i < seconds().count(); ++i)
        items << seconds().itemText(i);
    EXPECT_EQ(items, QStringList({"3", "4", "5", "6", "7", "8", "12"}));
}

TEST_F(Reading, AutoJumpStepsAtEachTickAndStartsTheIntervalAnew)
{
    startAuto("3");
    EXPECT_EQ(timer().interval(), 3000);
    EXPECT_TRUE(timer().isActive());
    QTest::qWait(50);
    EXPECT_LT(timer().remainingTime(), 2990);
    for (const Qt::Key step : {Qt::Key_F12, Qt::Key_F11}) { // a step by hand starts the interval anew, too
        QTest::qWait(50);
        press(step);
        EXPECT_TRUE(timer().isActive());
        EXPECT_GT(timer().remainingTime(), 2980);
    }
    timer().setInterval(20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return key() == "Mt:1:4"; }, 2000));
    EXPECT_TRUE(timer().isActive());
}

TEST_F(Reading, TheTimerWrapsAfterTheLastVerse)
{
    handNumber(31102);
    startAuto("4");
    timer().setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return key().startsWith("Mt:1:"); }, 2000));
}

TEST_F(Reading, UncheckingAutoJumpStopsIt)
{
    startAuto("4");
    QTest::keyClick(&autoJump(), Qt::Key_Space);
    EXPECT_FALSE(timer().isActive());
    press(Qt::Key_F12);
    EXPECT_FALSE(timer().isActive());
}

TEST_F(Reading, ChoosingTwelveSecondsChangesTheIntervalAtOnce)
{
    startAuto("4");
    EXPECT_EQ(timer().interval(), 4000);
    QTest::keyClick(&seconds(), Qt::Key_End);
    EXPECT_EQ(seconds().currentText(), "12");
    EXPECT_EQ(timer().interval(), 12000);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(Reading, AutoJumpStopsWhileAnotherChildIsActiveAndResumesWithAFullInterval)
{
    startAuto("4");
    QTest::qWait(30);
    press(Qt::Key_F2);
    EXPECT_FALSE(timer().isActive());
    window->activate();
    EXPECT_TRUE(timer().isActive());
    EXPECT_GT(timer().remainingTime(), 3980);
}

TEST_F(Reading, AStepBehindAnotherChildStartsNoTimer)
{
    autoJump().click();
    frame().openSelection();
    ASSERT_FALSE(timer().isActive());
    button("cmdNext").click(); // as by an assistive program
    EXPECT_FALSE(timer().isActive());
    window->activate();
    EXPECT_TRUE(timer().isActive());
}

TEST_F(Reading, AutoJumpStopsWhileMinimisedAndResumesWhenRestored)
{
    startAuto("4");
    window->setState(Form::Minimized);
    EXPECT_FALSE(timer().isActive());
    window->setState(Form::Normal);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(Reading, ActivatingItMinimisedDoesNotStartTheTimer)
{
    startAuto("4");
    window->setState(Form::Minimized);
    frame().openSelection();
    window->activate();
    EXPECT_FALSE(timer().isActive());
}

TEST_F(Reading, FontSizeGoesRoundTwentyFourTwelveEighteen)
{
    EXPECT_EQ(verse().font().pointSize(), 18);
    for (const int size : {24, 12, 18, 24}) {
        click(button("cmdFont"));
        EXPECT_EQ(verse().font().pointSize(), size);
    }
}

TEST_F(Reading, FontFaceGoesToTimesNewRomanFirst)
{
    EXPECT_EQ(verse().font().family(), "Tahoma");
    click(button("cmdFntFace"));
    EXPECT_EQ(verse().font().family(), "Times New Roman");
    EXPECT_EQ(verse().font().pointSize(), 18);
    click(button("cmdFntFace"));
    EXPECT_EQ(verse().font().family(), "Tahoma");
}

TEST_F(Reading, CopiesKeyAndTextAsPlainText)
{
    hand("VerseId = 'Mt:24:43'");
    const QString expected = "Mt:24:43\r\n" + verse().text() + " (PT)";
    click(button("cmdCopy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), expected);
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->formats(), QStringList("text/plain"));
    for (const bool byKey : {true, false}) {
        QGuiApplication::clipboard()->clear();
        byKey ? press(Qt::Key_C, Qt::ControlModifier) : choose("mnuCopy");
        EXPECT_EQ(QGuiApplication::clipboard()->text(), expected);
    }
}

TEST_F(Reading, ACopyIsAcknowledgedByItsButtonAndAnAnnouncement)
{
    services.announced.clear();
    for (const bool byKey : {false, true}) {
        byKey ? press(Qt::Key_C, Qt::ControlModifier) : click(button("cmdCopy"));
        EXPECT_TRUE(button("cmdCopy").isDown());
        EXPECT_TRUE(QTest::qWaitFor([this] { return !button("cmdCopy").isDown(); }, 2000));
    }
    EXPECT_EQ(services.announced, QStringList({"Copied", "Copied"}));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(Reading, EachNewVerseIsAnnouncedOnceWithItsKey)
{
    EXPECT_EQ(services.announced, QStringList("Mt:1:1" + verse().text()));
    services.announced.clear();
    handNumber(1); // the same again
    frame().openSelection();
    window->activate();
    EXPECT_EQ(services.announced, QStringList());
    click(button("cmdNext"));
    EXPECT_EQ(services.announced, QStringList("Mt:1:2" + verse().text()));
    frame().openSelection();
    handNumber(lastVerse);
    EXPECT_EQ(services.announced.size(), 2);
    EXPECT_EQ(services.announced.constLast(), key() + verse().text());
    hand("VerseNumber = 0");
    EXPECT_EQ(services.announced.size(), 2);
}

TEST_F(Reading, AScreenReaderReadsALongVerseLineByLine)
{
    hand("VerseId = 'Est:8:9'");
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&verse());
    EXPECT_EQ(spoken->text(QAccessible::Name), verse().text());
    EXPECT_EQ(spoken->role(), QAccessible::StaticText);
    QAccessibleTextInterface* text = spoken->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(0, text->characterCount()), verse().text());
    QString all;
    int lines = 0;
    int start = 0;
    int end = 0;
    for (QString line = text->textAtOffset(0, QAccessible::LineBoundary, &start, &end); !line.isEmpty();
         line = text->textAfterOffset(start, QAccessible::LineBoundary, &start, &end)) {
        all += line;
        ++lines;
        EXPECT_EQ(text->characterRect(start).top(), text->characterRect(end - 2).top()) << line.toStdString();
    }
    EXPECT_EQ(all, verse().text());
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    EXPECT_EQ(lines, bar->maximum() + bar->pageStep() + 1);
    const QPoint before = text->characterRect(text->characterCount() - 1).center();
    EXPECT_FALSE(verse().rect().contains(verse().mapFromGlobal(before)));
    text->scrollToSubstring(text->characterCount() - 1, text->characterCount());
    EXPECT_EQ(bar->value(), bar->maximum());
    const QPoint last = text->characterRect(text->characterCount() - 1).center();
    EXPECT_TRUE(verse().rect().contains(verse().mapFromGlobal(last)));
    EXPECT_EQ(text->offsetAtPoint(last), text->characterCount() - 1);
}

TEST_F(Reading, AScreenReaderScrollsNoVerseBehindAMessage)
{
    hand("VerseId = 'Est:8:9'");
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&verse())->textInterface();
    QDialog message(&frame());
    message.setModal(true);
    message.show();
    settle();
    text->scrollToSubstring(text->characterCount() - 1, text->characterCount());
    text->setCursorPosition(text->characterCount() - 1);
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->value(), 0);
    message.close();
    text->setCursorPosition(text->characterCount() - 1);
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(Reading, FirstFocusIsOnNextAlsoBesideALongVerse)
{
    window->unload();
    settle();
    window = &frame().readingWindow();
    window->showFirst("SELECT * FROM NewTestament WHERE VerseId = 'Est:8:9'");
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    ASSERT_TRUE(bar->isVisible());
    EXPECT_TRUE(button("cmdNext").hasFocus());
    for (int presses = 0; presses < 20 && !bar->hasFocus(); ++presses)
        press(Qt::Key_Tab);
    EXPECT_TRUE(bar->hasFocus());
}

TEST_F(Reading, OpeningItWithAVerseAnnouncesThatVerseAlone)
{
    window->unload();
    settle();
    services.announced.clear();
    window = &frame().readingWindow();
    hand("VerseId = 'Jn:11:35'");
    EXPECT_EQ(services.announced, QStringList("Jn:11:35" + verse().text()));
}

TEST_F(Reading, AClipboardThatTakesNothingIsReported)
{
    services.clipboardWorks = false;
    services.announced.clear();
    click(button("cmdCopy"));
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].title, "Clipboard Error");
    EXPECT_EQ(boxes.shown[0].text, "Error 521: Can't open Clipboard");
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(key(), "Mt:1:1");
    EXPECT_FALSE(button("cmdCopy").isDown());
    EXPECT_TRUE(services.announced.isEmpty());
}

TEST_F(Reading, HandOverToTheMinimisedWindowRestoresAndFocusesIt)
{
    window->setState(Form::Minimized);
    get<ChildSelect>().activate();
    handNumber(5);
    EXPECT_EQ(window->state(), Form::Normal);
    EXPECT_EQ(activeForm(), window);
    EXPECT_TRUE(window->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(serial(), "5");
}

TEST_F(Reading, KeepsTheLayoutRuleAtEverySize)
{
    const auto pixels = [](int count) { return qRound(count / 15.0); };
    const auto designed = [this] {
        return QList<int>({button("cmdFont").y(), button("cmdFntFace").y(), button("cmdCopy").y(),
                           button("cmdChap").y(), autoJump().x(), seconds().x(), label("Label2").x()});
    };
    const QList<int> before = designed();
    for (const QSize size : {QSize(504, 353), QSize(800, 500), QSize(400, 300)}) {
        outer(*window).resize(size);
        const int width = size.width() * 15 - 840;
        const int height = size.height() * 15 - 1030;
        EXPECT_EQ(verse().geometry(), QRect(4, 4, pixels(width), pixels(height)));
        EXPECT_EQ(button("cmdPrev").pos(), QPoint(pixels(width - 1530), pixels(height + 160)));
        EXPECT_EQ(button("cmdNext").pos(), QPoint(pixels(width - 735), pixels(height + 160)));
        for (const char* name : {"cmdFont", "cmdFntFace", "cmdCopy", "cmdChap"})
            EXPECT_EQ(button(name).x(), pixels(width + 160)) << name;
        EXPECT_EQ(autoJump().y(), pixels(height + 280));
        EXPECT_EQ(seconds().y(), pixels(height + 235));
        EXPECT_EQ(label("Label2").y(), pixels(height + 295));
        EXPECT_EQ(designed(), before);
    }
}

TEST_F(Reading, ATooSmallWindowLeavesTheLayoutAsItWas)
{
    const QRect before = verse().geometry();
    outer(*window).setMinimumSize(1, 1);
    outer(*window).resize(40, 40);
    EXPECT_EQ(verse().geometry(), before);
}

TEST_F(Reading, ASizeThatCannotBeIsLeftOutAndTheRestOfTheLayoutApplied)
{
    outer(*window).setMinimumSize(1, 1);
    const QRect before = verse().geometry();
    outer(*window).resize(300, 40); // too low for any text: 4500 - 840 wide
    EXPECT_EQ(verse().size(), QSize(244, before.height()));
    EXPECT_EQ(button("cmdNext").x(), 195); // 3660 - 735
    EXPECT_EQ(button("cmdChap").x(), 255); // 3660 + 160
    outer(*window).resize(40, 300);        // too narrow: 4500 - 1030 high
    EXPECT_EQ(verse().size(), QSize(244, 231));
    EXPECT_EQ(button("cmdNext").pos(), QPoint(195, 242)); // 3470 + 160
}

TEST_F(Reading, TheLayoutComesBackWithTheWindow)
{
    for (const QSize size : {QSize(504, 353), QSize(800, 500)}) {
        outer(*window).resize(size);
        const QRect text = verse().geometry();
        const QPoint next = button("cmdNext").pos();
        window->setState(Form::Minimized);
        window->setState(Form::Normal);
        EXPECT_EQ(verse().geometry(), text);
        EXPECT_EQ(button("cmdNext").pos(), next);
    }
}

TEST_F(Reading, NothingIsCutOffAtTheDesignedSize)
{
    for (const char* key : {"Mt:1:1", "1Thes:5:28", "Ps:119:176"}) {
        hand(std::string("VerseId = '") + key + "'");
        EXPECT_EQ(cutTexts(*window), "") << key;
    }
}

TEST_F(Reading, AVerseLongerThanTheWindowCanBeScrolledToItsEnd)
{
    hand("VerseId = 'Est:8:9'");
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_GT(bar->maximum(), 0);
    bar->setValue(bar->maximum());
    handNumber(1);
    EXPECT_EQ(bar->value(), 0);
    hand("VerseId = 'Jn:11:35'");
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(Reading, PageKeysScrollALongVerseByWholeLinesFromAnyControl)
{
    hand("VerseId = 'Est:8:9'");
    click(button("cmdFont")); // 24 points, the largest
    const int line = QFontMetrics(verse().font()).lineSpacing();
    const QRect area = verse().contentsRect().adjusted(6, 6, -30, -6); // without the scroll bar
    const int whole = area.height() / line;
    const auto lineOnShow = [&](int place) {
        return verse().grab().toImage().copy(area.x(), area.y() + place * line, area.width(), line);
    };
    const auto isBlank = [](const QImage& image) {
        QImage paper(image.size(), image.format());
        paper.fill(QColor(255, 255, 224));
        return image == paper;
    };
    for (QWidget* control : std::initializer_list<QWidget*>{&button("cmdNext"), &autoJump(), &seconds()}) {
        control->setFocus();
        const QImage first = lineOnShow(0);
        const QImage last = lineOnShow(whole - 1);
        EXPECT_FALSE(isBlank(last));
        const QRect below(area.x(), area.y() + whole * line, area.width(), area.height() - whole * line);
        EXPECT_TRUE(isBlank(verse().grab().toImage().copy(below))) << "half a line shows";
        press(Qt::Key_PageDown);
        EXPECT_EQ(lineOnShow(0), last);
        press(Qt::Key_PageUp);
        EXPECT_EQ(lineOnShow(0), first);
    }
    EXPECT_EQ(seconds().currentText(), "4");
}

TEST_F(Reading, PageKeysNeverSlideTheFramesAreaBehindALongVerse)
{
    hand("VerseId = 'Est:8:9'");
    click(button("cmdFont"));
    frame().resize(600, 300);
    settle();
    QScrollBar& area = *frame().area()->verticalScrollBar();
    ASSERT_GT(area.maximum(), 0);
    const int before = area.value();
    button("cmdNext").setFocus();
    for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp})
        for (int i = 0; i < 9; ++i) {
            press(key);
            EXPECT_EQ(area.value(), before);
        }
}

TEST_F(Reading, TheScrollBarOfAVerseSaysWhatItIsAndShowsItsFocus)
{
    hand("VerseId = 'Est:8:9'");
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(bar)->text(QAccessible::Name), "Scroll the verse");
    button("cmdNext").setFocus();
    const QImage without = bar->grab().toImage();
    bar->setFocus();
    const QImage with = bar->grab().toImage();
    const QColor face = bar->palette().color(QPalette::Window);
    EXPECT_NE(with, without);
    for (const QPoint edge : {QPoint(0, bar->height() / 2), QPoint(bar->width() / 2, 0)})
        EXPECT_GE(contrastRatio(with.pixelColor(edge), face), 3);
}

TEST_F(Reading, AnotherTypeKeepsThePlaceInALongVerse)
{
    hand("VerseId = 'Est:8:9'");
    click(button("cmdFont"));
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    press(Qt::Key_PageDown);
    const int lines = bar->value();
    ASSERT_GT(lines, 0);
    click(button("cmdFntFace"));
    EXPECT_NEAR(bar->value(), lines, 2);
}

// By any number of sizes on the way, as while a border is dragged.
TEST_F(Reading, AnotherSizeOfTheWindowKeepsThePlaceInALongVerse)
{
    hand("VerseId = 'Est:8:9'");
    click(button("cmdFont"));
    press(Qt::Key_PageDown);
    const QSize size = outer(*window).size();
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&verse())->textInterface();
    const auto top = [&](int character) {
        return verse().mapFromGlobal(text->characterRect(character).center()).y();
    };
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    const int lines = bar->value();
    const int first = text->offsetAtPoint(verse().mapToGlobal(QPoint(20, 20)));
    ASSERT_GT(first, 0);
    const int height = top(first);
    for (int wider = 10; wider <= 200; wider += 10) {
        outer(*window).resize(size.width() + wider, size.height());
        EXPECT_EQ(top(first), height) << wider;
    }
    EXPECT_LT(bar->value(), lines);
    outer(*window).resize(size);
    EXPECT_EQ(bar->value(), lines);
}

TEST_F(Reading, TheWheelScrollsALongVerse)
{
    hand("VerseId = 'Est:8:9'");
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    turnWheel(verse());
    EXPECT_GT(bar->value(), 0);
    hand("VerseId = 'Jn:11:35'");
    turnWheel(verse());
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(verse().font().pointSize(), 18);
}

TEST_F(Reading, TheWheelOverTheSecondsWithoutTheFocusChangesNothing)
{
    button("cmdNext").setFocus();
    turnWheel(seconds());
    EXPECT_EQ(seconds().currentText(), "4");
    EXPECT_EQ(timer().interval(), 4000);
    seconds().setFocus();
    turnWheel(seconds());
    EXPECT_EQ(seconds().currentText(), "5");
    EXPECT_EQ(timer().interval(), 5000);
}

TEST_F(Reading, CopyingWithoutACurrentVerseCopiesTheMarkAlone)
{
    hand("VerseNumber = 0");
    click(button("cmdCopy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "\r\n (PT)");
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(Reading, TheDesignerGivesTheDataControlItsRecordSource)
{
    ChildRead fresh(frame());
    EXPECT_EQ(control<DataControl>(fresh, "DataCtl").recordSource(), "NewTestament");
}

TEST_F(Reading, TheKeyStandsWhereItWasDesignedAndMovesWithTheText)
{
    EXPECT_EQ(label("lblVerseId").geometry(), QRect(456, 256, 57, 25)); // 6840, 3840, 855 x 375 twips
    outer(*window).resize(800, 500);
    EXPECT_EQ(label("lblVerseId").geometry(), QRect(qRound((800 * 15 - 840 + 120) / 15.0), 256, 57, 25));
}

// In the part of the label that the window shows, because the window is narrower than its design.
TEST_F(Reading, TheKeyIsDrawnWholeInOneLineOrInTwoWhereOneDoesNotFit)
{
    for (const auto& [id, shown] : QList<std::pair<QString, QString>>{
             {"Mt:1:1", "Mt:1:1"}, {"1Thes:5:28", "1Thes:\n5:28"}, {"Ps:119:176", "Ps:\n119:176"}}) {
        hand(("VerseId = '" + id + "'").toStdString());
        const auto& place = control<VerseKeyLabel>(*window, "lblVerseId");
        const QRect visible = place.geometry() & window->rect();
        EXPECT_GE(visible.width(), 40);
        QImage expected = window->grab().toImage();
        QPainter painter(&expected);
        painter.fillRect(visible, window->palette().color(QPalette::Window));
        painter.setFont(place.drawnFont());
        painter.setPen(place.palette().color(QPalette::WindowText));
        painter.drawText(visible, Qt::AlignCenter, shown);
        painter.end();
        EXPECT_EQ(window->grab().toImage(), expected) << id.toStdString();
        const QSize size =
            QFontMetrics(place.drawnFont()).boundingRect(visible, Qt::AlignCenter, shown).size();
        EXPECT_LE(size.width(), visible.width()) << id.toStdString();
        EXPECT_LE(size.height(), visible.height()) << id.toStdString();
    }
}

TEST_F(Reading, TheReadingSurfaceIsPaleYellowWithDarkText)
{
    EXPECT_EQ(verse().palette().color(QPalette::Window), QColor(255, 255, 224));
    EXPECT_EQ(verse().palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(Reading, ClosingAndReopeningLoadsAFreshWindow)
{
    handNumber(500);
    outer(*window).close();
    EXPECT_EQ(open<ChildRead>(), nullptr);
    EXPECT_EQ(frame().readingWindow().currentNumber(), 1);
}

TEST_F(Reading, TheKeyIsDrawnInEightPointsOrMoreWhereThatFits)
{
    for (const char* id :
         {"Mt:1:1", "Gn:31:55", "Mt:24:43", "Lk:10:37", "Jn:11:35", "1Thes:5:28", "Ps:119:176"}) {
        hand(std::string("VerseId = '") + id + "'");
        const auto& place = control<VerseKeyLabel>(*window, "lblVerseId");
        const int points = place.drawnFont().pointSize();
        const QSize room = place.visiblePart().size();
        const QSize oneLine = QFontMetrics(Fonts::captionsOf(8)).size(0, place.text());
        EXPECT_TRUE(points >= 8 || oneLine.width() > room.width()) << id;
        EXPECT_GE(points, 7) << id;
    }
    hand("VerseId = 'Est:8:9'");
    EXPECT_GE(control<VerseKeyLabel>(*window, "lblVerseId").drawnFont().pointSize(), 8);
}

TEST_F(Reading, ItsControlsStandWhereTheyWereDesigned)
{
    const QList<std::pair<QString, QRect>> designed = {
        {"VerseText", {4, 4, 448, 284}},   {"lblSerial", {456, 224, 65, 25}},
        {"cmdPrev", {346, 295, 53, 27}},   {"cmdNext", {399, 295, 53, 27}},
        {"chkAuto", {4, 303, 188, 20}},    {"cboSeconds", {194, 300, 52, 23}},
        {"Label2", {250, 304, 60, 17}},    {"cmdFont", {459, 4, 27, 27}},
        {"cmdFntFace", {459, 32, 27, 27}}, {"cmdCopy", {459, 60, 27, 27}},
        {"cmdChap", {459, 88, 27, 27}},
    };
    for (const auto& [name, place] : designed)
        EXPECT_EQ(control<QWidget>(*window, name).geometry(), place) << name.toStdString();
}

TEST_F(Reading, TheSecondsHaveTheAccessKeyOfTheWordBehindThem)
{
    press(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(seconds().hasFocus());
}

TEST_F(Reading, AutoJumpTakesTheSecondsThatAnAssistiveProgramChose)
{
    EXPECT_EQ(timer().timerType(), Qt::PreciseTimer);
    seconds().setCurrentIndex(6); // which tells of no choice
    autoJump().click();
    EXPECT_EQ(timer().interval(), 12000);
}

TEST_F(Reading, TellsItsCallerWhetherThereIsSuchAVerse)
{
    EXPECT_TRUE(window->fetch("SELECT * FROM NewTestament WHERE VerseNumber = 1"));
    EXPECT_FALSE(window->fetch("SELECT * FROM NewTestament WHERE VerseNumber = 0"));
}

TEST_F(Reading, TheWheelOverAVersesEndNeverMovesTheFramesArea)
{
    hand("VerseId = 'Est:8:9'");
    frame().resize(600, 300);
    settle();
    QScrollBar& area = *frame().area()->verticalScrollBar();
    ASSERT_GT(area.maximum(), 0);
    const int before = area.value();
    auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    bar->setValue(bar->maximum());
    turnWheel(verse());
    hand("VerseId = 'Jn:11:35'");
    turnWheel(verse());
    EXPECT_EQ(area.value(), before);
}

TEST_F(Reading, TheScrollBarOfAVerseHasTheColorsOfTheWindow)
{
    const auto* bar = &control<QScrollBar>(verse(), "scrollBar");
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::WindowText, QPalette::Text})
        EXPECT_EQ(bar->palette().color(role), window->palette().color(role));
}

TEST_F(Reading, TheVerseIsSunkInAFrame)
{
    const QImage image = verse().grab().toImage();
    const QPoint middle = image.rect().center();
    for (const QPoint edge : {QPoint(0, middle.y()), QPoint(middle.x(), 0)})
        EXPECT_NE(image.pixelColor(edge), QColor(255, 255, 224));
    EXPECT_EQ(image.pixelColor(middle.x(), image.height() - 4), QColor(255, 255, 224));
}
