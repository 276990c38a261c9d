// What a reader waits for in the search window: from the click of the button to the message that tells how
// many verses were found, in the real frame without a screen.
//
// The database is named in KESTREL_DATABASE; the clip lies beside it. KESTREL_PATTERNS names a list of
// patterns to search for besides, one a line.

#include "app/Application.h"
#include "app/MDIParent.h"
#include "app/Program.h"
#include "desktop/MsgBox.h"
#include "search/frmAdvSearch.h"
#include "support/ActiveWindow.h"
#include "widgets/SoftBttn.h"
#include <benchmark/benchmark.h>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>

namespace {

struct Search
{
    QString text1;
    QString text2 = "";
    int connective = 0;
    bool wholeWord = false;
    int range = -1; ///< no entry: the whole Bible
};

benchmark::State* measured = nullptr; ///< whose clock runs now
QString messageText;

/// A control of the search window.
template <class Control>
Control& control(const QString& name)
{
    return *QApplication::activeWindow()->findChild<frmAdvSearch*>()->findChild<Control*>(name);
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Makes the next search another one than the last, so that it is run and not repeated.
void forgetLast()
{
    control<QLineEdit>("Text1").setText("never searched for");
    control<QLineEdit>("Text2").clear();
    control<SoftBttn>("cmdOK").click();
}

void set(const Search& search)
{
    control<QLineEdit>("Text1").setText(search.text1);
    control<QLineEdit>("Text2").setText(search.text2);
    control<QComboBox>("Combo1").setCurrentIndex(search.connective);
    control<QComboBox>("Combo2").setCurrentIndex(search.range);
    control<QCheckBox>("chkWholeWrd").setChecked(search.wholeWord);
}

void run(benchmark::State& state, const Search& search)
{
    for (auto _ : state) {
        state.PauseTiming();
        forgetLast();
        set(search);
        settle();
        measured = &state;
        state.ResumeTiming();
        control<SoftBttn>("cmdOK").click(); // the message stops the clock
        if (!messageText.endsWith("found.") && messageText != "No matching verses.")
            state.SkipWithError("the search failed");
        settle();
        control<SoftBttn>("cmdHideList").click();
        settle();
        state.ResumeTiming();
    }
    state.counters["rows"] = messageText.section(' ', 0, 0).toInt();
}

void registerAll()
{
    const auto add = [](const char* name, const Search& search) {
        benchmark::RegisterBenchmark(name, run, search)->Unit(benchmark::kMillisecond);
    };
    add("search one word", {"amor"});
    add("search whole word", {"amor", "", 0, true});
    add("search whole word Deus", {"Deus", "", 0, true});
    add("search two words with OR", {"Deus", "rei", 2});
    add("search Old Testament", {"amor", "", 0, false, 4});
    add("search all verses", {"*"});
}

void registerPatterns()
{
    QFile list(qEnvironmentVariable("KESTREL_PATTERNS"));
    if (!list.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray& pattern : list.readAll().trimmed().split('\n'))
        benchmark::RegisterBenchmark(("search pattern " + pattern).constData(), run, Search{QString(pattern)})
            ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argv);
    MsgBox::setBackEnd([](const MsgBox::Message& message) {
        if (measured)
            measured->PauseTiming();
        measured = nullptr;
        messageText = message.text;
        return MsgAnswer::Ok;
    });
    Program program(QFileInfo(qEnvironmentVariable("KESTREL_DATABASE", "KESTRPT.DAT")).absolutePath());
    program.showFrame();
    makeActive(program.frame());
    program.frame()->openSearch();
    settle();
    registerAll();
    registerPatterns();
    benchmark::RunSpecifiedBenchmarks();
}
