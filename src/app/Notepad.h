#pragma once

#include <QString>
#include <QStringList>

struct ProgramFlags;

/// The plain text editors that stand in for Notepad on a system without it, in the order in which they are
/// looked for: each is what a desktop brings along.
const QStringList& standInEditors();

/// The path of the program to start: "notepad.exe" or else the first stand-in that the search path has. Empty
/// when it has none.
QString textEditor();

/// The shared command "Launch Notepad": starts the text editor and remembers that it did; asks first when it
/// has done so before.
void startNotepad(ProgramFlags& flags);
