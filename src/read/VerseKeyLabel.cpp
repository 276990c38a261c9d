#include "read/VerseKeyLabel.h"

#include <QPainter>

void VerseKeyLabel::paintEvent(QPaintEvent*)
{
    const qsizetype colon = text().indexOf(':');
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text().left(colon) + "\n" + text().mid(colon + 1));
}
