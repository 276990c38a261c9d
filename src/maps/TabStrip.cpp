#include "maps/TabStrip.h"

#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

TabStrip::TabStrip(QWidget* parent)
    : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
}

void TabStrip::paintEvent(QPaintEvent* event)
{
    QTabBar::paintEvent(event);
    // The pane lies over the foot of the tabs, except where the chosen one opens into it.
    const QRect chosen = tabRect(currentIndex());
    QStyleOptionTabWidgetFrame pane;
    pane.initFrom(this);
    pane.lineWidth = 1;
    pane.rect.setTop(chosen.bottom());
    QStylePainter painter(this);
    painter.setClipRegion(QRegion(pane.rect).subtracted(chosen.adjusted(1, 0, -1, 0)));
    painter.drawPrimitive(QStyle::PE_FrameTabWidget, pane);
}
