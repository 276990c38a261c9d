#include "maps/CaptionFrame.h"
#include "maps/MapsSession.h"
#include "support/CutTexts.h"
#include "support/OnceModal.h"
#include "widgets/DataControl.h"
#include "widgets/Maker.h"
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {

class StudyAids : public MapsSession
{
protected:
    void SetUp() override
    {
        MapsSession::SetUp();
        aids = &openStudyAids();
        List1().setFocus();
    }

    static QStringList textsOf(const QComboBox& box)
    {
        QStringList texts;
        for (int i = 0; i < box.count(); ++i)
            texts += box.itemText(i);
        return texts;
    }

    static QStringList textsOf(const ListBox& list)
    {
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts += list.text(i);
        return texts;
    }

    static QStringList entriesOf(const Topic& topic)
    {
        QStringList entries;
        for (const QString& reference : topic.references)
            entries += " " + reference + " ";
        return entries;
    }

    std::string recordSource() { return control<DataControl>(get<ChildRead>(), "DataCtl").recordSource(); }

    /// How often a verse was opened: the reading window is closed between.
    bool opensVerse(const std::function<void()>& doing)
    {
        doing();
        auto* reading = open<ChildRead>();
        if (!reading)
            return false;
        closeWindow(*reading);
        return true;
    }

    /// Leaves the shared flag set: a key that moves nothing.
    void pressIdleKey(QWidget* list) { QTest::keyClick(list, Qt::Key_Shift); }

    ChildMapSel* aids = nullptr;
};

} // namespace

TEST_F(StudyAids, OpensOnTheClassifiedVerses)
{
    EXPECT_EQ(aids->caption(), "Study Aids");
    EXPECT_EQ(activeForm(), aids);
    const QTabBar* strip = &TabStrip1();
    ASSERT_EQ(strip->count(), 3);
    EXPECT_EQ(strip->tabText(0), "&Classified Verses");
    EXPECT_EQ(strip->tabText(1), "&Maps");
    EXPECT_EQ(strip->tabText(2), "&Download Other Translations");
    EXPECT_EQ(strip->currentIndex(), 0);
    EXPECT_EQ(Frame1().title(), "Se&lect a Group");
    EXPECT_EQ(Frame2().title(), "G&roup Contents");
    EXPECT_EQ(Frame3().title(), "Select a M&ap");
    EXPECT_EQ(Frame4().title(), "");
    EXPECT_TRUE(Frame1().isVisible());
    EXPECT_TRUE(Frame2().isVisible());
    EXPECT_FALSE(Frame3().isVisible());
    EXPECT_FALSE(Frame4().isVisible());
}

TEST_F(StudyAids, HasTheFourGroupsInTwoColumns)
{
    const QStringList captions = {"Major &Gospels Events", "Christ's M&iracles", "Christ's &Parables",
                                  "M&essianic Prophecies"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(optEvents(i).text(), captions[i]);
        EXPECT_EQ(optEvents(i).objectName(), "optEvents");
    }
    EXPECT_TRUE(optEvents(0).isChecked());
    EXPECT_EQ(optEvents(0).x(), optEvents(1).x());
    EXPECT_EQ(optEvents(2).x(), optEvents(3).x());
    EXPECT_LT(optEvents(0).geometry().right(), optEvents(2).x());
    EXPECT_EQ(optEvents(0).y(), optEvents(2).y());
    EXPECT_LT(optEvents(0).y(), optEvents(1).y());
}

TEST_F(StudyAids, ListsTheElevenMapsInOrder)
{
    EXPECT_EQ(textsOf(lstMaps()),
              QStringList({"Abraham's Journeys", "Jacob's Journey", "Route of the Exodus",
                           "The Twelve Tribes and Division of the Land", "Division of the Kingdom",
                           "New Testament Palestine", "New Testament Jerusalem", "Paul's First Journey",
                           "Paul's Second Journey", "Paul's Third Journey", "Paul's Journey to Rome"}));
}

