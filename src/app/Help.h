#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class HelpWindow;
class QWidget;

/// The way to the help: F1 anywhere in the program, also while a box or the About window is open, shows the
/// page of the active window.
class Help : public QObject
{
    Q_OBJECT

public:
    /// path: the help file. It is read when the help is opened.
    explicit Help(const QString& path);
    ~Help() override;

    /// Opens the help at the page of the active window, or says that its file is missing.
    void open();

    /// The open help window; nullptr when there is none.
    HelpWindow* window() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QString m_path;
    QPointer<HelpWindow> m_window;
};

/// The name of the help page for a widget: the class name of the window it is in. A message box belongs to
/// the window that shows it, and what is the frame's own to the active child window.
QString helpPageOf(const QWidget* widget);
