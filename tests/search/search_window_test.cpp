// The search window by events: its captions, its layouts, its keys and its menus.
#include "pictures/Colors.h"
#include "search/SearchSession.h"
#include "select/ChildSelect.h"
#include "widgets/Twips.h"
#include <QLabel>
#include <QWindow>

using SearchWindow = SearchSession;

namespace {

const int inputHeight = toPixels(2920);
const int resultsHeight = toPixels(5325);

} // namespace

TEST_F(SearchWindow, HasItsCaptions)
{
    const struct
    {
        QString shown;
        const char* caption;
    } rows[] = {{Label1().text(), "S&earch for verses containing the following text:"},
                {Label3().text(), "Select &book(s) to scan:"},
                {Label2().text(), "Search &results:"},
                {chkWholeWrd().text(), "Match &whole word(s) only"},
                {cmdOK().toolTip(), "Search"},
                {cmdCancel().toolTip(), "Cancel/Close"},
                {cmdHelp().toolTip(), "Help"},
                {cmdHideList().toolTip(), "New Search"},
                {cmdCopySR().toolTip(), "Copy Search Results to Clipboard"},
                {window().caption(), "Advanced Search"}};
    for (const auto& row : rows)
        EXPECT_EQ(row.shown, row.caption);
    for (const QWidget* control : window().findChildren<QWidget*>())
        EXPECT_EQ(control->font().family(), "Tahoma") << control->objectName().toStdString();
    EXPECT_EQ(window().font().pointSize(), 9);
}

TEST_F(SearchWindow, ItsControlsStandWhereTheyWereDesigned)
{
    const QList<std::pair<QWidget*, QRect>> designed = {
        {&Label1(), {8, 5, 520, 16}},
        {&Text1(), {8, 22, 520, 24}},
        {&Combo1(), {8, 51, 150, 24}},
        {&Text2(), {162, 51, 366, 24}},
        {&Label3(), {8, 87, 240, 16}},
        {&Combo2(), {8, 104, 240, 24}},
        {&chkWholeWrd(), {8, 136, 240, 22}},
        {&Animation1(), {288, 93, 240, 60}},
        {&cmdOK(), {538, 5, 27, 27}},
        {&cmdCancel(), {538, 35, 27, 27}},
        {&cmdHelp(), {538, 65, 27, 27}},
        {&cmdHideList(), {538, 102, 27, 27}},
        {&cmdCopySR(), {538, 132, 27, 27}},
        {&Label2(), {8, 164, 240, 16}},
        {&control<QFrame>(window(), "Line1"), {8, 80, 520, 2}},
    };
    for (const auto& [control, place] : designed)
        EXPECT_EQ(control->geometry(), place) << control->objectName().toStdString();
    EXPECT_EQ(list().pos(), QPoint(8, 181));
    EXPECT_EQ(list().width(), 557);
    EXPECT_EQ(list().height(), list().heightOfWholeLines(142));
    EXPECT_EQ(control<QFrame>(window(), "Line1").frameStyle(), QFrame::HLine | QFrame::Sunken);
}

TEST_F(SearchWindow, MaximisedItsListEndsAsFarFromTheEdgesAsItBegins)
{
    outer(window()).showMaximized();
    search("amor");
    EXPECT_EQ(list().geometry().right() + 1, window().width() - list().x());
    EXPECT_EQ(list().height(), list().heightOfWholeLines(window().height() - list().y() - list().x()));
}

TEST_F(SearchWindow, NamesItsControlsForAScreenReader)
{
    const struct
    {
        const QWidget* control;
        const char* name;
        const char* spoken;
    } rows[] = {{&Text1(), "Text1", "Search for verses containing the following text:"},
                {&Combo1(), "Combo1", "Connective"},
                {&Text2(), "Text2", "Second word or phrase"},
                {&Combo2(), "Combo2", "Select book(s) to scan:"},
                {&chkWholeWrd(), "chkWholeWrd", "Match whole word(s) only"},
                {&list(), "List1", "Search results:"},
                {&cmdOK(), "cmdOK", "Search"},
                {&cmdCancel(), "cmdCancel", "Cancel/Close"},
                {&cmdHelp(), "cmdHelp", "Help"},
                {&cmdHideList(), "cmdHideList", "New Search"},
                {&cmdCopySR(), "cmdCopySR", "Copy Search Results to Clipboard"}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.control->objectName(), row.name);
        EXPECT_EQ(row.control->accessibleName(), row.spoken);
    }
    EXPECT_EQ(window().objectName(), "frmAdvSearch");
    EXPECT_EQ(Label1().buddy(), &Text1());
    EXPECT_EQ(Label2().buddy(), &list());
    EXPECT_EQ(Label3().buddy(), &Combo2());
}

