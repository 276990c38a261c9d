// The help: its text, the ways to it, and its window.
#include "desktop/MsgBox.h"
#include "help/Help.h"
#include "help/HelpControls.h"
#include "help/HelpFile.h"
#include "help/ShippedHelp.h"
#include "pictures/LinkColor.h"
#include "store/BookCatalog.h"
#include "support/OnceModal.h"
#include "support/Session.h"
#include "support/Windows.h"
#include "widgets/Maker.h"
#include "widgets/SoftBttn.h"
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

namespace {

const QList<HelpPage>& shippedPages()
{
    return shippedPages(HelpLanguage::English);
}

QString allOfTheHelp()
{
    QString text;
    for (const HelpPage& page : shippedPages())
        text += page.html;
    return text;
}

QStringList pageNames()
{
    QStringList names;
    for (const HelpPage& page : shippedPages())
        names << page.name;
    return names;
}

QString pageHtml(const QString& name)
{
    for (const HelpPage& page : shippedPages())
        if (page.name == name)
            return page.html;
    return {};
}

/// Whether a page has a row of keys that says what this key does.
testing::AssertionResult hasKey(const QString& pageName, const QString& key, const QString& meaning)
{
    const QString row = "<tr><td><kbd>" + key.toHtmlEscaped() + "</kbd></td><td>" + meaning;
    if (pageHtml(pageName).contains(row))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "data/help/kestrel.html: the table of keys in <section id=\""
                                       << pageName.toStdString() << "\"> has no row\n"
                                       << row.toStdString() << "...</td></tr>";
}

bool mentionsKey(const QString& pageName, const QString& key)
{
    return pageHtml(pageName).contains("<tr><td><kbd>" + key + "</kbd></td>");
}

} // namespace

TEST(HelpFile, ReadsPagesInTheirOrder)
{
    const QList<HelpPage> pages =
        helpPages("<body>\n<section id=\"One\">\n<h1>First</h1><p>a</p></section>\n"
                  "<section id=\"Two\"><h1>Second</h1>\n<p>b</p>\n</section></body>");
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[0].name, "One");
    EXPECT_EQ(pages[0].title, "First");
    EXPECT_EQ(pages[0].html, "<h1>First</h1><p>a</p>");
    EXPECT_EQ(pages[1].name, "Two");
    EXPECT_TRUE(pages[1].html.contains("<p>b</p>"));
}

TEST(HelpFile, HasNoPagesWhenItIsMissingEmptyOrNoFile)
{
    QTemporaryDir folder;
    EXPECT_TRUE(readHelpFile(folder.filePath("none")).isEmpty());
    EXPECT_TRUE(readHelpFile(folder.path()).isEmpty());
    EXPECT_TRUE(helpPages("").isEmpty());
    EXPECT_TRUE(helpPages("no pages here").isEmpty());
}

TEST(HelpText, HasAPageForEveryWindow)
{
    for (const WindowRow& row : windowTable())
        EXPECT_TRUE(pageNames().contains(row.name)) << row.name.toStdString();
}

TEST(HelpText, EverySectionIsAPageAndNamesAreUnique)
{
    QFile file(helpSource);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count("<section"), readHelpFile(helpSource).size());
    QSet<QString> names;
    QSet<QString> titles;
    for (const HelpPage& page : shippedPages()) {
        names << page.name;
        titles << page.title;
    }
    EXPECT_EQ(names.size(), shippedPages().size());
    EXPECT_EQ(titles.size(), shippedPages().size());
}

TEST(HelpText, EveryInternalLinkLeadsToAPage)
{
    static const QRegularExpression link("<a href=\"([^\"]*)\"");
    const QString text = allOfTheHelp();
    int internal = 0;
    for (auto matches = link.globalMatch(text); matches.hasNext();) {
        const QString target = matches.next().captured(1);
        if (target.startsWith("http"))
            continue;
        ++internal;
        EXPECT_TRUE(target.startsWith('#') && pageNames().contains(target.mid(1))) << target.toStdString();
    }
    EXPECT_GT(internal, 20);
}

