#pragma once

#include <QLabel>

class QScrollBar;

/// A word-wrapped label for a verse in large type. A verse longer than the label can be scrolled, by wheel,
/// by the scroll bar and, with the bar focused, by keyboard; so no word is ever cut off.
class VerseLabel : public QLabel
{
    Q_OBJECT

public:
    explicit VerseLabel(QWidget* parent);

    void setText(const QString& text);
    void setFont(const QFont& font);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRect textArea() const;
    int heightOf(int width) const;
    void fitScrollBar();

    QScrollBar* m_scrollBar;
};
