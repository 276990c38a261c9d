// A monkey at the real frame: thousands of random events, and after each what must always hold.
#include "app/frmStart.h"
#include "app/TextWindow.h"
#include "clip/AnimationPlayer.h"
#include "help/Help.h"
#include "help/HelpWindow.h"
#include "support/Session.h"
#include "support/Windows.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include "widgets/Twips.h"
#include <chrono>
#include <deque>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSet>
#include <QTabBar>
#include <QTimer>
#include <random>

using namespace std::chrono_literals;

namespace {

constexpr int eventsOfOneRun = 2'500;
constexpr std::size_t eventsToTell = 20;

// No apostrophe: in the reference box it ends the program, as it must.
const QString typed = "abcdefghijklmnopqrstuvwxyzAJLMR0123456789:: ";
const QString menuLetters = "febvstwhacdnom";

struct NamedKey
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};
const QList<NamedKey> commandKeys = {
    {Qt::Key_Return, {}},
    {Qt::Key_Enter, {}},
    {Qt::Key_Escape, {}},
    {Qt::Key_Tab, {}},
    {Qt::Key_Backtab, {}},
    {Qt::Key_Up, {}},
    {Qt::Key_Down, {}},
    {Qt::Key_Left, {}},
    {Qt::Key_Right, {}},
    {Qt::Key_Home, {}},
    {Qt::Key_End, {}},
    {Qt::Key_PageDown, {}},
    {Qt::Key_PageUp, {}},
    {Qt::Key_Space, {}},
    {Qt::Key_Delete, {}},
    {Qt::Key_Backspace, {}},
    {Qt::Key_F1, {}},
    {Qt::Key_F2, {}},
    {Qt::Key_F3, {}},
    {Qt::Key_F8, {}},
    {Qt::Key_F9, {}},
    {Qt::Key_F11, {}},
    {Qt::Key_F12, {}},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_A, Qt::ControlModifier},
};

QString nameOf(const QWidget* widget)
{
    if (!widget)
        return "nothing";
    const QString name = widget->objectName();
    return name.isEmpty() ? QString(widget->metaObject()->className()) : name;
}

class Monkey : public Session, public testing::WithParamInterface<unsigned>
{
protected:
    void SetUp() override
    {
        Session::SetUp();
        random.seed(GetParam());
        randomOfDialogs.seed(GetParam());
        boxes.whileShown = [this] { answerBox(); };
        watchDialogs();
    }

    /// A monkey that reaches nothing proves nothing.
    static void TearDownTestSuite()
    {
        const QStringList children = windowsOfKind("child");
        EXPECT_EQ(seen, QSet<QString>(children.begin(), children.end()));
    }