TEST(HelpText, ListsEveryBookWithItsAbbreviation)
{
    const QString page = pageHtml("Books");
    for (const Book& book : bookCatalog()) {
        const QString row = "<td><code>" + QString::fromUtf8(book.abbreviation) + "</code></td><td>" +
                            QString::fromUtf8(book.name) + "</td>";
        EXPECT_TRUE(page.contains(row)) << row.toStdString();
    }
}

TEST(HelpText, CarriesTheCredits)
{
    QString credits = pageHtml("Credits");
    credits.remove(QRegularExpression("<[^>]*>"));
    EXPECT_TRUE(
        credits.contains("Todas as Escrituras em português citadas são da Bíblia Livre (BLIVRE), Copyright © "
                         "Diego Santos, Mario "
                         "Sérgio, e Marco Teles, http://sites.google.com/site/biblialivre/ - fevereiro de "
                         "2018. Licença Creative "
                         "Commons Atribuição 3.0 Brasil (http://creativecommons.org/licenses/by/3.0/br/). "
                         "Reprodução permitida desde "
                         "que devidamente mencionados fonte e autores."));
    EXPECT_TRUE(
        credits.contains("Footnotes left out; psalm titles joined to verse 1; words added by the translators "
                         "in [brackets]; misprints and spacing corrected."));
    EXPECT_TRUE(credits.contains("Place coordinates: OpenBible.info, CC BY 4.0"));
    EXPECT_TRUE(credits.contains("Coastlines and rivers: GSHHG 2.3.7"));
}

TEST(HelpText, ExplainsEveryStartUpMessage)
{
    const QString page = pageHtml("Messages");
    for (const char* message : {"Cannot start more than one copy of Kestrel Reader (PT).",
                                "Couldn't find file 'SEARCH.AVI'. Please run Setup.",
                                "Couldn't find file 'KESTRPT.DAT'. Please run Setup.",
                                "Couldn't find file 'KESTREL.HLP'. Please run Setup.",
                                "Can't continue; file 'KESTRPT.DAT' has been modified. Please uninstall the "
                                "program then run Setup again."})
        EXPECT_TRUE(page.contains(message)) << message;
    EXPECT_TRUE(page.contains("time zone"));
}

/// A session in a folder of its own with the help file, and perhaps without it.
class HelpSession : public Session
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QFile::copy(helpSource, folder.filePath("KESTREL.HLP"));
        QFile::copy(KESTREL_INSTALL_DIR "/KESTRPT.DAT", folder.filePath("KESTRPT.DAT"));
        program = std::make_unique<Program>(folder.path());
        program->showFrame();
        makeActive(&frame());
        QTest::qWait(0);
    }

    HelpWindow* helpWindow() { return frame().help().window(); }

    /// Presses F1 where the focus is, and gives back the name of the page that is then shown.
    QString pageOnF1()
    {
        press(Qt::Key_F1);
        QTest::qWait(0);
        return helpWindow() ? browser(*helpWindow()).page() : QString();
    }

    HelpWindow& openHelp(const QString& page)
    {
        press(Qt::Key_F1);
        QTest::qWait(0);
        EXPECT_NE(helpWindow(), nullptr);
        helpWindow()->showPage(page);
        makeActive(helpWindow());
        return *helpWindow();
    }

    QTemporaryDir folder;
};

TEST_F(HelpSession, OpensAtThePageOfTheActiveChildWindow)
{
    EXPECT_EQ(pageOnF1(), "ChildSelect");
    makeActive(&frame());
    frame().readingWindow().restoreAndActivate();
    control<SoftBttn>(frame().readingWindow(), "cmdNext").setFocus();
    EXPECT_EQ(pageOnF1(), "ChildRead");
}

TEST_F(HelpSession, FitsOnASmallScreen)
{
    pageOnF1();
    const QSize room = helpWindow()->screen()->availableSize();
    EXPECT_EQ(helpWindow()->size(), QSize(840, 600).boundedTo(room * 0.92));
}

TEST_F(HelpSession, ToolbarBelongsToTheActiveChildWindow)
{
    control<SoftBttn>(frame(), "cmdNote").setFocus();
    EXPECT_EQ(pageOnF1(), "ChildSelect");
}

