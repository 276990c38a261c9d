// The help in two languages: which one it opens in, and the switch.
#include "help/Help.h"
#include "help/HelpControls.h"
#include "help/SessionWithHelp.h"
#include <QLocale>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

TEST(HelpLanguages, AreTakenFromTheDesktopInItsOrder)
{
    EXPECT_EQ(helpLanguage({"pt-BR", "pt"}), HelpLanguage::Portuguese);
    EXPECT_EQ(helpLanguage({"pt-PT"}), HelpLanguage::Portuguese);
    EXPECT_EQ(helpLanguage({"pt_BR"}), HelpLanguage::Portuguese);
    EXPECT_EQ(helpLanguage({"en-GB", "pt-BR"}), HelpLanguage::English);
    EXPECT_EQ(helpLanguage({"de-DE", "pt-BR", "en-US"}), HelpLanguage::Portuguese);
    EXPECT_EQ(helpLanguage({"de-DE", "fr-FR"}), HelpLanguage::English);
    EXPECT_EQ(helpLanguage({"C"}), HelpLanguage::English);
    EXPECT_EQ(helpLanguage({}), HelpLanguage::English);
}

TEST(HelpLanguages, ShareTheNamesOfTheirPages)
{
    const QList<HelpPage> pages = helpPages(
        "<section id=\"One\"><h1>First</h1><a href=\"#One\">x</a></section>"
        "<section id=\"pt-One\" lang=\"pt-BR\"><h1>Primeira</h1><a href=\"#pt-One\">x</a></section>");
    ASSERT_EQ(pages.size(), 2);
    EXPECT_EQ(pages[0].language, HelpLanguage::English);
    EXPECT_EQ(pages[1].language, HelpLanguage::Portuguese);
    EXPECT_EQ(pages[1].name, "One");
    EXPECT_EQ(pages[1].title, "Primeira");
    EXPECT_EQ(pages[1].html, "<h1>Primeira</h1><a href=\"#One\">x</a>");
    EXPECT_EQ(pagesIn(pages, HelpLanguage::English).size(), 1);
}

/// The program on a desktop of some language.
class HelpIn : public SessionWithHelp
{
protected:
    void TearDown() override
    {
        SessionWithHelp::TearDown();
        QLocale::setDefault(m_before);
    }

    HelpWindow& openHelp(const QLocale& desktop)
    {
        QLocale::setDefault(desktop);
        makeActive(&frame());
        press(Qt::Key_F1);
        QTest::qWait(0);
        HelpWindow* window = frame().help().window();
        if (!window)
            throw std::runtime_error("the help is not open");
        makeActive(window);
        return *window;
    }

    static bool shows(const HelpWindow& window, const QString& beginning)
    {
        return browser(window).toPlainText().startsWith(beginning);
    }

    /// The button of the toolbar as a person sees it.
    static QToolButton& switchButton(const HelpWindow& window)
    {
        return *qobject_cast<QToolButton*>(
            window.findChild<QToolBar*>("toolbar")->widgetForAction(&action(window, "otherLanguage")));
    }

private:
    const QLocale m_before;
};

const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
const QLocale english(QLocale::English, QLocale::UnitedStates);

TEST_F(HelpIn, PortugueseOpensAtThePageOfTheWindow)
{
    HelpWindow& window = openHelp(brazil);
    EXPECT_EQ(browser(window).page(), "ChildSelect");
    EXPECT_TRUE(shows(window, "Escolha do versículo"));
    EXPECT_EQ(contents(window).currentItem()->text(), "Escolha do versículo");
    EXPECT_EQ(browser(window).accessibleName(), "Escolha do versículo");
    EXPECT_EQ(contents(window).count(), shippedPages(HelpLanguage::Portuguese).size());
    EXPECT_EQ(switchButton(window).text(), "English");
}

