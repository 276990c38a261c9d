// Launching the text editor: real processes, which scripts are.
#include "app/Notepad.h"
#include "app/NotepadFailure.h"
#include "desktop/MsgBox.h"
#include "support/Session.h"
#include "widgets/ProgramFlags.h"
#include "widgets/SoftBttn.h"
#include <csignal>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString question = "Notepad has already been launched.\r\n"
                         "Would you like to launch a new copy of Notepad now?\r\n"
                         "\r\n"
                         "To switch to the previously launched copy of Notepad (assuming you have not closed "
                         "it), press and hold down "
                         "ALT while pressing TAB repeatedly to cycle through running applications and select "
                         "Notepad, then release TAB. "
                         "Notepad will come to the foreground. You may also click Notepad's button on "
                         "Windows\u00AE 98 taskbar.\r\n"
                         "\r\n"
                         "To launch a new copy of Notepad now, choose Yes.";

void expectQuestion(const MsgBox::Message& box)
{
    EXPECT_EQ(box.text, question);
    EXPECT_EQ(box.icon, MsgIcon::Question);
    EXPECT_EQ(box.buttons, MsgButtons::YesNo);
    EXPECT_EQ(box.title, applicationTitle);
}

} // namespace

/// A search path of one folder of our own, in which editors are put that write down how they were started.
class Notepad : public testing::Test
{
protected:
    Notepad()
        : oldPath(qgetenv("PATH"))
    {
        qputenv("PATH", folder.path().toUtf8());
    }
    ~Notepad() override { qputenv("PATH", oldPath); }

    void putFile(const QString& name, const QByteArray& content, bool executable = true)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        if (executable)
            file.setPermissions(file.permissions() | QFile::ExeOwner);
    }

    /// An editor that adds one line to its record: its process, session and parent, and where its output goes
    /// and what else it holds open.
    void putEditor(const QString& name)
    {
        putFile(name, "#!/bin/sh\n"
                      "PATH=" +
                          oldPath +
                          "\n"
                          "echo $$ $(cut -d' ' -f6 /proc/$$/stat) $(cut -d' ' -f4 /proc/$$/stat) "
                          "$(readlink /proc/$$/fd/1) $(ls /proc/$$/fd | grep -cE '^(77)$') " +
                          name.toUtf8() + " >> " + record().toUtf8() +
                          "\n"
                          "exec sleep 30\n");
    }

    QString record() const { return folder.filePath("record"); }

    /// What the editors wrote, one line for each that was started, in fields; waits for so many.
    QList<QStringList> started(int count)
    {
        QList<QStringList> lines;
        for (int i = 0; i < 200 && lines.size() < count; ++i) {
            QTest::qWait(20);
            QFile file(record());
            lines.clear();
            if (file.open(QIODevice::ReadOnly))
                for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
                    lines << line.split(' ');
        }
        return lines;
    }

    void TearDown() override
    {
        for (const QStringList& line : started(0))
            kill(line.first().toInt(), SIGKILL);
    }

    QTemporaryDir folder;
    QByteArray oldPath;
    RecordedBoxes boxes;
    ProgramFlags flags;
};

TEST_F(Notepad, FirstUseStartsTheEditorWithoutAQuestion)
{
    putEditor("notepad.exe");
    startNotepad(flags);
    EXPECT_EQ(started(1).size(), 1);
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(flags.NotepadLaunched, 3);
}

TEST_F(Notepad, SecondUseAsksAndNoStartsNothing)
{
    putEditor("notepad.exe");
    startNotepad(flags);
    ASSERT_EQ(started(1).size(), 1);
    boxes.answer = MsgAnswer::No;
    startNotepad(flags);
    ASSERT_EQ(boxes.shown.size(), 1);
    expectQuestion(boxes.shown.first());
    QTest::qWait(300);
    EXPECT_EQ(started(1).size(), 1);
    EXPECT_EQ(flags.NotepadLaunched, 3);
}

TEST_F(Notepad, SecondUseAsksAndYesStartsASecondCopy)
{
    putEditor("notepad.exe");
    startNotepad(flags);
    boxes.answer = MsgAnswer::Yes;
    startNotepad(flags);
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(started(2).size(), 2);
    EXPECT_EQ(flags.NotepadLaunched, 3);
}

TEST_F(Notepad, AnyAnswerButYesStartsNothing)
{
    putEditor("notepad.exe");
    flags.NotepadLaunched = 3;
    boxes.answer = MsgAnswer::Ok;
    startNotepad(flags);
    QTest::qWait(300);
    EXPECT_TRUE(started(0).isEmpty());
}

