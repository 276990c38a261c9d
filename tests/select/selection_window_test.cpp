// The selection window and the lookup of typed references, through events.
#include "desktop/MsgBox.h"
#include "read/VerseLabel.h"
#include "support/Session.h"
#include "text/Phrases.h"
#include "widgets/DataControl.h"
#include "widgets/SoftBttn.h"
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

class Selection : public Session
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        window = &get<ChildSelect>();
        box = combo().lineEdit();
    }

    void type(const QString& text)
    {
        window->activate();
        box->clear();
        QTest::keyClicks(QApplication::focusWidget(), text);
    }

    /// Types a reference and presses Enter; the key then shown.
    QString lookUp(const QString& text)
    {
        type(text);
        press(Qt::Key_Return);
        return frame().readingWindow().currentKey();
    }

    void moveByKeyboard(Form& form, const QString& operation = "&Move")
    {
        for (QAction* action : outer(form).systemMenu()->actions())
            if (action->text() == operation)
                action->trigger();
        ASSERT_EQ(QWidget::mouseGrabber(), &outer(form)) << operation.toStdString();
    }

    QTreeWidgetItem* node(const QString& text)
    {
        for (QTreeWidgetItemIterator it(&tree()); *it; ++it)
            if ((*it)->text(0) == text)
                return *it;
        return nullptr;
    }

    void clickNode(const QString& text)
    {
        QTreeWidgetItem* item = node(text);
        ASSERT_NE(item, nullptr) << text.toStdString();
        tree().scrollToItem(item); // expands what hides it
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(item).center());
    }

    void expectReadingWindowBehindTheBox(const QString& caption)
    {
        EXPECT_EQ(activeForm(), window);
        EXPECT_TRUE(window->isActive());
        ASSERT_NE(open<ChildRead>(), nullptr);
        EXPECT_TRUE(get<ChildRead>().isVisible());
        EXPECT_FALSE(get<ChildRead>().isActive());
        EXPECT_TRUE(get<ChildRead>().isEnabled());
        EXPECT_EQ(get<ChildRead>().caption(), caption);
    }

    SoftBttn& button(const QString& name) const { return control<SoftBttn>(*window, name); }
    QComboBox& combo() const { return control<QComboBox>(*window, "Combo1"); }
    QTreeWidget& tree() const { return control<QTreeWidget>(*window, "TreeView1"); }
    static DataControl& dataOf(const ChildRead& reading) { return control<DataControl>(reading, "DataCtl"); }

    ChildSelect* window = nullptr;
    QLineEdit* box = nullptr;
};

TEST_F(Selection, HasItsCaptionSizeAndPlace)
{
    EXPECT_EQ(window->caption(), "Select Verse for Reading");
    EXPECT_EQ(outer(*window).pos(), QPoint(0, 0));
    EXPECT_EQ(outer(*window).size(), QSize(qRound(6395 / 15.0), qRound(4150 / 15.0)));
    EXPECT_EQ(button("cmdExamples").geometry(), QRect(173, 4, 27, 27));
    EXPECT_EQ(button("cmdGo").geometry(), QRect(147, 4, 27, 27));
    EXPECT_EQ(combo().geometry(), QRect(4, 7, 133, 21));
    EXPECT_EQ(tree().geometry(), QRect(4, 37, 409, 209));
}

TEST_F(Selection, NamesAndTooltipsAreTheContract)
{
    EXPECT_EQ(button("cmdExamples").toolTip(), "Examples");
    EXPECT_EQ(button("cmdGo").toolTip(), "Display Verse");
    EXPECT_EQ(button("cmdGo").accessibleName(), "Display Verse");
    EXPECT_EQ(combo().accessibleName(), "Reference");
    EXPECT_EQ(tree().accessibleName(), "Books");
    EXPECT_EQ(combo().font().family(), "Tahoma");
    for (const char* name : {"cmdExamples", "cmdGo", "TreeView1", "Combo1"})
        EXPECT_NE(window->findChild<QWidget*>(name), nullptr) << name;
}

