#include "widgets/Modality.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

bool isBehindModalWindow(const QWidget& widget)
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal->window() == widget.window())
        return false;
    const QWindow* over = modal->window()->windowHandle();
    const QWindow* window = widget.window()->windowHandle();
    return !over || !window || !over->isAncestorOf(window, QWindow::IncludeTransients);
}
