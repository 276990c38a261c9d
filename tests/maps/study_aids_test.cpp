#include "maps/MapsTest.h"

#include "maps/CaptionFrame.h"
#include "support/CutTexts.h"
#include "widgets/DataControl.h"
#include "widgets/Maker.h"
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

class ChildMapSelTest : public MapsTest
{
protected:
    void SetUp() override
    {
        MapsTest::SetUp();
        aids = &openStudyAids();
        aids->List1->setFocus();
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

TEST_F(ChildMapSelTest, OpensOnTheClassifiedVerses)
{
    EXPECT_EQ(aids->caption(), "Study Aids");
    EXPECT_EQ(activeForm(), aids);
    const QTabBar* strip = aids->TabStrip1;
    ASSERT_EQ(strip->count(), 3);
    EXPECT_EQ(strip->tabText(0), "&Classified Verses");
    EXPECT_EQ(strip->tabText(1), "&Maps");
    EXPECT_EQ(strip->tabText(2), "&Download Other Translations");
    EXPECT_EQ(strip->currentIndex(), 0);
    EXPECT_EQ(aids->Frame1->title(), "Se&lect a Group");
    EXPECT_EQ(aids->Frame2->title(), "G&roup Contents");
    EXPECT_EQ(aids->Frame3->title(), "Select a M&ap");
    EXPECT_EQ(aids->Frame4->title(), "");
    EXPECT_TRUE(aids->Frame1->isVisible());
    EXPECT_TRUE(aids->Frame2->isVisible());
    EXPECT_FALSE(aids->Frame3->isVisible());
    EXPECT_FALSE(aids->Frame4->isVisible());
}

TEST_F(ChildMapSelTest, HasTheFourGroupsInTwoColumns)
{
    const QStringList captions = {"Major &Gospels Events", "Christ's M&iracles", "Christ's &Parables",
                                  "M&essianic Prophecies"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(aids->optEvents[i]->text(), captions[static_cast<int>(i)]);
        EXPECT_EQ(aids->optEvents[i]->objectName(), "optEvents");
    }
    EXPECT_TRUE(aids->optEvents[0]->isChecked());
    EXPECT_EQ(aids->optEvents[0]->x(), aids->optEvents[1]->x());
    EXPECT_EQ(aids->optEvents[2]->x(), aids->optEvents[3]->x());
    EXPECT_LT(aids->optEvents[0]->geometry().right(), aids->optEvents[2]->x());
    EXPECT_EQ(aids->optEvents[0]->y(), aids->optEvents[2]->y());
    EXPECT_LT(aids->optEvents[0]->y(), aids->optEvents[1]->y());
}

TEST_F(ChildMapSelTest, ListsTheElevenMapsInOrder)
{
    EXPECT_EQ(textsOf(*aids->lstMaps),
              QStringList({"Abraham's Journeys", "Jacob's Journey", "Route of the Exodus",
                           "The Twelve Tribes and Division of the Land", "Division of the Kingdom",
                           "New Testament Palestine", "New Testament Jerusalem", "Paul's First Journey",
                           "Paul's Second Journey", "Paul's Third Journey", "Paul's Journey to Rome"}));
}

TEST_F(ChildMapSelTest, StartsWithTheGospelEventsAndTheFirstOnesReferences)
{
    const QList<Topic> events = topicsOf("events");
    QStringList names;
    for (const Topic& topic : events)
        names += " " + topic.name;
    EXPECT_EQ(textsOf(*aids->Combo2), names);
    EXPECT_EQ(aids->Combo2->currentIndex(), 0);
    EXPECT_EQ(textsOf(*aids->List1), entriesOf(events.first()));
    EXPECT_EQ(aids->Data1.recordSource(),
              "SELECT * FROM ClassifiedVerses WHERE Name = '" + events.first().name.toStdString() + "'");
}

TEST_F(ChildMapSelTest, GroupFillsTheTopicsAndTheFirstOnesReferences)
{
    const QStringList groups = {"events", "miracles", "parables", "prophecy"};
    for (int index : {3, 2, 1, 0}) {
        QTest::mouseClick(aids->optEvents[static_cast<std::size_t>(index)], Qt::LeftButton, {}, {8, 8});
        const QList<Topic> topics = topicsOf(groups[index]);
        ASSERT_EQ(aids->Combo2->count(), topics.size()) << groups[index].toStdString();
        EXPECT_EQ(aids->Combo2->itemText(0), " " + topics.first().name);
        EXPECT_EQ(aids->Combo2->itemText(aids->Combo2->count() - 1), " " + topics.last().name);
        EXPECT_EQ(aids->Combo2->currentIndex(), 0);
        EXPECT_EQ(textsOf(*aids->List1), entriesOf(topics.first()));
    }
}

TEST_F(ChildMapSelTest, GroupIsAskedForByItsTypeAndItsFirstTopicByName)
{
    QStringList asked;
    aids->Data1.currentRowChanged = [&] {
        if (const auto sql = QString::fromStdString(aids->Data1.recordSource()); !asked.contains(sql))
            asked += sql;
    };
    QTest::mouseClick(aids->optEvents[1], Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(asked, QStringList({"SELECT * FROM ClassifiedVerses WHERE Type = 'Miracles'",
                                  "SELECT * FROM ClassifiedVerses WHERE Name = '" +
                                      topicsOf("miracles").first().name + "'"}));
}

TEST_F(ChildMapSelTest, GroupIsChosenByAccessKeyAndArrowToo)
{
    QTest::keyClick(aids, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return aids->Combo2->count() == topicsOf("prophecy").size(); }));
    QTest::keyClick(aids->optEvents[3], Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([this] { return aids->Combo2->count() == topicsOf("parables").size(); }));
}

TEST_F(ChildMapSelTest, GroupThatIsChosenAlreadyBeginsWithItsFirstTopicAgain)
{
    QTest::keyClick(aids->Combo2, Qt::Key_End);
    ASSERT_GT(aids->Combo2->currentIndex(), 0);
    QTest::mouseClick(aids->optEvents[0], Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(aids->Combo2->currentIndex(), 0);
    EXPECT_EQ(textsOf(*aids->List1), entriesOf(topicsOf("events").first()));
}

TEST_F(ChildMapSelTest, TopicFillsItsReferences)
{
    QTest::keyClick(aids->Combo2, Qt::Key_Down);
    QTest::keyClick(aids->Combo2, Qt::Key_Down);
    EXPECT_EQ(textsOf(*aids->List1), entriesOf(topicsOf("events")[2]));
}

TEST_F(ChildMapSelTest, ClickOpensTheVerseBeforeTheHyphen)
{
    setEntries(aids->List1, {" Mt:5:3-12 "});
    clickEntry(aids->List1, 0);
    auto* reading = open<ChildRead>();
    ASSERT_TRUE(reading);
    EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
    EXPECT_EQ(reading->currentKey(), "Mt:5:3"); // not Mt:5:30, which the pattern takes in too
    EXPECT_EQ(reading->caption(), "Reading Window -- Mt:5:3");
    EXPECT_EQ(activeForm(), reading);
}

TEST_F(ChildMapSelTest, ClickRestoresAMinimisedReadingWindow)
{
    clickEntry(aids->List1, 0);
    auto* reading = open<ChildRead>();
    reading->setState(Form::Minimized);
    clickEntry(aids->List1, 0);
    EXPECT_EQ(reading->state(), Form::Normal);
    EXPECT_EQ(activeForm(), reading);
    EXPECT_TRUE(reading->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ChildMapSelTest, EveryClickOpensAlsoOnTheChosenEntry)
{
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
}

TEST_F(ChildMapSelTest, MouseLetGoOnAnotherEntryOpensThatOne)
{
    setEntries(aids->List1, {" Jn:1:1 ", " Mt:5:3-12 "});
    drag(aids->List1->viewport(), centerOf(*aids->List1, 0), centerOf(*aids->List1, 1));
    ASSERT_TRUE(open<ChildRead>());
    EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
}

TEST_F(ChildMapSelTest, EachClickOfADoubleClickOpens)
{
    QWidget* viewport = aids->List1->viewport();
    const QPoint entry = centerOf(*aids->List1, 0);
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    EXPECT_TRUE(opensVerse([&] {
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, entry);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, entry);
    }));
}

TEST_F(ChildMapSelTest, ChosenEntryOpensWhileCtrlOrShiftIsHeld)
{
    const QPoint entry = centerOf(*aids->List1, 0);
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    for (Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier})
        EXPECT_TRUE(
            opensVerse([&] { QTest::mouseClick(aids->List1->viewport(), Qt::LeftButton, modifier, entry); }));
}

