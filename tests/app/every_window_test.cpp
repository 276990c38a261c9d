// What holds for every window of tests/windows.tsv; a new one is held to it from its first day.
#include "help/Help.h"
#include "help/HelpControls.h"
#include "help/HelpFile.h"
#include "support/Session.h"
#include "support/Windows.h"
#include <QAccessible>
#include <QSet>

namespace {

class EveryWindow : public Session, public testing::WithParamInterface<WindowRow>
{
protected:
    void expectOpen(const std::function<void(QWidget&)>& use)
    {
        const WindowRow& row = GetParam();
        EXPECT_TRUE(withWindow(row, use)) << row.keys.join(' ').toStdString() << " does not open the window";
    }
};

/// Links in a text are stops, too.
constexpr int maxStops = 60;

/// The controls of a window that Tab is to reach now.
QList<QWidget*> stops(QWidget& window)
{
    QList<QWidget*> found;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->isVisible() && control->isEnabled() && control->focusPolicy() & Qt::TabFocus &&
            control->window() == window.window() && !control->focusProxy())
            found << control;
    return found;
}

QString spokenName(QWidget& control)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

TEST_P(EveryWindow, IsOpenedByItsKeysAndSaysWhatItIs)
{
    expectOpen([](QWidget& window) {
        const WindowRow& row = GetParam();
        const QString caption = window.windowTitle().isEmpty() ? spokenName(window) : window.windowTitle();
        EXPECT_TRUE(caption.startsWith(row.caption)) << caption.toStdString();
    });
}

TEST_P(EveryWindow, HasAPageInTheHelpThatF1Shows)
{
    const QList<HelpPage> pages = readHelpFile(KESTREL_SOURCE_DIR "/data/help/kestrel.html");
    const bool hasPage = std::any_of(pages.begin(), pages.end(),
                                     [](const HelpPage& page) { return page.name == GetParam().name; });
    EXPECT_TRUE(hasPage) << "data/help/kestrel.html has no <section id=\"" << GetParam().name.toStdString()
                         << "\">";
    expectOpen([this](QWidget&) {
        QTest::keyClick(&keyReceiver(), Qt::Key_F1);
        settle();
        HelpWindow* help = frame().help().window();
        ASSERT_NE(help, nullptr);
        EXPECT_EQ(browser(*help).page(), GetParam().name);
    });
}

TEST_P(EveryWindow, RepeatsNoNameAsADescription)
{
    expectOpen([](QWidget& window) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
            if (!spoken || spoken->text(QAccessible::Name).isEmpty())
                continue;
            EXPECT_FALSE(spoken->text(QAccessible::Description).contains(spoken->text(QAccessible::Name)))
                << control->objectName().toStdString();
        }
    });
}

TEST_P(EveryWindow, NamesEveryControlForTestsAndScreenReaders)
{
    expectOpen([](QWidget& window) {
        for (QWidget* control : stops(window)) {
            EXPECT_FALSE(control->objectName().isEmpty())
                << "a " << control->metaObject()->className() << " \"" << spokenName(*control).toStdString()
                << "\" has no objectName";
            EXPECT_FALSE(spokenName(*control).isEmpty())
                << control->objectName().toStdString()
                << " has no name for a screen reader: setAccessibleName";
        }
    });
}

TEST_P(EveryWindow, IsWalkedThroughByTab)
{
    expectOpen([](QWidget& window) {
        QSet<QString> visited;
        if (!QApplication::focusWidget())
            QTest::keyClick(&keyReceiver(), Qt::Key_Tab);
        const QWidget* first = QApplication::focusWidget();
        ASSERT_NE(first, nullptr) << "Tab gives nothing the focus";
        for (int steps = 0; steps < maxStops; ++steps) {
            visited << QApplication::focusWidget()->objectName();
            QTest::keyClick(&keyReceiver(), Qt::Key_Tab);
            if (QApplication::focusWidget() == first && visited.size() >= stops(window).size())
                break;
        }
        EXPECT_EQ(QApplication::focusWidget(), first) << "Tab does not come round";
        for (const QWidget* stop : stops(window))
            EXPECT_TRUE(visited.contains(stop->objectName()))
                << "Tab passes by " << stop->objectName().toStdString();
    });
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindow, testing::ValuesIn(windowTable()),
                         [](const auto& row) { return row.param.name.toStdString(); });

} // namespace
