#include "read/TextBoxReader.h"

#include "read/TextBox.h"
#include <QScrollBar>
#include <QTextDocument>

namespace {

QAccessibleInterface* readerOf(const QString&, QObject* object)
{
    auto* box = qobject_cast<TextBox*>(object);
    return box ? new TextBoxReader(*box) : nullptr;
}

} // namespace

TextBoxReader::TextBoxReader(TextBox& box)
    : GuardedAccess(&box, QAccessible::EditableText)
{
}

void TextBoxReader::install()
{
    static const bool once = (QAccessible::installFactory(readerOf), true);
    Q_UNUSED(once);
}

void* TextBoxReader::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return GuardedAccess::interface_cast(type);
}

QAccessible::State TextBoxReader::state() const
{
    QAccessible::State state = GuardedAccess::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

QString TextBoxReader::text(QAccessible::Text which) const
{
    return which == QAccessible::Value ? box().toPlainText() : GuardedAccess::text(which);
}

void TextBoxReader::selection(int index, int* start, int* end) const
{
    const QTextCursor cursor = box().textCursor();
    const bool selected = index == 0 && cursor.hasSelection();
    *start = selected ? cursor.selectionStart() : 0;
    *end = selected ? cursor.selectionEnd() : 0;
}

int TextBoxReader::selectionCount() const
{
    return box().textCursor().hasSelection() ? 1 : 0;
}

void TextBoxReader::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TextBoxReader::removeSelection(int index)
{
    if (index == 0)
        setCursorPosition(cursorPosition());
}

void TextBoxReader::setSelection(int index, int start, int end)
{
    if (index != 0 || isBehind())
        return;
    QTextCursor cursor = cursorAt(start);
    cursor.setPosition(cursorAt(end).position(), QTextCursor::KeepAnchor);
    box().setTextCursor(cursor);
}

int TextBoxReader::cursorPosition() const
{
    return box().textCursor().position();
}

void TextBoxReader::setCursorPosition(int position)
{
    if (!isBehind())
        box().setTextCursor(cursorAt(position));
}

QString TextBoxReader::text(int start, int end) const
{
    return box().toPlainText().mid(start, end - start);
}

QString TextBoxReader::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                        int* end) const
{
    const int first = QAccessible::qAccessibleTextBoundaryHelper(cursorAt(offset), type).first;
    if (first > 0)
        return stretchAt(first - 1, type, start, end);
    *start = *end = -1;
    return {};
}

QString TextBoxReader::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                       int* end) const
{
    const auto [first, last] = QAccessible::qAccessibleTextBoundaryHelper(cursorAt(offset), type);
    // A paragraph ends before the character that parts it from the next one.
    const bool isSame = QAccessible::qAccessibleTextBoundaryHelper(cursorAt(last), type).first == first;
    const int next = isSame ? last + 1 : last;
    if (next < characterCount())
        return stretchAt(next, type, start, end);
    *start = *end = -1;
    return {};
}

QString TextBoxReader::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                    int* end) const
{
    return stretchAt(offset, type, start, end);
}

int TextBoxReader::characterCount() const
{
    return box().document()->characterCount() - 1; // without the end of the document
}

QString TextBoxReader::attributes(int, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    const QFont font = box().font();
    return QString("font-family:\"%1\";font-size:%2pt;").arg(font.family()).arg(font.pointSize());
}

QRect TextBoxReader::characterRect(int offset) const
{
    const QTextCursor cursor = cursorAt(offset);
    QRect rect = box().cursorRect(cursor);
    rect.setWidth(box().fontMetrics().horizontalAdvance(box().document()->characterAt(cursor.position())));
    return {box().viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

int TextBoxReader::offsetAtPoint(const QPoint& point) const
{
    const QPoint inside = box().viewport()->mapFromGlobal(point);
    return box().viewport()->rect().contains(inside) ? box().cursorForPosition(inside).position() : -1;
}

void TextBoxReader::scrollToSubstring(int start, int end)
{
    if (isBehind())
        return;
    const QTextCursor before = box().textCursor();
    for (const int offset : {end, start}) { // the start comes last, and wins where both have no room
        box().setTextCursor(cursorAt(offset));
        box().ensureCursorVisible();
    }
    const int scrolled = box().verticalScrollBar()->value();
    box().setTextCursor(before);
    box().verticalScrollBar()->setValue(scrolled);
}

TextBox& TextBoxReader::box() const
{
    return static_cast<TextBox&>(*widget());
}

QTextCursor TextBoxReader::cursorAt(int offset) const
{
    QTextCursor cursor(box().document());
    cursor.setPosition(qBound(0, offset, characterCount()));
    return cursor;
}

QString TextBoxReader::stretchAt(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const
{
    const auto [first, last] = QAccessible::qAccessibleTextBoundaryHelper(cursorAt(offset), type);
    *start = first;
    *end = last;
    return text(first, last);
}