TEST_F(ChildMapSelTest, EveryClickOnAMapOpensItWhateverIsHeld)
{
    choosePage(*aids, 1);
    QWidget* viewport = aids->lstMaps->viewport();
    const QPoint entry = centerOf(*aids->lstMaps, 4);
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

TEST_F(ChildMapSelTest, ClickBesideTheEntriesOpensNothing)
{
    QWidget* viewport = aids->List1->viewport();
    EXPECT_FALSE(opensVerse([&] {
        QTest::mouseClick(viewport, Qt::LeftButton, {}, viewport->rect().bottomRight() - QPoint(5, 5));
    }));
}

TEST_F(ChildMapSelTest, OtherMouseButtonsOpenNothing)
{
    EXPECT_FALSE(opensVerse([this] {
        QTest::mouseClick(aids->List1->viewport(), Qt::RightButton, {}, {20, 10});
    }));
}

TEST_F(ChildMapSelTest, FirstArrowKeyChoosesTheFirstEntry)
{
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(aids->List1, Qt::Key_Down); }));
    EXPECT_EQ(aids->List1->selected(), 0);
}

TEST_F(ChildMapSelTest, FirstJumpInAListOfOneChoosesItsEntry)
{
    ASSERT_EQ(aids->List1->count(), 1);
    for (Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}) {
        aids->List1->setFocus();
        aids->List1->clearSelection();
        EXPECT_FALSE(opensVerse([this, key] { QTest::keyClick(aids->List1, key); }));
        EXPECT_EQ(aids->List1->selected(), 0) << key;
    }
}

