// The main frame: toolbar, menus, shared commands, single instances.
#include "maps/ChildMapSel.h"
#include "read/ChapRead.h"
#include "read/ChildRead.h"
#include "read/TextBox.h"
#include "read/VerseLabel.h"
#include "select/ChildSelect.h"
#include "support/Session.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <QActionGroup>
#include <QComboBox>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>

using Frame = Session;

namespace {

QMenu* menuOf(MDIParent& frame, const QString& caption)
{
    for (const QAction* entry : frame.menuBar()->actions())
        if (entry->text() == caption)
            return entry->menu();
    return nullptr;
}

} // namespace

TEST_F(Frame, HasItsCaption)
{
    EXPECT_EQ(frame().windowTitle(), "Kestrel Reader: Portuguese Version - Freeware");
}

TEST_F(Frame, OpensTheSelectionWindowWithTheFocus)
{
    ASSERT_NE(open<ChildSelect>(), nullptr);
    EXPECT_EQ(activeForm(), open<ChildSelect>());
    EXPECT_TRUE(get<ChildSelect>().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Frame, HasFiveToolbarButtonsInOrder)
{
    const QList<SoftBttn*> buttons = {
        &control<SoftBttn>(frame(), "cmdSelect"), &control<SoftBttn>(frame(), "cmdNote"),
        &control<SoftBttn>(frame(), "cmdSearch"), &control<SoftBttn>(frame(), "cmdTools"),
        &control<SoftBttn>(frame(), "cmdAbout")};
    const QStringList names = {"cmdSelect", "cmdNote", "cmdSearch", "cmdTools", "cmdAbout"};
    const QStringList tips = {"Select Verse to read", "Notepad", "Search", "Study Aids",
                              "About/QORV CD-ROM Offer"};
    EXPECT_EQ(control<QWidget>(frame(), "picToolbar").objectName(), "picToolbar");
    EXPECT_EQ(control<QWidget>(frame(), "picToolbar").mapTo(&frame(), QPoint()),
              QPoint(0, frame().menuBar()->height()));
    EXPECT_EQ(control<QWidget>(frame(), "picToolbar").width(), frame().width());
    int left = 2; // 30 twips
    for (int i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i]->objectName(), names[i]);
        EXPECT_EQ(buttons[i]->toolTip(), tips[i]);
        EXPECT_EQ(buttons[i]->accessibleName(), tips[i]);
        EXPECT_EQ(buttons[i]->geometry(), QRect(left, 0, 24, 24));
        left += 24;
    }
}

TEST_F(Frame, ShowsItsOwnMenusWhileNoChildIsOpen)
{
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Window", "&Help"}));
    outer(get<ChildSelect>()).close();
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Help"}));
    EXPECT_EQ(menuItem("mnuArrangeIco"), nullptr);
}

TEST_F(Frame, HasTheSharedMenuItemsInOrder)
{
    outer(get<ChildSelect>()).close();
    EXPECT_EQ(itemsOf(*menuOf(frame(), "&File")),
              QStringList({"mnuSelect|&Select Verse for Reading|F2", "mnuSep|-|",
                           "mnuNote|&Launch Notepad|Ctrl+N", "mnuSep1|-|", "mnuQuit|E&xit|"}));
    EXPECT_EQ(itemsOf(*menuOf(frame(), "&Search")), QStringList({"mnuSearch|&Search|F3"}));
    EXPECT_EQ(itemsOf(*menuOf(frame(), "&Tools")), QStringList({"mnuTools|&Study Aids|F8"}));
    EXPECT_EQ(itemsOf(*menuOf(frame(), "&Help")), QStringList({"mnuAbout|&About...|"}));
}

