#include "desktop/Clipboard.h"
#include "maps/MapsSession.h"
#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

namespace {

class MapWindow : public MapsSession
{
protected:
    /// The window around a picture of a size in pixels: 520 twips higher, 800 wider.
    static QSize around(QSize picture)
    {
        return {qRound(picture.width() + 800 / 15.0), qRound(picture.height() + 520 / 15.0)};
    }

    void expectFitted(ChildMapDsp& map, QSize picture)
    {
        EXPECT_EQ(Image1().size(), picture);
        EXPECT_EQ(outer(map).size(), around(picture));
        EXPECT_EQ(cmdZoom().geometry(), QRect(picture.width() + 10, 4, 32, 32));
        EXPECT_EQ(cmdPicCopy().geometry(), QRect(picture.width() + 10, 36, 32, 32));
    }
};

} // namespace

TEST_F(MapWindow, FitsTheMapAtTheFramesCorner)
{
    ChildMapDsp& map = openMap(denseMap);
    expectFitted(map, {200, 150});
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
    EXPECT_EQ(Image1().pos(), QPoint(4, 4));
    EXPECT_EQ(map.caption(), "Map -- The Journeys of Abraham");
    EXPECT_EQ(DataMap().recordSource(), "SELECT * FROM NTMaps WHERE MapNumber = 1");
    EXPECT_EQ(activeForm(), &map);
    EXPECT_EQ(program->flags.MapFirstShow, 0);
    EXPECT_EQ(program->flags.MapZoomed, 0);
}

TEST_F(MapWindow, ShowsPictureAndButtonsWhole)
{
    ChildMapDsp& map = openMap(denseMap);
    const QRect inside(QPoint(), map.size());
    for (const QWidget* control : {static_cast<QWidget*>(&Image1()), static_cast<QWidget*>(&cmdZoom()),
                                   static_cast<QWidget*>(&cmdPicCopy())}) {
        const QRect shown(control->mapTo(&map, QPoint()), control->size());
        EXPECT_TRUE(inside.contains(shown)) << control->objectName().toStdString();
    }
    for (const QScrollBar* bar : map.findChildren<QScrollBar*>())
        EXPECT_EQ(bar->maximum(), 0);
}

TEST_F(MapWindow, DrawsNoFrameAroundItsContent)
{
    const auto& surface = *openMap(denseMap).findChild<QScrollArea*>();
    EXPECT_EQ(surface.frameWidth(), 0);
    EXPECT_EQ(surface.widget()->size(), QSize(cmdZoom().geometry().right() + 1, 4 + 150));
    EXPECT_FALSE(lblMapDesc().isVisible());
}

