#include "widgets/Form.h"

#include "widgets/AccessKeys.h"
#include "widgets/Menus.h"
#include "widgets/SpokenWindow.h"
#include "widgets/Twips.h"
#include <algorithm>
#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

namespace {

// The keys of inner windows; on some desktops QMdiSubWindow has others for closing, and none for the menu.
void giveKeys(QMdiSubWindow& window)
{
    QAction* const close = window.systemMenu()->actions().constLast();
    close->setShortcuts({Qt::CTRL | Qt::Key_F4, Qt::CTRL | Qt::Key_W});
    new QShortcut(Qt::ALT | Qt::Key_Minus, &window, &window, &QMdiSubWindow::showSystemMenu,
                  Qt::WidgetWithChildrenShortcut);
}

/// How far to scroll so that a window shows, its beginning first of all.
int scrollTo(int start, int length, int room)
{
    return start < 0 || length > room ? start : qMax(0, start + length - room);
}

} // namespace

Form::Form(Shell& shell, const QString& name)
    : m_shell(shell)
{
    setObjectName(name);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // Kept here because QMdiSubWindow forgets it when another window becomes active. A hidden control is
        // left out: QMdiSubWindow hides its widget while the state changes, which moves the focus on.
        if (isAncestorOf(now) && now->isVisible())
            m_lastFocus = now;
    });
}

Form::~Form() = default;

void Form::loadInto(QMdiArea& area)
{
    speakOfWindows();
    QMdiSubWindow* window = area.addSubWindow(this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(objectName() + "Window");
    giveKeys(*window);
    window->installEventFilter(this);
    connect(window, &QMdiSubWindow::windowStateChanged, this, &Form::windowStateChanged);
    m_loaded = true;
    Form_Load();
    showBehind(area.currentSubWindow());
}

void Form::showBehind(QMdiSubWindow* active)
{
    QMdiSubWindow* const window = subWindow();
    window->setEnabled(false); // or QMdiSubWindow::showEvent would make it the active one
    window->show();
    window->setEnabled(true);
    if (active)
        window->stackUnder(active);
}

QList<Form*> Form::allIn(const QMdiArea& area)
{
    QList<Form*> forms;
    for (const QMdiSubWindow* window : area.subWindowList())
        if (auto* form = qobject_cast<Form*>(window->widget()))
            forms << form;
    return forms;
}

Form* Form::activeIn(const QMdiArea& area)
{
    const QMdiSubWindow* window = area.currentSubWindow();
    return window ? qobject_cast<Form*>(window->widget()) : nullptr;
}

Form* Form::of(QWidget* widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        const auto* window = qobject_cast<QMdiSubWindow*>(widget);
        if (auto* form = qobject_cast<Form*>(window ? window->widget() : widget))
            return form;
    }
    return nullptr;
}

QString Form::caption() const
{
    return windowTitle();
}

