#pragma once

#include "widgets/GuardedAccess.h"

class QTextCursor;
class TextBox;

/// What a TextBox tells a screen reader of its text. It stands in for the interface that Qt has for every
/// QPlainTextEdit: the characterRect() of that takes the scroll bar's lines for pixels, and each line to
/// begin where the first one does.
///
/// Offsets are positions in the document, where a line ends with one character.
class TextBoxReader : public GuardedAccess, public QAccessibleTextInterface
{
public:
    explicit TextBoxReader(TextBox& box);

    /// Has Qt ask this class about every TextBox.
    static void install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text which) const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;

    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const override;
    int characterCount() const override;
    QString attributes(int offset, int* start, int* end) const override;

    /// On the screen; a character that is scrolled out of sight lies outside the box.
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;

private:
    TextBox& box() const;
    QTextCursor cursorAt(int offset) const;
    QString stretchAt(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const;
};
