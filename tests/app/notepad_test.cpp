// Launching the text editor by its command.
#include "app/Notepad.h"
#include "app/NotepadFailure.h"
#include "desktop/MsgBox.h"
#include "support/Session.h"
#include "widgets/ProgramFlags.h"
#include "widgets/SoftBttn.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class NotepadCommand : public Session
{
protected:
    NotepadCommand()
        : oldPath(qgetenv("PATH"))
    {
        QFile editor(folder.filePath("notepad.exe"));
        if (editor.open(QIODevice::WriteOnly))
            editor.setPermissions(editor.permissions() | QFile::ExeOwner);
        qputenv("PATH", folder.path().toUtf8());
    }
    ~NotepadCommand() override { qputenv("PATH", oldPath); }

    QTemporaryDir folder;
    QByteArray oldPath;
};

TEST_F(NotepadCommand, IsTheSameFromToolbarMenuAndKeyInTheFrameAndItsWindows)
{
    const QStringList once = {folder.filePath("notepad.exe")};
    boxes.answer = MsgAnswer::Yes;
    click(control<SoftBttn>(frame(), "cmdNote"));
    EXPECT_EQ(services.programs, once);
    choose("mnuNote"); // the selection window's
    EXPECT_EQ(services.programs, once + once);
    get<ChildSelect>().activate();
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(services.programs, once + once + once);
    outer(get<ChildSelect>()).close();
    QTest::qWait(0);
    choose("mnuNote"); // the frame's own
    EXPECT_EQ(services.programs.size(), 4);
    EXPECT_EQ(boxes.shown.size(), 3);
    EXPECT_EQ(program->flags.NotepadLaunched, 3);
}

TEST_F(NotepadCommand, RefusedStartIsReportedAndForgotten)
{
    services.programsStart = false;
    click(control<SoftBttn>(frame(), "cmdNote"));
    ASSERT_EQ(boxes.shown.size(), 1);
    expectFailure(boxes.shown.first());
    EXPECT_EQ(program->flags.NotepadLaunched, 0);
}
