#include "widgets/SpokenWindow.h"

#include "widgets/GuardedAccess.h"
#include <QApplication>
#include <QMdiSubWindow>

namespace {

class SpokenWindow : public GuardedAccess
{
public:
    explicit SpokenWindow(QMdiSubWindow* window)
        : GuardedAccess(window, QAccessible::Window)
    {
    }

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name ? subWindow().windowTitle() : GuardedAccess::text(which);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.focusable = true;
        state.movable = state.sizeable = !subWindow().isMaximized();
        const QWidget* focus = QApplication::focusWidget();
        state.focused = focus == &subWindow() || subWindow().isAncestorOf(focus);
        state.invisible = !subWindow().isVisible();
        state.disabled = !subWindow().isEnabled();
        state.offscreen = !subWindow().parentWidget()->rect().intersects(subWindow().geometry());
        return state;
    }

    // What it holds, and nothing that Qt itself adds to it.
    int childCount() const override { return subWindow().widget() ? 1 : 0; }
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(subWindow().widget()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && subWindow().widget() && child->object() == subWindow().widget() ? 0 : -1;
    }

private:
    const QMdiSubWindow& subWindow() const { return *static_cast<QMdiSubWindow*>(object()); }
};

QAccessibleInterface* spokenWindow(const QString& className, QObject* object)
{
    return className == "QMdiSubWindow" ? new SpokenWindow(static_cast<QMdiSubWindow*>(object)) : nullptr;
}

} // namespace

void speakOfWindows()
{
    QAccessible::installFactory(spokenWindow);
}
