// A search from its words to its results by events: its steps, the repeat check, what is reported.
#include "search/SearchSession.h"
#include "text/Phrases.h"
#include <QRegularExpression>
#include <QTemporaryDir>

using Searching = SearchSession;

namespace {

const QString allVerses = "SELECT * FROM NewTestament";

/// Records when a widget comes and goes.
class Appearances : public QObject
{
public:
    explicit Appearances(QWidget& widget) { widget.installEventFilter(this); }
    QStringList seen;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            seen << "shown";
        if (event->type() == QEvent::Hide)
            seen << "hidden";
        return false;
    }
};

} // namespace

TEST_F(Searching, SearchesAndShowsTheResults)
{
    QStringList atMessage;
    boxes.whileShown = [&] {
        atMessage << (isInResultsMode() ? "results" : "input");
        atMessage << (QApplication::overrideCursor() ? "hourglass" : "default");
        atMessage << (Animation1().isVisible() ? "clip" : "no clip");
        atMessage << (list().hasFocus() ? "focus" : "no focus");
    };
    Appearances clip(Animation1());
    search("amor");
    EXPECT_EQ(sql(), allVerses + " WHERE VerseNumber BETWEEN 1 AND 7957 AND KJVerseText LIKE '*amor*'");
    EXPECT_GT(list().count(), 100);
    EXPECT_EQ(box(), found(list().count()));
    EXPECT_EQ(atMessage, QStringList({"results", "default", "no clip", "no focus"}));
    EXPECT_EQ(clip.seen, QStringList({"shown", "hidden"}));
    EXPECT_TRUE(list().hasFocus());
    EXPECT_TRUE(lines().first().startsWith("Mt:"));
    EXPECT_EQ(list().selected(), -1);
}

TEST_F(Searching, ShowsTheHourglassAndItsClipOverAnEmptyListWhileItSearches)
{
    search("amor");
    newSearch();
    QStringList atQuery;
    Data1().currentRowChanged = [&] {
        if (!atQuery.isEmpty())
            return;
        const QCursor* pointer = QApplication::overrideCursor();
        atQuery << (pointer && pointer->shape() == Qt::WaitCursor ? "hourglass" : "default")
                << (Animation1().isVisible() ? "clip" : "no clip") << QString::number(list().count());
    };
    search("ódio");
    EXPECT_EQ(atQuery, QStringList({"hourglass", "clip", "0"}));
}

TEST_F(Searching, ReplacesTheOldWordByANewOneTypedAtOnce)
{
    search("amor");
    newSearch();
    QTest::keyClicks(&Text1(), "paz");
    EXPECT_EQ(Text1().text(), "paz");
}

TEST_F(Searching, StaysAsItIsWithoutAMatch)
{
    Appearances clip(Animation1());
    boxes.whileShown = [&] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); };
    search("xyzzy");
    EXPECT_EQ(box(), noMatches);
    EXPECT_FALSE(isInResultsMode());
    EXPECT_TRUE(cmdOK().isEnabled());
    EXPECT_EQ(clip.seen, QStringList({"shown", "hidden"}));
}

TEST_F(Searching, ReportsAPatternThatCannotBeValid)
{
    Appearances clip(Animation1());
    boxes.whileShown = [&] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); };
    search("[");
    EXPECT_EQ(box(), failedTitle + "Error 93: Invalid pattern string" + aborted);
    EXPECT_EQ(list().count(), 0);
    EXPECT_EQ(sql(), allVerses);
    EXPECT_FALSE(isInResultsMode());
    EXPECT_EQ(clip.seen, QStringList({"shown", "hidden"}));
}

TEST_F(Searching, EmptiesTheListWhenALaterQueryFails)
{
    search("amor");
    newSearch();
    boxes.shown.clear();
    search("amor[");
    EXPECT_EQ(box(), failedTitle + "Error 93: Invalid pattern string" + aborted);
    EXPECT_EQ(list().count(), 0);
}

TEST_F(Searching, ReportsAFailureAfterTheFirstRow)
{
    search({.text1 = "*", .range = NoRange});
    const QString firstWords = list().text(0).section(' ', 1, 3);
    newSearch();
    search({.text1 = firstWords, .range = NoRange});
    ASSERT_EQ(list().selected(), -1);
    ASSERT_LT(list().count(), 100) << "the second pattern is looked at once the first does not match";
    newSearch();
    boxes.shown.clear();
    search({.text1 = firstWords, .text2 = "[", .connective = Or, .range = NoRange});
    EXPECT_EQ(box(), failedTitle + "Error 93: Invalid pattern string" + aborted);
    EXPECT_EQ(list().count(), 0);
    EXPECT_EQ(sql(), allVerses);
    EXPECT_FALSE(isInResultsMode());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(Animation1().isVisible());
    search({.text1 = firstWords, .text2 = "[", .connective = Or, .range = NoRange});
    EXPECT_EQ(box(), failedTitle + "Error 0: " + aborted);
}

