#include "widgets/ListBox.h"

#include "widgets/EnterKey.h"
#include "widgets/GuardedSelection.h"
#include "widgets/ListModel.h"
#include "widgets/RowHeight.h"
#include "widgets/Text.h"
#include <QAccessible>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <utility>

namespace {

/// Every line is as wide as the list, so that what does not fit is elided and nothing scrolls sideways.
class LineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {0, heightIn(option.fontMetrics)};
    }

    static int heightIn(const QFontMetrics& font) { return qMax(minRowHeight, font.height() + 2); }
};

bool isMove(int key)
{
    return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) && key != Qt::Key_Left && key != Qt::Key_Right;
}

} // namespace

ListBox::ListBox(QWidget* parent)
    : KeepsScrolling(parent)
    , m_model(new ListModel(this))
{
    setModel(m_model);
    GuardedSelection::install(*this);
    setItemDelegate(new LineDelegate(this));
    setUniformItemSizes(true); // or every line would be measured
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
}

const ListLines& ListBox::lines() const
{
    return m_model->lines();
}

void ListBox::setLines(ListLines lines)
{
    m_model->setLines(std::move(lines));
}

void ListBox::clear()
{
    setLines({});
}

int ListBox::count() const
{
    return lines().count();
}

QString ListBox::text(int place) const
{
    return place >= 0 && place < count() ? toText(lines().line(place)) : QString();
}

int ListBox::selected() const
{
    const QModelIndexList selection = selectionModel()->selectedIndexes();
    return selection.isEmpty() ? -1 : selection.first().row();
}

int ListBox::lineAt(const QPoint& point) const
{
    return indexAt(point).row();
}

int ListBox::heightOfWholeLines(int room) const
{
    const int line = LineDelegate::heightIn(fontMetrics());
    const int around = 2 * frameWidth();
    return qMax(1, (room - around) / line) * line + around;
}

void ListBox::selectCurrentLine()
{
    const QModelIndex line = currentIndex().isValid() ? currentIndex() : m_model->index(0);
    if (selected() >= 0 || !line.isValid())
        return;
    setCurrentIndex(line);
    QAccessibleEvent reached(this, QAccessible::Focus); // QListView does not tell it where nothing moved
    reached.setChild(line.row());
    QAccessible::updateAccessibility(&reached);
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    Q_EMIT keyDown();
    if (isEnter(*event) || event->key() == Qt::Key_Space)
        Q_EMIT choosingKeyPressed();
    else if (!event->matches(QKeySequence::Copy)) // QListView would copy the line
        moveByKey(event);
}

void ListBox::moveByKey(QKeyEvent* event)
{
    const int before = selected();
    const bool isArrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!isArrow || before >= 0)
        KeepsScrolling::keyPressEvent(event);
    // The first arrow key selects the line it stands on, as does a jump to the line that is current already.
    if (isMove(event->key()))
        selectCurrentLine();
    if (selected() != before)
        Q_EMIT lineClicked();
}

void ListBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return; // QListView would select the line
    m_pressed = true;
    QListView::mousePressEvent(event);
}

void ListBox::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        Q_EMIT pointerMoved(event->position().toPoint());
    QListView::mouseMoveEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    QListView::mouseReleaseEvent(event);
    const bool wasPressedHere = std::exchange(m_pressed, false);
    if (wasPressedHere && viewport()->rect().contains(event->position().toPoint()) && selected() >= 0)
        Q_EMIT lineClicked();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event); // a double click is two clicks
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index, const QEvent*) const
{
    // One line is selected, and stays so: Ctrl does not take the selection back, and beside the lines nothing
    // happens.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

bool ListBox::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return KeepsScrolling::viewportEvent(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    showTip(help.pos(), help.globalPos());
    return true;
}

void ListBox::showTip(const QPoint& point, const QPoint& globalPoint)
{
    // As rich text the tip is broken into lines; a verse in one line is wider than any screen.
    const QString tip = toolTip().isEmpty() ? QString() : "<p>" + toolTip().toHtmlEscaped() + "</p>";
    QToolTip::showText(globalPoint, tip, viewport(), visualRect(indexAt(point)));
}