TEST_F(HelpSession, OpensAtTheFramesPageWhenNoChildIsOpen)
{
    outer(get<ChildSelect>()).close();
    QTest::qWait(0);
    control<SoftBttn>(frame(), "cmdNote").setFocus();
    EXPECT_EQ(pageOnF1(), "MDIParent");
}

TEST_F(HelpSession, OpensAtTheAboutWindowsPageWhileThatIsOpen)
{
    QString page;
    const auto looking = onceModal([&](QWidget&) {
        makeActive(program->startWindow());
        control<SoftBttn>(*program->startWindow(), "cmdMore").setFocus();
        page = pageOnF1();
        EXPECT_TRUE(helpWindow()->isVisible());
        EXPECT_TRUE(program->startWindow()->isVisible());
        EXPECT_TRUE(helpWindow()->isEnabled());
        makeActive(helpWindow());
        QTest::keyClick(helpWindow(), Qt::Key_Escape);
        EXPECT_TRUE(program->startWindow()->isVisible()) << "closing the help closed the About window";
        QTest::keyClick(program->startWindow(), Qt::Key_Escape);
    });
    click(control<SoftBttn>(frame(), "cmdAbout"));
    EXPECT_EQ(page, "frmStart");
}

TEST_F(HelpSession, OpensAtThePageOfBothTextWindows)
{
    QStringList pages;
    const auto looking = onceModal([&](QWidget&) {
        for (const char* name : {"cmdDonation", "cmdQORV"}) {
            auto& button = control<SoftBttn>(*program->startWindow(), name);
            const auto reading = onceModal([&](QWidget& letter) {
                makeActive(&letter);
                pages << pageOnF1();
                makeActive(&letter);
                QTest::keyClick(letter.focusWidget(), Qt::Key_Escape);
            });
            click(button);
        }
        makeActive(program->startWindow());
        QTest::keyClick(program->startWindow(), Qt::Key_Escape);
    });
    click(control<SoftBttn>(frame(), "cmdAbout"));
    EXPECT_EQ(pages, QStringList({"frmDN", "frmQORV"}));
}

TEST_F(HelpSession, OpensAtThePageBehindAMessageWhileThatIsOpen)
{
    MsgBox::setBackEnd({}); // the real boxes
    QString page;
    const auto looking = onceModal([&](QWidget& box) {
        makeActive(&box);
        page = pageOnF1();
        EXPECT_TRUE(box.isVisible());
        box.close();
    });
    MsgBox::show("A message.", MsgIcon::Information);
    EXPECT_EQ(page, "ChildSelect");
}

