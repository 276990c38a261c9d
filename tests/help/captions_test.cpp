// The help names captions as they stand on the screen, and every key that a caption underlines.
#include "help/Help.h"
#include "help/HelpControls.h"
#include "help/SessionWithHelp.h"
#include "maps/ChildMapSel.h"
#include "support/OnceModal.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>

namespace {

/// Every text that a widget shows or tells.
QStringList textsOf(const QWidget& widget)
{
    QStringList texts = {widget.windowTitle(), widget.toolTip()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        texts << box->title();
    if (const auto* menu = qobject_cast<const QMenu*>(&widget))
        texts << menu->title();
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts << tabs->tabText(tab);
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        for (int entry = 0; entry < combo->count(); ++entry)
            texts << combo->itemText(entry);
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget); list && list->model())
        for (int row = 0; row < list->model()->rowCount(); ++row)
            texts << list->model()->index(row, 0).data().toString();
    for (const QAction* action : widget.actions())
        texts << action->text();
    return texts;
}

/// The captions of all windows, without the marks of their access keys.
class HelpCaptions : public SessionWithHelp
{
protected:
    void look()
    {
        for (const QWidget* widget : QApplication::allWidgets())
            for (const QString& text : textsOf(*widget)) {
                const QString caption = QString(text).remove('&').trimmed();
                seen << caption << caption.section(" -- ", 0, 0);
            }
    }

    void lookAtTheStudyAids()
    {
        frame().openStudyAids();
        auto& aids = get<ChildMapSel>();
        for (auto* group : aids.findChildren<QRadioButton*>("optEvents")) {
            group->click();
            look();
        }
        control<ListBox>(aids, "lstMaps").setFocus();
        press(Qt::Key_Home);
        press(Qt::Key_Return);
    }

    void lookAtTheAboutWindow()
    {
        const auto looking = onceModal([&](QWidget& about) {
            for (const char* button : {"cmdDonation", "cmdQORV"}) {
                const auto reading = onceModal([&](QWidget& letter) {
                    look();
                    QTest::keyClick(&letter, Qt::Key_Escape);
                });
                click(*about.findChild<QWidget*>(button));
            }
            QTest::keyClick(&about, Qt::Key_Escape);
        });
        click(*frame().findChild<QWidget*>("cmdAbout"));
    }

    void lookAtEveryWindow()
    {
        frame().readingWindow().restoreAndActivate();
        control<SoftBttn>(frame().readingWindow(), "cmdChap").click();
        frame().openSearch();
        lookAtTheStudyAids();
        frame().help().open();
        look();
        action(*frame().help().window(), "otherLanguage").trigger();
        look();
        lookAtTheAboutWindow();
    }

    QSet<QString> seen;
};

/// The letters that the captions of a window underline.
QSet<QChar> accessKeysOf(const QWidget& window)
{
    QSet<QChar> keys;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        if ((label && !label->buddy()) || qobject_cast<const QComboBox*>(widget) ||
            qobject_cast<const QMenu*>(widget) || qobject_cast<const QAbstractItemView*>(widget))
            continue;
        for (const QString& text : textsOf(*widget)) {
            const qsizetype mark = text.indexOf('&');
            if (mark >= 0 && mark + 1 < text.size() && text[mark + 1].isLetter())
                keys << text[mark + 1].toUpper();
        }
    }
    return keys;
}

} // namespace

TEST_F(HelpCaptions, ThatTheTextsNameAreOnTheScreen)
{
    lookAtEveryWindow();
    ASSERT_TRUE(seen.contains("Match whole word(s) only"));
    static const QRegularExpression bold("<b>(.*?)</b>");
    for (const HelpLanguage language : {HelpLanguage::English, HelpLanguage::Portuguese}) {
        int named = 0;
        for (const HelpPage& page : shippedPages(language))
            for (auto matches = bold.globalMatch(page.html); matches.hasNext();)
                for (const QString& caption : matches.next().captured(1).split(" &gt; ")) {
                    EXPECT_TRUE(seen.contains(caption))
                        << caption.toStdString() << " on " << page.name.toStdString();
                    ++named;
                }
        EXPECT_GT(named, 60);
    }
}

TEST_F(HelpCaptions, UnderlineNoLetterThatIsNotAmongTheKeys)
{
    frame().readingWindow().restoreAndActivate();
    frame().openSearch();
    frame().openStudyAids();
    int keys = 0;
    for (const QMdiSubWindow* window : frame().area()->subWindowList())
        for (const QChar letter : accessKeysOf(*window->widget()))
            for (const HelpLanguage language : {HelpLanguage::English, HelpLanguage::Portuguese}) {
                const QString row = "<tr><td><kbd>Alt+" + QString(letter) + "</kbd></td>";
                EXPECT_TRUE(shippedPage(window->widget()->objectName(), language).contains(row))
                    << window->widget()->objectName().toStdString() << " " << row.toStdString();
                ++keys;
            }
    EXPECT_GE(keys, 2 * 16);
}
