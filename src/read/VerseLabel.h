#pragma once

#include <QLabel>
#include <QTextLayout>
#include <utility>

class QScrollBar;

/// A word-wrapped label for a verse in large type. A verse longer than the label can be scrolled, by wheel,
/// by the scroll bar and by page keys. It moves by whole lines and shows none in part, so no word is ever cut
/// off.
class VerseLabel : public QLabel
{
    Q_OBJECT

public:
    explicit VerseLabel(QWidget* parent);

    void setText(const QString& text);
    void setFont(const QFont& font);

    /// Goes on, or back (pages below 0), by as many lines as show, less one that shows before and after.
    /// False when the whole verse shows; at either end of a longer one nothing moves.
    bool scrollByPages(int pages);

    /// For a screen reader, as the next two: the line of a character, from its first character to the one
    /// after its last; -1 and -1 beyond the text.
    std::pair<int, int> lineAround(int character) const;
    /// Where a character stands, in pixels of the label, scrolled out of sight or not.
    QRect characterRect(int character) const;
    /// Scrolls the line of a character into view.
    void showCharacter(int character);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRect textArea() const;
    /// Breaks the text into lines of this width in pixels.
    void breakLines(int width);
    int linesWithRoom() const;
    /// The character that was the first to show is in the first line on show again, wherever its line stands
    /// now.
    void fitScrollBar();

    QTextLayout m_lines;
    QScrollBar* m_scrollBar; ///< its value is the first line on show
    int m_firstShown = 0;    ///< the character at which the reader has that line begin
};