TEST_F(StudyAids, StartsWithTheGospelEventsAndTheFirstOnesReferences)
{
    const QList<Topic> events = topicsOf("events");
    QStringList names;
    for (const Topic& topic : events)
        names += " " + topic.name;
    EXPECT_EQ(textsOf(Combo2()), names);
    EXPECT_EQ(Combo2().currentIndex(), 0);
    EXPECT_EQ(textsOf(List1()), entriesOf(events.first()));
    EXPECT_EQ(Data1().recordSource(),
              "SELECT * FROM ClassifiedVerses WHERE Name = '" + events.first().name.toStdString() + "'");
}

TEST_F(StudyAids, GroupFillsTheTopicsAndTheFirstOnesReferences)
{
    const QStringList groups = {"events", "miracles", "parables", "prophecy"};
    for (int index : {3, 2, 1, 0}) {
        QTest::mouseClick(&optEvents(index), Qt::LeftButton, {}, {8, 8});
        const QList<Topic> topics = topicsOf(groups[index]);
        ASSERT_EQ(Combo2().count(), topics.size()) << groups[index].toStdString();
        EXPECT_EQ(Combo2().itemText(0), " " + topics.first().name);
        EXPECT_EQ(Combo2().itemText(Combo2().count() - 1), " " + topics.last().name);
        EXPECT_EQ(Combo2().currentIndex(), 0);
        EXPECT_EQ(textsOf(List1()), entriesOf(topics.first()));
        Combo2().setCurrentIndex(1); // the next group begins with its own first one all the same
    }
}

TEST_F(StudyAids, GroupIsAskedForByItsTypeAndItsFirstTopicByName)
{
    QStringList asked;
    Data1().currentRowChanged = [&] {
        if (const auto sql = QString::fromStdString(Data1().recordSource()); !asked.contains(sql))
            asked += sql;
    };
    QTest::mouseClick(&optEvents(1), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(asked, QStringList({"SELECT * FROM ClassifiedVerses WHERE Type = 'Miracles'",
                                  "SELECT * FROM ClassifiedVerses WHERE Name = '" +
                                      topicsOf("miracles").first().name + "'"}));
}

TEST_F(StudyAids, GroupIsChosenByAccessKeyAndArrowToo)
{
    QTest::keyClick(aids, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Combo2().count() == topicsOf("prophecy").size(); }));
    QTest::keyClick(&optEvents(3), Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Combo2().count() == topicsOf("parables").size(); }));
}