TEST_F(SearchWindow, HasItsMenus)
{
    EXPECT_EQ(menuBarCaptions(), QStringList({"&File", "&Edit", "&Search", "&Tools", "&Window", "&Help"}));
    ASSERT_NE(menuItem("mnuCopySR"), nullptr);
    EXPECT_EQ(menuItem("mnuCopySR")->text(), "&Copy Search Results to Clipboard");
    EXPECT_TRUE(menuItem("mnuCopySR")->shortcut().isEmpty());
    EXPECT_FALSE(menuItem("mnuCopySR")->isEnabled());
}

TEST_F(SearchWindow, OpensWithItsDefaults)
{
    EXPECT_EQ(Combo1().currentText(), "And containing");
    EXPECT_EQ(Combo1().count(), 3);
    EXPECT_EQ(Combo1().itemText(1), "and Not containing");
    EXPECT_EQ(Combo1().itemText(2), "Or containing");
    EXPECT_EQ(Combo2().count(), 75);
    EXPECT_EQ(Combo2().currentIndex(), Gospels);
    EXPECT_EQ(Combo2().currentText(), "The Four Gospels");
    EXPECT_FALSE(chkWholeWrd().isChecked());
    EXPECT_FALSE(cmdOK().isEnabled());
    EXPECT_FALSE(Animation1().isVisible());
    for (const QWidget* hidden :
         std::initializer_list<QWidget*>{&list(), &Label2(), &cmdCopySR(), &cmdHideList()}) {
        EXPECT_FALSE(hidden->isVisible()) << hidden->objectName().toStdString();
        EXPECT_FALSE(hidden->isEnabled()) << hidden->objectName().toStdString();
    }
    EXPECT_TRUE(Text1().hasFocus());
}

TEST_F(SearchWindow, OpensAtTheTopLeftInItsShortSize)
{
    const int width = toTwips(cmdOK().geometry().right() + 1) + 160;
    EXPECT_EQ(outer(window()).pos(), QPoint(0, 0));
    EXPECT_EQ(outer(window()).size(), QSize(toPixels(width), inputHeight));
}

TEST_F(SearchWindow, KeepsItsSizeInEachLayout)
{
    const int width = outer(window()).width();
    outer(window()).resize(900, 500);
    EXPECT_EQ(outer(window()).size(), QSize(width, inputHeight));
    search("amor");
    EXPECT_EQ(outer(window()).size(), QSize(width, resultsHeight));
    outer(window()).resize(300, 200);
    EXPECT_EQ(outer(window()).size(), QSize(width, resultsHeight));
    newSearch();
    EXPECT_EQ(outer(window()).size(), QSize(width, inputHeight));
}

TEST_F(SearchWindow, ComesBackToItsSizeAfterBeingMaximised)
{
    const int width = outer(window()).width();
    outer(window()).showMaximized();
    EXPECT_GT(outer(window()).width(), width);
    search("amor");
    EXPECT_TRUE(outer(window()).isMaximized());
    EXPECT_GT(list().width(), width) << "the list takes the room";
    outer(window()).showNormal();
    EXPECT_EQ(outer(window()).size(), QSize(width, resultsHeight));
    EXPECT_LT(list().width(), width);
    outer(window()).showMinimized();
    EXPECT_TRUE(outer(window()).isMinimized());
    outer(window()).showNormal();
    EXPECT_EQ(outer(window()).size(), QSize(width, resultsHeight));
}

