#include "read/VerseLabel.h"

#include "read/ReadingSurface.h"
#include <QCoreApplication>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int textMargin = 6;
constexpr int wrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

} // namespace

VerseLabel::VerseLabel(QWidget* parent)
    : QLabel(parent)
    , m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setPalette(readingSurface(palette()));
    setAutoFillBackground(true);
    m_scrollBar->setPalette(parent->palette());
    m_scrollBar->setFocusPolicy(Qt::StrongFocus);
    m_scrollBar->setAccessibleName("Scroll the verse");
    m_scrollBar->hide();
    connect(m_scrollBar, &QScrollBar::valueChanged, this, [this] { update(); });
}

void VerseLabel::setText(const QString& text)
{
    QLabel::setText(text);
    m_scrollBar->setValue(0);
    fitScrollBar();
}

void VerseLabel::setFont(const QFont& font)
{
    QLabel::setFont(font);
    fitScrollBar();
}

void VerseLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = textArea();
    painter.setClipRect(area);
    painter.drawText(area.adjusted(0, -m_scrollBar->value(), 0, heightOf(area.width())), wrapped, text());
}

void VerseLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fitScrollBar();
}

void VerseLabel::wheelEvent(QWheelEvent* event)
{
    if (m_scrollBar->isVisible())
        QCoreApplication::sendEvent(m_scrollBar, event);
}

QRect VerseLabel::textArea() const
{
    const int bar = m_scrollBar->isHidden() ? 0 : m_scrollBar->width();
    return contentsRect().adjusted(textMargin, textMargin, -textMargin - bar, -textMargin);
}

int VerseLabel::heightOf(int width) const
{
    return fontMetrics().boundingRect(QRect(0, 0, width, 1 << 20), wrapped, text()).height();
}

void VerseLabel::fitScrollBar()
{
    const QRect inside = contentsRect();
    const int barWidth = m_scrollBar->sizeHint().width();
    m_scrollBar->setGeometry(inside.right() + 1 - barWidth, inside.top(), barWidth, inside.height());
    const int visibleHeight = inside.height() - 2 * textMargin;
    m_scrollBar->setVisible(heightOf(inside.width() - 2 * textMargin) > visibleHeight);
    m_scrollBar->setRange(0, qMax(0, heightOf(textArea().width()) - visibleHeight));
    m_scrollBar->setPageStep(qMax(1, visibleHeight));
    m_scrollBar->setSingleStep(fontMetrics().lineSpacing());
    update();
}
