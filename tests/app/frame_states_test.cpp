// The states of the frame's windows when several of them are minimised or maximised.
#include "maps/ChildMapSel.h"
#include "read/ChapRead.h"
#include "read/ChildRead.h"
#include "search/frmAdvSearch.h"
#include "select/ChildSelect.h"
#include "support/Session.h"
#include <QStyleOptionTitleBar>

class FrameStates : public Session
{
protected:
    QList<Form*> forms()
    {
        QList<Form*> found;
        for (const QMdiSubWindow* window : frame().area()->subWindowList())
            found << qobject_cast<Form*>(window->widget());
        return found;
    }

    QStringList maximised()
    {
        QStringList names;
        for (const Form* form : forms())
            if (form->state() == Form::Maximized)
                names << form->objectName();
        return names;
    }
};

// There is one maximised window at most, and it is the active one: the state goes over to whatever is
// activated.
TEST_F(FrameStates, AMinimisedWindowThatIsRestoredTakesTheMaximisedOnesPlace)
{
    ChildRead& reading = frame().readingWindow();
    reading.restoreAndActivate();
    reading.setState(Form::Minimized);
    get<ChildSelect>().activate();
    get<ChildSelect>().setState(Form::Maximized);
    settle();
    EXPECT_EQ(maximised(), QStringList({"ChildSelect"}));
    EXPECT_EQ(reading.state(), Form::Minimized);
    press(Qt::Key_Return); // hands the verse over to the reading window
    settle();
    EXPECT_EQ(activeForm(), &reading);
    EXPECT_EQ(maximised(), QStringList({"ChildRead"}));
    press(Qt::Key_F2);
    settle();
    EXPECT_EQ(maximised(), QStringList({"ChildSelect"}));
    EXPECT_EQ(reading.state(), Form::Normal);
}

TEST_F(FrameStates, WindowsFirstOpenedWhileAnotherIsMaximisedAreToo)
{
    frame().openStudyAids();
    frame().openSearch();
    settle();
    const QSize aids = outer(get<ChildMapSel>()).size();
    const QSize search = outer(get<frmAdvSearch>()).size();
    get<ChildMapSel>().unload();
    get<frmAdvSearch>().unload();
    settle();

    get<ChildSelect>().setState(Form::Maximized);
    frame().openStudyAids();
    settle();
    EXPECT_EQ(maximised(), QStringList({"ChildMapSel"}));
    frame().openSearch();
    settle();
    EXPECT_EQ(maximised(), QStringList({"frmAdvSearch"}));
    EXPECT_TRUE(get<frmAdvSearch>().isAncestorOf(QApplication::focusWidget()));

    get<frmAdvSearch>().setState(Form::Normal);
    settle();
    EXPECT_EQ(maximised(), QStringList());
    EXPECT_EQ(outer(get<frmAdvSearch>()).size(), search) << "it has lost its own size";
    EXPECT_EQ(outer(get<ChildMapSel>()).size(), aids);
}

TEST_F(FrameStates, ManyIconsAreArrangedInRowsFromTheBottom)
{
    frame().readingWindow().restoreAndActivate();
    frame().openSearch();
    frame().openStudyAids();
    for (Form* form : forms())
        form->setState(Form::Minimized);
    const int width = outer(get<ChildRead>()).width();
    const int height = outer(get<ChildRead>()).height();
    frame().resize(2 * width + width / 2, 500);
    settle();
    frame().arrangeIcons();

    const QRect room = frame().area()->viewport()->rect();
    QList<QRect> places;
    for (Form* form : forms())
        places << outer(*form).geometry();
    ASSERT_EQ(places.size(), 4);
    const int bottom = room.height() - height;
    EXPECT_EQ(places[0].topLeft(), QPoint(0, bottom));
    EXPECT_EQ(places[1].topLeft(), QPoint(places[0].width(), bottom));
    EXPECT_EQ(places[2].topLeft(), QPoint(0, bottom - height));
    EXPECT_EQ(places[3].topLeft(), QPoint(places[2].width(), bottom - height));
    for (const QRect& place : places)
        EXPECT_TRUE(room.contains(place));
}

TEST_F(FrameStates, AnIconWiderThanTheFrameStandsAtItsBottomAllTheSame)
{
    get<ChildSelect>().setState(Form::Minimized);
    const QWidget& icon = outer(get<ChildSelect>());
    frame().setMinimumSize(1, 1);
    frame().resize(icon.width() / 2, 500);
    settle();
    const QRect room = frame().area()->viewport()->rect();
    ASSERT_LT(room.width(), icon.width());
    frame().arrangeIcons();
    EXPECT_EQ(icon.pos(), QPoint(0, room.height() - icon.height()));
}

TEST_F(FrameStates, AMinimisedWindowHandsActivityAndFocusToTheOneBeforeIt)
{
    frame().openStudyAids();
    frame().openSearch();
    frame().readingWindow().restoreAndActivate();
    const QList<Form*> order = {&frame().readingWindow(), &get<frmAdvSearch>(), &get<ChildMapSel>(),
                                &get<ChildSelect>()};
    for (qsizetype next = 1; next < order.size(); ++next) {
        outer(*order[next - 1]).showMinimized();
        settle();
        EXPECT_EQ(activeForm(), order[next]);
        EXPECT_TRUE(order[next]->isAncestorOf(QApplication::focusWidget()));
        EXPECT_EQ(menuBarCaptions().size(), order[next]->menus().size());
    }
    outer(*order.last()).showMinimized(); // none is left to take it
    settle();
    EXPECT_EQ(activeForm(), order.last());
    frame().openSelection();
    EXPECT_EQ(activeForm(), open<ChildSelect>());
    EXPECT_EQ(get<ChildSelect>().state(), Form::Normal);
}

TEST_F(FrameStates, AClosedWindowHandsActivityAndFocusToAWindowBeforeAnyIcon)
{
    frame().openStudyAids();
    frame().openSearch();
    frame().readingWindow().restoreAndActivate();
    outer(get<frmAdvSearch>()).showMinimized(); // not active, so that Qt's history is as it was
    settle();
    ASSERT_EQ(activeForm(), &frame().readingWindow());
    frame().readingWindow().unload();
    settle();
    EXPECT_EQ(activeForm(), &get<ChildMapSel>());
    EXPECT_TRUE(get<ChildMapSel>().isAncestorOf(QApplication::focusWidget()));
    get<ChildMapSel>().unload();
    get<ChildSelect>().unload();
    settle();
    EXPECT_EQ(activeForm(), open<frmAdvSearch>()) << "where there is nothing else, an icon";
}

TEST_F(FrameStates, IconsShowWhichVerseAndChapterTheyHold)
{
    frame().readingWindow().showFirst("SELECT * FROM NewTestament WHERE VerseId = '2Thes:3:16'");
    press(Qt::Key_F9);
    for (Form* form : QList<Form*>{&frame().readingWindow(), &get<ChapRead>()}) {
        form->setState(Form::Minimized);
        const QMdiSubWindow& icon = outer(*form);
        QStyleOptionTitleBar bar;
        bar.initFrom(&icon);
        bar.rect = QRect(0, 0, icon.width(), 20);
        bar.titleBarFlags = icon.windowFlags();
        const int room =
            icon.style()->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarLabel, &icon).width();
        const QFontMetrics letters(QApplication::font("QMdiSubWindowTitleBar"));
        EXPECT_GE(room, letters.horizontalAdvance(form->caption())) << form->caption().toStdString();
    }
}