TEST_F(ChildMapSelTest, ArrowKeyMovesAndOpensNothing)
{
    setEntries(aids->List1, {" Jn:1:1 ", " Mt:5:3-12 "});
    QTest::keyClick(aids->List1, Qt::Key_Down);
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(aids->List1, Qt::Key_Down); }));
    EXPECT_EQ(aids->List1->selected(), 1);
}

TEST_F(ChildMapSelTest, EnterOrSpaceOpensTheChosenEntry)
{
    setEntries(aids->List1, {" Jn:1:1 ", " Mt:5:3-12 "});
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        aids->List1->setFocus();
        QTest::keyClick(aids->List1, Qt::Key_Home);
        QTest::keyClick(aids->List1, Qt::Key_Down);
        QTest::keyClick(aids->List1, key);
        ASSERT_TRUE(open<ChildRead>());
        EXPECT_EQ(recordSource(), "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:5:3*'");
        EXPECT_TRUE(opensVerse([] {}));
    }
}

TEST_F(ChildMapSelTest, EnterInAnEmptyListOpensNothing)
{
    aids->List1->clear();
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(aids->List1, Qt::Key_Return); }));
    EXPECT_FALSE(opensVerse([this] { QTest::keyClick(aids->List1, Qt::Key_Space); }));
}

TEST_F(ChildMapSelTest, KeyThatMovesNothingSwallowsTheNextClickOnce)
{
    pressIdleKey(aids->List1);
    EXPECT_FALSE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
}

TEST_F(ChildMapSelTest, ArrowAtTheEndOfTheListSwallowsTheNextClickOnce)
{
    QTest::keyClick(aids->List1, Qt::Key_Down);
    QTest::keyClick(aids->List1, Qt::Key_Up);
    EXPECT_FALSE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
}

TEST_F(ChildMapSelTest, ArrowThatMovesUsesItsSwallowedClickUpItself)
{
    QTest::keyClick(aids->List1, Qt::Key_Down);
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
}

TEST_F(ChildMapSelTest, ClickIsSwallowedInTheOtherListToo)
{
    pressIdleKey(aids->List1);
    choosePage(*aids, 1);
    clickEntry(aids->lstMaps, 0);
    EXPECT_FALSE(open<ChildMapDsp>());
    clickEntry(aids->lstMaps, 0);
    EXPECT_TRUE(open<ChildMapDsp>());
}

TEST_F(ChildMapSelTest, ClickIsSwallowedFromTheMapsToTheReferences)
{
    choosePage(*aids, 1);
    pressIdleKey(aids->lstMaps);
    choosePage(*aids, 0);
    EXPECT_FALSE(opensVerse([this] { clickEntry(aids->List1, 0); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); }));
}

