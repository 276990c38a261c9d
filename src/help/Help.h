#pragma once

#include <functional>
#include <QObject>
#include <QPointer>
#include <QString>

class HelpWindow;
class QWidget;

/// The way to the help: it shows the page of the active window, also while a box or the About window is open.
class Help : public QObject
{
    Q_OBJECT

public:
    /// Names the help page for the widget that is in use; nullptr when none is.
    using PageOf = std::function<QString(const QWidget*)>;

    /// path: the help file. It is read when the help is opened.
    Help(const QString& path, PageOf pageOf);
    ~Help() override;

    /// Opens the help at the page of the active window, or says that its file is missing.
    void open();

    /// The open help window; nullptr when there is none.
    HelpWindow* window() const;

private:
    const QString m_path;
    const PageOf m_pageOf;
    QPointer<HelpWindow> m_window;
};