TEST_F(Notepad, AsksEvenWhenTheFirstCopyWasClosed)
{
    putFile("notepad.exe", "#!/bin/sh\nexit 0\n");
    startNotepad(flags);
    QTest::qWait(200);
    startNotepad(flags);
    EXPECT_EQ(boxes.shown.size(), 1);
}

TEST_F(Notepad, AsksOnlyWhenTheFlagIsThree)
{
    putEditor("notepad.exe");
    flags.NotepadLaunched = 1;
    startNotepad(flags);
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(started(1).size(), 1);
    EXPECT_EQ(flags.NotepadLaunched, 3);
}

TEST_F(Notepad, NoEditorOnThePathIsReportedAndTheFlagStays)
{
    startNotepad(flags);
    ASSERT_EQ(boxes.shown.size(), 1);
    expectFailure(boxes.shown.first());
    EXPECT_EQ(flags.NotepadLaunched, 0);
    startNotepad(flags); // does not ask
    ASSERT_EQ(boxes.shown.size(), 2);
    expectFailure(boxes.shown.last());
}

TEST_F(Notepad, EditorThatCannotBeExecutedIsReportedAndTheFlagStays)
{
    const QList<QByteArray> broken = {"\x7f"
                                      "ELF, and then no program",
                                      "#!/no/such/interpreter\n", "sleep 30\n"};
    for (const QByteArray& content : broken) {
        boxes.shown.clear();
        putFile("notepad.exe", content);
        startNotepad(flags);
        ASSERT_EQ(boxes.shown.size(), 1) << content.constData();
        expectFailure(boxes.shown.first());
        EXPECT_EQ(flags.NotepadLaunched, 0);
        QFile::remove(folder.filePath("notepad.exe"));
    }
}

TEST_F(Notepad, FailureAfterYesLeavesTheFlagSoThatTheNextUseAsks)
{
    flags.NotepadLaunched = 3;
    boxes.answer = MsgAnswer::Yes;
    startNotepad(flags);
    ASSERT_EQ(boxes.shown.size(), 2);
    expectQuestion(boxes.shown.first());
    expectFailure(boxes.shown.last());
    EXPECT_EQ(flags.NotepadLaunched, 3);
}

TEST_F(Notepad, NotepadItselfGoesBeforeAStandIn)
{
    putEditor("gedit");
    putEditor("notepad.exe");
    EXPECT_EQ(textEditor(), folder.filePath("notepad.exe"));
}

TEST_F(Notepad, EveryStandInIsFound)
{
    ASSERT_FALSE(standInEditors().isEmpty());
    for (const QString& name : standInEditors()) {
        putEditor(name);
        EXPECT_EQ(textEditor(), folder.filePath(name));
        QFile::remove(folder.filePath(name));
    }
}

TEST_F(Notepad, FirstStandInOfTheListIsTaken)
{
    putEditor(standInEditors().last());
    putEditor(standInEditors().first());
    EXPECT_EQ(textEditor(), folder.filePath(standInEditors().first()));
}

TEST_F(Notepad, FileWithoutExecutePermissionIsNoEditor)
{
    constexpr bool executable = false;
    putFile("gedit", "", executable);
    putFile("notepad.exe", "", executable);
    EXPECT_EQ(textEditor(), QString());
}

TEST_F(Notepad, EditorRunsInASessionOfItsOwnAndIsNotOurChild)
{
    putEditor("notepad.exe");
    startNotepad(flags);
    const QList<QStringList> lines = started(1);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_NE(lines[0][1].toInt(), getsid(0)) << "the editor would end with our session";
    EXPECT_NE(lines[0][2].toInt(), getpid());
    EXPECT_EQ(waitpid(lines[0][0].toInt(), nullptr, WNOHANG), -1);
}

TEST_F(Notepad, EditorHoldsNothingOfOursOpen)
{
    ASSERT_EQ(dup2(STDIN_FILENO, 77), 77); // a descriptor as it might be inherited: open across exec
    putEditor("notepad.exe");
    startNotepad(flags);
    close(77);
    const QList<QStringList> lines = started(1);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0][3], "/dev/null");
    EXPECT_EQ(lines[0][4], "0") << "a stray descriptor was passed on";
}

TEST_F(Notepad, EditorIsNotWaitedForAndOutlivesTheReader)
{
    putEditor("notepad.exe");
    const pid_t reader = fork();
    if (reader == 0) {
        ProgramFlags own;
        startNotepad(own);
        _exit(own.NotepadLaunched);
    }
    int status = 0;
    ASSERT_EQ(waitpid(reader, &status, 0), reader);
    EXPECT_EQ(WEXITSTATUS(status), 3);
    const QList<QStringList> lines = started(1);
    ASSERT_EQ(lines.size(), 1);
    QTest::qWait(100);
    EXPECT_EQ(kill(lines[0][0].toInt(), 0), 0) << "the editor ended with the reader";
}
