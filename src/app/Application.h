#pragma once

#include <QApplication>

/// The application object: fonts, style and name of the program, and its top level, where an error that no
/// handler caught is shown with SQLite's own text before the program ends.
class Application : public QApplication
{
    Q_OBJECT

public:
    /// Keeps from standard error what does no harm: Qt's lines about a locale that is not UTF-8, to which it
    /// sets it, since all texts here are UTF-8 in any locale; and libxkbcommon's about each key that a system
    /// younger than it knows. To be called before there is an Application, which tells of other things.
    static void keepLibrariesQuiet();

    /// The program takes no command-line arguments; none are looked at.
    explicit Application(char* programName[]);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    static bool stopTimer(QObject* receiver);
    static void closeBehindModalWindow(QObject* receiver);
    void endWith(const QString& message);

    static int argumentCount;
    bool m_ending = false;
};