TEST_F(HelpIn, EnglishOpensWhereTheDesktopSpeaksAnythingElse)
{
    for (const QLocale& desktop : {english, QLocale(QLocale::German)}) {
        HelpWindow& window = openHelp(desktop);
        EXPECT_TRUE(shows(window, "Select Verse for Reading"));
        EXPECT_EQ(switchButton(window).text(), "Português");
        window.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(HelpIn, TheSwitchShowsTheSamePageInTheOtherLanguage)
{
    HelpWindow& window = openHelp(english);
    window.showPage("Keys");
    click(switchButton(window));
    EXPECT_EQ(browser(window).page(), "Keys");
    EXPECT_TRUE(shows(window, "Teclas"));
    EXPECT_EQ(contents(window).currentItem()->text(), "Teclas");
    EXPECT_EQ(contents(window).item(0)->text(), "Boas-vindas");
    EXPECT_EQ(browser(window).accessibleName(), "Teclas");
    EXPECT_EQ(switchButton(window).text(), "English");
    EXPECT_EQ(switchButton(window).toolTip(), "English (Ctrl+L)");
    click(switchButton(window));
    EXPECT_TRUE(shows(window, "Keys"));
    EXPECT_EQ(switchButton(window).text(), "Português");
}

TEST_F(HelpIn, TheSwitchHasAKey)
{
    HelpWindow& window = openHelp(english);
    browser(window).setFocus();
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(shows(window, "Escolha do versículo"));
    EXPECT_EQ(QApplication::focusWidget(), &browser(window));
}

TEST_F(HelpIn, TheWayBackGoesOnInTheLanguageThatIsShown)
{
    HelpWindow& window = openHelp(english);
    window.showPage("Keys");
    action(window, "otherLanguage").trigger();
    action(window, "otherLanguage").trigger();
    action(window, "otherLanguage").trigger();
    action(window, "back").trigger();
    EXPECT_EQ(browser(window).page(), "ChildSelect");
    EXPECT_TRUE(shows(window, "Escolha do versículo"));
    EXPECT_FALSE(action(window, "back").isEnabled()) << "the switch counted as a step";
    action(window, "forward").trigger();
    EXPECT_TRUE(shows(window, "Teclas"));
}

TEST_F(HelpIn, TheSwitchKeepsTheSizeOfTheType)
{
    HelpWindow& window = openHelp(english);
    action(window, "larger").trigger();
    const int size = browser(window).font().pointSize();
    action(window, "otherLanguage").trigger();
    EXPECT_EQ(browser(window).font().pointSize(), size);
    action(window, "normalSize").trigger();
    EXPECT_EQ(browser(window).font().pointSize(), size - 1);
}

TEST_F(HelpIn, LinksAndTheContentsStayInTheLanguage)
{
    HelpWindow& window = openHelp(brazil);
    window.showPage("Welcome");
    browser(window).setFocus();
    press(Qt::Key_Tab); // the first link of the page
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(window, "Escolha do versículo"));
    for (int row = 0; row < contents(window).count(); ++row) {
        contents(window).setCurrentRow(row);
        EXPECT_EQ(browser(window).page(), shippedPages(HelpLanguage::Portuguese)[row].name);
        EXPECT_TRUE(shows(window, shippedPages(HelpLanguage::Portuguese)[row].title));
    }
}

TEST_F(HelpIn, WordsAreSoughtInTheLanguageThatIsShown)
{
    HelpWindow& window = openHelp(brazil);
    searchText(window).setText("curingas");
    action(window, "findNext").trigger();
    EXPECT_EQ(browser(window).page(), "Searching");
    searchText(window).setText("wildcards");
    action(window, "findNext").trigger();
    EXPECT_EQ(window.statusBar()->currentMessage(), "The help does not have \"wildcards\".");
}

TEST_F(HelpIn, AFileOfOneLanguageIsShownWithoutASwitch)
{
    QFile file(folder.filePath("KESTREL.HLP"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("<section id=\"ChildSelect\"><h1>Only one</h1></section>");
    file.close();
    HelpWindow& window = openHelp(brazil);
    EXPECT_TRUE(shows(window, "Only one"));
    EXPECT_FALSE(switchButton(window).isVisible());
    browser(window).setFocus();
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(shows(window, "Only one"));
}
