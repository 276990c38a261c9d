#pragma once

#include <QList>
#include <QString>

class ChapRead;
class ChildMapDsp;
class ChildRead;
class Form;
struct ProgramFlags;

/// What any window may ask of the program around it. The main frame implements it, so that no window includes
/// the frame.
class Shell
{
public:
    virtual ~Shell() = default;

    /// The shared commands: show the single instance of a window, restored if it was minimised, with the
    /// focus.
    virtual void openSelection() = 0;
    virtual void openSearch() = 0;
    virtual void openStudyAids() = 0;
    virtual void launchNotepad() = 0;
    virtual void about() = 0;
    virtual void exit() = 0;
    virtual void arrangeIcons() = 0;

    /// The single instance of a window that others drive; loaded first when it is not open.
    virtual ChildRead& readingWindow() = 0;
    virtual ChapRead& chapterWindow() = 0;
    virtual ChildMapDsp& mapWindow() = 0;

    /// The open child windows, in the order in which they were loaded.
    virtual QList<Form*> windows() const = 0;

    virtual ProgramFlags& flags() = 0;
    /// The program's directory with a separator at its end.
    virtual QString basePath() const = 0;
};
