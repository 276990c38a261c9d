#include "read/VerseLabelReader.h"

#include "read/VerseLabel.h"

namespace {

QAccessibleInterface* labelReaderOf(const QString&, QObject* object)
{
    auto* label = qobject_cast<VerseLabel*>(object);
    return label ? new VerseLabelReader(*label) : nullptr;
}

} // namespace

VerseLabelReader::VerseLabelReader(VerseLabel& label)
    : GuardedAccess(&label, QAccessible::StaticText)
{
}

void VerseLabelReader::install()
{
    static const bool once = (QAccessible::installFactory(labelReaderOf), true);
    Q_UNUSED(once);
}

void* VerseLabelReader::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return GuardedAccess::interface_cast(type);
}

QAccessible::State VerseLabelReader::state() const
{
    QAccessible::State state = GuardedAccess::state();
    state.readOnly = true;
    state.multiLine = true;
    return state;
}

QString VerseLabelReader::text(QAccessible::Text which) const
{
    return which == QAccessible::Name ? label().text() : GuardedAccess::text(which);
}

void VerseLabelReader::selection(int, int* start, int* end) const
{
    *start = *end = 0;
}

void VerseLabelReader::setCursorPosition(int position)
{
    scrollToSubstring(position, position);
}

QString VerseLabelReader::text(int start, int end) const
{
    return label().text().mid(start, end - start);
}

QString VerseLabelReader::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                           int* end) const
{
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textBeforeOffset(offset, type, start, end);
    return stretch(label().lineAround(label().lineAround(offset).first - 1), start, end);
}

QString VerseLabelReader::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                          int* end) const
{
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textAfterOffset(offset, type, start, end);
    return stretch(label().lineAround(label().lineAround(offset).second), start, end);
}

QString VerseLabelReader::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                       int* end) const
{
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textAtOffset(offset, type, start, end);
    return stretch(label().lineAround(offset), start, end);
}

int VerseLabelReader::characterCount() const
{
    return static_cast<int>(label().text().size());
}

QString VerseLabelReader::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    const QFont font = label().font();
    return QString("font-family:\"%1\";font-size:%2pt;").arg(font.family()).arg(font.pointSize());
}

QRect VerseLabelReader::characterRect(int offset) const
{
    const QRect rect = label().characterRect(offset);
    return {label().mapToGlobal(rect.topLeft()), rect.size()};
}

int VerseLabelReader::offsetAtPoint(const QPoint& point) const
{
    const QPoint inside = label().mapFromGlobal(point);
    for (int offset = 0; label().rect().contains(inside) && offset < characterCount(); ++offset)
        if (label().characterRect(offset).contains(inside))
            return offset;
    return -1;
}

void VerseLabelReader::scrollToSubstring(int start, int)
{
    if (!isBehind())
        label().showCharacter(start);
}

VerseLabel& VerseLabelReader::label() const
{
    return static_cast<VerseLabel&>(*widget());
}

QString VerseLabelReader::stretch(std::pair<int, int> range, int* start, int* end) const
{
    *start = range.first;
    *end = range.second;
    return range.first < 0 ? QString() : text(range.first, range.second);
}
