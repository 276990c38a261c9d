#pragma once

#include <QFocusEvent>
#include <QMenuBar>

/// The frame's menu bar, which never keeps the focus without a menu to choose from. Where another window
/// comes to the front over an open menu (F1's help, a message), QMenuBar leaves its keyboard mode, and gets
/// the focus again with the frame: no key would then reach a control.
class MenuBar : public QMenuBar
{
    Q_OBJECT

public:
    using QMenuBar::QMenuBar;

Q_SIGNALS:
    void focusIsNotMine();

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QMenuBar::focusInEvent(event);
        if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::OtherFocusReason)
            Q_EMIT focusIsNotMine();
    }
};
