#include "app/MDIParent.h"

#include "app/ArrangeIcons.h"
#include "app/HelpPage.h"
#include "app/KeyPreview.h"
#include "app/MenuBar.h"
#include "app/Notepad.h"
#include "app/Program.h"
#include "desktop/BasePath.h"
#include "help/Help.h"
#include "widgets/Hourglass.h"
#include "widgets/Layout.h"
#include "widgets/Menus.h"
#include "widgets/Modality.h"
#include "widgets/SoftBttn.h"
#include "widgets/Twips.h"
#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow> // complete, for QMdiArea::subWindowActivated
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>

namespace {

/// On a screen no larger than this, in device-independent pixels, the frame fills all of it.
constexpr QSize smallScreen(1280, 800);

} // namespace

MDIParent::MDIParent(Program& program)
    : picToolbar(new QWidget(this))
    , cmdSelect(new SoftBttn(PictureId::SelectVerse, "Select Verse to read", picToolbar))
    , cmdNote(new SoftBttn(PictureId::Notepad, "Notepad", picToolbar))
    , cmdSearch(new SoftBttn(PictureId::Search, "Search", picToolbar))
    , cmdTools(new SoftBttn(PictureId::StudyAids, "Study Aids", picToolbar))
    , cmdAbout(new SoftBttn(PictureId::About, "About/QORV CD-ROM Offer", picToolbar))
    , m_program(program)
    , m_area(new QMdiArea(this))
    , m_help(std::make_unique<Help>(program.basePath + helpFileName, helpPageOf))
    , m_keys(std::make_unique<KeyPreview>(*m_help))
{
    setObjectName("MDIParent");
    setWindowTitle("Kestrel Reader: Portuguese Version - Freeware");
    setWindowIcon(iconOf(PictureId::Application));
    m_area->setAccessibleName("Windows");
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded); // a map can be larger than the frame
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    makeToolbar();
    auto* menuBar = new MenuBar(this);
    setMenuBar(menuBar);
    connect(menuBar, &MenuBar::focusIsNotMine, this, &MDIParent::takeFocusFromMenuBar);
    m_menus = {Menus::file(*this, *this), Menus::search(*this, *this), Menus::tools(*this, *this),
               Menus::help(*this, *this)};
    showMenus(m_menus);
    connect(m_area, &QMdiArea::subWindowActivated, this, &MDIParent::childActivated);
    connect(cmdSelect, &SoftBttn::clicked, this, &MDIParent::openSelection);
    connect(cmdNote, &SoftBttn::clicked, this, &MDIParent::launchNotepad);
    connect(cmdSearch, &SoftBttn::clicked, this, &MDIParent::openSearch);
    connect(cmdTools, &SoftBttn::clicked, this, &MDIParent::openStudyAids);
    connect(cmdAbout, &SoftBttn::clicked, this, &MDIParent::about);
}

MDIParent::~MDIParent()
{
    m_area->disconnect(this); // it deletes its windows after this object is gone
}

void MDIParent::load()
{
    const QSize room = screen()->availableSize();
    resize(qMin(1160, room.width() * 92 / 100), qMin(860, room.height() * 92 / 100)); // room for a map
    if (screen()->size().boundedTo(smallScreen) == screen()->size())
        showMaximized(); // or a map would not fit
    else
        show();
    MDIForm_Load();
    // A desktop that does not give the focus to new windows must not leave the splash standing.
    QMetaObject::invokeMethod(this, &MDIParent::MDIForm_Activate, Qt::QueuedConnection);
}

// A strip docked along the top. QToolBar is not used: it can do no more here, and making one
// loads every picture format that the desktop knows into memory.
void MDIParent::makeToolbar()
{
    picToolbar->setObjectName("picToolbar");
    layOut({
        {cmdSelect, "cmdSelect", "", {30, 0, 360, 360}},
        {cmdNote, "cmdNote", "", {390, 0, 360, 360}},
        {cmdSearch, "cmdSearch", "", {750, 0, 360, 360}},
        {cmdTools, "cmdTools", "", {1110, 0, 360, 360}},
        {cmdAbout, "cmdAbout", "", {1470, 0, 360, 360}},
    });
    picToolbar->setFixedHeight(toPixels(390));
    auto* frame = new QWidget(this);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(picToolbar);
    rows->addWidget(m_area);
    setCentralWidget(frame);
}

