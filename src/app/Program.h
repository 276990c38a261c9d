#pragma once

#include "app/frmStart.h"
#include "widgets/ProgramFlags.h"
#include <memory>
#include <QPointer>
#include <QString>

class Database;
class MDIParent;

/// The running program: what it remembers, and the one place that makes the start window and the main frame.
class Program
{
public:
    /// directory: the one that holds the installed files.
    explicit Program(const QString& directory);
    ~Program();

    ProgramFlags flags;
    const QString basePath; ///< with a separator at its end

    /// Shows the start window as the splash. False when a start-up check failed and its message was shown:
    /// the program is to end.
    bool start();
    /// Shows the main frame, at the end of the splash.
    void showFrame();
    /// Shows the start window over the frame as the About window, which the caller has set `StartFormMode`
    /// to; returns when it closes, or at once when it is open already.
    void showAbout();
    /// Closes the start window; does nothing when it is not open.
    void unloadStartWindow();

    MDIParent* frame() const { return m_frame.get(); }
    frmStart* startWindow() const { return m_startWindow; }

private:
    void keepDatabase();

    QPointer<frmStart> m_startWindow;
    std::shared_ptr<Database> m_database; ///< for the data sources of all windows, which share it
    std::unique_ptr<MDIParent> m_frame;
};
