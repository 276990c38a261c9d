#pragma once

#include <QApplication>

/// The application object: fonts, style and name of the program, and its top level, where an error that no
/// handler caught is shown with SQLite's own text before the program ends.
class Application : public QApplication
{
    Q_OBJECT

public:
    /// Silences two harmless warnings on standard error: Qt's that the locale is not UTF-8 (Qt then switches
    /// to one that is), and libxkbcommon's for each key symbol newer than itself. To be called before there
    /// is an Application, which sets a filter of its own.
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