TEST_F(Frame, F2BringsTheOneSelectionWindowForward)
{
    ChildSelect* select = open<ChildSelect>();
    frame().readingWindow().activate();
    EXPECT_EQ(activeForm(), open<ChildRead>());
    press(Qt::Key_F2);
    EXPECT_EQ(activeForm(), select);
    EXPECT_EQ(open<ChildSelect>(), select);
    EXPECT_TRUE(select->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Frame, CtrlTabGoesBackToTheWindowUsedBefore)
{
    frame().readingWindow().activate();
    frame().chapterWindow().activate();
    frame().readingWindow().activate(); // made after the selection window
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
    EXPECT_EQ(activeForm(), open<ChapRead>());
}

TEST_F(Frame, F2RestoresAMinimisedSelectionWindow)
{
    get<ChildSelect>().setState(Form::Minimized);
    frame().readingWindow().activate();
    press(Qt::Key_F2);
    EXPECT_EQ(get<ChildSelect>().state(), Form::Normal);
    EXPECT_EQ(activeForm(), open<ChildSelect>());
}

TEST_F(Frame, F2ScrollsToASelectionWindowOutOfView)
{
    outer(frame().readingWindow()).move(frame().area()->width() * 2, frame().area()->height() * 2);
    settle();
    frame().readingWindow().restoreAndActivate();
    settle();
    EXPECT_LT(outer(get<ChildSelect>()).x(), 0);
    EXPECT_TRUE(frame().area()->viewport()->rect().contains(outer(get<ChildRead>()).geometry()));
    press(Qt::Key_F2);
    settle();
    EXPECT_TRUE(frame().area()->viewport()->rect().contains(outer(get<ChildSelect>()).geometry()));
}

TEST_F(Frame, ShowsTheTitleOfAWindowHigherThanItself)
{
    frame().resize(640, 400);
    frame().openStudyAids();
    settle();
    const QRect area = frame().area()->viewport()->rect();
    EXPECT_GT(outer(get<ChildMapSel>()).height(), area.height());
    EXPECT_EQ(outer(get<ChildMapSel>()).y(), 0);
}

TEST_F(Frame, HasScrollBarsWhileAWindowReachesBeyondIt)
{
    const QScrollBar& across = *frame().area()->horizontalScrollBar();
    const QScrollBar& down = *frame().area()->verticalScrollBar();
    outer(get<ChildSelect>()).move(0, 0);
    settle();
    EXPECT_FALSE(across.isVisible());
    EXPECT_FALSE(down.isVisible());
    outer(get<ChildSelect>()).move(frame().width(), 0);
    settle();
    EXPECT_TRUE(across.isVisible());
    outer(get<ChildSelect>()).move(0, frame().height());
    settle();
    EXPECT_TRUE(down.isVisible());
}

TEST_F(Frame, IsNotSlidByWheelOrKeysAtTheEndOfATextOrList)
{
    frame().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId = 'Est:8:9'");
    press(Qt::Key_F9);
    frame().openStudyAids();
    auto& references = control<ListBox>(get<ChildMapSel>(), "List1");
    references.selectCurrentLine();
    frame().resize(600, 300);
    settle();
    QScrollBar& area = *frame().area()->verticalScrollBar();
    ASSERT_GT(area.maximum(), 0);
    auto& verse = control<VerseLabel>(frame().readingWindow(), "VerseText");
    auto& chapter = control<TextBox>(get<ChapRead>(), "ChapText");
    auto& tree = control<QTreeWidget>(get<ChildSelect>(), "TreeView1");
    for (QAbstractScrollArea* view :
         std::initializer_list<QAbstractScrollArea*>{&chapter, &tree, &references}) {
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        area.setValue(0);
        turnWheel(*view->viewport());
        turnWheel(*view->verticalScrollBar());
        EXPECT_EQ(area.value(), 0) << "the wheel over " << view->objectName().toStdString();
        for (const auto key : {Qt::Key_End, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_PageDown}) {
            QTest::keyClick(view, key);
            EXPECT_EQ(area.value(), 0) << "a key in " << view->objectName().toStdString();
        }
    }
    auto& bar = control<QScrollBar>(verse, "scrollBar");
    bar.setValue(bar.maximum());
    turnWheel(verse);
    turnWheel(bar);
    EXPECT_EQ(area.value(), 0);
}

TEST_F(Frame, F2LeavesAMaximisedSelectionWindowMaximised)
{
    get<ChildSelect>().setState(Form::Maximized);
    press(Qt::Key_F2);
    EXPECT_EQ(get<ChildSelect>().state(), Form::Maximized);
}

TEST_F(Frame, F2LoadsAFreshSelectionWindowAfterItWasClosed)
{
    control<QComboBox>(get<ChildSelect>(), "Combo1").setEditText("Rv:1");
    outer(get<ChildSelect>()).close();
    EXPECT_EQ(open<ChildSelect>(), nullptr);
    choose("mnuSelect");
    ASSERT_NE(open<ChildSelect>(), nullptr);
    EXPECT_EQ(control<QComboBox>(get<ChildSelect>(), "Combo1").currentText(), "Mt");
}

TEST_F(Frame, ReopeningAnOpenWindowKeepsItsContents)
{
    control<QComboBox>(get<ChildSelect>(), "Combo1").setEditText("Rv:1");
    choose("mnuSelect");
    EXPECT_EQ(control<QComboBox>(get<ChildSelect>(), "Combo1").currentText(), "Rv:1");
}

TEST_F(Frame, AToolbarButtonItsMenuItemAndItsKeyDoTheSame)
{
    const auto expectEachToOpen = [this](const char* window, SoftBttn* button, const char* item,
                                         Qt::Key key) {
        const QList<std::function<void()>> uses = {[&] { click(*button); }, [&] { choose(item); },
                                                   [&] { press(key); }};
        for (const auto& use : uses) {
            frame().mapWindow().activate(); // which is none of theirs
            use();
            EXPECT_EQ(activeForm()->objectName(), window) << item;
        }
    };
    expectEachToOpen("ChildSelect", &control<SoftBttn>(frame(), "cmdSelect"), "mnuSelect", Qt::Key_F2);
    expectEachToOpen("frmAdvSearch", &control<SoftBttn>(frame(), "cmdSearch"), "mnuSearch", Qt::Key_F3);
    expectEachToOpen("ChildMapSel", &control<SoftBttn>(frame(), "cmdTools"), "mnuTools", Qt::Key_F8);
}

TEST_F(Frame, ExitInAChildEndsTheProgramWithoutAskingTheChildren)
{
    QSignalSpy quit(qApp, &QCoreApplication::aboutToQuit);
    frame().readingWindow().activate();
    QTimer::singleShot(0, [this] { choose("mnuQuit"); });
    QTimer::singleShot(3000, [] { QCoreApplication::exit(7); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_NE(open<ChildRead>(), nullptr);
    EXPECT_FALSE(frame().isVisible());
}

TEST_F(Frame, ActivatingAgainWithoutAStartWindowDoesNoHarm)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&frame(), &activate);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Frame, TheWindowMenuListsTheOpenWindowsAndChecksTheActiveOne)
{
    frame().readingWindow().activate();
    QMenu* menu = menuOf(frame(), "&Window");
    ASSERT_NE(menu, nullptr);
    QMetaObject::invokeMethod(menu, "aboutToShow");
    const QList<QAction*> items = menu->actions();
    ASSERT_EQ(items.size(), 4);
    EXPECT_EQ(items[0]->text(), "&Arrange Icons");
    EXPECT_EQ(items[2]->text(), "&1 Select Verse for Reading");
    EXPECT_EQ(items[3]->text(), "&2 " + ChildRead::captionOf("Mt:1:1"));
    EXPECT_FALSE(items[2]->isChecked());
    EXPECT_TRUE(items[3]->isChecked());
    ASSERT_NE(items[2]->actionGroup(), nullptr) << "marked as one choice of several";
    EXPECT_EQ(items[2]->actionGroup(), items[3]->actionGroup());
    EXPECT_TRUE(items[2]->actionGroup()->isExclusive());
    items[2]->trigger();
    EXPECT_EQ(activeForm(), open<ChildSelect>());
}

TEST_F(Frame, TheWindowMenuLeavesOutTheMiddleOfALongCaption)
{
    frame().mapWindow().showMap(3);
    const QString caption = frame().mapWindow().caption();
    QMenu* menu = menuOf(frame(), "&Window");
    QMetaObject::invokeMethod(menu, "aboutToShow");
    const QString entry = menu->actions().constLast()->text();
    EXPECT_LT(entry.size(), caption.size());
    EXPECT_TRUE(entry.startsWith("&2 " + caption.left(20))) << entry.toStdString();
    EXPECT_TRUE(entry.endsWith(caption.right(20))) << entry.toStdString();
    EXPECT_LE(menu->sizeHint().width(), 520);
}

TEST_F(Frame, OpensMaximisedWhereTheScreenIsSmall)
{
    ASSERT_LE(frame().screen()->size().height(), 800) << "a test for a small screen";
    EXPECT_TRUE(frame().isMaximized());
}

TEST_F(Frame, ArrangesMinimisedWindowsAlongTheBottom)
{
    ChildRead& reading = frame().readingWindow();
    reading.setState(Form::Minimized);
    get<ChildSelect>().setState(Form::Minimized);
    outer(reading).move(200, 30);
    outer(get<ChildSelect>()).move(300, 100);
    get<ChildSelect>().activate();
    choose("mnuArrangeIco");
    const int bottom = frame().area()->viewport()->height();
    EXPECT_EQ(outer(get<ChildSelect>()).geometry().bottom() + 1, bottom);
    EXPECT_EQ(outer(reading).geometry().bottom() + 1, bottom);
    EXPECT_FALSE(outer(reading).geometry().intersects(outer(get<ChildSelect>()).geometry()));
    EXPECT_EQ(qMin(outer(reading).x(), outer(get<ChildSelect>()).x()), 0);
}

TEST_F(Frame, HasAnIconAndAnAreaWithAName)
{
    EXPECT_FALSE(frame().windowIcon().isNull());
    EXPECT_EQ(frame().area()->accessibleName(), "Windows");
}

TEST_F(Frame, ItsAreaFillsWhatTheToolbarLeaves)
{
    const QWidget& toolbar = control<QWidget>(frame(), "picToolbar");
    EXPECT_EQ(toolbar.height(), 26); // 390 twips
    const QRect area(frame().area()->mapTo(&frame(), QPoint()), frame().area()->size());
    EXPECT_EQ(area.topLeft(), QPoint(0, frame().menuBar()->height() + toolbar.height()));
    EXPECT_EQ(area.bottomRight(), frame().rect().bottomRight());
}

TEST_F(Frame, TakesMostOfASmallScreenOnceItIsNoLongerMaximised)
{
    const QSize room = frame().screen()->availableSize();
    frame().showNormal();
    settle();
    EXPECT_EQ(frame().size(), QSize(room.width() * 92 / 100, room.height() * 92 / 100));
}

TEST_F(Frame, F2ScrollsNothingWhileTheSelectionWindowShows)
{
    outer(frame().readingWindow()).move(frame().area()->width() * 2, frame().area()->height() * 2);
    outer(get<ChildSelect>()).move(5, 5);
    settle();
    ASSERT_GT(frame().area()->verticalScrollBar()->maximum(), 0);
    press(Qt::Key_F2);
    settle();
    EXPECT_EQ(outer(get<ChildSelect>()).pos(), QPoint(5, 5));
}

TEST_F(Frame, ItsMenuBarKeepsNoFocusWhereNoWindowIsOpen)
{
    outer(get<ChildSelect>()).close();
    settle();
    frame().menuBar()->setFocus(Qt::ActiveWindowFocusReason); // as it comes back with the frame
    EXPECT_FALSE(frame().menuBar()->hasFocus());
}

TEST_F(Frame, TheWindowMenuIsMadeAnewEachTime)
{
    QMenu* menu = menuOf(frame(), "&Window");
    get<ChildSelect>().setCaption("Law & Prophets");
    QMetaObject::invokeMethod(menu, "aboutToShow");
    QMetaObject::invokeMethod(menu, "aboutToShow");
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_EQ(menu->actions().constLast()->text(), "&1 Law && Prophets");
}
