#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

class QWidget;

/// The services of the desktop that a test wants to watch or refuse. One door: Platform::current().
class Platform
{
public:
    virtual ~Platform() = default;

    /// Whether another copy of this executable already runs for this user. The first call that finds none
    /// makes this process the running copy, until it ends or says so. No file is written. See InstanceName.
    virtual bool previousInstance();
    /// From now on another copy may run.
    virtual void endInstance();
    /// Starts a program by its path in a session of its own and does not wait for it. False when it cannot be
    /// started.
    virtual bool startProgram(const QString& program);
    /// Opens a web or mail address the way the desktop does. What is started for it has the program's own
    /// directory as its working directory. Failures are not told.
    virtual void openLink(const QUrl& link);
    virtual void beep();
    /// Clears the clipboard and puts a text or a picture on it. False when the desktop did not take it.
    virtual bool setClipboard(const QString& text);
    virtual bool setClipboard(const QImage& picture);

    /// Has a screen reader, if one listens, speak a text about a widget. It moves no focus.
    virtual void announce(QWidget& about, const QString& text);

    static Platform& current();
    /// Replaces the services; nullptr brings the real ones back. The caller keeps the ownership.
    static void replace(Platform* services);
};