TEST_F(StudyAids, GroupThatIsChosenAlreadyBeginsWithItsFirstTopicAgain)
{
    QTest::keyClick(&Combo2(), Qt::Key_End);
    ASSERT_GT(Combo2().currentIndex(), 0);
    QTest::mouseClick(&optEvents(0), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(Combo2().currentIndex(), 0);
    EXPECT_EQ(textsOf(List1()), entriesOf(topicsOf("events").first()));
}

TEST_F(StudyAids, TopicFillsItsReferences)
{
    QTest::keyClick(&Combo2(), Qt::Key_Down);
    QTest::keyClick(&Combo2(), Qt::Key_Down);
    EXPECT_EQ(textsOf(List1()), entriesOf(topicsOf("events")[2]));
}

TEST_F(StudyAids, TypedLettersFindATopicBehindItsBlankAndItsArticle)
{
    QTest::mouseClick(&optEvents(2), Qt::LeftButton, {}, {8, 8});
    QTest::keyClicks(&Combo2(), "sow");
    EXPECT_EQ(Combo2().currentText(), " The Sower");
    EXPECT_EQ(List1().text(0), " Mt:13:3-9 ");
    QTest::mouseClick(&optEvents(1), Qt::LeftButton, {}, {8, 8});
    QTest::qWait(QApplication::keyboardInputInterval() + 50); // then letters begin another word
    QTest::keyClicks(&Combo2(), "raising");
    EXPECT_TRUE(Combo2().currentText().startsWith(" Raising")) << Combo2().currentText().toStdString();
}

TEST_F(StudyAids, TypedLettersFindAReferenceBehindItsBlank)
{
    QTest::mouseClick(&optEvents(2), Qt::LeftButton, {}, {8, 8});
    QTest::keyClicks(&Combo2(), "sow");
    QTest::keyClicks(&List1(), "lk");
    EXPECT_EQ(List1().text(List1().selected()), " Lk:8:5-8 ");
    EXPECT_EQ(open<ChildRead>(), nullptr);
    choosePage(1);
    QTest::keyClicks(&lstMaps(), "twelve");
    EXPECT_EQ(lstMaps().selected(), 3);
}

TEST_F(StudyAids, ClickOpensTheVerseBeforeTheHyphen)
{
    setEntries(List1(), {" Mt:5:3-12 "});
    clickEntry(List1(), 0);
    auto* reading = open<ChildRead>();
    ASSERT_TRUE(reading);
    EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
    EXPECT_EQ(reading->currentKey(), "Mt:5:3"); // not Mt:5:30, which the pattern takes in too
    EXPECT_EQ(reading->caption(), ChildRead::captionOf("Mt:5:3"));
    EXPECT_EQ(activeForm(), reading);
}

TEST_F(StudyAids, ClickRestoresAMinimisedReadingWindow)
{
    clickEntry(List1(), 0);
    auto* reading = open<ChildRead>();
    reading->setState(Form::Minimized);
    clickEntry(List1(), 0);
    EXPECT_EQ(reading->state(), Form::Normal);
    EXPECT_EQ(activeForm(), reading);
    EXPECT_TRUE(reading->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(StudyAids, EveryClickOpensAlsoOnTheChosenEntry)
{
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
}

TEST_F(StudyAids, MouseLetGoOnAnotherEntryOpensThatOne)
{
    setEntries(List1(), {" Jn:1:1 ", " Mt:5:3-12 "});
    drag(List1().viewport(), centerOf(List1(), 0), centerOf(List1(), 1));
    ASSERT_TRUE(open<ChildRead>());
    EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
}

TEST_F(StudyAids, EachClickOfADoubleClickOpens)
{
    QWidget* viewport = List1().viewport();
    const QPoint entry = centerOf(List1(), 0);
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
    EXPECT_TRUE(opensVerse([&] {
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, entry);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, entry);
    }));
}

TEST_F(StudyAids, ChosenEntryOpensWhileCtrlOrShiftIsHeld)
{
    const QPoint entry = centerOf(List1(), 0);
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
    for (Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier})
        EXPECT_TRUE(
            opensVerse([&] { QTest::mouseClick(List1().viewport(), Qt::LeftButton, modifier, entry); }));
}

TEST_F(StudyAids, EveryClickOnAMapOpensItWhateverIsHeld)
{
    choosePage(1);
    QWidget* viewport = lstMaps().viewport();
    const QPoint entry = centerOf(lstMaps(), 4);
    const auto opensMap = [this](const std::function<void()>& doing) {
        doing();
        auto* map = open<ChildMapDsp>();
        if (!map)
            return false;
        closeWindow(*map);
        return true;
    };
    for (auto modifiers : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier),
                           Qt::KeyboardModifiers(Qt::ShiftModifier)})
        EXPECT_TRUE(opensMap([&] { QTest::mouseClick(viewport, Qt::LeftButton, modifiers, entry); }));
    EXPECT_TRUE(opensMap([&] {
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, entry);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, entry);
    }));
    EXPECT_FALSE(opensMap([&] { QTest::mouseClick(viewport, Qt::RightButton, {}, entry); }));
}

TEST_F(StudyAids, ClickBesideTheEntriesOpensNothing)
{
    QWidget* viewport = List1().viewport();
    EXPECT_FALSE(opensVerse([&] {
        QTest::mouseClick(viewport, Qt::LeftButton, {}, viewport->rect().bottomRight() - QPoint(5, 5));
    }));
}

TEST_F(StudyAids, OtherMouseButtonsOpenNothing)
{
    EXPECT_FALSE(opensVerse([this] {
        QTest::mouseClick(List1().viewport(), Qt::RightButton, {}, {20, 10});
    }));
}

TEST_F(StudyAids, FirstArrowKeyChoosesTheFirstEntry)
{
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(&List1(), Qt::Key_Down); }));
    EXPECT_EQ(List1().selected(), 0);
}

TEST_F(StudyAids, FirstJumpInAListOfOneChoosesItsEntry)
{
    ASSERT_EQ(List1().count(), 1);
    for (Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}) {
        List1().setFocus();
        List1().clearSelection();
        EXPECT_FALSE(opensVerse([this, key] { QTest::keyClick(&List1(), key); }));
        EXPECT_EQ(List1().selected(), 0) << key;
    }
}

