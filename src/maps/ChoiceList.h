#pragma once

#include <QListWidget>

/// A list that tells apart how an entry was reached. A window that wants arrow keys to move without opening
/// anything needs the key before the move, the move as a click, and the character after both.
class ChoiceList : public QListWidget
{
    Q_OBJECT

public:
    ChoiceList(const QString& name, QWidget* parent);

Q_SIGNALS:
    /// A key went down in the list, whatever key it is; the list has not looked at it yet.
    void keyDown();
    /// An entry was clicked with the mouse, also the chosen one; or a key chose another entry.
    void entryClicked();
    /// Enter or the space bar was pressed; after keyDown() and, if the key chose an entry, entryClicked().
    void choosingKeyPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};
