#pragma once

#include <QList>
#include <QPointer>
#include <QRect>
#include <QWidget>

class QKeyEvent;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class Shell;

/// A child window of the main frame: the one place that knows how such a window lives in the frame's area.
///
/// Its life: made with its controls, loadInto() runs Form_Load and shows it behind the active window,
/// Form_Activate and Form_Deactivate follow the active window, Form_Resize every change of size or state,
/// Form_Unload its closing, which deletes it. Outer sizes and positions are those of the whole window with
/// its title bar and border, in twips.
class Form : public QWidget
{
    Q_OBJECT

public:
    enum WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

    ~Form() override;

    /// Puts the window into the area, runs Form_Load and shows the window behind the active one, so that
    /// whoever loads it can hand something to it before Form_Activate.
    void loadInto(QMdiArea& area);

    /// The windows of an area in the order in which they were loaded; and the active one, nullptr when there
    /// is none. It stays the active one while another program is in front.
    static QList<Form*> allIn(const QMdiArea& area);
    static Form* activeIn(const QMdiArea& area);
    /// The window that a widget belongs to: itself, one of its controls, its title bar; else nullptr.
    static Form* of(QWidget* widget);

    QString caption() const;
    void setCaption(const QString& caption);

    WindowState state() const;
    void setState(WindowState state);
    /// Shows the window, brings it to the front and gives it the keyboard focus.
    void activate();
    /// Makes the window the area's active one again, when the frame comes back to the front; its focus is the
    /// area's business.
    void becomeCurrent();
    /// What every window does that hands something to this one: restore it if it is minimised, then activate
    /// it. If it lies outside what the frame shows, the frame is scrolled to it.
    void restoreAndActivate();
    /// Closes the window.
    void unload();

    int outerWidth() const;
    int outerHeight() const;

    /// The menus that replace the frame's while this window is the active one, in their order on the bar.
    const QList<QMenu*>& menus() const { return m_menus; }

    /// The frame tells the window that it became the active one, or that another did.
    void becomeActive(bool active);
    bool isActive() const { return m_active; }
    /// Gives the focus to the control that had it last, else to the first that can have it.
    void takeFocus();
    /// Whether the keyboard or the mouse moves or sizes the window now: no key is then meant for its
    /// controls.
    bool isMoved() const;
    /// The frame tells the window of a key that is about to go to its control with the focus; true keeps the
    /// key from it. The window must not be moved or sized now. Minimised it takes none: an icon has
    /// no control that a reader could mean.
    bool preview(QKeyEvent& event);
    /// The frame tells the window that the mouse gave the focus to one of its controls. If that activates the
    /// window, the focus stays there whatever Form_Activate does with it.
    void focusedByMouse(QWidget& control);

Q_SIGNALS:
    /// The window was closed; the next reference loads a fresh one.
    void unloaded();

protected:
    /// name: the window's class name, by which tests and assistive tools know it. The shell must outlive the
    /// window.
    Form(Shell& shell, const QString& name);

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    virtual void Form_Resize() {}
    virtual void Form_Unload() {}
    /// A key goes down anywhere in the window, before the control with the focus sees it. The control sees it
    /// all the same, unless this returns true.
    virtual bool Form_KeyDown(QKeyEvent&) { return false; }
    /// Whether the Alt keys of this window's controls win over those of menus.
    virtual bool hasAccessKeys() const { return false; }

    /// Sets the window's menu bar: the shared menus with the window's own between File and Search.
    void makeMenus(const QList<QMenu*>& own, bool plainToolsItem = false);

    /// Both do nothing unless the window is in its normal state.
    void setOuterSize(int widthTwips, int heightTwips);
    void setOuterPosition(int leftTwips, int topTwips);
    /// The inner (client) size of this window and of the frame, in twips.
    QSize innerSize() const;
    QSize frameInnerSize() const;

    Shell& shell() const { return m_shell; }

    /// Of the window in the area alone.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QMdiSubWindow* subWindow() const;
    bool isMovedByKeyboard() const;
    void endMoveWithoutFocus();
    void showBehind(QMdiSubWindow* active);
    /// Makes the window that was active last, among those that are not minimised, the active one.
    void handOver();
    void scrollIntoView();
    void windowStateChanged(Qt::WindowStates oldState, Qt::WindowStates newState);

    Shell& m_shell;
    QList<QMenu*> m_menus;
    QPointer<QWidget> m_lastFocus;
    QPointer<QWidget> m_clicked; ///< has the focus by the mouse, and the window is about to become active
    QRect m_pressedAt; ///< the whole window when a mouse button went down on its border that is still held
    bool m_loaded = false;
    bool m_active = false;
    bool m_maximized = false;
};
