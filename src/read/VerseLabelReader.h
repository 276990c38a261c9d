#pragma once

#include "widgets/GuardedAccess.h"
#include <utility>

class VerseLabel;

/// What a VerseLabel tells a screen reader of its text: QLabel's own interface knows its name alone, so that
/// a long verse could only be read in one go. Here a line is one on the screen.
class VerseLabelReader : public GuardedAccess, public QAccessibleTextInterface
{
public:
    explicit VerseLabelReader(VerseLabel& label);

    /// Has Qt ask this class about every VerseLabel.
    static void install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text which) const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int position) override;

    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start, int* end) const override;
    int characterCount() const override;
    QString attributes(int offset, int* start, int* end) const override;

    /// On the screen; a character that is scrolled out of sight lies outside the label.
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;

private:
    VerseLabel& label() const;
    QString stretch(std::pair<int, int> range, int* start, int* end) const;
};
