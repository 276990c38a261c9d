#include "pictures/Emblem.h"
#include "pictures/Pictures.h"
#include "pictures/TextCredit.h"
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QRect scene(0, 0, 480, 300);
constexpr QRect foot(0, 300, 480, 76);

void paintSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, scene.height());
    sky.setColorAt(0, QColor(0xa9cbe2));
    sky.setColorAt(0.55, QColor(0xe3eef3));
    sky.setColorAt(0.85, QColor(0xf8f1e2));
    painter.fillRect(scene, sky);

    QRadialGradient dawn(QPointF(240, 236), 230);
    dawn.setColorAt(0, QColor(255, 246, 222, 230));
    dawn.setColorAt(1, QColor(255, 246, 222, 0));
    painter.fillRect(scene, dawn);
}

void paintHill(QPainter& painter, double left, double middle, double right, const QColor& color)
{
    QPainterPath hill;
    hill.moveTo(0, left);
    hill.cubicTo(140, middle, 300, right + 20, 480, right);
    hill.lineTo(480, 300);
    hill.lineTo(0, 300);
    hill.closeSubpath();
    painter.fillPath(hill, color);
}

// Text with its baseline at the given point, made narrower where a system's font would run past the width.
void paintText(QPainter& painter, QFont font, QPointF baseline, double width, const QString& text)
{
    const double natural = QFontMetricsF(font).horizontalAdvance(text);
    if (natural > width)
        font.setPixelSize(static_cast<int>(font.pixelSize() * width / natural));
    painter.setFont(font);
    painter.drawText(baseline, text);
}

void paintTitle(QPainter& painter)
{
    QFont title;
    title.setFamilies({"Times New Roman", "Liberation Serif", "DejaVu Serif"});
    title.setPixelSize(44);
    painter.setPen(QColor(0x26323e));
    paintText(painter, title, {32, 84}, 300, "Kestrel Reader");

    QFont subtitle;
    subtitle.setFamilies({"Tahoma", "Liberation Sans", "DejaVu Sans"});
    subtitle.setPixelSize(14);
    subtitle.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    painter.setPen(QColor(0x4d6173));
    paintText(painter, subtitle, {35, 112}, 300, "Portuguese Version");
}

// In smaller letters where a system's font would need more lines than there is room for.
void paintCredit(QPainter& painter)
{
    painter.fillRect(foot, QColor(0xf8f1e2));
    const QRect room = foot.adjusted(14, 4, -14, -4);
    QFont font;
    font.setFamilies({"Tahoma", "Liberation Sans", "DejaVu Sans"});
    for (int pixels = 11; pixels > 5; --pixels) {
        font.setPixelSize(pixels);
        if (room.contains(QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, textCredit)))
            break;
    }
    painter.setFont(font);
    painter.setPen(QColor(0x26323e));
    painter.drawText(room, Qt::AlignVCenter | Qt::TextWordWrap, textCredit);
}

} // namespace

QPixmap splashPicture(qreal devicePixelRatio)
{
    QPixmap pixmap((scene | foot).size() * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSky(painter);
    paintHill(painter, 232, 190, 226, QColor(0xcdd9d6));
    paintHill(painter, 258, 262, 236, QColor(0xaabdb6));
    paintHill(painter, 276, 262, 272, QColor(0x869f97));

    painter.save();
    painter.translate(240, 286);
    painter.scale(2.2, 2.2);
    paintOpenBook(painter, true);
    painter.restore();

    painter.save();
    painter.translate(386, 112);
    painter.rotate(38);
    painter.scale(1.5, 1.5);
    paintKestrel(painter, true);
    painter.restore();

    paintTitle(painter);
    paintCredit(painter);
    return pixmap;
}