TEST_F(SearchWindow, BeginsANewSearchAndRepeatsTheLastWhileItIsMaximised)
{
    const int width = outer(window()).width();
    outer(window()).showMaximized();
    const QSize room = outer(window()).size();
    search("amor");
    const int count = list().count();
    newSearch();
    EXPECT_FALSE(isInResultsMode());
    EXPECT_TRUE(outer(window()).isMaximized());
    EXPECT_EQ(outer(window()).size(), room);
    boxes.shown.clear();
    Data1().setRecordSource("untouched");
    click(cmdOK());
    EXPECT_EQ(sql(), "untouched");
    EXPECT_EQ(box(), found(count));
    EXPECT_TRUE(isInResultsMode());
    EXPECT_TRUE(outer(window()).isMaximized());
    EXPECT_EQ(outer(window()).size(), room);
    EXPECT_TRUE(list().hasFocus());
    newSearch();
    outer(window()).showNormal();
    EXPECT_EQ(outer(window()).size(), QSize(width, inputHeight));
}

TEST_F(SearchWindow, SearchesNothingByEnterWhileItIsMinimised)
{
    get<ChildSelect>().unload();
    settle();
    Text1().setText("amor");
    Data1().setRecordSource("untouched");
    outer(window()).showMinimized();
    settle();
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &outer(window()),
                    Qt::Key_Return);
    EXPECT_EQ(sql(), "untouched");
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_TRUE(outer(window()).isMinimized());
    frame().openSearch();
    EXPECT_TRUE(Text1().hasFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(isInResultsMode());
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(SearchWindow, OpensMaximisedBesideAMaximisedWindowAndComesBackToItsSize)
{
    click(cmdCancel());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    frame().openSelection();
    outer(*activeForm()).showMaximized();
    frame().openSearch();
    EXPECT_TRUE(outer(window()).isMaximized());
    EXPECT_TRUE(Text1().hasFocus());
    outer(window()).showNormal();
    const int width = toTwips(cmdOK().geometry().right() + 1) + 160;
    EXPECT_EQ(outer(window()).geometry(), QRect(0, 0, toPixels(width), inputHeight));
}

TEST_F(SearchWindow, CutsAndOverlapsNothingInEitherLayout)
{
    for (bool tall : {false, true}) {
        if (tall)
            search("amor");
        QList<QWidget*> shown;
        for (QWidget* control : window().findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (control->isVisible() || control == &Animation1())
                shown << control;
        for (const QWidget* control : shown) {
            EXPECT_TRUE(window().rect().contains(control->geometry())) << control->objectName().toStdString();
            if (qobject_cast<const QLabel*>(control) || qobject_cast<const QComboBox*>(control) ||
                control == &chkWholeWrd()) {
                EXPECT_GE(control->width(), control->sizeHint().width())
                    << control->objectName().toStdString();
                EXPECT_GE(control->height(), control->sizeHint().height())
                    << control->objectName().toStdString();
            }
            for (const QWidget* other : shown) {
                EXPECT_FALSE(other != control && control->geometry().intersects(other->geometry()))
                    << control->objectName().toStdString() << " " << other->objectName().toStdString();
            }
        }
        EXPECT_GE(shown.size(), tall ? 16 : 12);
    }
}

TEST_F(SearchWindow, IsTabbedThroughInReadingOrder)
{
    const auto order = [this] {
        QStringList names;
        Text1().setFocus();
        do {
            names << QApplication::focusWidget()->objectName();
            press(Qt::Key_Tab);
        } while (QApplication::focusWidget() != &Text1() && names.size() < 20);
        return names;
    };
    EXPECT_EQ(order(),
              QStringList({"Text1", "Combo1", "Text2", "Combo2", "chkWholeWrd", "cmdCancel", "cmdHelp"}));
    Text1().setText("amor");
    EXPECT_EQ(order().mid(5), QStringList({"cmdOK", "cmdCancel", "cmdHelp"}));
}

TEST_F(SearchWindow, EnablesTheButtonForAnyTextButBlanks)
{
    Text1().setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(cmdOK().isEnabled());
    press(Qt::Key_A);
    EXPECT_TRUE(cmdOK().isEnabled());
    press(Qt::Key_Backspace);
    EXPECT_FALSE(cmdOK().isEnabled());
}

TEST_F(SearchWindow, GivesTheFocusToTheTextAfterTheCheckBox)
{
    chkWholeWrd().setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(chkWholeWrd().isChecked());
    EXPECT_TRUE(Text1().hasFocus());
}

TEST_F(SearchWindow, TheSearchedWordsCanBeReadInResultsMode)
{
    const auto inkOf = [](QWidget& input) { // the pixel that stands out most from the face, inside the edge
        const QImage image = input.grab().toImage();
        const QColor face = input.palette().color(QPalette::Disabled, QPalette::Base);
        double most = 1;
        for (int y = 4; y < image.height() - 4; ++y)
            for (int x = 4; x < image.width() - 30; ++x)
                most = qMax(most, contrastRatio(image.pixelColor(x, y), face));
        return most;
    };
    QPalette dark(QColor(0x353535));
    dark.setColor(QPalette::Base, QColor(0x2d2d2d));
    for (const QPalette& desktop : {QPalette(), dark}) {
        click(cmdCancel());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        frame().setPalette(desktop);
        frame().openSearch();
        search({.text1 = "amor", .text2 = "rio", .connective = Or});
        for (QWidget* input : {static_cast<QWidget*>(&Text1()), static_cast<QWidget*>(&Text2()),
                               static_cast<QWidget*>(&Combo1()), static_cast<QWidget*>(&Combo2())}) {
            EXPECT_FALSE(input->isEnabled());
            EXPECT_GE(inkOf(*input), 4.3) << input->objectName().toStdString(); // of letters drawn soft
            const QPalette& colours = input->palette();
            for (const auto role : {QPalette::Text, QPalette::ButtonText}) {
                const QColor ink = colours.color(QPalette::Disabled, role);
                const QColor face = colours.color(QPalette::Disabled, QPalette::Base);
                EXPECT_GE(contrastRatio(ink, face), 4.5);
                EXPECT_LT(contrastRatio(ink, face), 6) << "it looks enabled";
            }
        }
    }
}

TEST_F(SearchWindow, TurnsIntoResultsModeAndBack)
{
    const QColor face = window().palette().color(QPalette::Button);
    const QColor paper = window().palette().color(QPalette::Base);
    const QList<QWidget*> inputs = {&Text1(), &Text2(), &Combo1(), &Combo2()};
    search("amor");
    for (QWidget* input : inputs) {
        EXPECT_FALSE(input->isEnabled());
        EXPECT_EQ(input->palette().color(QPalette::Disabled, QPalette::Base), face);
    }
    EXPECT_FALSE(chkWholeWrd().isEnabled());
    EXPECT_FALSE(cmdOK().isEnabled());
    for (const QWidget* label : {&Label1(), &Label2(), &Label3()})
        EXPECT_TRUE(label->isEnabled()) << label->objectName().toStdString();
    for (QWidget* shown : std::initializer_list<QWidget*>{&list(), &Label2(), &cmdCopySR(), &cmdHideList()}) {
        EXPECT_TRUE(shown->isVisible());
        EXPECT_TRUE(shown->isEnabled());
    }
    EXPECT_TRUE(menuItem("mnuCopySR")->isEnabled());

    const int count = list().count();
    newSearch();
    for (QWidget* input : inputs) {
        EXPECT_TRUE(input->isEnabled());
        EXPECT_EQ(input->palette().color(QPalette::Active, QPalette::Base), paper);
    }
    EXPECT_TRUE(chkWholeWrd().isEnabled());
    EXPECT_TRUE(cmdOK().isEnabled());
    for (QWidget* hidden :
         std::initializer_list<QWidget*>{&list(), &Label2(), &cmdCopySR(), &cmdHideList()}) {
        EXPECT_FALSE(hidden->isVisible());
        EXPECT_FALSE(hidden->isEnabled());
    }
    EXPECT_FALSE(menuItem("mnuCopySR")->isEnabled());
    EXPECT_EQ(list().count(), count) << "the list keeps its lines";
    EXPECT_EQ(Text1().text(), "amor");
    EXPECT_TRUE(Text1().hasFocus());
}

TEST_F(SearchWindow, SearchesWithEnterWhereverTheFocusIs)
{
    Text1().setText("amor");
    for (QWidget* control : std::initializer_list<QWidget*>{&Text1(), &Combo2(), &Text2(), &cmdCancel()}) {
        control->setFocus();
        press(control == &Text2() ? Qt::Key_Enter : Qt::Key_Return);
        EXPECT_TRUE(isInResultsMode()) << control->objectName().toStdString();
        EXPECT_EQ(boxes.shown.size(), 1) << control->objectName().toStdString();
        boxes.shown.clear();
        newSearch();
    }
}

TEST_F(SearchWindow, DoesNothingForEnterWithoutTextOrInResultsMode)
{
    Text1().setFocus();
    Text1().setText("  ");
    press(Qt::Key_Return);
    EXPECT_TRUE(boxes.shown.isEmpty());
    search("amor");
    boxes.shown.clear();
    cmdCancel().setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_NE(open<frmAdvSearch>(), nullptr);
}

TEST_F(SearchWindow, EscDoesNotCloseItWhileTheMouseMovesIt)
{
    QWindow* frameWindow = frame().windowHandle();
    const QPoint title = outer(window()).mapTo(&frame(), QPoint(outer(window()).width() / 2, 10));
    QTest::mousePress(frameWindow, Qt::LeftButton, {}, title);
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_NE(open<frmAdvSearch>(), nullptr);
    QTest::mouseRelease(frameWindow, Qt::LeftButton, {}, title);
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(open<frmAdvSearch>(), nullptr);
}

TEST_F(SearchWindow, ClosesByEscAndByItsButton)
{
    Combo1().setFocus();
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(open<frmAdvSearch>(), nullptr);
    frame().openSearch();
    click(cmdCancel());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(open<frmAdvSearch>(), nullptr);
}

TEST_F(SearchWindow, IsNotResetByTheSearchCommand)
{
    search("amor");
    outer(window()).showMinimized();
    frame().openSelection();
    press(Qt::Key_F3);
    EXPECT_FALSE(outer(window()).isMinimized());
    EXPECT_EQ(activeForm(), &window());
    EXPECT_TRUE(isInResultsMode());
    EXPECT_EQ(Text1().text(), "amor");
}

TEST_F(SearchWindow, SendsTheHelpKeyForItsHelpButton)
{
    class HelpKeys : public QObject
    {
    public:
        HelpKeys() { qApp->installEventFilter(this); }
        int presses = 0;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::KeyPress && watched == QApplication::focusWidget() &&
                static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1)
                ++presses;
            return false;
        }
    } keys;
    click(cmdHelp());
    EXPECT_EQ(keys.presses, 1);
}