TEST_F(Searching, RepeatsAFailureWithoutRunningItAndWithoutAnError)
{
    search("[");
    box();
    Appearances clip(Animation1());
    search("[");
    EXPECT_EQ(box(), failedTitle + "Error 0: " + aborted);
    EXPECT_EQ(clip.seen, QStringList({"hidden"}).mid(1)) << "the clip shows while a query runs";
}

TEST_F(Searching, RepeatsNoMatchesWithoutAQuery)
{
    search("xyzzy");
    box();
    Data1().setRecordSource("untouched");
    search("XYZZY");
    EXPECT_EQ(box(), noMatches);
    EXPECT_EQ(sql(), "untouched");
}

TEST_F(Searching, RepeatsTheResultsWithoutAQuery)
{
    search("amor");
    const QStringList before = lines();
    newSearch();
    boxes.shown.clear();
    Data1().setRecordSource("untouched");
    search({.text1 = "AMOR", .connective = Or});
    EXPECT_EQ(sql(), "untouched");
    EXPECT_EQ(box(), found(static_cast<int>(before.size())));
    EXPECT_EQ(lines(), before);
    EXPECT_TRUE(isInResultsMode());
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(Searching, KnowsARepeatByWhatWasTypedNotByWhatWasSearched)
{
    search(
        {.text1 = "d'água", .text2 = "d'ouro", .connective = Or, .range = OldTestament, .wholeWord = true});
    newSearch();
    Data1().setRecordSource("untouched");
    search(
        {.text1 = "d'água", .text2 = "d'ouro", .connective = Or, .range = OldTestament, .wholeWord = true});
    EXPECT_EQ(sql(), "untouched");
}

TEST_F(Searching, RunsAnewWhenAnInputChanged)
{
    const Inputs changes[] = {{.text1 = "ódio"},
                              {.text1 = "amor", .range = Gospels},
                              {.text1 = "amor", .text2 = "ódio"},
                              {.text1 = "amor", .text2 = "ódio", .connective = Or},
                              {.text1 = "amor", .text2 = "ira", .connective = Or},
                              {.text1 = "amor", .text2 = "ira", .connective = Or, .wholeWord = true}};
    search("amor");
    for (const Inputs& inputs : changes) {
        newSearch();
        Data1().setRecordSource("untouched");
        search(inputs);
        EXPECT_NE(sql(), "untouched") << inputs.text1.toStdString() << inputs.text2.toStdString();
        if (!isInResultsMode()) // nothing found: the button of the next round needs the results mode
            search(phrases::thirdOfAll);
    }
}

TEST_F(Searching, ForgetsOnlyTheFirstWordWhenItIsClosed)
{
    search({.text1 = "xyzzy", .text2 = "ira", .connective = AndNot});
    box();
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(open<frmAdvSearch>(), nullptr);
    frame().openSearch();
    EXPECT_EQ(Text1().text(), "");
    search({.text1 = "xyzzy", .text2 = "ira", .connective = AndNot});
    EXPECT_NE(sql(), "") << "it was taken for a repeat";
    box();
    Data1().setRecordSource("untouched");
    search({.text1 = "xyzzy", .text2 = "ira", .connective = AndNot});
    EXPECT_EQ(sql(), "untouched");
}

TEST_F(Searching, KeepsTheOtherMemoryWhenItIsClosed)
{
    search({.text1 = "[", .text2 = "ira", .connective = Or});
    box();
    Text1().setText("");
    outer(window()).close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    frame().openSearch();
    // With no first word again, as the memory has it, all the rest is as it was: a repeat of the failure.
    search({.text1 = "", .text2 = "ira", .connective = Or});
    EXPECT_TRUE(boxes.shown.isEmpty()) << "the button is disabled";
    cmdOK().setEnabled(true);
    click(cmdOK());
    EXPECT_EQ(box(), failedTitle + "Error 0: " + aborted);
}

TEST_F(Searching, TrimsTheTexts)
{
    search({.text1 = "  amor ", .text2 = " moleiro  "});
    EXPECT_EQ(sql(), allVerses + " WHERE VerseNumber BETWEEN 1 AND 7957 AND KJVerseText LIKE '*amor*' AND "
                                 "KJVerseText LIKE '*moleiro*'");
}

TEST_F(Searching, WrapsTheSecondWordOnlyWhenThereIsOne)
{
    search({.text1 = "amor", .wholeWord = true});
    EXPECT_TRUE(sql().endsWith("KJVerseText LIKE '*[!0-9a-zA-Z]amor[!0-9a-zA-Z]*'"));
    newSearch();
    search({.text1 = "amor", .text2 = "moleiro", .connective = Or, .wholeWord = true});
    EXPECT_TRUE(sql().endsWith("AND (KJVerseText LIKE '*[!0-9a-zA-Z]amor[!0-9a-zA-Z]*' OR "
                               "KJVerseText LIKE '*[!0-9a-zA-Z]moleiro[!0-9a-zA-Z]*')"));
}

TEST_F(Searching, SearchesAnApostropheAsAnyCharacter)
{
    search({.text1 = "d'água", .range = OldTestament});
    EXPECT_TRUE(sql().endsWith("KJVerseText LIKE '*d?água*'"));
    EXPECT_GT(list().count(), 0);
    EXPECT_TRUE(lines().join(' ').contains("d’água"));
}

TEST_F(Searching, FindsTheVersesOfEzrToThoseOfEz)
{
    ASSERT_EQ(Combo2().itemText(Ez), "Ez");
    search({.text1 = phrases::thirdOfAll, .range = Ez});
    EXPECT_TRUE(lines().first().startsWith("Ezr:"));
    EXPECT_TRUE(lines().last().startsWith("Ez:"));
}

TEST_F(Searching, EndsAWholeWordBeforeAnAccentedLetter)
{
    search({.text1 = "na", .wholeWord = true});
    EXPECT_TRUE(list().count() > 0);
    bool hasFalseFind = false;
    for (const QString& line : lines())
        hasFalseFind |= !QRegularExpression("\\bna\\b", QRegularExpression::CaseInsensitiveOption |
                                                            QRegularExpression::UseUnicodePropertiesOption)
                             .match(line)
                             .hasMatch();
    EXPECT_TRUE(hasFalseFind) << "as in \"nação\"";
}

TEST_F(Searching, ScansEverythingWithoutARange)
{
    search({.text1 = "*", .range = NoRange});
    EXPECT_EQ(list().count(), 31102);
    EXPECT_TRUE(list().text(0).startsWith("Mt:1:1 "));
    EXPECT_TRUE(list().text(31101).startsWith("Mal:4:6 "));
    EXPECT_EQ(box(), found(31102));
}

TEST_F(Searching, CountsASingleMatchInTheSameWords)
{
    search({.text1 = phrases::onceText, .range = Gospels});
    EXPECT_EQ(box(), found(1));
}

TEST_F(Searching, LeavesTheQueryAsItWasForNoConnective)
{
    search("amor");
    const QString before = sql();
    const int count = list().count();
    newSearch();
    search({.text1 = "amor", .text2 = "moleiro", .connective = NoConnective});
    EXPECT_EQ(sql(), before);
    EXPECT_EQ(list().count(), count);
}

TEST_F(Searching, PlaysItsClipWhileTheQueryRuns)
{
    ASSERT_GT(Animation1().frameCount(), 1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame())); // before that Qt paints nothing
    Text1().setText("*");
    Combo2().setCurrentIndex(NoRange);
    class Playing : public QObject
    {
    public:
        explicit Playing(AnimationPlayer& clip)
            : m_clip(clip)
        {
            clip.installEventFilter(this);
        }
        bool wasPainted = false;

    protected:
        bool eventFilter(QObject*, QEvent* event) override
        {
            wasPainted |= event->type() == QEvent::Paint && m_clip.isPlaying();
            return false;
        }

    private:
        AnimationPlayer& m_clip;
    } playing(Animation1());
    boxes.whileShown = [&] { EXPECT_FALSE(Animation1().isPlaying()); };
    click(cmdOK());
    EXPECT_TRUE(playing.wasPainted);
}

TEST_F(Searching, SearchesWithoutItsClipOrWithADamagedOne)
{
    for (const QByteArray& clip : {QByteArray(), QByteArray("RIFF"), QByteArray(5000, 'x')}) {
        QTemporaryDir folder;
        ASSERT_TRUE(QFile::copy(KESTREL_INSTALL_DIR "/KESTRPT.DAT", folder.filePath("KESTRPT.DAT")));
        if (!clip.isEmpty()) {
            QFile file(folder.filePath("SEARCH.AVI"));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(clip);
        }
        boxes.shown.clear();
        program = std::make_unique<Program>(folder.path());
        program->showFrame();
        frame().openSearch();
        search("amor");
        EXPECT_TRUE(isInResultsMode());
        EXPECT_EQ(box(), found(list().count()));
    }
}