template <class Window, class... Arguments>
Window& MDIParent::single(QPointer<Window>& window, Arguments&... arguments)
{
    if (!window) {
        window = new Window(*this, arguments...);
        connect(window, &Form::unloaded, this, [&window] { window.clear(); });
        window->loadInto(*m_area);
    }
    return *window;
}

void MDIParent::openSelection()
{
    single(m_select).askForReference();
}

void MDIParent::openSearch()
{
    single(m_search, m_searchMemory).restoreAndActivate();
}

void MDIParent::openStudyAids()
{
    single(m_mapSel).restoreAndActivate();
}

void MDIParent::launchNotepad()
{
    startNotepad(flags());
}

void MDIParent::about()
{
    const QPointer<Form> active = m_activeForm;
    const QPointer<QWidget> focused = focusWidget();
    if (active)
        active->becomeActive(false);
    flags().StartFormMode = startFormIsAbout;
    m_program.showAbout();
    if (active && active == m_activeForm)
        active->becomeActive(true);
    giveFocusBack(focused);
}

// The active window's Activate event may have moved the focus, even to a control that a minimised window
// hides.
void MDIParent::giveFocusBack(QWidget* focused)
{
    if (focused)
        focused->setFocus();
    else if (focusWidget())
        focusWidget()->clearFocus();
}

void MDIParent::takeFocusFromMenuBar()
{
    if (m_activeForm)
        m_activeForm->takeFocus();
    else
        menuBar()->clearFocus();
}

void MDIParent::exit()
{
    close();
}

void MDIParent::arrangeIcons()
{
    lineUpIcons(*m_area);
}

ChildRead& MDIParent::readingWindow()
{
    return single(m_reading);
}

ChapRead& MDIParent::chapterWindow()
{
    return single(m_chapter);
}

ChildMapDsp& MDIParent::mapWindow()
{
    return single(m_mapDsp);
}

QList<Form*> MDIParent::windows() const
{
    return Form::allIn(*m_area);
}

ProgramFlags& MDIParent::flags()
{
    return m_program.flags;
}

QString MDIParent::basePath() const
{
    return m_program.basePath;
}

void MDIParent::MDIForm_Load()
{
    openSelection();
}

void MDIParent::MDIForm_Activate()
{
    m_program.unloadStartWindow();
    Hourglass::restoreAll();
}

void MDIParent::MDIForm_Unload()
{
    QCoreApplication::quit();
}

bool MDIParent::event(QEvent* event)
{
    // QMdiArea would activate the window that was loaded last, though that was only shown behind.
    if (event->type() == QEvent::WindowActivate && m_activeForm)
        m_activeForm->becomeCurrent();
    const bool handled = QMainWindow::event(event);
    // A click on the frame beside a modal window is no activation; it must not close the About window.
    if (event->type() == QEvent::WindowActivate && !QApplication::activeModalWidget())
        MDIForm_Activate();
    return handled;
}

void MDIParent::closeEvent(QCloseEvent* event)
{
    event->accept();
    MDIForm_Unload();
}

void MDIParent::childActivated(QMdiSubWindow* window)
{
    // QMdiArea::subWindowActivated carries nullptr while another application is active and, when ours comes
    // back behind a modal window, the window loaded last. Either way the frame keeps its active window,
    // unless that was closed.
    const bool stands = m_activeForm && m_activeForm->isVisible();
    if (stands && (isBehindModalWindow(*this) || (!window && !isActiveWindow()))) {
        if (window)
            m_activeForm->becomeCurrent();
        return;
    }
    Form* form = Form::activeIn(*m_area);
    if (form == m_activeForm && form)
        return;
    if (m_activeForm)
        m_activeForm->becomeActive(false);
    m_activeForm = form;
    showMenus(form ? form->menus() : m_menus);
    if (form)
        form->becomeActive(true);
}

void MDIParent::showMenus(const QList<QMenu*>& menus)
{
    menuBar()->clear();
    for (QMenu* menu : menus)
        menuBar()->addMenu(menu);
}
