#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the hourglass pointer while it lives, so that every path out of an operation brings the default one
/// back.
class Hourglass
{
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { restore(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    /// Brings the default pointer back early, before a message box is shown.
    void restore()
    {
        if (m_shown)
            QGuiApplication::restoreOverrideCursor();
        m_shown = false;
    }

    /// Brings the default pointer back whoever still shows another.
    static void restoreAll()
    {
        while (QGuiApplication::overrideCursor())
            QGuiApplication::restoreOverrideCursor();
    }

private:
    bool m_shown = true;
};
