#include "app/Notepad.h"

#include "desktop/MsgBox.h"
#include "desktop/Platform.h"
#include "widgets/ProgramFlags.h"
#include <QStandardPaths>

namespace {

constexpr int launchedBefore = 3;

bool userWantsAnother()
{
    const QStringList lines = {
        "Notepad has already been launched.",
        "Would you like to launch a new copy of Notepad now?",
        "",
        "To switch to the previously launched copy of Notepad (assuming you have not closed it), press and "
        "hold down ALT while pressing TAB repeatedly to cycle through running applications and select "
        "Notepad, then release TAB. Notepad will come to the foreground. You may also click Notepad's "
        "button on Windows® 98 taskbar.",
        "",
        "To launch a new copy of Notepad now, choose Yes.",
    };
    return MsgBox::show(lines.join("\r\n"), MsgIcon::Question, MsgButtons::YesNo) == MsgAnswer::Yes;
}

void reportFailure()
{
    MsgBox::show(
        "A problem has been encountered while trying to launch Notepad.exe, the standard text editor that "
        "ships with Windows.\r\n"
        "Make sure Notepad.exe is on your system's Path and that it works properly.",
        MsgIcon::Exclamation);
}

} // namespace

const QStringList& standInEditors()
{
    static const QStringList editors = {
        "gnome-text-editor", // GNOME
        "gedit",             // GNOME
        "kwrite",            // KDE
        "kate",              // KDE
        "mousepad",          // Xfce
        "xed",               // Cinnamon
        "pluma",             // MATE
        "featherpad",        // LXQt
        "l3afpad",           // LXDE
        "leafpad",           // LXDE
    };
    return editors;
}

QString textEditor()
{
    for (const QString& name : QStringList("notepad.exe") + standInEditors())
        if (QString path = QStandardPaths::findExecutable(name); !path.isEmpty())
            return path;
    return {};
}

void startNotepad(ProgramFlags& flags)
{
    if (flags.NotepadLaunched == launchedBefore && !userWantsAnother())
        return;
    const QString editor = textEditor();
    if (!editor.isEmpty() && Platform::current().startProgram(editor))
        flags.NotepadLaunched = launchedBefore;
    else
        reportFailure();
}