TEST_F(Selection, HasNoEditAndNoViewMenu)
{
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Window", "&Help"}));
    EXPECT_EQ(menuItem("mnuTools")->text(), "&Study Aids");
    EXPECT_EQ(menuItem("mnuTools")->shortcut(), QKeySequence("F8"));
}

TEST_F(Selection, TheTreeHas76NodesInTheirOrder)
{
    QStringList texts;
    for (QTreeWidgetItemIterator it(&tree()); *it; ++it)
        texts << (*it)->text(0);
    ASSERT_EQ(texts.size(), 76);
    EXPECT_EQ(texts[0], "Books of the Kestrel Reader");
    EXPECT_EQ(texts[1], "Old Testament");
    EXPECT_EQ(texts[2], "Pentateuch");
    EXPECT_EQ(texts[3], "Gênesis -- Gn");
    EXPECT_EQ(texts[8], "Historical Books");
    EXPECT_EQ(texts[21], "Poetical Books");
    EXPECT_EQ(texts[27], "Prophetic Books");
    EXPECT_EQ(texts[44], "Malaquias -- Mal");
    EXPECT_EQ(texts[45], "New Testament");
    EXPECT_EQ(texts[46], "The Four Gospels");
    EXPECT_EQ(texts[51], "Atos -- Acts");
    EXPECT_EQ(texts[52], "Epistles of St. Paul");
    EXPECT_EQ(texts[67], "Catholic Epistles");
    EXPECT_EQ(texts[68], "Tiago -- Jms");
    EXPECT_EQ(texts[75], "Apocalipse -- Rv");
    EXPECT_EQ(node("Atos -- Acts")->parent(), node("New Testament"));
    EXPECT_EQ(node("Apocalipse -- Rv")->parent(), node("New Testament"));
    EXPECT_EQ(node("New Testament")->parent(), node("Books of the Kestrel Reader"));
    EXPECT_EQ(node("Gálatas -- Gal")->parent(), node("Epistles of St. Paul"));
}

TEST_F(Selection, TheRowsOfTheTreeAreSeventeenPixelsHighOrMore)
{
    EXPECT_GE(tree().visualItemRect(tree().topLevelItem(0)).height(), 17);
}

TEST_F(Selection, OpensWithTheTestamentsExpandedAndTheGroupsCollapsed)
{
    EXPECT_EQ(tree().currentItem(), node("Old Testament"));
    EXPECT_TRUE(node("Old Testament")->isSelected());
    for (const char* open : {"Books of the Kestrel Reader", "Old Testament", "New Testament"})
        EXPECT_TRUE(node(open)->isExpanded()) << open;
    for (const char* closed : {"Pentateuch", "Historical Books", "Poetical Books", "Prophetic Books",
                               "The Four Gospels", "Epistles of St. Paul", "Catholic Epistles"})
        EXPECT_FALSE(node(closed)->isExpanded()) << closed;
    EXPECT_TRUE(tree().visualItemRect(node("Tiago -- Jms")).isEmpty()); // hidden in its group
    EXPECT_FALSE(tree().visualItemRect(node("Atos -- Acts")).isEmpty());
    EXPECT_EQ(combo().currentText(), "Mt");
}

TEST_F(Selection, TheListHoldsThe66PrefixesInCanonicalOrder)
{
    ASSERT_EQ(combo().count(), 66);
    EXPECT_EQ(combo().itemText(0), "Gn:");
    EXPECT_EQ(combo().itemText(38), "Mal:");
    EXPECT_EQ(combo().itemText(39), "Mt:");
    EXPECT_EQ(combo().itemText(65), "Rv:");
}

TEST_F(Selection, ClickingABookPutsItsPrefixIntoTheBoxAndOpensNothing)
{
    clickNode("1 Tessalonicenses -- 1Thes");
    EXPECT_EQ(combo().currentText(), "1Thes:");
    EXPECT_EQ(open<ChildRead>(), nullptr);
    clickNode("Gênesis -- Gn");
    EXPECT_EQ(combo().currentText(), "Gn:");
    press(Qt::Key_Return);
    EXPECT_EQ(get<ChildRead>().currentKey(), "Gn:1:1");
}

