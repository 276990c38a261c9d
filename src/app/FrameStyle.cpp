#include "app/FrameStyle.h"

#include "widgets/Pictures.h"
#include <QApplication>
#include <QPainter>

namespace {

constexpr int side = 16;

void drawMark(QPainter& painter, QStyle::StandardPixmap which)
{
    switch (which) {
    case QStyle::SP_TitleBarMinButton:
        painter.drawLine(4, 12, 12, 12);
        break;
    case QStyle::SP_TitleBarMaxButton:
        painter.drawRect(4, 4, 8, 8);
        break;
    case QStyle::SP_TitleBarNormalButton:
        painter.drawRect(3, 6, 7, 7);
        painter.drawPolyline(QPolygon({{6, 6}, {6, 3}, {13, 3}, {13, 10}, {10, 10}}));
        break;
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        painter.drawPolyline(QPolygon({{4, 4}, {8, 8}, {4, 12}}));
        painter.drawPolyline(QPolygon({{8, 4}, {12, 8}, {8, 12}}));
        break;
    default:
        painter.drawLine(4, 4, 12, 12);
        painter.drawLine(12, 4, 4, 12);
    }
}

QIcon markIcon(QStyle::StandardPixmap which)
{
    QIcon icon;
    for (const int scale : {1, 2}) {
        QPixmap pixmap(QSize(side, side) * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(scale, scale);
        painter.setPen(QPen(QApplication::palette().color(QPalette::ButtonText), 1.2));
        drawMark(painter, which);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

int FrameStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_TitleBarHeight)
        return 20;
    if (metric == PM_MdiSubWindowFrameWidth)
        return 4;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

// The marks of title bars are drawn: reading the toolkit's pictures of them loads every picture format that
// the desktop knows into memory.
QIcon FrameStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    switch (which) {
    case SP_TitleBarMenuButton:
        return picture(PictureId::Application);
    case SP_TitleBarMinButton:
    case SP_TitleBarMaxButton:
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton:
    case SP_ToolBarHorizontalExtensionButton:
        return markIcon(which);
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}