TEST_F(HelpSession, CanBeUsedBesideAModalWindowAndStaysWhenThatCloses)
{
    openHelp("Keys"); // stands alone, and is then called again from the modal window
    EXPECT_EQ(helpWindow()->windowHandle()->transientParent(), nullptr);
    makeActive(&frame());
    const auto looking = onceModal([&](QWidget&) {
        makeActive(program->startWindow());
        EXPECT_EQ(pageOnF1(), "frmStart");
        EXPECT_EQ(helpWindow()->windowHandle()->transientParent(), program->startWindow()->windowHandle());
        makeActive(program->startWindow());
        QTest::keyClick(program->startWindow(), Qt::Key_Escape);
    });
    click(control<SoftBttn>(frame(), "cmdAbout"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(helpWindow()->isVisible());
    EXPECT_EQ(helpWindow()->windowHandle()->transientParent(), nullptr);
}

TEST_F(HelpSession, OpensAtThePageOfTheActiveWindow)
{
    frame().help().open();
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_EQ(browser(*helpWindow()).page(), "ChildSelect");
}

TEST_F(HelpSession, OnlyThePlainKeyOpensIt)
{
    press(Qt::Key_F1, Qt::ShiftModifier);
    press(Qt::Key_F4);
    QTest::qWait(0);
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpSession, ControlSeesTheKeyAllTheSame)
{
    struct Watcher : QObject
    {
        int keys = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            keys += event->type() == QEvent::KeyPress;
            return false;
        }
    } watcher;
    QApplication::focusWidget()->installEventFilter(&watcher);
    press(Qt::Key_F1);
    EXPECT_EQ(watcher.keys, 1);
}

TEST_F(HelpSession, ThereIsOneWindowThatKeepsItsPlace)
{
    HelpWindow& first = openHelp("Keys");
    makeActive(&frame());
    frame().readingWindow().restoreAndActivate();
    control<SoftBttn>(frame().readingWindow(), "cmdNext").setFocus();
    EXPECT_EQ(pageOnF1(), "ChildRead");
    EXPECT_EQ(helpWindow(), &first);
}

TEST_F(HelpSession, ItsOwnPageIsShownByF1InIt)
{
    browser(openHelp("Keys")).setFocus();
    EXPECT_EQ(pageOnF1(), "HelpWindow");
}

TEST_F(HelpSession, ChangesNothingInTheProgramsWindows)
{
    ChildRead& reading = frame().readingWindow();
    reading.restoreAndActivate();
    control<QCheckBox>(reading, "chkAuto").setChecked(true);
    control<SoftBttn>(reading, "cmdNext").setFocus();
    ASSERT_TRUE(control<QTimer>(reading, "Timer1").isActive());
    openHelp("Keys");
    QTest::qWait(0);
    EXPECT_TRUE(control<QTimer>(reading, "Timer1").isActive());
    EXPECT_EQ(activeForm(), &reading);
    EXPECT_TRUE(control<QCheckBox>(reading, "chkAuto").isChecked());
    EXPECT_EQ(reading.currentKey(), "Mt:1:1");
    EXPECT_FALSE(helpWindow()->isModal());
    QTest::keyClick(helpWindow(), Qt::Key_Escape);
    QTest::qWait(0);
    EXPECT_EQ(helpWindow(), nullptr);
    EXPECT_TRUE(control<QTimer>(reading, "Timer1").isActive());
    EXPECT_EQ(activeForm(), &reading);
}

TEST_F(HelpSession, MissingFileGivesAMessageAndNothingElse)
{
    QFile::remove(folder.filePath("KESTREL.HLP"));
    press(Qt::Key_F1);
    QTest::qWait(0);
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, "Couldn't find file 'KESTREL.HLP'. Please run Setup.");
    EXPECT_EQ(boxes.shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(boxes.shown[0].buttons, MsgButtons::Ok);
    EXPECT_EQ(boxes.shown[0].title, applicationTitle);
    EXPECT_EQ(helpWindow(), nullptr);
}

TEST_F(HelpSession, ListsItsPagesAndFollowsTheChosenOne)
{
    HelpWindow& window = openHelp("ChildRead");
    EXPECT_EQ(window.windowTitle(), "Kestrel Reader Help");
    EXPECT_EQ(contents(window).accessibleName(), "Contents");
    ASSERT_EQ(contents(window).count(), shippedPages().size());
    EXPECT_EQ(contents(window).currentItem()->text(), "Reading Window");
    for (int row = 0; row < contents(window).count(); ++row) {
        contents(window).setCurrentRow(row);
        EXPECT_EQ(browser(window).page(), shippedPages()[row].name);
        EXPECT_TRUE(browser(window).toPlainText().startsWith(shippedPages()[row].title));
        EXPECT_EQ(browser(window).accessibleName(), shippedPages()[row].title);
    }
}

TEST_F(HelpSession, FollowsInternalLinksAndGoesBackAndForward)
{
    HelpWindow& window = openHelp("Welcome");
    EXPECT_FALSE(action(window, "forward").isEnabled());
    browser(window).setFocus();
    press(Qt::Key_Tab); // the first link of the page
    press(Qt::Key_Return);
    EXPECT_EQ(browser(window).page(), "ChildSelect");
    EXPECT_EQ(contents(window).currentItem()->text(), "Select Verse for Reading");
    action(window, "back").trigger();
    EXPECT_EQ(browser(window).page(), "Welcome");
    action(window, "forward").trigger();
    EXPECT_EQ(browser(window).page(), "ChildSelect");
    EXPECT_TRUE(services.links.isEmpty());
}

TEST_F(HelpSession, ExternalLinksAreTheDesktops)
{
    HelpWindow& window = openHelp("Credits");
    browser(window).setFocus();
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(services.links, QList<QUrl>({QUrl("http://sites.google.com/site/biblialivre/")}));
    EXPECT_EQ(browser(window).page(), "Credits");
}

TEST_F(HelpSession, FindsAWordOnThePageAndThenOnTheOthers)
{
    HelpWindow& window = openHelp("Welcome");
    action(window, "find").trigger();
    EXPECT_EQ(QApplication::focusWidget(), &searchText(window));
    QTest::keyClicks(&searchText(window), "Chapter Window");
    press(Qt::Key_Return);
    EXPECT_EQ(browser(window).page(), "Welcome");
    EXPECT_EQ(browser(window).textCursor().selectedText(), "Chapter Window");
    const int firstPlace = browser(window).textCursor().position();
    action(window, "findNext").trigger();
    EXPECT_NE(browser(window).page(), "Welcome");
    EXPECT_EQ(browser(window).textCursor().selectedText(), "Chapter Window");
    action(window, "findPrevious").trigger();
    EXPECT_EQ(browser(window).page(), "Welcome");
    EXPECT_EQ(browser(window).textCursor().position(), firstPlace);
}

TEST_F(HelpSession, FindGoesRoundAndReturnsToTheOnlyPlace)
{
    HelpWindow& window = openHelp("Credits");
    searchText(window).setText("GSHHG");
    action(window, "findNext").trigger();
    const int place = browser(window).textCursor().position();
    action(window, "findNext").trigger();
    EXPECT_EQ(browser(window).page(), "Credits");
    EXPECT_EQ(browser(window).textCursor().position(), place);
    EXPECT_TRUE(window.statusBar()->currentMessage().isEmpty());
}

TEST_F(HelpSession, SaysWhenAWordIsNowhere)
{
    HelpWindow& window = openHelp("Welcome");
    searchText(window).setText("xyzzy");
    action(window, "findNext").trigger();
    EXPECT_EQ(browser(window).page(), "Welcome");
    EXPECT_EQ(window.statusBar()->currentMessage(), "The help does not have \"xyzzy\".");
    EXPECT_EQ(services.beeps, 1);
}

TEST_F(HelpSession, CopiesTheSelectedText)
{
    HelpWindow& window = openHelp("Credits");
    EXPECT_FALSE(action(window, "copy").isEnabled());
    searchText(window).setText("GSHHG 2.3.7");
    action(window, "findNext").trigger();
    action(window, "copy").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "GSHHG 2.3.7");
}