TEST_F(SearchWindow, GivesItsControlsTheAltKeysThatMenusWantToo)
{
    Combo1().setFocus();
    press(Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(Text1().hasFocus());
    press(Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(Combo2().hasFocus());
    press(Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(chkWholeWrd().isChecked());
    EXPECT_TRUE(Text1().hasFocus()) << "as after any click of the check box";
    search("amor");
    cmdCancel().setFocus();
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(SearchWindow, LeavesTheMenusReachable)
{
    QMenu* edit = nullptr;
    for (const QAction* entry : frame().menuBar()->actions())
        if (entry->text() == "&Edit")
            edit = entry->menu();
    ASSERT_NE(edit, nullptr);
    Text1().setFocus();
    QTest::keyPress(frame().windowHandle(), Qt::Key_Alt); // as a keyboard does
    QTest::keyRelease(frame().windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    ASSERT_TRUE(frame().menuBar()->hasFocus());
    press(Qt::Key_E);
    EXPECT_TRUE(edit->isVisible());
    edit->close();

    search("amor"); // the text rests now, so that its key is the menu's alone
    for (int time = 0; time < 2; ++time) {
        press(Qt::Key_E, Qt::AltModifier);
        EXPECT_TRUE(edit->isVisible());
        edit->close();
    }
    newSearch();
    Combo2().setFocus();
    press(Qt::Key_E, Qt::AltModifier);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(Text1().hasFocus());
}

TEST_F(SearchWindow, ItsRestingWordsAreReadableOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    outer(window()).close();
    settle();
    QPalette dark = before;
    dark.setColor(QPalette::Button, QColor(0x353535));
    dark.setColor(QPalette::Base, QColor(0x2d2d2d));
    QApplication::setPalette(dark);
    frame().openSearch();
    const QPalette& colors = Text1().palette();
    const QColor ink = colors.color(QPalette::Disabled, QPalette::Text);
    const QColor face = colors.color(QPalette::Disabled, QPalette::Base);
    QApplication::setPalette(before);
    EXPECT_EQ(face, QColor(0x353535));
    EXPECT_GT(ink.lightness(), face.lightness());
    EXPECT_GE(contrastRatio(ink, face), 4.5);
    EXPECT_LT(contrastRatio(ink, face), 6) << "as strong as words that can be changed";
}