TEST_F(MapWindow, TabGoesFromButtonToButton)
{
    openMap(denseMap);
    cmdZoom().setFocus();
    QTest::keyClick(&cmdZoom(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &cmdPicCopy());
    QTest::keyClick(&cmdPicCopy(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &cmdZoom());
}

TEST_F(MapWindow, ArrowKeysGoFromButtonToButtonWhereNothingCanBeScrolled)
{
    openMap(denseMap);
    cmdZoom().setFocus();
    QTest::keyClick(&cmdZoom(), Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &cmdPicCopy());
}

TEST_F(MapWindow, ArrowKeysWithAnotherKeyScrollNothing)
{
    ChildMapDsp& map = openMap(largeMap);
    settle();
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
    press(Qt::Key_Down, Qt::KeypadModifier);
    EXPECT_EQ(outer(map).pos(), QPoint(0, -60));
}

TEST_F(MapWindow, EveryMapIsFittedAnew)
{
    openMap(denseMap);
    ChildMapDsp& map = openMap(plainMap);
    expectFitted(map, {300, 200});
    EXPECT_EQ(map.caption(), "Map -- Plain");
    EXPECT_EQ(frame().findChildren<ChildMapDsp*>().size(), 1);
    expectFitted(openMap(lastMap), {210, 140});
}

TEST_F(MapWindow, MovedWindowComesBackToTheCornerOnlyWithANewMap)
{
    ChildMapDsp& map = openMap(denseMap);
    outer(map).move(100, 80);
    QTest::keyClick(&frame(), Qt::Key_F8);
    map.activate();
    EXPECT_EQ(outer(map).pos(), QPoint(100, 80));
    openMap(denseMap);
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
}

TEST_F(MapWindow, ChoosingAMapRestoresAMaximisedWindow)
{
    ChildMapDsp& map = openMap(denseMap);
    map.setState(Form::Maximized);
    ASSERT_EQ(map.state(), Form::Maximized);
    openMap(plainMap);
    EXPECT_EQ(map.state(), Form::Normal);
    expectFitted(map, {300, 200});
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
}

TEST_F(MapWindow, ChoosingAMapRestoresAMinimisedWindow)
{
    ChildMapDsp& map = openMap(denseMap);
    map.setState(Form::Minimized);
    openMap(plainMap);
    EXPECT_EQ(map.state(), Form::Normal);
    expectFitted(map, {300, 200});
}

TEST_F(MapWindow, ChoosingAMapFromAMaximisedStudyAidsWindowShowsItFitted)
{
    openStudyAids().setState(Form::Maximized);
    ChildMapDsp& map = openMap(denseMap);
    EXPECT_EQ(map.state(), Form::Normal);
    expectFitted(map, {200, 150});
}

TEST_F(MapWindow, ZoomEnlargesByAFifthAndZoomAgainRestores)
{
    ChildMapDsp& map = openMap(lastMap);
    const QSizeF natural = Image1().extent();
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    expectFitted(map, {252, 168});
    EXPECT_TRUE(Image1().stretch());
    EXPECT_EQ(program->flags.MapZoomed, 1);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    expectFitted(map, {210, 140});
    EXPECT_EQ(program->flags.MapZoomed, 0);
    EXPECT_NEAR(Image1().extent().width(), natural.width(), 0.001);
    EXPECT_NEAR(Image1().extent().height(), natural.height(), 0.001);
}

TEST_F(MapWindow, ZoomingManyTimesDoesNotDrift)
{
    ChildMapDsp& map = openMap(denseMap);
    for (int i = 0; i < 100; ++i)
        QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    expectFitted(map, {200, 150});
}

TEST_F(MapWindow, ZoomWhileMinimisedIsSeenAfterwards)
{
    ChildMapDsp& map = openMap(denseMap);
    map.setState(Form::Minimized);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    EXPECT_EQ(map.state(), Form::Minimized);
    map.setState(Form::Normal);
    expectFitted(map, {240, 180});
}

TEST_F(MapWindow, ZoomWhileMaximisedKeepsTheWindow)
{
    ChildMapDsp& map = openMap(denseMap);
    map.setState(Form::Maximized);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    EXPECT_EQ(map.state(), Form::Maximized);
    EXPECT_EQ(Image1().size(), QSize(240, 180));
    EXPECT_EQ(cmdZoom().x(), 250);
    map.setState(Form::Normal);
    expectFitted(map, {240, 180});
}

TEST_F(MapWindow, NewMapIsNotEnlarged)
{
    ChildMapDsp& map = openMap(denseMap);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    openMap(lastMap);
    expectFitted(map, {210, 140});
    EXPECT_FALSE(Image1().stretch());
    EXPECT_EQ(program->flags.MapZoomed, 0);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    expectFitted(map, {252, 168});
}

TEST_F(MapWindow, DraggedBorderIsUndoneAtOnce)
{
    ChildMapDsp& map = openMap(denseMap);
    outer(map).resize(600, 500);
    expectFitted(map, {200, 150});
    outer(map).resize(120, 90);
    expectFitted(map, {200, 150});
}

TEST_F(MapWindow, DragOfAnyBorderIsUndoneInPlace)
{
    QMdiSubWindow& window = outer(openMap(denseMap));
    window.move(120, 90);
    const QRect place = window.geometry();
    const QPoint middle = window.rect().center();
    const QPoint end = window.rect().bottomRight();
    const QPoint grips[] = {
        {1, middle.y()}, {middle.x(), 1},  {end.x() - 1, middle.y()}, {middle.x(), end.y() - 1},
        {1, 1},          {end.x() - 1, 1}, {1, end.y() - 1},          end - QPoint(1, 1)};
    for (const QPoint& grip : grips)
        for (const QPoint& way : {QPoint(-30, -20), QPoint(25, 15)}) {
            drag(&window, grip, grip + way);
            EXPECT_EQ(window.geometry(), place) << grip.x() << " " << grip.y() << " by " << way.x();
        }
    drag(&window, {middle.x(), 12}, {middle.x() + 40, 42}); // its title bar
    EXPECT_EQ(window.geometry(), place.translated(40, 30));
    drag(&window, {1, middle.y()}, {-40, middle.y()});
    EXPECT_EQ(window.geometry(), place.translated(40, 30));
}

TEST_F(MapWindow, MenusHaveCopyAndZoom)
{
    ChildMapDsp& map = openMap(denseMap);
    EXPECT_EQ(menuBarCaptions(),
              QStringList({"&File", "&Edit", "&View", "&Search", "&Tools", "&Window", "&Help"}));
    const auto* copy = map.findChild<QAction*>("mnuCopy");
    EXPECT_EQ(copy->text(), "&Copy Map to Clipboard");
    EXPECT_EQ(copy->shortcut(), QKeySequence("Ctrl+C"));
    auto* zoom = map.findChild<QAction*>("mnuZoom");
    EXPECT_EQ(zoom->text(), "&Zoom In/Restore Normal Size");
    EXPECT_TRUE(zoom->shortcuts().isEmpty());
    zoom->trigger();
    expectFitted(map, {240, 180});
}

TEST_F(MapWindow, ButtonsSayWhatTheyDo)
{
    openMap(denseMap);
    EXPECT_EQ(cmdZoom().toolTip(), "Zoom In/Restore Normal Size");
    EXPECT_EQ(cmdPicCopy().toolTip(), "Copy Map to Clipboard");
    EXPECT_EQ(cmdZoom().objectName(), "cmdZoom");
    EXPECT_EQ(cmdPicCopy().objectName(), "cmdPicCopy");
}

TEST_F(MapWindow, DescriptionIsTheLabelsTextAndThePicturesName)
{
    ChildMapDsp& map = openMap(9);
    EXPECT_EQ(lblMapDesc().text(), "Ninth & Last <b>but Two</b>");
    EXPECT_EQ(Image1().accessibleName(), "Ninth & Last <b>but Two</b>");
    EXPECT_EQ(map.caption(), "Map -- Ninth & Last <b>but Two</b>");
}

TEST_F(MapWindow, CopyPutsAllPixelsOnTheClipboard)
{
    frame().readingWindow().activate(); // has the same shortcut
    openMap(denseMap);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    QApplication::clipboard()->setText("before");
    QTest::mouseClick(&cmdPicCopy(), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(400, 300));
    EXPECT_EQ(QApplication::clipboard()->text(), "");
    EXPECT_TRUE(cmdPicCopy().isDown());
    EXPECT_EQ(services.announced.count("Copied"), 1);
    QApplication::clipboard()->clear();
    QTest::keyClick(&frame(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(400, 300));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(MapWindow, CopyOfAnEmptyPictureClearsTheClipboardWithoutAMessage)
{
    openMap(emptyMap);
    QApplication::clipboard()->setText("before");
    QTest::mouseClick(&cmdPicCopy(), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text(), "");
    EXPECT_TRUE(QApplication::clipboard()->image().isNull());
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_FALSE(services.announced.contains("Copied"));
}

TEST_F(MapWindow, ClipboardThatTakesNothingIsReported)
{
    openMap(denseMap);
    services.clipboardWorks = false;
    QTest::mouseClick(&cmdPicCopy(), Qt::LeftButton);
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].title, clipboardErrorTitle);
    EXPECT_FALSE(services.announced.contains("Copied"));
}

TEST_F(MapWindow, PictureThatCannotBeReadIsEmpty)
{
    for (int number : {damagedMap, endlessMap, emptyMap, cutMap}) {
        ChildMapDsp& map = openMap(number);
        EXPECT_TRUE(Image1().image().isNull()) << number;
        EXPECT_EQ(Image1().size(), QSize(49, 66)) << number;
        EXPECT_NE(map.caption(), "Map -- ") << number;
    }
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(MapWindow, EmptyPictureLeavesItsButtonsWhole)
{
    ChildMapDsp& map = openMap(emptyMap);
    expectFitted(map, {49, 66});
    settle();
    for (QWidget* button : std::initializer_list<QWidget*>{&cmdZoom(), &cmdPicCopy()})
        EXPECT_EQ(button->visibleRegion(), QRegion(button->rect())) << button->objectName().toStdString();
    for (const QScrollBar* bar : map.findChildren<QScrollBar*>())
        EXPECT_EQ(bar->maximum(), 0);
    QApplication::clipboard()->setText("before");
    const QPoint foot = cmdPicCopy().mapTo(&map, cmdPicCopy().rect().bottomLeft() + QPoint(3, -3));
    QWidget* there = map.childAt(foot);
    ASSERT_EQ(there, &cmdPicCopy());
    QTest::mouseClick(there, Qt::LeftButton, {}, there->mapFrom(&map, foot));
    EXPECT_EQ(QApplication::clipboard()->text(), "");
}

TEST_F(MapWindow, AbsurdResolutionIsNotFollowed)
{
    openMap(sparseMap);
    EXPECT_EQ(Image1().size(), QSize(30, 20));
}

TEST_F(MapWindow, DragBringsPictureAndDescriptionBack)
{
    openMap(denseMap);
    QTest::mouseClick(&cmdZoom(), Qt::LeftButton);
    Image1().setImage({});
    lblMapDesc().setText("gone");
    Q_EMIT Image1().dragCompleted();
    EXPECT_EQ(Image1().image().size(), QSize(400, 300));
    EXPECT_EQ(lblMapDesc().text(), "The Journeys of Abraham");
}

TEST_F(MapWindow, MapLargerThanTheFrameIsOnTheScreenForAScreenReader)
{
    ChildMapDsp& map = openMap(largeMap);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&outer(map));
    ASSERT_NE(spoken, nullptr);
    EXPECT_FALSE(frame().area()->viewport()->rect().contains(outer(map).geometry()));
    EXPECT_FALSE(spoken->state().offscreen);
    EXPECT_FALSE(spoken->state().invisible);
    EXPECT_EQ(spoken->role(), QAccessible::Window);
    EXPECT_EQ(spoken->text(QAccessible::Name), map.caption());
    ASSERT_EQ(spoken->childCount(), 1);
    EXPECT_EQ(spoken->child(0)->object(), &map);
    EXPECT_EQ(spoken->indexOfChild(spoken->child(0)), 0);
    EXPECT_TRUE(spoken->state().focused);
    EXPECT_TRUE(spoken->state().movable);
    outer(map).move(5000, 0);
    EXPECT_TRUE(spoken->state().offscreen) << "none of it shows";
}

TEST_F(MapWindow, MapLargerThanTheFrameCanBeScrolledByKeys)
{
    ChildMapDsp& map = openMap(largeMap);
    EXPECT_EQ(outer(map).size(), around({1500, 1200}));
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
    const auto farCorner = [&] { return Image1().mapTo(frame().area()->viewport(), QPoint(1499, 1199)); };
    const QRect room = frame().area()->viewport()->rect();
    EXPECT_FALSE(room.contains(farCorner()));
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(&cmdZoom(), Qt::Key_Right);
        QTest::keyClick(&cmdZoom(), Qt::Key_Down);
    }
    EXPECT_TRUE(room.contains(farCorner()));
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(&cmdZoom(), Qt::Key_Left);
        QTest::keyClick(&cmdZoom(), Qt::Key_PageUp);
    }
    EXPECT_EQ(outer(map).pos(), QPoint(0, 0));
    QTest::keyClick(&cmdZoom(), Qt::Key_PageDown);
    const int below = outer(map).y();
    EXPECT_LT(below, -60);
    QTest::keyClick(&cmdZoom(), Qt::Key_Up);
    EXPECT_EQ(outer(map).y(), below + 60);
}

