#include "maps/TabStrip.h"

#include "widgets/Modality.h"
#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

TabStrip::TabStrip(QWidget* parent)
    : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    connect(this, &QTabBar::currentChanged, this, &TabStrip::stayBehindModalWindow);
}

void TabStrip::stayBehindModalWindow(int index)
{
    if (isBehindModalWindow(*this)) {
        const QSignalBlocker silently(this);
        setCurrentIndex(m_chosen);
    } else {
        m_chosen = index;
    }
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
