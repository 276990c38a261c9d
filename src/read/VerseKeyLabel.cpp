#include "read/VerseKeyLabel.h"

#include <QPainter>

QRect VerseKeyLabel::visiblePart() const
{
    return rect() & parentWidget()->rect().translated(-pos());
}

QString VerseKeyLabel::drawnKey() const
{
    QString key = text();
    if (fontMetrics().horizontalAdvance(key) > visiblePart().width())
        key.insert(key.indexOf(':') + 1, '\n');
    return key;
}

void VerseKeyLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(visiblePart(), Qt::AlignCenter, drawnKey());
}
