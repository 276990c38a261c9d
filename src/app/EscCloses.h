#pragma once

#include <QObject>

class QWidget;

/// Closes a window at a press of Esc anywhere in it, before the control with the focus sees the key: whatever
/// modifier is held, and also while a button is held down, which would otherwise take Esc for itself.
class EscCloses : public QObject
{
    Q_OBJECT

public:
    /// The window owns this object.
    explicit EscCloses(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
};
