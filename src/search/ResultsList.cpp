#include "search/ResultsList.h"

#include "search/ResultsModel.h"
#include "widgets/EnterKey.h"
#include "widgets/Text.h"
#include <QAccessible>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

/// Every line is as wide as the list, so that what does not fit is elided and nothing scrolls sideways.
class LineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {0, option.fontMetrics.height() + 2};
    }
};

bool isMove(int key)
{
    return (key >= Qt::Key_Home && key <= Qt::Key_PageDown) && key != Qt::Key_Left && key != Qt::Key_Right;
}

} // namespace

ResultsList::ResultsList(QWidget* parent)
    : QListView(parent)
    , m_model(new ResultsModel(this))
{
    setModel(m_model);
    setItemDelegate(new LineDelegate(this));
    setUniformItemSizes(true); // or every line would be measured
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListView::clicked, this, &ResultsList::lineClicked);
}

const ResultLines& ResultsList::lines() const
{
    return m_model->lines();
}

void ResultsList::setLines(ResultLines lines)
{
    m_model->setLines(std::move(lines));
}

void ResultsList::clear()
{
    setLines({});
}

int ResultsList::count() const
{
    return lines().count();
}

QString ResultsList::text(int place) const
{
    return place >= 0 && place < count() ? toText(lines().line(place)) : QString();
}

int ResultsList::selected() const
{
    const QModelIndexList selection = selectionModel()->selectedIndexes();
    return selection.isEmpty() ? -1 : selection.first().row();
}

int ResultsList::lineAt(const QPoint& point) const
{
    return indexAt(point).row();
}

void ResultsList::keyPressEvent(QKeyEvent* event)
{
    Q_EMIT keyDown();
    if (isEnter(*event) || event->key() == Qt::Key_Space)
        Q_EMIT choosingKeyPressed();
    else if (!event->matches(QKeySequence::Copy)) // the view would copy the line
        moveByKey(event);
}

void ResultsList::moveByKey(QKeyEvent* event)
{
    const int before = selected();
    const bool isArrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!isArrow || before >= 0)
        QListView::keyPressEvent(event);
    // The first arrow key selects the line it stands on, as does a jump to the line that is current already.
    if (isMove(event->key()) && selected() < 0 && currentIndex().isValid())
        selectLineItStandsOn();
    if (selected() != before)
        Q_EMIT lineClicked();
}

void ResultsList::selectLineItStandsOn()
{
    setCurrentIndex(currentIndex());
    QAccessibleEvent reached(this, QAccessible::Focus); // which the view does not tell, for nothing moved
    reached.setChild(currentIndex().row());
    QAccessible::updateAccessibility(&reached);
}

void ResultsList::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        Q_EMIT pointerMoved(event->position().toPoint());
    QListView::mouseMoveEvent(event);
}

bool ResultsList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    showTip(help.pos(), help.globalPos());
    return true;
}

void ResultsList::showTip(const QPoint& point, const QPoint& globalPoint)
{
    // As rich text the tip is broken into lines; a verse in one line is wider than any screen.
    const QString tip = toolTip().isEmpty() ? QString() : "<p>" + toolTip().toHtmlEscaped() + "</p>";
    QToolTip::showText(globalPoint, tip, viewport(), visualRect(indexAt(point)));
}
