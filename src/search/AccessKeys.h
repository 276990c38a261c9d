#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

/// Inside its window, the Alt key of a control wins over that of a menu with the same letter. The menu stays
/// reachable: Alt alone, then the letter.
///
/// Without it the key would be given to the two in turn.
class AccessKeys : public QObject
{
    Q_OBJECT

public:
    /// Serves all labels with a buddy and all captioned buttons of the window, while they are visible and
    /// enabled.
    explicit AccessKeys(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isForWindow(QObject* receiver) const;
    QWidget* controlOf(const QKeyEvent& key) const;

    QWidget& m_window;
};