void Form::setCaption(const QString& caption)
{
    setWindowTitle(caption);
    if (!subWindow())
        return;
    // QMdiSubWindow does not tell AT-SPI of a new caption.
    QAccessibleEvent renamed(subWindow(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

Form::WindowState Form::state() const
{
    const QMdiSubWindow* window = subWindow();
    if (!window)
        return Normal;
    if (window->isMinimized())
        return Minimized;
    // While the area resizes a maximised window, the window itself denies being one.
    return m_maximized || window->isMaximized() ? Maximized : Normal;
}

void Form::setState(WindowState state)
{
    QMdiSubWindow* window = subWindow();
    if (!window || state == this->state())
        return;
    if (state == Minimized)
        window->showMinimized();
    else if (state == Maximized)
        window->showMaximized();
    else
        window->showNormal();
}

void Form::activate()
{
    QMdiSubWindow* window = subWindow();
    if (!window)
        return;
    window->mdiArea()->setActiveSubWindow(window);
    takeFocus();
}

void Form::becomeCurrent()
{
    if (subWindow())
        subWindow()->mdiArea()->setActiveSubWindow(subWindow());
}

void Form::takeFocus()
{
    if (isAncestorOf(QApplication::focusWidget()))
        return;
    QWidget* control = focusWidget(); // what will have the focus again when the frame is active
    if (!control && m_lastFocus && m_lastFocus->isVisibleTo(this) && m_lastFocus->isEnabled())
        control = m_lastFocus;
    for (QWidget* next = nextInFocusChain(); !control && next != this; next = next->nextInFocusChain())
        if (isAncestorOf(next) && next->isVisibleTo(this) && next->isEnabled() &&
            (next->focusPolicy() & Qt::TabFocus))
            control = next;
    if (control)
        control->setFocus();
}

void Form::restoreAndActivate()
{
    if (state() == Minimized)
        setState(Normal);
    activate();
    QTimer::singleShot(0, this, &Form::scrollIntoView); // once it has its place, and the area its scroll bars
}

void Form::scrollIntoView()
{
    if (!subWindow() || state() != Normal)
        return;
    const QMdiArea& area = *subWindow()->mdiArea();
    const QRect place = subWindow()->geometry();
    const QSize room = area.viewport()->size();
    QScrollBar& across = *area.horizontalScrollBar();
    QScrollBar& down = *area.verticalScrollBar();
    across.setValue(across.value() + scrollTo(place.x(), place.width(), room.width()));
    down.setValue(down.value() + scrollTo(place.y(), place.height(), room.height()));
}

void Form::unload()
{
    if (subWindow())
        subWindow()->close();
}

int Form::outerWidth() const
{
    return subWindow() ? toTwips(subWindow()->width()) : 0;
}

int Form::outerHeight() const
{
    return subWindow() ? toTwips(subWindow()->height()) : 0;
}

void Form::becomeActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    if (!active) {
        Form_Deactivate();
        return;
    }
    takeFocus();
    Form_Activate();
    if (m_clicked)
        m_clicked->setFocus(Qt::MouseFocusReason);
    m_clicked.clear();
}

// QMdiSubWindow grabs the mouse while it is moved or sized by keyboard.
bool Form::isMovedByKeyboard() const
{
    return mouseGrabber() && mouseGrabber() == subWindow();
}

bool Form::isMoved() const
{
    const bool byMouse = !m_pressedAt.isNull() && QGuiApplication::mouseButtons() != Qt::NoButton;
    return byMouse || isMovedByKeyboard();
}

bool Form::preview(QKeyEvent& event)
{
    if (state() == Minimized)
        return false;
    if (hasAccessKeys() && pressAccessKey(*this, event))
        return true;
    return event.type() == QEvent::KeyPress && Form_KeyDown(event);
}

void Form::focusedByMouse(QWidget& control)
{
    if (!m_active && isAncestorOf(&control))
        m_clicked = &control;
}

void Form::makeMenus(const QList<QMenu*>& own, bool plainToolsItem)
{
    m_menus = {Menus::file(*this, m_shell)};
    m_menus += own;
    m_menus += {Menus::search(*this, m_shell), Menus::tools(*this, m_shell, plainToolsItem),
                Menus::window(*this, m_shell), Menus::help(*this, m_shell)};
}

void Form::setOuterSize(int widthTwips, int heightTwips)
{
    if (!subWindow() || state() != Normal)
        return;
    // While the left border is dragged the right one stays. So a right edge where it was at the press means
    // that the left one must be put back, too; the same with top and bottom.
    const QRect now = subWindow()->geometry();
    const int left = now.right() == m_pressedAt.right() ? m_pressedAt.left() : now.left();
    const int top = now.bottom() == m_pressedAt.bottom() ? m_pressedAt.top() : now.top();
    subWindow()->setGeometry(left, top, toPixels(widthTwips), toPixels(heightTwips));
}

void Form::setOuterPosition(int leftTwips, int topTwips)
{
    if (subWindow() && state() == Normal)
        subWindow()->move(toPixels(leftTwips), toPixels(topTwips));
}

QSize Form::innerSize() const
{
    const QMargins margins = subWindow() ? subWindow()->contentsMargins() : QMargins();
    return toTwips(subWindow() ? subWindow()->size().shrunkBy(margins) : size());
}

QSize Form::frameInnerSize() const
{
    return subWindow() ? toTwips(subWindow()->mdiArea()->viewport()->size()) : QSize();
}

bool Form::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == subWindow() && event->type() == QEvent::MouseButtonPress)
        m_pressedAt = subWindow()->geometry();
    if (watched == subWindow() && event->type() == QEvent::MouseButtonRelease)
        m_pressedAt = QRect();
    if (watched == subWindow() && event->type() == QEvent::FocusOut) {
        // X may take the focus from the frame for an instant as the menu closes that began the move.
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason)
            QTimer::singleShot(100, this, &Form::endMoveWithoutFocus);
        else
            endMoveWithoutFocus();
    }
    return QWidget::eventFilter(watched, event);
}

// QMdiSubWindow would go on, follow the mouse and keep it from everything else.
void Form::endMoveWithoutFocus()
{
    if (!isMovedByKeyboard() || subWindow()->hasFocus())
        return;
    QKeyEvent end(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(subWindow(), &end);
}

void Form::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_loaded)
        Form_Resize();
}

void Form::closeEvent(QCloseEvent* event)
{
    handOver();
    becomeActive(false);
    Form_Unload();
    Q_EMIT unloaded();
    event->accept();
}

QMdiSubWindow* Form::subWindow() const
{
    return qobject_cast<QMdiSubWindow*>(parentWidget());
}

void Form::windowStateChanged(Qt::WindowStates oldState, Qt::WindowStates newState)
{
    m_maximized = newState.testFlag(Qt::WindowMaximized);
    constexpr auto shape = Qt::WindowMinimized | Qt::WindowMaximized;
    if ((oldState & shape) == (newState & shape))
        return;
    if (m_lastFocus && isAncestorOf(window()->focusWidget()))
        m_lastFocus->setFocus();
    Form_Resize();
    if (newState.testFlag(Qt::WindowMinimized))
        handOver();
}

// QMdiArea leaves a minimised window active, and makes one active when another is closed: the keys would go
// to controls that nobody sees.
void Form::handOver()
{
    if (!subWindow() || subWindow()->mdiArea()->currentSubWindow() != subWindow())
        return;
    QList<QMdiSubWindow*> windows = subWindow()->mdiArea()->subWindowList(QMdiArea::ActivationHistoryOrder);
    std::reverse(windows.begin(), windows.end());
    for (const QMdiSubWindow* window : windows) {
        auto* form = qobject_cast<Form*>(window->widget());
        if (form && form != this && form->state() != Minimized) {
            form->activate();
            return;
        }
    }
}