TEST_F(ChildMapSelTest, EnterOpensAfterAKeyThatMovedNothing)
{
    QTest::keyClick(aids->List1, Qt::Key_Down);
    pressIdleKey(aids->List1);
    EXPECT_TRUE(opensVerse([this] { QTest::keyClick(aids->List1, Qt::Key_Return); }));
    EXPECT_TRUE(opensVerse([this] { clickEntry(aids->List1, 0); })); // Enter left no swallowing behind
}

TEST_F(ChildMapSelTest, KeysMoveThroughTheMapsAndEnterOpensOne)
{
    choosePage(*aids, 1);
    aids->lstMaps->setFocus();
    QTest::keyClick(aids->lstMaps, Qt::Key_Down);
    QTest::keyClick(aids->lstMaps, Qt::Key_End);
    QTest::keyClick(aids->lstMaps, 'D'); // typing goes to the next name that begins so
    EXPECT_EQ(aids->lstMaps->selected(), 4);
    QTest::keyClick(aids->lstMaps, Qt::Key_End);
    EXPECT_FALSE(open<ChildMapDsp>());
    QTest::keyClick(aids->lstMaps, Qt::Key_Return);
    ASSERT_TRUE(open<ChildMapDsp>());
    EXPECT_EQ(get<ChildMapDsp>().DataMap.recordSource(), "SELECT * FROM NTMaps WHERE MapNumber = 11");
}

TEST_F(ChildMapSelTest, ClickOnTheLastMapOpensMapEleven)
{
    ChildMapDsp& map = openMap(11);
    EXPECT_EQ(map.DataMap.recordSource(), "SELECT * FROM NTMaps WHERE MapNumber = 11");
    EXPECT_EQ(map.caption(), "Map -- The Journey to Rome");
    EXPECT_EQ(activeForm(), &map);
}

TEST_F(ChildMapSelTest, TabsShowTheirFrames)
{
    const auto shown = [this] {
        QList<bool> visible;
        for (const QWidget* page :
             std::initializer_list<QWidget*>{aids->Frame1, aids->Frame2, aids->Frame3, aids->Frame4})
            visible += page->isVisible();
        return visible;
    };
    choosePage(*aids, 1);
    EXPECT_EQ(shown(), QList<bool>({false, false, true, false}));
    choosePage(*aids, 2);
    EXPECT_EQ(shown(), QList<bool>({false, false, false, true}));
    choosePage(*aids, 0);
    EXPECT_EQ(shown(), QList<bool>({true, true, false, false}));
}

TEST_F(ChildMapSelTest, TabsAreReachedByTheirAccessKeys)
{
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(aids->TabStrip1->currentIndex(), 1);
    QTest::keyClick(aids, Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(aids->TabStrip1->currentIndex(), 2);
    QTest::keyClick(aids, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(aids->TabStrip1->currentIndex(), 0);
}

TEST_F(ChildMapSelTest, FramesAccessKeysGoToTheirFirstControl)
{
    QTest::keyClick(aids, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), aids->Combo2);
    QTest::keyClick(aids, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), aids->optEvents[0]);
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    QTest::keyClick(aids, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), aids->lstMaps);
}

TEST_F(ChildMapSelTest, FocusStaysInTheWindowWhenItsPageIsHidden)
{
    QTest::keyClick(aids, Qt::Key_M, Qt::AltModifier);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_EQ(QApplication::focusWidget(), aids->TabStrip1);
    QTest::keyClick(aids->TabStrip1, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), aids->lstMaps);
}

TEST_F(ChildMapSelTest, PictureAndButtonOpenTheMakersSite)
{
    choosePage(*aids, 2);
    QTest::mouseClick(aids->Image1, Qt::LeftButton);
    EXPECT_EQ(services.links, QList<QUrl>({QUrl(Maker::webSite)}));
    QTest::mouseClick(aids->cmdBibWeb, Qt::LeftButton);
    aids->cmdBibWeb->setFocus();
    QTest::keyClick(aids->cmdBibWeb, Qt::Key_Space);
    QTest::keyClick(aids->cmdBibWeb, Qt::Key_Return);
    EXPECT_EQ(services.links.size(), 4);
    EXPECT_TRUE(Maker::webSite.contains(".example/"));
}