TEST_F(HelpSession, ZoomsByKeyboardWithinBounds)
{
    HelpWindow& window = openHelp("Keys");
    const int normal = browser(window).font().pointSize();
    browser(window).setFocus();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(browser(window).font().pointSize(), normal + 2);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(browser(window).font().pointSize(), normal + 1);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(browser(window).font().pointSize(), normal);
    for (int i = 0; i < 100; ++i)
        action(window, "smaller").trigger();
    EXPECT_GE(browser(window).font().pointSize(), 6);
    action(window, "normalSize").trigger();
    EXPECT_EQ(browser(window).font().pointSize(), normal);
}

TEST_F(HelpSession, ListsEveryShortcutOfItsOwn)
{
    HelpWindow& window = openHelp("HelpWindow");
    int shortcuts = 0;
    for (const QAction* action : window.actions()) {
        EXPECT_TRUE(hasKey("HelpWindow", action->shortcut().toString(), action->text()));
        EXPECT_TRUE(hasKey("Keys", action->shortcut().toString(), action->text()));
        ++shortcuts;
    }
    EXPECT_EQ(shortcuts, 10);
}

/// The keys of a menu bar: the help must list each of them on the window's page, with the item's words.
class HelpAndMenus : public HelpSession
{
protected:
    void expectKeysListed(const QString& page)
    {
        int keys = 0;
        for (const QAction* menu : frame().menuBar()->actions())
            for (const QAction* item : menu->menu()->actions()) {
                if (item->shortcut().isEmpty())
                    continue;
                const QString key = item->shortcut().toString();
                const QString caption = QString(item->text()).remove('&');
                EXPECT_TRUE(hasKey(page, key, caption));
                EXPECT_TRUE(hasKey("Keys", key, caption));
                ++keys;
            }
        EXPECT_GE(keys, 3);
        expectNoOtherFunctionKeys(page);
    }

