// What a reader waits for between F9 and the longest chapter on the screen, Psalm 119: the queries alone, and
// the whole command with its painting, in the real frame without a screen.
//
// The database is named in KESTREL_DATABASE. bench/compare runs this and holds the figures against their
// limits.

#include "app/Application.h"
#include "app/MDIParent.h"
#include "app/Program.h"
#include "read/Chapter.h"
#include "store/DataSource.h"
#include <benchmark/benchmark.h>
#include <QAction>
#include <QFileInfo>

namespace {

QString databasePath()
{
    return qEnvironmentVariable("KESTREL_DATABASE", "KESTRPT.DAT");
}

void gather(benchmark::State& state)
{
    DataSource source;
    source.setDatabaseName(databasePath().toStdString());
    QString text = gatherChapter(source, "Ps:119:"); // the first opens the database
    for (auto _ : state)
        text = gatherChapter(source, "Ps:119:");
    if (text.count("\r\n") != 176)
        state.SkipWithError("the psalm has not its 176 verses");
}

/// The frame with the last verse of the psalm in its reading window.
class Reader
{
public:
    Reader()
        : m_program(QFileInfo(databasePath()).absolutePath())
    {
        m_program.showFrame();
        reading().showFirst("SELECT * FROM NewTestament WHERE VerseId = 'Ps:119:176'");
        QCoreApplication::processEvents();
    }

    void openChapter()
    {
        reading().findChild<QAction*>("mnuChap")->trigger();
        QCoreApplication::processEvents();
    }

    ChildRead& reading() { return m_program.frame()->readingWindow(); }
    ChapRead& chapter() { return m_program.frame()->chapterWindow(); }

private:
    Program m_program;
};

void command(benchmark::State& state)
{
    Reader reader;
    reader.openChapter();
    for (auto _ : state) {
        state.PauseTiming();
        reader.chapter().setCaption("another chapter");
        state.ResumeTiming();
        reader.openChapter();
    }
}

void firstCommand(benchmark::State& state)
{
    Reader reader;
    for (auto _ : state) {
        reader.openChapter();
        state.PauseTiming();
        reader.chapter().parentWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        reader.reading().activate();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void sameChapterAgain(benchmark::State& state)
{
    Reader reader;
    reader.openChapter();
    for (auto _ : state)
        reader.openChapter();
}

void registerAll()
{
    using benchmark::RegisterBenchmark;
    RegisterBenchmark("Psalm 119 gathered", gather)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("Psalm 119 on the screen", command)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("Psalm 119 in a new window", firstCommand)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("Psalm 119 again", sameChapterAgain)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    Application application(argv);
    registerAll();
    benchmark::RunSpecifiedBenchmarks();
}