TEST_F(StudyAids, ArrowKeyMovesAndOpensNothing)
{
    setEntries(List1(), {" Jn:1:1 ", " Mt:5:3-12 "});
    QTest::keyClick(&List1(), Qt::Key_Down);
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(&List1(), Qt::Key_Down); }));
    EXPECT_EQ(List1().selected(), 1);
}

TEST_F(StudyAids, EnterOrSpaceOpensTheChosenEntry)
{
    setEntries(List1(), {" Jn:1:1 ", " Mt:5:3-12 "});
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        List1().setFocus();
        QTest::keyClick(&List1(), Qt::Key_Home);
        QTest::keyClick(&List1(), Qt::Key_Down);
        QTest::keyClick(&List1(), key);
        ASSERT_TRUE(open<ChildRead>());
        EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
        EXPECT_TRUE(opensVerse([] {}));
    }
}

TEST_F(StudyAids, EnterInAnEmptyListOpensNothing)
{
    List1().clear();
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(&List1(), Qt::Key_Return); }));
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(&List1(), Qt::Key_Space); }));
}

TEST_F(StudyAids, KeyThatMovesNothingSwallowsTheNextClickOnce)
{
    pressIdleKey(&List1());
    EXPECT_FALSE(opensVerse([this] { clickEntry(List1(), 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
}

TEST_F(StudyAids, ArrowAtTheEndOfTheListSwallowsTheNextClickOnce)
{
    QTest::keyClick(&List1(), Qt::Key_Down);
    QTest::keyClick(&List1(), Qt::Key_Up);
    EXPECT_FALSE(opensVerse([this] { clickEntry(List1(), 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
}

TEST_F(StudyAids, ArrowThatMovesUsesItsSwallowedClickUpItself)
{
    QTest::keyClick(&List1(), Qt::Key_Down);
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
}

TEST_F(StudyAids, ClickIsSwallowedInTheOtherListToo)
{
    pressIdleKey(&List1());
    choosePage(1);
    clickEntry(lstMaps(), 0);
    EXPECT_FALSE(open<ChildMapDsp>());
    clickEntry(lstMaps(), 0);
    EXPECT_TRUE(open<ChildMapDsp>());
}

TEST_F(StudyAids, ClickIsSwallowedFromTheMapsToTheReferences)
{
    choosePage(1);
    pressIdleKey(&lstMaps());
    choosePage(0);
    EXPECT_FALSE(opensVerse([this] { clickEntry(List1(), 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); }));
}

TEST_F(StudyAids, EnterOpensAfterAKeyThatMovedNothing)
{
    QTest::keyClick(&List1(), Qt::Key_Down);
    pressIdleKey(&List1());
    EXPECT_TRUE(opensVerse([this] { QTest::keyClick(&List1(), Qt::Key_Return); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(List1(), 0); })); // Enter left no swallowing behind
}

TEST_F(StudyAids, KeysMoveThroughTheMapsAndEnterOpensOne)
{
    choosePage(1);
    lstMaps().setFocus();
    QTest::keyClick(&lstMaps(), Qt::Key_Down);
    QTest::keyClick(&lstMaps(), Qt::Key_End);
    QTest::keyClick(&lstMaps(), 'D'); // typing goes to the next name that begins so
    EXPECT_EQ(lstMaps().selected(), 4);
    QTest::keyClick(&lstMaps(), Qt::Key_End);
    EXPECT_FALSE(open<ChildMapDsp>());
    QTest::keyClick(&lstMaps(), Qt::Key_Return);
    ASSERT_TRUE(open<ChildMapDsp>());
    EXPECT_EQ(DataMap().recordSource(), "SELECT * FROM NTMaps WHERE MapNumber = 11");
}

TEST_F(StudyAids, ClickOnTheLastMapOpensMapEleven)
{
    ChildMapDsp& map = openMap(11);
    EXPECT_EQ(DataMap().recordSource(), "SELECT * FROM NTMaps WHERE MapNumber = 11");
    EXPECT_EQ(map.caption(), "Map -- The Journey to Rome");
    EXPECT_EQ(activeForm(), &map);
}

TEST_F(StudyAids, TabsShowTheirFrames)
{
    const auto shown = [this] {
        QList<bool> visible;
        for (const QWidget* page :
             std::initializer_list<QWidget*>{&Frame1(), &Frame2(), &Frame3(), &Frame4()})
            visible += page->isVisible();
        return visible;
    };
    choosePage(1);
    EXPECT_EQ(shown(), QList<bool>({false, false, true, false}));
    choosePage(2);
    EXPECT_EQ(shown(), QList<bool>({false, false, false, true}));
    choosePage(0);
    EXPECT_EQ(shown(), QList<bool>({true, true, false, false}));
}

TEST_F(StudyAids, TabsAreReachedByTheirAccessKeys)
{
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(TabStrip1().currentIndex(), 1);
    QTest::keyClick(aids, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(TabStrip1().currentIndex(), 2);
    QTest::keyClick(aids, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(TabStrip1().currentIndex(), 0);
}

TEST_F(StudyAids, FramesAccessKeysGoToTheirFirstControl)
{
    QTest::keyClick(aids, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Combo2());
    QTest::keyClick(aids, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &optEvents(0));
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    QTest::keyClick(aids, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &lstMaps());
}

TEST_F(StudyAids, FocusStaysInTheWindowWhenItsPageIsHidden)
{
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_EQ(QApplication::focusWidget(), &TabStrip1());
    QTest::keyClick(&TabStrip1(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &lstMaps());
}

TEST_F(StudyAids, PictureAndButtonOpenTheMakersSite)
{
    choosePage(2);
    QTest::mouseClick(&webPicture(), Qt::LeftButton);
    EXPECT_EQ(services.links, QList<QUrl>({QUrl(Maker::webSite)}));
    QTest::mouseClick(&cmdBibWeb(), Qt::LeftButton);
    cmdBibWeb().setFocus();
    QTest::keyClick(&cmdBibWeb(), Qt::Key_Space);
    QTest::keyClick(&cmdBibWeb(), Qt::Key_Return);
    EXPECT_EQ(services.links.size(), 4);
    EXPECT_TRUE(Maker::webSite.contains(".example/"));
}

TEST_F(StudyAids, StandsLeftOfTheMiddleInTheUpperPart)
{
    const QSize room = frame().area()->viewport()->size();
    const QRect place = outer(*aids).geometry();
    EXPECT_EQ(place.width(), TabStrip1().width() + 16);
    EXPECT_EQ(place.height(), TabStrip1().height() + 60);
    EXPECT_NEAR(place.x(), (room.width() - place.width()) / 1.9, 1);
    EXPECT_NEAR(place.y(), (room.height() - place.height()) / 4.0, 1);
}

TEST_F(StudyAids, DraggedBorderSnapsBack)
{
    QMdiSubWindow* window = &outer(*aids);
    const QSize size = window->size();
    const QPoint corner = window->rect().bottomRight() - QPoint(1, 1);
    drag(window, corner, corner + QPoint(40, 60));
    EXPECT_EQ(window->size(), size);
    drag(window, corner, corner - QPoint(90, 30));
    EXPECT_EQ(window->size(), size);
}

TEST_F(StudyAids, DragOfTheLeftOrTopBorderIsUndoneInPlace)
{
    QMdiSubWindow& window = outer(*aids);
    const QRect place = window.geometry();
    const QPoint middle = window.rect().center();
    for (const QPoint& grip : {QPoint(1, middle.y()), QPoint(middle.x(), 1), QPoint(1, 1)}) {
        drag(&window, grip, grip - QPoint(30, 20));
        EXPECT_EQ(window.geometry(), place);
    }
}

TEST_F(StudyAids, OpensMaximisedBesideAMaximisedWindowAndComesBackToItsPlace)
{
    const QRect place = outer(*aids).geometry();
    closeWindow(*aids);
    frame().openSelection();
    outer(*activeForm()).showMaximized();
    aids = &openStudyAids();
    EXPECT_EQ(aids->state(), Form::Maximized);
    aids->setState(Form::Normal);
    EXPECT_EQ(outer(*aids).geometry(), place);
}

TEST_F(StudyAids, KeepsItsSizeThroughMinimisedAndMaximised)
{
    const QSize size = outer(*aids).size();
    for (Form::WindowState state : {Form::Minimized, Form::Normal, Form::Maximized, Form::Normal}) {
        aids->setState(state);
        EXPECT_EQ(aids->state(), state);
        if (state == Form::Maximized) {
            EXPECT_EQ(outer(*aids).size(), frame().area()->viewport()->size());
        } else if (state == Form::Normal) {
            EXPECT_EQ(outer(*aids).size(), size);
        }
    }
}

TEST_F(StudyAids, MaximisedWindowFollowsTheFrame)
{
    const QSize size = outer(*aids).size();
    aids->setState(Form::Maximized);
    frame().resize(800, 600);
    QTest::qWait(0);
    EXPECT_EQ(aids->state(), Form::Maximized);
    EXPECT_EQ(outer(*aids).size(), frame().area()->viewport()->size());
    aids->setState(Form::Normal);
    EXPECT_EQ(outer(*aids).size(), size);
}

TEST_F(StudyAids, OpeningItAgainOnlyBringsItForward)
{
    QTest::mouseClick(&optEvents(3), Qt::LeftButton, {}, {8, 8});
    choosePage(1);
    QTest::keyClick(&frame(), Qt::Key_F2);
    EXPECT_NE(activeForm(), aids);
    QTest::keyClick(&frame(), Qt::Key_F8);
    EXPECT_EQ(activeForm(), aids);
    EXPECT_EQ(frame().findChildren<ChildMapSel*>().size(), 1);
    EXPECT_EQ(TabStrip1().currentIndex(), 1);
    EXPECT_TRUE(optEvents(3).isChecked());
}

TEST_F(StudyAids, HasTheSharedMenusAlone)
{
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Window", "&Help"}));
}

TEST_F(StudyAids, NothingIsCutOrOverlaps)
{
    for (int page = 0; page < 3; ++page) {
        choosePage(page);
        EXPECT_EQ(cutTexts(*aids), "") << "page " << page;
    }
    const QString longest(60, 'n');
    EXPECT_GE(Combo2().width(), Combo2().fontMetrics().horizontalAdvance(longest) + 40);
}

TEST_F(StudyAids, HasLinesOfSeventeenPixelsOrMore)
{
    EXPECT_GE(List1().visualRect(List1().model()->index(0, 0)).height(), 17);
    choosePage(1);
    EXPECT_GE(lstMaps().visualRect(lstMaps().model()->index(0, 0)).height(), 17);
}

TEST_F(StudyAids, ADropDownShowsTwelveRowsAtMostAndAScrollBar)
{
    Combo2().showPopup();
    settle();
    const QAbstractItemView& list = *Combo2().view();
    EXPECT_TRUE(list.verticalScrollBar()->isVisible());
    const int row = list.visualRect(list.model()->index(Combo2().currentIndex(), 0)).height();
    EXPECT_LE(list.viewport()->height() / row, 12);
    Combo2().hidePopup();
}

TEST_F(StudyAids, TellsAScreenReaderItsNames)
{
    const auto spoken = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    EXPECT_EQ(spoken(&TabStrip1())->role(), QAccessible::PageTabList);
    EXPECT_EQ(TabStrip1().accessibleName(), "Study aids");
    EXPECT_EQ(spoken(&optEvents(1))->role(), QAccessible::RadioButton);
    EXPECT_EQ(spoken(&optEvents(1))->text(QAccessible::Name), "Christ's Miracles");
    EXPECT_EQ(Combo2().accessibleName(), "Topic");
    EXPECT_EQ(spoken(&List1())->role(), QAccessible::List);
    EXPECT_EQ(spoken(&List1())->text(QAccessible::Name), "Verse references");
    EXPECT_EQ(spoken(&lstMaps())->text(QAccessible::Name), "Maps");
    EXPECT_EQ(spoken(&lstMaps())->childCount(), 11);
}

/// By an assistive program, which a modal window does not keep from the controls behind it.
TEST_F(StudyAids, ATabBehindTheAboutWindowStaysAsItIs)
{
    QAccessibleInterface* maps = QAccessible::queryAccessibleInterface(&TabStrip1())->child(1);
    const auto pressMaps = [maps] {
        maps->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    bool pressed = false;
    const auto looking = onceModal([&](QWidget& about) {
        pressMaps();
        settle();
        pressed = true;
        about.close();
    });
    click(control<SoftBttn>(frame(), "cmdAbout"));
    EXPECT_TRUE(pressed);
    EXPECT_EQ(TabStrip1().currentIndex(), 0);
    EXPECT_TRUE(Frame1().isVisible());
    pressMaps();
    EXPECT_EQ(TabStrip1().currentIndex(), 1);
}

TEST_F(StudyAids, ItsControlsStandWhereTheyWereDesigned)
{
    const QList<std::pair<QWidget*, QRect>> designed = {
        {&TabStrip1(), {4, 12, 500, 440}},
        {&Frame1(), {14, 44, 480, 90}},
        {&optEvents(0), {9, 25, 225, 25}},
        {&optEvents(1), {9, 55, 225, 25}},
        {&optEvents(2), {246, 25, 225, 25}},
        {&optEvents(3), {246, 55, 225, 25}},
        {&Frame2(), {14, 144, 480, 298}},
        {&Combo2(), {9, 27, 462, 25}},
        {&List1(), {9, 58, 462, 231}},
        {&Frame3(), {14, 44, 480, 398}},
        {&lstMaps(), {9, 27, 462, 362}},
        {&Frame4(), {14, 44, 480, 398}},
        {&webPicture(), {204, 96, 72, 72}},
        {&cmdBibWeb(), {150, 176, 180, 27}},
        {&control<QLabel>(*aids, "Label1"), {9, 20, 462, 70}},
    };
    for (const auto& [control, place] : designed)
        EXPECT_EQ(control->geometry(), place) << control->objectName().toStdString();
}

TEST_F(StudyAids, TheInvitationIsWrappedAndBeginsAtTheTop)
{
    const auto& label = control<QLabel>(*aids, "Label1");
    EXPECT_TRUE(label.wordWrap());
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignTop));
}

TEST_F(StudyAids, ThePictureOfTheSiteLooksLikeALink)
{
    EXPECT_FALSE(webPicture().icon().isNull());
    EXPECT_EQ(webPicture().iconSize(), QSize(64, 64));
    EXPECT_TRUE(webPicture().autoRaise());
    EXPECT_EQ(webPicture().cursor().shape(), Qt::PointingHandCursor);
    choosePage(2);
    TabStrip1().setFocus();
    QTest::keyClick(&TabStrip1(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &cmdBibWeb());
}

TEST_F(StudyAids, TabsAreAsWideAsTheirTexts)
{
    EXPECT_LT(TabStrip1().tabRect(2).right(), TabStrip1().width() - 20);
    EXPECT_FALSE(TabStrip1().usesScrollButtons());
    EXPECT_FALSE(TabStrip1().drawBase());
}

// Its edge runs under the other tabs, and around the pages.
TEST_F(StudyAids, ThePaneIsOpenToTheChosenTabAlone)
{
    choosePage(0);
    const QImage image = TabStrip1().grab().toImage();
    const int top = TabStrip1().tabRect(0).bottom();
    const auto inside = image.pixelColor(image.width() / 2, image.height() - 10);
    const auto at = [&](int x, int y) { return image.pixelColor(x, y); };
    EXPECT_NE(at(TabStrip1().tabRect(1).center().x(), top), inside);
    EXPECT_NE(at(TabStrip1().tabRect(1).center().x(), top), at(TabStrip1().tabRect(0).center().x(), top));
    EXPECT_NE(at(image.width() - 30, top), inside);
    EXPECT_NE(at(0, image.height() / 2), inside);
    EXPECT_NE(at(image.width() - 1, image.height() / 2), inside);
    EXPECT_NE(at(image.width() / 2, image.height() - 1), inside);
    const QImage tab = image.copy(TabStrip1().tabRect(1).adjusted(8, 4, -8, -4));
    QImage blank(tab.size(), tab.format());
    blank.fill(tab.pixel(0, 0));
    EXPECT_NE(tab, blank) << "its text is not drawn";
}
