#include "help/Help.h"

#include "desktop/MsgBox.h"
#include "help/HelpWindow.h"
#include "widgets/ActiveWidget.h"
#include <QApplication>
#include <QLocale>

Help::Help(const QString& path, PageOf pageOf)
    : m_path(path)
    , m_pageOf(std::move(pageOf))
{
}

Help::~Help()
{
    delete m_window;
}

HelpWindow* Help::window() const
{
    return m_window;
}

void Help::open()
{
    const QString page = m_pageOf(activeWidget());
    if (!m_window) {
        const QList<HelpPage> pages = readHelpFile(m_path);
        if (pages.isEmpty()) {
            MsgBox::show("Couldn't find file 'KESTREL.HLP'. Please run Setup.", MsgIcon::Exclamation);
            return;
        }
        m_window = new HelpWindow(pages, helpLanguage(QLocale().uiLanguages()));
    }
    m_window->showPage(page);
    m_window->standBeside(QApplication::activeModalWidget());
    m_window->raise();
    m_window->activateWindow();
}
