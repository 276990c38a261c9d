#include "app/LinkLabel.h"

#include "pictures/LinkColor.h"
#include "widgets/EnterKey.h"
#include <QPainter>
#include <QStyleOptionFocusRect>

LinkLabel::LinkLabel(const QString& text, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

LinkLabel::LinkLabel(const QIcon& picture, QWidget* parent)
    : QAbstractButton(parent)
{
    setIcon(picture);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

QSize LinkLabel::sizeHint() const
{
    constexpr int besideText = 3; // pixels for the focus ring; above and below, letters leave it room enough
    if (text().isEmpty())
        return iconSize();
    return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * besideText, 0);
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event))
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void LinkLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (text().isEmpty()) {
        icon().paint(&painter, rect());
        return;
    }
    QFont underlined = font();
    underlined.setUnderline(true);
    painter.setFont(underlined);
    painter.setPen(linkColor(palette(), QPalette::Window, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    if (!hasFocus())
        return;
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}
