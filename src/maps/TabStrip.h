#pragma once

#include <QTabBar>

/// A strip of tabs that is as large as its pages: the tabs along its top, and under them the empty pane on
/// which the window lays the frames of the chosen page.
class TabStrip : public QTabBar
{
    Q_OBJECT

public:
    explicit TabStrip(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// An assistive program can press a tab behind a modal window; the chosen one stays chosen then.
    void stayBehindModalWindow(int index);

    int m_chosen = 0;
};