TEST_F(MapWindow, MapLargerThanAMaximisedWindowCanBeScrolledByKeys)
{
    ChildMapDsp& map = openMap(largeMap);
    map.setState(Form::Maximized);
    QCoreApplication::processEvents();
    const auto farCorner = [&] { return Image1().mapTo(&map, QPoint(1499, 1199)); };
    EXPECT_FALSE(map.rect().contains(farCorner()));
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(&cmdZoom(), Qt::Key_Right);
        QTest::keyClick(&cmdZoom(), Qt::Key_Down);
    }
    EXPECT_TRUE(map.rect().contains(farCorner()));
}

TEST_F(MapWindow, MaximisedWindowOfALargeMapFillsTheFrame)
{
    ChildMapDsp& map = openMap(largeMap);
    QTest::qWait(0);
    map.setState(Form::Maximized);
    QTest::qWait(0);
    EXPECT_EQ(outer(map).geometry(), frame().area()->viewport()->rect());
    EXPECT_EQ(frame().area()->viewport()->width(), frame().area()->width()); // its scroll bars are gone
    QTest::mouseClick(&control<SoftBttn>(frame(), "cmdTools"),
                      Qt::LeftButton); // the maximised state goes over to the next window
    QTest::qWait(0);
    EXPECT_EQ(get<ChildMapSel>().state(), Form::Maximized);
    EXPECT_EQ(outer(get<ChildMapSel>()).geometry(), frame().area()->viewport()->rect());
    EXPECT_EQ(outer(map).size(), around({1500, 1200}));
}

TEST_F(MapWindow, ClosedWindowIsLoadedAfresh)
{
    closeWindow(openMap(denseMap));
    ASSERT_FALSE(open<ChildMapDsp>());
    expectFitted(openMap(plainMap), {300, 200});
}

TEST_F(MapWindow, TheListOfMapsKeepsTheFocusWhileMapsAreMaximised)
{
    ChildMapSel& aids = openStudyAids();
    choosePage(1);
    lstMaps().setFocus();
    for (int row = 0; row < 3; ++row) {
        lstMaps().setCurrentIndex(lstMaps().model()->index(row, 0));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        auto& map = get<ChildMapDsp>();
        ASSERT_EQ(activeForm(), &map);
        map.setState(Form::Maximized);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F8);
        ASSERT_EQ(activeForm(), &aids);
        EXPECT_EQ(QApplication::focusWidget(), &lstMaps()) << "after map " << row + 1;
    }
}
