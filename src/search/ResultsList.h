#pragma once

#include <QListView>

class ResultLines;
class ResultsModel;

/// The results list: one verse a line, cut at the right; the tip under the pointer shows the whole line.
class ResultsList : public QListView
{
    Q_OBJECT

public:
    explicit ResultsList(QWidget* parent);

    const ResultLines& lines() const;
    void setLines(ResultLines lines);
    void clear();

    int count() const;
    /// A line's whole text; empty for a place that has none, as -1.
    QString text(int place) const;
    /// The place of the selected line; -1 when none is.
    int selected() const;
    /// The place of the line at a point of the viewport; -1 below the last one.
    int lineAt(const QPoint& point) const;

Q_SIGNALS:
    /// Any key went down, before the list itself looks at it.
    void keyDown();
    /// Enter or the space bar was pressed; the list does nothing with them.
    void choosingKeyPressed();
    /// A line was selected with a key, or clicked with the left mouse button.
    void lineClicked();
    /// The pointer moved with no mouse button held, to this point of the viewport.
    void pointerMoved(const QPoint& point);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void moveByKey(QKeyEvent* event);
    void selectLineItStandsOn();
    void showTip(const QPoint& point, const QPoint& globalPoint);

    ResultsModel* m_model;
};