    /// A number from 0 to count - 1.
    int anyOf(qsizetype count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    template <class Item>
    const Item& anyOf(const QList<Item>& list)
    {
        return list.at(anyOf(list.size()));
    }

    void tell(const QString& event)
    {
        told.push_back(event);
        if (told.size() > eventsToTell)
            told.pop_front();
    }

    std::string story() const
    {
        QString text = QString("seed %1, step %2; the last events:").arg(GetParam()).arg(step);
        for (const QString& event : told)
            text += "\n    " + event;
        return text.toStdString();
    }

    // --- What happens ---

    void doAnything()
    {
        const int kind = anyOf(100);
        if (kind < 30)
            type();
        else if (kind < 55)
            pressCommandKey();
        else if (kind < 60)
            pressMenuLetter();
        else if (kind < 75)
            clickControl();
        else if (kind < 83)
            chooseMenuItem();
        else if (kind < 89)
            changeWindow();
        else if (kind < 92)
            chooseInCombo();
        else if (kind < 94)
            turnTheWheel();
        else if (kind < 97)
            letTimePass();
        else
            changeDesktop();
    }

    /// A person without an active window clicks the frame before typing on.
    QWidget* activeReceiver()
    {
        if (!QApplication::activePopupWidget() && !QApplication::activeWindow())
            makeActive(&frame());
        return &keyReceiver();
    }

    void type()
    {
        QWidget* receiver = activeReceiver();
        const QChar character = typed.at(anyOf(typed.size()));
        tell(QString("type '%1' into %2").arg(character).arg(nameOf(receiver)));
        QTest::keyClick(receiver, character.toLatin1());
    }

    void pressCommandKey()
    {
        QWidget* receiver = activeReceiver();
        const NamedKey& key = anyOf(commandKeys);
        tell(QString("press %1 in %2")
                 .arg(QKeySequence(key.modifiers | key.key).toString(), nameOf(receiver)));
        QTest::keyClick(receiver, key.key, key.modifiers);
    }

    void pressMenuLetter()
    {
        QWidget* receiver = activeReceiver();
        const char letter = menuLetters.at(anyOf(menuLetters.size())).toLatin1();
        tell(QString("press Alt+%1 in %2").arg(letter).arg(nameOf(receiver)));
        QTest::keyClick(receiver, letter, Qt::AltModifier);
    }

    QList<Form*> forms()
    {
        QList<Form*> result;
        for (const QMdiSubWindow* window : frame().area()->subWindowList())
            if (auto* form = qobject_cast<Form*>(window->widget()))
                result << form;
        return result;
    }

    /// The widgets of one window, or of the toolbar, that a mouse can click.
    QList<QWidget*> clickable()
    {
        QList<QWidget*> windows = {&control<QWidget>(frame(), "picToolbar")};
        for (Form* form : forms())
            windows << form << form;
        if (HelpWindow* help = frame().help().window())
            windows << help;
        QList<QWidget*> result;
        for (QWidget* widget : anyOf(windows)->findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && !widget->rect().isEmpty())
                result << widget;
        return result;
    }

    void clickControl()
    {
        closePopups();
        const QList<QWidget*> widgets = clickable();
        if (widgets.isEmpty())
            return;
        QWidget* widget = anyOf(widgets);
        QPoint place(anyOf(widget->width()), anyOf(widget->height()));
        if (const auto* tabs = qobject_cast<QTabBar*>(widget)) // most of it is no tab
            place = tabs->tabRect(anyOf(tabs->count())).center();
        const auto* view = qobject_cast<QAbstractItemView*>(widget->parentWidget());
        if (view && widget == view->viewport() && view->model()->rowCount() > 0) // nor is most of it an entry
            place = view->visualRect(view->model()->index(anyOf(qMin(view->model()->rowCount(), 12)), 0))
                        .center();
        const bool twice = anyOf(8) == 0;
        tell(QString("%1 %2 of %3 at %4,%5")
                 .arg(twice ? "double-click" : "click", nameOf(widget), nameOf(widget->parentWidget()))
                 .arg(place.x())
                 .arg(place.y()));
        const QPointer<QWidget> alive = widget;
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        if (twice && alive && alive->isVisible())
            QTest::mouseDClick(alive, Qt::LeftButton, {}, place);
    }

    void turnTheWheel()
    {
        closePopups();
        const QList<QWidget*> widgets = clickable();
        if (widgets.isEmpty())
            return;
        QWidget* widget = anyOf(widgets);
        tell(QString("turn the wheel over %1 of %2").arg(nameOf(widget), nameOf(widget->parentWidget())));
        turnWheel(*widget, anyOf(QList<Qt::KeyboardModifiers>{{}, Qt::ControlModifier, Qt::ShiftModifier}));
    }

    void chooseMenuItem()
    {
        closePopups();
        QList<QAction*> items;
        for (const QAction* menu : frame().menuBar()->actions()) {
            Q_EMIT menu->menu()->aboutToShow();
            for (QAction* item : menu->menu()->actions())
                if (item->isEnabled() && !item->isSeparator())
                    items << item;
        }
        QAction* item = anyOf(items);
        tell("choose " + item->text());
        item->trigger();
    }

    void changeWindow()
    {
        closePopups();
        const QList<QMdiSubWindow*> windows = frame().area()->subWindowList();
        if (windows.isEmpty())
            return;
        QMdiSubWindow* window = anyOf(windows);
        switch (anyOf(8)) {
        case 0:
            tell("minimise " + nameOf(window));
            window->showMinimized();
            break;
        case 1:
            tell("maximise " + nameOf(window));
            window->showMaximized();
            break;
        case 2:
        case 3:
            tell("restore " + nameOf(window));
            window->showNormal();
            break;
        case 4: {
            const QSize size(anyOf(1200), anyOf(900));
            tell(QString("resize %1 to %2 x %3").arg(nameOf(window)).arg(size.width()).arg(size.height()));
            window->resize(size);
            break;
        }
        case 5:
            tell("activate " + nameOf(window));
            frame().area()->setActiveSubWindow(window);
            break;
        case 6:
            tell("close " + nameOf(window));
            window->close();
            break;
        case 7:
            tell("close all windows");
            for (QMdiSubWindow* open : windows)
                open->close();
            break;
        }
    }

    void chooseInCombo()
    {
        closePopups();
        QList<QComboBox*> combos;
        for (const Form* form : forms())
            for (QComboBox* combo : form->findChildren<QComboBox*>())
                if (combo->isVisible() && combo->isEnabled())
                    combos << combo;
        if (combos.isEmpty())
            return;
        QComboBox* combo = anyOf(combos);
        const Qt::Key key = anyOf(QList<Qt::Key>{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown});
        tell(QString("choose in %1 by %2").arg(nameOf(combo), QKeySequence(key).toString()));
        combo->setFocus();
        QTest::keyClick(combo, key);
    }

    void letTimePass()
    {
        auto* reading = open<ChildRead>();
        QTimer* timer = reading ? &control<QTimer>(*reading, "Timer1") : nullptr;
        if (timer && timer->isActive()) {
            tell("the reading window's timer ticks");
            QTimerEvent tick(timer->timerId());
            QCoreApplication::sendEvent(timer, &tick);
        } else {
            tell("time passes");
            QTest::qWait(anyOf(5));
        }
    }

    void changeDesktop()
    {
        switch (anyOf(4)) {
        case 0:
            services.clipboardWorks = anyOf(4) != 0;
            tell(services.clipboardWorks ? "the clipboard works" : "the clipboard fails");
            break;
        case 1:
            services.programsStart = anyOf(4) != 0;
            tell(services.programsStart ? "programs start" : "programs do not start");
            break;
        case 2:
            frame().resize(400 + anyOf(900), 300 + anyOf(700));
            tell("resize the frame");
            break;
        case 3:
            tell("close the help window");
            if (HelpWindow* help = frame().help().window())
                help->close();
            makeActive(&frame());
            break;
        }
    }

    /// A click anywhere else closes an open menu or list first.
    void closePopups()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QAction* item : frame().findChildren<QAction*>("mnuQuit"))
            item->setEnabled(false); // Exit would end the run
    }

    // --- Message boxes and dialogs ---

    void answerBox()
    {
        const MsgBox::Message& box = boxes.shown.constLast();
        tell("    box: " + box.text.left(60).simplified());
        boxes.answer = box.buttons == MsgButtons::Ok ? MsgAnswer::Ok
                       : anyOf(2) == 0               ? MsgAnswer::Yes
                                                     : MsgAnswer::No;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass over a message box";
        EXPECT_NE(box.icon, MsgIcon::Stop) << "the program ends: " << box.text.toStdString();
    }

    /// The About window and its text windows wait for their end in event loops of their own.
    void watchDialogs()
    {
        QTimer::singleShot(1ms, &frame(), [this] {
            watchDialogs(); // first, for what follows may wait as well
            useDialog();
        });
    }

    void useDialog()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (auto* text = qobject_cast<TextWindow*>(dialog)) {
            tell("    close " + nameOf(text));
            text->close();
        } else if (auto* about = qobject_cast<frmStart*>(dialog)) {
            const QList<QWidget*> controls = {
                &control<SoftBttn>(*about, "cmdMore"), &control<SoftBttn>(*about, "cmdDonation"),
                &control<SoftBttn>(*about, "cmdQORV"), &control<SoftBttn>(*about, "cmdOK"),
                &control<SoftBttn>(*about, "cmdOK"),   about};
            QWidget* control = controls.at(static_cast<int>(randomOfDialogs() % 6));
            tell("    use " + nameOf(control) + " of the About window");
            if (control == about)
                QTest::keyClick(about, Qt::Key_Escape);
            else
                QTest::mouseClick(control, Qt::LeftButton);
            ++dialogsUsed;
        }
    }

    // --- What always holds ---

    void expectInvariants()
    {
        expectOneWindowOfEachClass();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass stays";
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "a dialog stays open";
        expectMenusOfActiveWindow();
        if (auto* reading = open<ChildRead>())
            expectReading(*reading);
        if (auto* search = open<frmAdvSearch>())
            expectSearch(*search);
    }

    void expectOneWindowOfEachClass()
    {
        QStringList names;
        for (const Form* form : forms())
            names << form->objectName();
        EXPECT_EQ(names.removeDuplicates(), 0) << "a second instance of a window";
    }

    void expectMenusOfActiveWindow()
    {
        QStringList expected = {"&File", "&Search", "&Tools", "&Help"};
        const auto* form = qobject_cast<Form*>(activeForm());
        if (form) {
            expected.clear();
            for (QMenu* menu : form->menus())
                expected << menu->title();
            EXPECT_EQ(frame().menuBar()->actions().constFirst(), form->menus().constFirst()->menuAction())
                << "the menus are not the ones of " << nameOf(form).toStdString();
        }
        EXPECT_EQ(menuBarCaptions(), expected);
    }

    static void expectReading(const ChildRead& reading)
    {
        EXPECT_EQ(reading.caption(), ChildRead::captionOf(reading.currentKey()));
        const QString number = control<QLabel>(reading, "lblSerial").text();
        const bool isVerse = number.toInt() >= 1 && number.toInt() <= 31102;
        EXPECT_TRUE(number.isEmpty() || isVerse) << number.toStdString();
        EXPECT_EQ(number.isEmpty(), reading.currentKey().isEmpty());
        const bool isAuto = control<QCheckBox>(reading, "chkAuto").isChecked();
        EXPECT_TRUE(isAuto || !control<QTimer>(reading, "Timer1").isActive()) << "the timer runs unasked";
    }

    static void expectSearch(const frmAdvSearch& search)
    {
        const bool results = !control<ListBox>(search, "List1").isHidden();
        EXPECT_EQ(control<QLineEdit>(search, "Text1").isEnabled(), !results);
        EXPECT_EQ(control<QComboBox>(search, "Combo2").isEnabled(), !results);
        EXPECT_EQ(control<SoftBttn>(search, "cmdHideList").isHidden(), !results);
        EXPECT_EQ(control<SoftBttn>(search, "cmdCopySR").isEnabled(), results);
        EXPECT_EQ(control<QAction>(search, "mnuCopySR").isEnabled(), results);
        EXPECT_EQ(control<SoftBttn>(search, "cmdOK").isEnabled(),
                  !results && !control<QLineEdit>(search, "Text1").text().trimmed().isEmpty());
        EXPECT_TRUE(control<AnimationPlayer>(search, "Animation1").isHidden()) << "the clip stays";
        if (search.state() == Form::Normal) {
            const int height = results ? frmAdvSearch::resultsHeight : frmAdvSearch::inputHeight;
            EXPECT_EQ(search.outerHeight(), toTwips(toPixels(height)));
        }
    }

    std::mt19937 random;
    std::mt19937 randomOfDialogs; ///< its own, because dialogs answer by the clock
    std::deque<QString> told;
    int step = 0;
    static inline QSet<QString> seen; ///< the windows that any of the runs had open
    int dialogsUsed = 0;
};

TEST_P(Monkey, LeavesEverythingInOrder)
{
    for (step = 1; step <= eventsOfOneRun; ++step) {
        doAnything();
        settle();
        expectInvariants();
        ASSERT_FALSE(HasFailure()) << story();
        for (const Form* form : forms())
            seen << form->objectName();
    }
    EXPECT_GT(boxes.shown.size(), 20);
    EXPECT_GT(dialogsUsed, 5);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Monkey, testing::Values(1U, 19U, 98U, 1998U));

} // namespace