    /// A function key on a window's page is one that the window's menus have (or the help's own).
    void expectNoOtherFunctionKeys(const QString& page)
    {
        QStringList known = {"F1"};
        for (const QAction* menu : frame().menuBar()->actions())
            for (const QAction* item : menu->menu()->actions())
                known << item->shortcut().toString();
        for (int number = 1; number <= 12; ++number) {
            const QString key = QString("F%1").arg(number);
            EXPECT_EQ(mentionsKey(page, key), known.contains(key))
                << "data/help/kestrel.html, <section id=\"" << page.toStdString()
                << "\">: " << key.toStdString()
                << (known.contains(key) ? " is missing" : " is told, and the window's menus do not have it");
        }
    }
};

TEST_F(HelpAndMenus, AgreeInEveryWindow)
{
    expectKeysListed("ChildSelect");
    frame().readingWindow().restoreAndActivate();
    expectKeysListed("ChildRead");
    for (QMdiSubWindow* window : frame().area()->subWindowList())
        window->close();
    QTest::qWait(0);
    expectKeysListed("MDIParent");
    // The windows that the shell opens when it has them.
    const QList<std::function<void()>> openers = {[&] { frame().openSearch(); },
                                                  [&] { frame().openStudyAids(); }};
    for (const auto& opener : openers) {
        opener();
        if (activeForm())
            expectKeysListed(activeForm()->objectName());
    }
}

TEST_F(HelpSession, RepeatsNoNameOfAButtonAsADescription)
{
    HelpWindow& window = openHelp("Welcome");
    for (const char* name : {"back", "forward", "larger", "otherLanguage"}) {
        QAccessibleInterface* spoken =
            QAccessible::queryAccessibleInterface(&control<QToolButton>(window, name));
        const QString description = spoken->text(QAccessible::Description);
        EXPECT_TRUE(description.startsWith('(')) << "only its keys, not " << description.toStdString();
    }
}

TEST_F(HelpSession, LeavesThePagesWhatTheContentsNeedNot)
{
    HelpWindow& window = openHelp("Welcome");
    EXPECT_EQ(contents(window).width(), 200);
    window.resize(window.width() - 100, window.height());
    settle();
    EXPECT_EQ(contents(window).width(), 200);
}

TEST_F(HelpSession, LoadsNothingButItsPages)
{
    QTest::keyClick(&keyReceiver(), Qt::Key_F1);
    settle();
    HelpBrowser& shown = browser(*frame().help().window());
    const QUrl file = QUrl::fromLocalFile(helpSource);
    EXPECT_EQ(shown.document()->resource(QTextDocument::ImageResource, file).toByteArray(), "");
    EXPECT_EQ(shown.document()->resource(QTextDocument::StyleSheetResource, file).toByteArray(), "");
    EXPECT_NE(shown.document()->resource(QTextDocument::HtmlResource, shown.source()).toString(), "");
}

TEST_F(HelpSession, FollowsNoLinkThatIsNotForTheDesktop)
{
    QTest::keyClick(&keyReceiver(), Qt::Key_F1);
    settle();
    HelpBrowser& shown = browser(*frame().help().window());
    const QString before = shown.page();
    Q_EMIT shown.anchorClicked(QUrl("file:///etc/passwd"));
    EXPECT_EQ(services.links, QList<QUrl>());
    EXPECT_EQ(shown.page(), before);
}

TEST_F(HelpSession, ComesBackWhenItWasMinimised)
{
    QTest::keyClick(&keyReceiver(), Qt::Key_F1);
    settle();
    HelpWindow& help = *frame().help().window();
    help.showMinimized();
    ASSERT_TRUE(help.isMinimized());
    makeActive(&frame());
    press(Qt::Key_F1);
    settle();
    EXPECT_FALSE(help.isMinimized());
    EXPECT_TRUE(help.isVisible());
}

TEST_F(HelpSession, ComesToTheFrontWhenItIsAskedForAgain)
{
    class Raised : public QObject
    {
    public:
        int times = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            times += event->type() == QEvent::ZOrderChange;
            return false;
        }
    } raised;
    openHelp("Keys").installEventFilter(&raised);
    makeActive(&frame());
    control<SoftBttn>(frame(), "cmdNote").setFocus();
    ASSERT_EQ(raised.times, 0);
    EXPECT_EQ(pageOnF1(), "ChildSelect");
    EXPECT_EQ(raised.times, 1);
}

