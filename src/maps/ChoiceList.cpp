#include "maps/ChoiceList.h"

#include "widgets/EnterKey.h"

namespace {

bool isStep(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home;
}

bool isJump(int key)
{
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown || key == Qt::Key_End;
}

} // namespace

ChoiceList::ChoiceList(const QString& name, QWidget* parent)
    : QListWidget(parent)
{
    setObjectName(name);
}

void ChoiceList::keyPressEvent(QKeyEvent* event)
{
    Q_EMIT keyDown();
    const bool chooses = isEnter(*event) || event->key() == Qt::Key_Space;
    const QList<QListWidgetItem*> chosen = selectedItems();
    if (chosen.isEmpty() && isStep(event->key()))
        selectionModel()->clearCurrentIndex(); // the first step goes to the first entry, not to the second
    if (chooses && currentItem())
        currentItem()->setSelected(true);
    else
        QListWidget::keyPressEvent(event);
    if (isJump(event->key()) && selectedItems().isEmpty() && currentItem())
        currentItem()->setSelected(true); // the jump ended where it began
    if (selectedItems() != chosen)
        Q_EMIT entryClicked();
    if (chooses)
        Q_EMIT choosingKeyPressed();
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event)
{
    QListWidget::mouseReleaseEvent(event);
    QListWidgetItem* item = itemAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && item && item == currentItem())
        Q_EMIT entryClicked();
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent*) const
{
    // One entry is chosen, and stays so: no modifier key takes the choice back.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}
