#include "app/Program.h"

#include "app/MDIParent.h"
#include "desktop/BasePath.h"
#include "desktop/Platform.h"
#include "store/Database.h"
#include "store/DataError.h"
#include <QTimer>

Program::Program(const QString& directory)
    : basePath(withSeparator(directory))
{
}

Program::~Program()
{
    delete m_startWindow;
    m_frame.reset();
    // QClipboard may wait seconds for a clipboard manager, and nobody sees why a new copy should not start.
    Platform::current().endInstance();
}

bool Program::start()
{
    m_startWindow = new frmStart(*this);
    if (!m_startWindow->load())
        return false;
    m_startWindow->show();
    // While the splash stands, so that nobody waits for it.
    QTimer::singleShot(0, m_startWindow, [this] { keepDatabase(); });
    return true;
}

void Program::showFrame()
{
    keepDatabase();
    m_frame = std::make_unique<MDIParent>(*this);
    m_frame->load();
}

void Program::showAbout()
{
    if (m_startWindow)
        return; // there is one start window, and it is open already
    m_startWindow = new frmStart(*this, m_frame.get());
    m_startWindow->load();
    m_startWindow->exec();
}

void Program::unloadStartWindow()
{
    if (m_startWindow)
        m_startWindow->close();
}

void Program::keepDatabase()
{
    try {
        m_database = Database::open(databasePath(basePath));
    } catch (const DataError&) {
        // The first lookup meets the same error, and its window tells of it.
    }
}