TEST_F(HelpSession, OpensInFrontWithTheFocusInThePage)
{
    pageOnF1();
    EXPECT_TRUE(QTest::qWaitForWindowActive(helpWindow()));
    EXPECT_EQ(helpWindow()->focusWidget(), &browser(*helpWindow()));
    EXPECT_FALSE(helpWindow()->windowIcon().isNull());
}

TEST_F(HelpSession, WritesItsPagesAsDesigned)
{
    pageOnF1();
    const HelpBrowser& page = browser(*helpWindow());
    EXPECT_EQ(page.font().family(), "Tahoma");
    EXPECT_EQ(page.font().pointSize(), 10);
    EXPECT_EQ(page.document()->documentMargin(), 12); // 180 twips
}

TEST_F(HelpSession, ItsToolbarStaysAndHasItsGroups)
{
    pageOnF1();
    const auto& toolbar = control<QToolBar>(*helpWindow(), "toolbar");
    EXPECT_FALSE(toolbar.isMovable());
    EXPECT_EQ(toolbar.accessibleName(), "Help Toolbar");
    EXPECT_EQ(helpWindow()->contextMenuPolicy(), Qt::NoContextMenu) << "which would hide the toolbar";
    EXPECT_FALSE(helpWindow()->statusBar()->isSizeGripEnabled());
    EXPECT_EQ(searchText(*helpWindow()).accessibleName(), "Find:");
    QString groups;
    for (const QAction* item : toolbar.actions())
        groups += item->isSeparator() ? "| " : item->objectName().isEmpty() ? "* " : item->objectName() + ' ';
    EXPECT_EQ(groups,
              "back forward | * * findNext findPrevious | copy larger smaller normalSize | otherLanguage ");
}

TEST_F(HelpSession, TabGoesFromTheTextToFindToTheButtonsBesideIt)
{
    HelpWindow& window = openHelp("Welcome");
    searchText(window).setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &control<QToolButton>(window, "findNext"));
}

TEST_F(HelpSession, FindSelectsWhatWasSoughtBefore)
{
    HelpWindow& window = openHelp("Welcome");
    searchText(window).setText("verse");
    browser(window).setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), &searchText(window));
    EXPECT_EQ(searchText(window).selectedText(), "verse");
}

TEST_F(HelpSession, SaysNoLongerThatAWordIsNowhereOnceAnotherIsFoundOrAPageChosen)
{
    HelpWindow& window = openHelp("Credits");
    const auto seekNothing = [&] {
        searchText(window).setText("xyzzy");
        action(window, "findNext").trigger();
        EXPECT_NE(window.statusBar()->currentMessage(), "");
    };
    seekNothing();
    searchText(window).setText("GSHHG");
    action(window, "findNext").trigger();
    EXPECT_EQ(window.statusBar()->currentMessage(), "") << "found on the same page";
    seekNothing();
    window.showPage("Keys");
    EXPECT_EQ(window.statusBar()->currentMessage(), "");
}

TEST_F(HelpSession, ItsTypeHasABoundAtEachEnd)
{
    HelpWindow& window = openHelp("Welcome");
    const auto sizeAfter = [&](int times, const char* command) {
        while (times-- > 0)
            action(window, command).trigger();
        return browser(window).font().pointSize();
    };
    EXPECT_EQ(sizeAfter(21, "larger"), 30);
    EXPECT_EQ(sizeAfter(24, "smaller"), 7);
    EXPECT_EQ(sizeAfter(1, "normalSize"), 10);
}

TEST(HelpBrowser, WritesItsLinksInAColorThatIsReadOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(0x202020));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    HelpBrowser browser(nullptr);
    QApplication::setPalette(before);
    browser.setPages(helpPages("<section id=\"One\"><h1>First</h1><a href=\"#One\">x</a></section>"));
    browser.showPage("One");
    const QTextCharFormat link = browser.document()->find("x").charFormat();
    ASSERT_TRUE(link.isAnchor());
    EXPECT_EQ(link.foreground().color(), linkColor(dark, QPalette::Base, QPalette::Text));
}
