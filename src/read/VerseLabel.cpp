#include "read/VerseLabel.h"

#include "read/ReadingSurface.h"
#include "read/VerseLabelReader.h"
#include <QCoreApplication>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int textMargin = 6; // pixels

} // namespace

VerseLabel::VerseLabel(QWidget* parent)
    : QLabel(parent)
    , m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    VerseLabelReader::install();
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setPalette(readingSurface(palette()));
    setAutoFillBackground(true);
    m_scrollBar->setPalette(besideReadingSurface(parent->palette()));
    m_scrollBar->setFocusPolicy(Qt::StrongFocus);
    m_scrollBar->setObjectName("scrollBar");
    m_scrollBar->setAccessibleName("Scroll the verse");
    m_scrollBar->hide();
    connect(m_scrollBar, &QScrollBar::valueChanged, this, [this](int line) {
        m_firstShown = m_lines.lineAt(line).textStart();
        update();
    });
}

void VerseLabel::setText(const QString& text)
{
    QLabel::setText(text);
    m_firstShown = 0;
    fitScrollBar();
}

void VerseLabel::setFont(const QFont& font)
{
    QLabel::setFont(font);
    fitScrollBar();
}

bool VerseLabel::scrollByPages(int pages)
{
    m_scrollBar->setValue(m_scrollBar->value() + pages * m_scrollBar->pageStep());
    return !m_scrollBar->isHidden();
}

std::pair<int, int> VerseLabel::lineAround(int character) const
{
    if (character < 0 || character >= text().size())
        return {-1, -1};
    const QTextLine line = m_lines.lineForTextPosition(character);
    return {line.textStart(), line.textStart() + line.textLength()};
}

QRect VerseLabel::characterRect(int character) const
{
    if (lineAround(character).first < 0)
        return {};
    const QTextLine line = m_lines.lineForTextPosition(character);
    const int left = qRound(line.cursorToX(character));
    const int height = fontMetrics().lineSpacing();
    const QPoint start = textArea().topLeft();
    return {start.x() + left, start.y() + (line.lineNumber() - m_scrollBar->value()) * height,
            qRound(line.cursorToX(character + 1)) - left, height};
}

void VerseLabel::showCharacter(int character)
{
    if (lineAround(character).first < 0)
        return;
    const int line = m_lines.lineForTextPosition(character).lineNumber();
    m_scrollBar->setValue(qBound(line - linesWithRoom() + 1, m_scrollBar->value(), line));
}

void VerseLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QPoint start = textArea().topLeft();
    const int first = m_scrollBar->value();
    const int end = qMin(m_lines.lineCount(), first + linesWithRoom());
    for (int line = first; line < end; ++line)
        m_lines.lineAt(line).draw(&painter, start - QPoint(0, first * fontMetrics().lineSpacing()));
}

void VerseLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fitScrollBar();
}

// At its end too the verse keeps the wheel, or the frame's area would move behind it.
void VerseLabel::wheelEvent(QWheelEvent* event)
{
    if (m_scrollBar->isVisible())
        QCoreApplication::sendEvent(m_scrollBar, event);
    event->accept();
}

QRect VerseLabel::textArea() const
{
    const int bar = m_scrollBar->isHidden() ? 0 : m_scrollBar->width();
    return contentsRect().adjusted(textMargin, textMargin, -textMargin - bar, -textMargin);
}

void VerseLabel::breakLines(int width)
{
    QTextOption wrapped;
    wrapped.setWrapMode(QTextOption::WordWrap);
    m_lines.setTextOption(wrapped);
    m_lines.setFont(font());
    m_lines.setText(text());
    m_lines.beginLayout();
    for (QTextLine line = m_lines.createLine(); line.isValid(); line = m_lines.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, line.lineNumber() * fontMetrics().lineSpacing()));
    }
    m_lines.endLayout();
}

int VerseLabel::linesWithRoom() const
{
    // A line without the space below it.
    const int height = contentsRect().height() - 2 * textMargin + fontMetrics().leading();
    return qMax(1, height / fontMetrics().lineSpacing());
}

void VerseLabel::fitScrollBar()
{
    const QRect inside = contentsRect();
    const int barWidth = m_scrollBar->sizeHint().width();
    m_scrollBar->setGeometry(inside.right() + 1 - barWidth, inside.top(), barWidth, inside.height());
    m_scrollBar->hide();
    breakLines(textArea().width());
    if (m_lines.lineCount() > linesWithRoom()) {
        m_scrollBar->show();
        breakLines(textArea().width());
    }
    // QScrollBar::valueChanged() means here that the reader scrolled: at each size that a dragged border
    // takes on its way it would move m_firstShown, and the place would drift.
    const QSignalBlocker fitting(m_scrollBar);
    m_scrollBar->setRange(0, qMax(0, m_lines.lineCount() - linesWithRoom()));
    m_scrollBar->setPageStep(qMax(1, linesWithRoom() - 1));
    m_scrollBar->setValue(m_lines.lineForTextPosition(m_firstShown).lineNumber());
    update();
}