TEST_F(ChildMapSelTest, StandsLeftOfTheMiddleInTheUpperPart)
{
    const QSize room = frame().area()->viewport()->size();
    const QRect place = outer(*aids).geometry();
    EXPECT_EQ(place.width(), aids->TabStrip1->width() + 16);
    EXPECT_EQ(place.height(), aids->TabStrip1->height() + 60);
    EXPECT_NEAR(place.x(), (room.width() - place.width()) / 1.9, 1);
    EXPECT_NEAR(place.y(), (room.height() - place.height()) / 4.0, 1);
}

TEST_F(ChildMapSelTest, DraggedBorderSnapsBack)
{
    QMdiSubWindow* window = &outer(*aids);
    const QSize size = window->size();
    const QPoint corner = window->rect().bottomRight() - QPoint(1, 1);
    drag(window, corner, corner + QPoint(40, 60));
    EXPECT_EQ(window->size(), size);
    drag(window, corner, corner - QPoint(90, 30));
    EXPECT_EQ(window->size(), size);
}

TEST_F(ChildMapSelTest, DragOfTheLeftOrTopBorderIsUndoneInPlace)
{
    QMdiSubWindow& window = outer(*aids);
    const QRect place = window.geometry();
    const QPoint middle = window.rect().center();
    for (const QPoint& grip : {QPoint(1, middle.y()), QPoint(middle.x(), 1), QPoint(1, 1)}) {
        drag(&window, grip, grip - QPoint(30, 20));
        EXPECT_EQ(window.geometry(), place);
    }
}

TEST_F(ChildMapSelTest, OpensMaximisedBesideAMaximisedWindowAndComesBackToItsPlace)
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

TEST_F(ChildMapSelTest, KeepsItsSizeThroughMinimisedAndMaximised)
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

TEST_F(ChildMapSelTest, MaximisedWindowFollowsTheFrame)
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

TEST_F(ChildMapSelTest, OpeningItAgainOnlyBringsItForward)
{
    QTest::mouseClick(aids->optEvents[3], Qt::LeftButton, {}, {8, 8});
    choosePage(*aids, 1);
    QTest::keyClick(&frame(), Qt::Key_F2);
    EXPECT_NE(activeForm(), aids);
    QTest::keyClick(&frame(), Qt::Key_F8);
    EXPECT_EQ(activeForm(), aids);
    EXPECT_EQ(frame().findChildren<ChildMapSel*>().size(), 1);
    EXPECT_EQ(aids->TabStrip1->currentIndex(), 1);
    EXPECT_TRUE(aids->optEvents[3]->isChecked());
}

TEST_F(ChildMapSelTest, HasTheSharedMenusAlone)
{
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Search", "&Tools", "&Window", "&Help"}));
}

TEST_F(ChildMapSelTest, NothingIsCutOrOverlaps)
{
    for (int page = 0; page < 3; ++page) {
        choosePage(*aids, page);
        EXPECT_EQ(cutTexts(*aids), "") << "page " << page;
    }
    const QString longest(60, 'n');
    EXPECT_GE(aids->Combo2->width(), aids->Combo2->fontMetrics().horizontalAdvance(longest) + 40);
}

TEST_F(ChildMapSelTest, TellsAScreenReaderItsNames)
{
    const auto spoken = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };
    EXPECT_EQ(spoken(aids->TabStrip1)->role(), QAccessible::PageTabList);
    EXPECT_EQ(aids->TabStrip1->accessibleName(), "Study aids");
    EXPECT_EQ(spoken(aids->optEvents[1])->role(), QAccessible::RadioButton);
    EXPECT_EQ(spoken(aids->optEvents[1])->text(QAccessible::Name), "Christ's Miracles");
    EXPECT_EQ(aids->Combo2->accessibleName(), "Topic");
    EXPECT_EQ(spoken(aids->List1)->role(), QAccessible::List);
    EXPECT_EQ(spoken(aids->List1)->text(QAccessible::Name), "Verse references");
    EXPECT_EQ(spoken(aids->lstMaps)->text(QAccessible::Name), "Maps");
    EXPECT_EQ(spoken(aids->lstMaps)->childCount(), 11);
}
