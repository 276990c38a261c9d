#include "select/BookTree.h"

#include "store/BookCatalog.h"
#include "widgets/Modality.h"
#include "widgets/RowHeight.h"
#include "widgets/Text.h"
#include <QStyledItemDelegate>
#include <QTreeWidget>

namespace {

class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, minRowHeight));
    }
};

// The catalog stands in the order of the tree, so a node is either the last one of its parent or new.
QTreeWidgetItem* lastChild(QTreeWidgetItem& parent, const QString& text)
{
    QTreeWidgetItem* last = parent.childCount() > 0 ? parent.child(parent.childCount() - 1) : nullptr;
    return last && last->text(0) == text ? last : new QTreeWidgetItem(&parent, {text});
}

// An assistive program selects another line than the current one, behind a modal window, too; no one else
// does. GuardedSelection cannot stand here: QTreeWidget keeps to its own selection model.
void selectCurrentLineBehindModalWindow(QTreeWidget& tree)
{
    if (isBehindModalWindow(tree) && tree.selectedItems() != QList{tree.currentItem()})
        tree.setCurrentItem(tree.currentItem());
}

} // namespace

void fillBookTree(QTreeWidget& tree)
{
    tree.setItemDelegate(new RowDelegate(&tree));
    auto* root = new QTreeWidgetItem(&tree, {"Books of the Kestrel Reader"});
    for (const Book& book : bookCatalog()) {
        QTreeWidgetItem* parent = lastChild(*root, toText(book.testament));
        if (!book.group.empty())
            parent = lastChild(*parent, toText(book.group));
        new QTreeWidgetItem(parent, {QString::fromStdString(book.treeText())});
    }
    root->setExpanded(true);
    for (int i = 0; i < root->childCount(); ++i)
        root->child(i)->setExpanded(true);
    tree.setCurrentItem(root->child(0));
    QObject::connect(&tree, &QTreeWidget::itemSelectionChanged, &tree,
                     [&tree] { selectCurrentLineBehindModalWindow(tree); });
}
