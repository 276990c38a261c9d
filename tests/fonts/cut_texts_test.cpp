// Whether every text of every window has room, in the fonts that the system has: there may be only one.
#include "app/AboutTexts.h"
#include "maps/ChildMapSel.h"
#include "maps/TabStrip.h"
#include "read/VerseLabel.h"
#include "search/frmAdvSearch.h"
#include "select/ChildSelect.h"
#include "support/CutTexts.h"
#include "support/OnceModal.h"
#include "support/Session.h"
#include "support/Windows.h"
#include "text/Phrases.h"
#include "widgets/ListBox.h"
#include "widgets/SoftBttn.h"
#include <QFontDatabase>
#include <QFontInfo>
#include <QLineEdit>

namespace {

/// Looks at one window after another. KESTREL_ONE_FONT says which font there is where there is to be only
/// one.
class CutTexts : public Session
{
protected:
    void SetUp() override
    {
        const QString one = qEnvironmentVariable("KESTREL_ONE_FONT");
        QStringList fonts = QFontDatabase::families();
        for (const char* any : {"Monospace", "Sans Serif", "Serif"}) // other names for whatever there is
            fonts.removeOne(any);
        if (!one.isEmpty()) {
            ASSERT_EQ(fonts.join(", ").toStdString(), one.toStdString());
        }
        Session::SetUp();
    }

    static void expectNoneIn(const QWidget& window)
    {
        EXPECT_EQ(cutTexts(window), "") << "in " << QFontInfo(window.font()).family().toStdString();
    }
};

class CutTextsOf : public CutTexts, public testing::WithParamInterface<WindowRow>
{
};

TEST_P(CutTextsOf, AreNone)
{
    EXPECT_TRUE(withWindow(GetParam(), expectNoneIn));
}

INSTANTIATE_TEST_SUITE_P(Windows, CutTextsOf, testing::ValuesIn(windowTable()),
                         [](const auto& row) { return row.param.name.toStdString(); });

TEST_F(CutTexts, AreNotInTheReadingWindow)
{
    ChildRead& window = frame().readingWindow();
    window.activate();
    for (const char* key : {"1Thes:5:28", "Ps:119:176", "2Chr:36:23"}) {
        window.fetch(std::string("SELECT * FROM NewTestament WHERE VerseId = '") + key + "'");
        ASSERT_EQ(window.currentKey(), key);
        expectNoneIn(window);
    }
}

TEST_F(CutTexts, AreNotInTheSearchWindow)
{
    frame().openSearch();
    auto& window = get<frmAdvSearch>();
    expectNoneIn(window);
    control<QLineEdit>(window, "Text1").setText(phrases::cousin);
    click(control<SoftBttn>(window, "cmdOK"));
    ASSERT_TRUE(control<ListBox>(window, "List1").isVisible());
    expectNoneIn(window);
}

TEST_F(CutTexts, AreNotInTheStudyAids)
{
    click(control<SoftBttn>(frame(), "cmdTools"));
    auto& window = get<ChildMapSel>();
    for (auto* group : window.findChildren<QRadioButton*>("optEvents")) {
        group->click();
        expectNoneIn(window);
    }
    for (int page = 1; page < 3; ++page) {
        control<TabStrip>(window, "TabStrip1").setCurrentIndex(page);
        expectNoneIn(window);
    }
}

TEST_F(CutTexts, AreNotInAMessage)
{
    bool used = false;
    MsgBox::setBackEnd({});
    const auto looking = onceModal([&](QWidget& window) {
        expectNoneIn(window);
        used = true;
        window.close();
    });
    MsgBox::show(informationText(), MsgIcon::Information);
    EXPECT_TRUE(used);
}

/// They scroll, and are to be read with ease.
TEST_F(CutTexts, AreNotAvoidedInTheVersesByNarrowLetters)
{
    ChildRead& window = frame().readingWindow();
    window.activate();
    for (int face = 0; face < 3; ++face) {
        const QFont& font = control<VerseLabel>(window, "VerseText").font();
        QFont natural(font.family(), font.pointSize());
        natural.setStretch(QFont::AnyStretch);
        EXPECT_EQ(QFontMetrics(font).horizontalAdvance("misericórdia"),
                  QFontMetrics(natural).horizontalAdvance("misericórdia"));
        click(control<SoftBttn>(window, "cmdFntFace"));
    }
}

} // namespace
