#pragma once

#include "widgets/KeepsScrolling.h"
#include <QListView>

class ListLines;
class ListModel;

/// A list box: its lines are cut at the right, and one of them at most is selected.
///
/// It tells apart how a line was reached, for windows in which keys move through the lines and only a click
/// of the mouse, Enter or the space bar opens one.
class ListBox : public KeepsScrolling<QListView>
{
    Q_OBJECT

public:
    explicit ListBox(QWidget* parent);

    const ListLines& lines() const;
    void setLines(ListLines lines);
    void clear();

    int count() const;
    /// A line's whole text; empty for a place that has none, as -1.
    QString text(int place) const;
    /// The place of the selected line; -1 when none is.
    int selected() const;
    /// The place of the line at a point of the viewport; -1 below the last one.
    int lineAt(const QPoint& point) const;
    /// The height that shows whole lines only: as many as there is room for, and one at least. In pixels.
    int heightOfWholeLines(int room) const;
    /// Selects the line that keys move from, as long as none is selected. Does nothing in an empty list.
    void selectCurrentLine();

Q_SIGNALS:
    /// A key went down, whatever key it is; the list has not looked at it yet.
    void keyDown();
    /// Enter or the space bar was pressed; the list does nothing else with them.
    void choosingKeyPressed();
    /// The selected line was clicked: the left button went down and up again in the list. Or a key selected
    /// another line.
    void lineClicked();
    /// The pointer moved with no mouse button held, to this point of the viewport.
    void pointerMoved(const QPoint& point);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    bool viewportEvent(QEvent* event) override;

private:
    void moveByKey(QKeyEvent* event);
    void showTip(const QPoint& point, const QPoint& globalPoint);

    ListModel* m_model;
    bool m_pressed = false;
};