TEST_F(Selection, ClickingABookEnablesTheButton)
{
    box->clear();
    EXPECT_FALSE(button("cmdGo").isEnabled());
    clickNode("Atos -- Acts");
    EXPECT_TRUE(button("cmdGo").isEnabled());
}

TEST_F(Selection, ClickingATestamentAGroupOrTheRootLeavesTheBoxUnchanged)
{
    for (const char* text : {"Pentateuch", "Old Testament", "Books of the Kestrel Reader", "New Testament"}) {
        clickNode(text);
        EXPECT_EQ(combo().currentText(), "Mt") << text;
    }
}

TEST_F(Selection, ArrowKeysInTheTreeChooseABookToo)
{
    tree().setFocus();
    tree().setCurrentItem(node("New Testament"));
    press(Qt::Key_Down);
    EXPECT_EQ(combo().currentText(), "Mt");
    press(Qt::Key_Down);
    EXPECT_EQ(tree().currentItem(), node("Atos -- Acts"));
    EXPECT_EQ(combo().currentText(), "Acts:");
}

TEST_F(Selection, ATypedReferenceShowsItsVerse)
{
    EXPECT_EQ(lookUp("Mt:24:43"), "Mt:24:43");
    ChildRead& reading = get<ChildRead>();
    EXPECT_EQ(dataOf(reading).recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:24:43*'");
    EXPECT_TRUE(control<VerseLabel>(reading, "VerseText").text().contains(phrases::inMt_24_43));
    EXPECT_EQ(reading.caption(), ChildRead::captionOf("Mt:24:43"));
    EXPECT_EQ(activeForm(), &reading);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(Selection, TheButtonDoesWhatEnterDoes)
{
    type("Rv:22:21");
    click(button("cmdGo"));
    EXPECT_EQ(get<ChildRead>().currentNumber(), 7957);
}

TEST_F(Selection, TheFirstVerseOfThePrefixWins)
{
    const QList<std::pair<QString, QString>> cases = {
        {"Mt", "Mt:1:1"},
        {"Mt:24", "Mt:24:1"},
        {"Mt:2", "Mt:2:1"},
        {"Mt:24:4", "Mt:24:4"},
        {"J", "Jn:1:1"},
        {"1", "1Cor:1:1"},
        {"Ez", "Ezr:1:1"},
        {"Ez:", "Ez:1:1"},
        {"Ph", "Phil:1:1"},
        {"Jo", "Jos:1:1"},
        {"2Thes:3:16", "2Thes:3:16"},
        {"Ps:119:176", "Ps:119:176"},
    };
    for (const auto& [typed, key] : cases)
        EXPECT_EQ(lookUp(typed), key) << typed.toStdString();
}

TEST_F(Selection, BlanksAroundAReferenceAreTrimmed)
{
    EXPECT_EQ(lookUp("  Gn: "), "Gn:1:1");
    EXPECT_EQ(dataOf(get<ChildRead>()).recordSource(),
              "SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:*'");
}

TEST_F(Selection, TheVerseAlreadyShownRunsNoQuery)
{
    lookUp("Mt:24:43");
    ChildRead& reading = get<ChildRead>();
    reading.setState(Form::Minimized);
    int queries = 0;
    dataOf(reading).currentRowChanged = [&] { ++queries; };
    lookUp("Mt:24:43");
    EXPECT_EQ(queries, 0);
    EXPECT_EQ(reading.state(), Form::Normal);
    EXPECT_EQ(activeForm(), &reading);
    lookUp("mt:24:43"); // that test is for the exact text; the query takes letters of either case
    EXPECT_EQ(queries, 1);
}

TEST_F(Selection, TheReferenceWithAColonAfterItCountsAsShownToo)
{
    ChildRead& reading = frame().readingWindow();
    control<QLabel>(reading, "lblVerseId").setText("Gn:1:");
    dataOf(reading).setRecordSource("untouched");
    lookUp("Gn:1");
    EXPECT_EQ(dataOf(reading).recordSource(), "untouched");
    EXPECT_EQ(activeForm(), &reading);
}

TEST_F(Selection, AMoveByKeyboardOrAMenuLeavesTheTextSelected)
{
    moveByKeyboard(*window);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        press(key);
    QTest::keyClicks(QApplication::focusWidget(), "Lk");
    EXPECT_EQ(combo().currentText(), "Lk");
    box->setSelection(1, 1);
    frame().menuBar()->setFocus(Qt::MenuBarFocusReason);
    combo().setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(box->selectedText(), "k");
}

TEST_F(Selection, LowerCaseFindsTheVerse)
{
    EXPECT_EQ(lookUp("mt:24:43"), "Mt:24:43");
}

TEST_F(Selection, AnUnknownReferenceSaysSoAndShowsTheVerseBeforeAgain)
{
    lookUp("Mk:3:5");
    const QString serial = control<QLabel>(get<ChildRead>(), "lblSerial").text();
    QString keyBehindTheMessage = "?";
    bool pointerWasBack = false;
    boxes.whileShown = [&] {
        keyBehindTheMessage = get<ChildRead>().currentKey();
        pointerWasBack = QApplication::overrideCursor() == nullptr;
    };
    EXPECT_EQ(lookUp("Xy:1:1"), "Mk:3:5");
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, "Incorrect user input. No such verse.");
    EXPECT_EQ(boxes.shown[0].title, "Try Again!");
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(boxes.shown[0].buttons, MsgButtons::Ok);
    EXPECT_EQ(keyBehindTheMessage, "");
    EXPECT_TRUE(pointerWasBack);
    EXPECT_EQ(combo().currentText(), "Xy:1:1"); // stays for correction
    EXPECT_EQ(activeForm(), &get<ChildRead>());
    EXPECT_EQ(QString::fromStdString(dataOf(get<ChildRead>()).recordSource()),
              "SELECT * FROM NewTestament WHERE VerseNumber = " + serial);
}

TEST_F(Selection, TheHourglassShowsWhileAVerseIsLookedUp)
{
    lookUp("Mt:5");
    Qt::CursorShape pointer = Qt::ArrowCursor;
    dataOf(get<ChildRead>()).currentRowChanged = [&] {
        if (const QCursor* shown = QApplication::overrideCursor())
            pointer = shown->shape();
    };
    lookUp("Mt:6");
    EXPECT_EQ(pointer, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Selection, ABadReferenceWithTheReadingWindowClosedOpensItOnTheFirstVerse)
{
    EXPECT_EQ(open<ChildRead>(), nullptr);
    EXPECT_EQ(lookUp("Xy"), "Mt:1:1");
    EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(Selection, ABadReferenceWhileNoVerseIsShownShowsTheFirst)
{
    ChildRead& reading = frame().readingWindow();
    dataOf(reading).setRecordSource("SELECT * FROM NewTestament WHERE VerseNumber = 0");
    dataOf(reading).refresh();
    ASSERT_EQ(control<QLabel>(reading, "lblSerial").text(), "");
    EXPECT_EQ(lookUp("Xy"), "Mt:1:1");
    EXPECT_EQ(dataOf(reading).recordSource(), "SELECT * FROM NewTestament WHERE VerseNumber = 1");
}

TEST_F(Selection, TextAfterACompleteKeyIsNotIgnored)
{
    lookUp("Mt:24:43x");
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(get<ChildRead>().currentKey(), "Mt:1:1");
}

TEST_F(Selection, AMinimisedReadingWindowIsRestored)
{
    lookUp("Mt:5");
    get<ChildRead>().setState(Form::Minimized);
    lookUp("Mt:6");
    EXPECT_EQ(get<ChildRead>().state(), Form::Normal);
}

TEST_F(Selection, TheFifteenthCharacterBeepsAndIsCut)
{
    type("12345678901234");
    EXPECT_EQ(services.beeps, 0);
    QTest::keyClicks(QApplication::focusWidget(), "5");
    EXPECT_EQ(services.beeps, 1);
    EXPECT_EQ(combo().currentText(), "12345678901234");
    EXPECT_EQ(box->cursorPosition(), 14);
    box->setCursorPosition(3);
    QTest::keyClicks(QApplication::focusWidget(), "x");
    EXPECT_EQ(combo().currentText(), "123x4567890123");
    EXPECT_EQ(box->cursorPosition(), 14);
    EXPECT_EQ(services.beeps, 2);
}

TEST_F(Selection, AnEmptyBoxDisablesTheButtonAndEnterDoesNothing)
{
    type("   ");
    EXPECT_FALSE(button("cmdGo").isEnabled());
    press(Qt::Key_Return);
    EXPECT_EQ(open<ChildRead>(), nullptr);
    EXPECT_TRUE(boxes.shown.isEmpty());
    QTest::keyClicks(QApplication::focusWidget(), "M");
    EXPECT_TRUE(button("cmdGo").isEnabled());
}

TEST_F(Selection, EnterWorksAnywhereInTheWindow)
{
    type("Lk:2");
    tree().setFocus();
    press(Qt::Key_Enter);
    EXPECT_EQ(get<ChildRead>().currentKey(), "Lk:2:1");
    window->activate();
    button("cmdExamples").setFocus();
    combo().setEditText("Lk:3");
    press(Qt::Key_Return);
    EXPECT_EQ(get<ChildRead>().currentKey(), "Lk:3:1");
    EXPECT_TRUE(boxes.shown.isEmpty()); // Enter did not press the examples button
}

TEST_F(Selection, EachActivationGivesTheBoxTheFocus)
{
    tree().setFocus();
    frame().readingWindow().activate();
    window->activate();
    EXPECT_TRUE(combo().hasFocus() || box->hasFocus());
}

TEST_F(Selection, AReferenceTypedAtOnceReplacesTheOldOne)
{
    QTest::keyClicks(box, "Mt:24:43");
    EXPECT_EQ(box->text(), "Mt:24:43");
    press(Qt::Key_Return);
    window->activate();
    QTest::keyClicks(box, "Rv");
    EXPECT_EQ(box->text(), "Rv");
}

TEST_F(Selection, ChoosingFromTheListEnablesTheButton)
{
    box->clear();
    combo().setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(combo().currentText(), "Gn:");
    EXPECT_TRUE(button("cmdGo").isEnabled());
}

TEST_F(Selection, TheListOpensWithTheBookOfTheTypedReferenceMarked)
{
    for (const auto& [typed, book] : QList<std::pair<QString, QString>>{{"Mt:24:43", "Mt:"},
                                                                        {" jn:3", "Jn:"},
                                                                        {"2Thes:3:16", "2Thes:"},
                                                                        {"Ez", "Ez:"},
                                                                        {"Ezr:1", "Ezr:"},
                                                                        {"Ma", "Mal:"},
                                                                        {"J", "Jn:"}}) {
        combo().setEditText(typed);
        combo().showPopup();
        settle();
        EXPECT_EQ(combo().view()->currentIndex().data().toString(), book) << typed.toStdString();
        EXPECT_TRUE(combo().view()->viewport()->rect().contains(
            combo().view()->visualRect(combo().view()->currentIndex()).center()));
        combo().hidePopup();
        EXPECT_EQ(combo().currentText(), typed);
    }
    combo().setEditText("xyz");
    combo().showPopup();
    EXPECT_FALSE(combo().view()->currentIndex().isValid());
    combo().hidePopup();
}

TEST_F(Selection, EnterInTheOpenListChoosesAndEnterAgainLooksUp)
{
    combo().setEditText("Ps");
    combo().showPopup();
    settle();
    QTest::keyClick(combo().view(), Qt::Key_Down);
    QTest::keyClick(combo().view(), Qt::Key_Return);
    settle();
    EXPECT_FALSE(combo().view()->isVisible());
    EXPECT_EQ(combo().currentText(), "Prv:");
    EXPECT_EQ(open<ChildRead>(), nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(get<ChildRead>().currentKey(), "Prv:1:1");
}

TEST_F(Selection, NoTypedReferenceJoinsTheList)
{
    lookUp("Mt:24:43");
    lookUp("Xyz");
    EXPECT_EQ(combo().count(), 66);
}

TEST_F(Selection, AnApostropheEndsTheProgramWithSqlitesOwnText)
{
    boxes.whileShown = [this] { expectReadingWindowBehindTheBox(ChildRead::captionOf("Mt:1:1")); };
    QTimer::singleShot(0, [this] {
        type("Mt'");
        press(Qt::Key_Return);
    });
    QTimer::singleShot(5000, [] { QCoreApplication::exit(7); });
    EXPECT_EQ(QApplication::exec(), 1);
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Stop);
    EXPECT_TRUE(boxes.shown[0].text.contains("syntax error") ||
                boxes.shown[0].text.contains("unrecognized token"))
        << boxes.shown[0].text.toStdString();
}

TEST_F(Selection, ReferringToTheReadingWindowOpensItBehindTheMessage)
{
    boxes.whileShown = [this] {
        expectReadingWindowBehindTheBox(ChildRead::captionOf(""));
        switchProgramsAndBack();
        expectReadingWindowBehindTheBox(ChildRead::captionOf(""));
        EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Window", "&Help"}));
    };
    EXPECT_EQ(lookUp("Xy"), "Mt:1:1");
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(activeForm(), &get<ChildRead>());
}

TEST_F(Selection, AutoJumpRestsWhileTheFailureBoxStands)
{
    lookUp("Mt:5");
    ChildRead& reading = get<ChildRead>();
    control<QCheckBox>(reading, "chkAuto").setChecked(true);
    QTimer& timer = control<QTimer>(reading, "Timer1");
    timer.setInterval(1);
    boxes.whileShown = [&] {
        EXPECT_FALSE(timer.isActive());
        QTest::qWait(20);
        EXPECT_EQ(reading.currentKey(), "");
    };
    EXPECT_EQ(lookUp("Xy"), "Mt:5:1");
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_TRUE(timer.isActive());
}

TEST_F(Selection, OtherWhiteSpaceThanBlanksIsNotTrimmed)
{
    for (const QChar space : {u'\t', u'\n', u'\u00a0'}) {
        window->activate();
        box->selectAll();
        QApplication::clipboard()->setText(QString("Lk:2") + space);
        press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(combo().currentText(), QString("Lk:2") + space);
        boxes.shown.clear();
        press(Qt::Key_Return);
        ASSERT_EQ(boxes.shown.size(), 1) << int(space.unicode());
        EXPECT_EQ(boxes.shown[0].title, "Try Again!");
        EXPECT_EQ(get<ChildRead>().currentKey(), "Mt:1:1");
    }
}

TEST_F(Selection, AReferenceWithANulFindsNoVerse)
{
    const QString nul(QChar::Null);
    for (const QString& reference : {"Mt" + nul, nul + "Mt", "Mt" + nul + ":5", "[!" + nul + "]t", nul}) {
        window->activate();
        box->setText(reference);
        boxes.shown.clear();
        press(Qt::Key_Return);
        ASSERT_EQ(boxes.shown.size(), 1);
        EXPECT_EQ(boxes.shown[0].text, "Incorrect user input. No such verse.");
        EXPECT_EQ(get<ChildRead>().currentKey(), "Mt:1:1");
    }
}

TEST_F(Selection, TheSelectCommandGivesTheBoxTheFocusAlsoInTheActiveWindow)
{
    const QList<std::function<void()>> commands = {
        [] { press(Qt::Key_F2); },
        [this] { click(control<SoftBttn>(frame(), "cmdSelect")); },
        [this] { choose("mnuSelect"); },
    };
    for (const auto& command : commands)
        for (QWidget* other : std::initializer_list<QWidget*>{&tree(), &button("cmdExamples")}) {
            other->setFocus();
            box->deselect();
            command();
            EXPECT_TRUE(combo().hasFocus());
            EXPECT_EQ(box->selectedText(), "Mt");
            EXPECT_EQ(activeForm(), window);
        }
}

TEST_F(Selection, AFirstClickIntoTheTreeLeavesTheFocusThere)
{
    frame().readingWindow().activate();
    ASSERT_NE(activeForm(), window);
    clickNode("Atos -- Acts");
    EXPECT_EQ(activeForm(), window);
    EXPECT_TRUE(tree().hasFocus());
    EXPECT_EQ(combo().currentText(), "Acts:");
    frame().readingWindow().activate();
    QTest::mouseClick(&outer(*window), Qt::LeftButton, {}, QPoint(100, 8)); // on the title bar
    EXPECT_EQ(activeForm(), window);
    EXPECT_TRUE(combo().hasFocus());
}

TEST_F(Selection, ClickingTheChosenBookAgainPutsItBackIntoTheBox)
{
    clickNode("Atos -- Acts");
    type("Lk:2");
    clickNode("Atos -- Acts");
    EXPECT_EQ(combo().currentText(), "Acts:");
}

TEST_F(Selection, TheWheelOverTheBoxWithoutTheFocusChangesNothing)
{
    combo().setCurrentIndex(3);
    tree().setFocus();
    turnWheel(combo());
    turnWheel(*box);
    EXPECT_EQ(combo().currentIndex(), 3);
    combo().setFocus();
    turnWheel(combo());
    EXPECT_EQ(combo().currentIndex(), 4);
}

TEST_F(Selection, EnterAndEscBelongToTheWindowWhileItIsMovedByKeyboard)
{
    for (const char* operation : {"&Move", "&Size"})
        for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) {
            window->activate();
            moveByKeyboard(*window, operation);
            press(end);
            EXPECT_EQ(open<ChildRead>(), nullptr) << operation;
            EXPECT_EQ(QWidget::mouseGrabber(), nullptr) << operation;
        }
    press(Qt::Key_Return);
    EXPECT_NE(open<ChildRead>(), nullptr);
}

TEST_F(Selection, EveryKeyBelongsToTheWindowWhileItIsMovedByKeyboard)
{
    window->activate();
    moveByKeyboard(*window);
    for (const Qt::Key key : {Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F8})
        press(key);
    press(Qt::Key_F4, Qt::ControlModifier);
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_H, Qt::AltModifier);
    settle();
    EXPECT_EQ(QWidget::mouseGrabber(), &outer(*window));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(frame().windows().size(), 1);
    press(Qt::Key_Escape);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST_F(Selection, AMoveByKeyboardEndsWhenAnotherWindowIsActivated)
{
    window->activate();
    const QPoint place = outer(*window).pos();
    moveByKeyboard(*window);
    press(Qt::Key_Right);
    EXPECT_NE(outer(*window).pos(), place);
    frame().openSearch(); // as an assistive program's press does
    settle();
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    EXPECT_EQ(activeForm()->objectName(), "frmAdvSearch");
}

TEST_F(Selection, TheTreeFollowsTheWindowsSize)
{
    outer(*window).resize(600, 400);
    EXPECT_EQ(tree().size(), QSize(qRound((9000 - 260) / 15.0), qRound((6000 - 555 - 460) / 15.0)));
    EXPECT_EQ(combo().geometry(), QRect(4, 7, 133, 21));
}

TEST_F(Selection, ShrinkingBelow260TwipsLeavesTheTreeAsItWas)
{
    const QSize before = tree().size();
    outer(*window).setMinimumSize(1, 1);
    outer(*window).resize(15, outer(*window).height());
    EXPECT_EQ(tree().size(), before);
}

TEST_F(Selection, ASizeThatCannotBeIsLeftOutAndTheOtherApplied)
{
    const QSize before = tree().size();
    outer(*window).setMinimumSize(1, 1);
    outer(*window).resize(15, 400); // 6000 - 555 - 460 high
    EXPECT_EQ(tree().size(), QSize(before.width(), 332));
    outer(*window).resize(600, 40); // 9000 - 260 wide
    EXPECT_EQ(tree().size(), QSize(583, 332));
}

TEST_F(Selection, TheTreeComesBackWithTheWindow)
{
    const QSize before = tree().size();
    window->setState(Form::Minimized);
    window->setState(Form::Normal);
    EXPECT_EQ(tree().size(), before);
}

TEST_F(Selection, TheExamplesAreShown)
{
    click(button("cmdExamples"));
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(boxes.shown[0].buttons, MsgButtons::Ok);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
    EXPECT_EQ(
        boxes.shown[0].text,
        "EXAMPLES\r\n\r\n"
        "Type   Mt:24:43\r\n"
        "To display verse 43 from chapter 24 of the Gospel according to St. Matthew\r\n\r\n"
        "Type   Mt:24\r\n"
        "To display the first verse from chapter 24 of the Gospel according to St. Matthew\r\n\r\n"
        "Type   Mt\r\n"
        "To display the first verse from the first chapter of the Gospel according to St. Matthew\r\n\r\n"
        "Type   2Thes:3:16\r\n"
        "To display verse 16 from chapter 3 of the Second Epistle to the Thessalonians");
}

TEST_F(Selection, TabWalksTheControlsInReadingOrder)
{
    QStringList order;
    for (int i = 0; i < 4; ++i) {
        const QWidget* focused = QApplication::focusWidget();
        order << (focused == box ? "Combo1" : focused->objectName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"Combo1", "cmdGo", "cmdExamples", "TreeView1"}));
}

TEST_F(Selection, AnAssistiveProgramChoosesAndScrollsNothingBehindAMessage)
{
    tree().expandAll();
    settle();
    QScrollBar& bar = *tree().verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    QTreeWidgetItem* chosen = tree().currentItem();
    const QString first = tree().topLevelItem(0)->child(1)->child(0)->text(0);
    QAccessibleInterface* lines = QAccessible::queryAccessibleInterface(&tree());
    QAccessibleInterface* other = nullptr;
    for (int n = 0; !other && n < lines->childCount(); ++n)
        if (lines->child(n)->text(QAccessible::Name) == first) // Qt takes it for the first line of all
            other = lines->child(n);
    ASSERT_NE(other, nullptr);
    const auto disturb = [&] {
        QAccessible::queryAccessibleInterface(&bar)->valueInterface()->setCurrentValue(bar.maximum());
        other->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        settle();
    };
    {
        QDialog message(&frame());
        message.setModal(true);
        message.show();
        settle();
        disturb();
        EXPECT_EQ(tree().selectedItems(), QList{chosen});
        EXPECT_EQ(bar.value(), 0);
    }
    disturb();
    EXPECT_NE(tree().selectedItems(), QList{chosen});
    EXPECT_GT(bar.value(), 0);
}

TEST_F(Selection, TheListOfBooksOpensWithoutAChoiceForAnEmptyReference)
{
    type("");
    combo().showPopup();
    EXPECT_FALSE(combo().view()->currentIndex().isValid());
    combo().hidePopup();
}

TEST_F(Selection, ReopensAtTheLeftTopOfTheFrame)
{
    frame().openSearch();
    frame().readingWindow().restoreAndActivate();
    window->unload();
    settle();
    frame().openSelection();
    EXPECT_EQ(outer(get<ChildSelect>()).pos(), QPoint(0, 0));
}

TEST_F(Selection, SpeaksOfItsBoxAndShowsNoHeadAboveTheBooks)
{
    EXPECT_EQ(box->accessibleName(), "Reference");
    EXPECT_FALSE(tree().header()->isVisible());
}

TEST_F(Selection, TheListOpensWithTheBookInItsMiddle)
{
    combo().setEditText("Is");
    combo().showPopup();
    settle();
    QAbstractItemView& list = *combo().view();
    ASSERT_GT(list.verticalScrollBar()->maximum(), 0);
    const int row = list.visualRect(list.currentIndex()).center().y();
    EXPECT_NEAR(row, list.viewport()->rect().center().y(), list.visualRect(list.currentIndex()).height());
    combo().hidePopup();
}

TEST_F(Selection, ATextPutIntoTheBoxMeanwhileIsNotSelected)
{
    box->setSelection(0, 2);
    frame().menuBar()->setFocus(Qt::MenuBarFocusReason);
    box->setText("Acts");
    combo().setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(box->selectedText(), "");
}
