#include "read/VerseKeyLabel.h"

#include "widgets/Fonts.h"
#include <QPainter>

QRect VerseKeyLabel::visiblePart() const
{
    return rect() & parentWidget()->rect().translated(-pos());
}

QString VerseKeyLabel::drawnKey() const
{
    return look().key;
}

QFont VerseKeyLabel::drawnFont() const
{
    return look().font;
}

void VerseKeyLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto [key, font] = look();
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(visiblePart(), Qt::AlignCenter, key);
}

VerseKeyLabel::Look VerseKeyLabel::look() const
{
    const QString oneLine = text();
    QString twoLines = oneLine;
    twoLines.insert(oneLine.indexOf(':') + 1, '\n');
    for (const QList<int>& sizes : {QList{9, 8}, QList{7}})
        for (const QString& key : {oneLine, twoLines})
            for (const int points : sizes)
                if (const QFont font = Fonts::captionsOf(points); hasRoom(key, font))
                    return {key, font};
    return {twoLines, Fonts::captionsOf(7)};
}

bool VerseKeyLabel::hasRoom(const QString& key, const QFont& font) const
{
    const QSize room = visiblePart().size();
    const QSize size = QFontMetrics(font).size(0, key);
    return size.width() <= room.width() && size.height() <= room.height();
}
