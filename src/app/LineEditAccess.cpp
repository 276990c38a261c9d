#include "app/LineEditAccess.h"

#include "widgets/GuardedAccess.h"
#include <QLineEdit>

namespace {

class LineEditAccess : public GuardedAccess,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface
{
public:
    explicit LineEditAccess(QLineEdit& field)
        : GuardedAccess(&field, QAccessible::EditableText)
        , m_field(field)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return GuardedAccess::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = GuardedAccess::state();
        state.editable = true;
        state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_field.text() : GuardedAccess::text(kind);
    }

    // --- What is read ---

    void selection(int index, int* start, int* end) const override
    {
        const bool selected = index == 0 && m_field.hasSelectedText();
        *start = selected ? m_field.selectionStart() : 0;
        *end = selected ? m_field.selectionEnd() : 0;
    }
    int selectionCount() const override { return m_field.hasSelectedText() ? 1 : 0; }
    int cursorPosition() const override { return m_field.cursorPosition(); }
    int characterCount() const override { return static_cast<int>(m_field.text().size()); }
    QString text(int start, int end) const override { return m_field.text().mid(start, end - start); }

    QString attributes(int, int* start, int* end) const override
    {
        *start = *end = cursorPosition();
        return {};
    }

    QRect characterRect(int offset) const override
    {
        const int width = m_field.fontMetrics().horizontalAdvance(text(offset, offset + 1));
        const QRect box(leftOf(offset), caret().y(), width, caret().height());
        return {m_field.mapToGlobal(box.topLeft()), box.size()};
    }

    int offsetAtPoint(const QPoint& point) const override
    {
        const QPoint inside = m_field.mapFromGlobal(point);
        return m_field.rect().contains(inside) ? m_field.cursorPositionAt(inside) : -1;
    }

    // --- What is done ---

    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0 && !isBehind())
            m_field.setSelection(start, end - start);
    }
    void removeSelection(int index) override
    {
        if (index == 0 && !isBehind())
            m_field.deselect();
    }
    void setCursorPosition(int position) override
    {
        if (!isBehind())
            m_field.setCursorPosition(position);
    }
    void scrollToSubstring(int start, int end) override
    {
        setCursorPosition(end);
        setCursorPosition(start);
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override
    {
        if (!isBehind())
            m_field.setText(m_field.text().replace(start, end - start, text));
    }

private:
    QRect caret() const { return m_field.inputMethodQuery(Qt::ImCursorRectangle).toRect(); }

    /// The caret tells how far the text is scrolled.
    int leftOf(int offset) const
    {
        const QFontMetrics letters = m_field.fontMetrics();
        return caret().center().x() + letters.horizontalAdvance(text(0, offset)) -
               letters.horizontalAdvance(text(0, cursorPosition()));
    }

    QLineEdit& m_field;
};

} // namespace

QAccessibleInterface* lineEditAccess(const QString& className, QObject* object)
{
    auto* field = className == "QLineEdit" ? qobject_cast<QLineEdit*>(object) : nullptr;
    return field ? new LineEditAccess(*field) : nullptr;
}
