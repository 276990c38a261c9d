#include "app/FrameStyle.h"

#include "pictures/Colors.h"
#include "pictures/Pictures.h"
#include <algorithm>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>

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

struct TitleButton
{
    QStyle::SubControl control;
    QStyle::StandardPixmap mark;
};

constexpr TitleButton titleButtons[] = {
    {QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton},
    {QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton},
    {QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton},
    {QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton},
};

void drawTitleButton(QPainter& painter, const QRect& rect, const TitleButton& button,
                     const QStyleOptionTitleBar& bar)
{
    const bool active = bar.titleBarState & QStyle::State_Active;
    const QColor ink = bar.palette.color(active ? QPalette::HighlightedText : QPalette::WindowText);
    const bool touched = bar.activeSubControls & button.control;
    QColor face = bar.state & QStyle::State_Sunken ? Qt::black : ink;
    face.setAlphaF(touched ? 0.3F : 0.0F);
    QColor edge = ink;
    edge.setAlphaF(0.5F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(face);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, 1));
    painter.translate(rect.center() - QPoint(side / 2, side / 2));
    drawMark(painter, button.mark);
    painter.restore();
}

/// Fusion has none for scroll bars.
void drawFocusRing(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focusRingColor(option.palette.color(QPalette::Window)), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(option.rect).adjusted(1, 1, -1, -1));
    painter.restore();
}

/// What the outline of a check box or an option button needs to be seen: at least 3:1 on the window.
QColor outlineOn(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    double share = 0.3;
    while (share < 1 && contrastRatio(blended(window, text, share), window) < 3.5)
        share += 0.05;
    return blended(window, text, share);
}

void drawEdge(QPainter& painter, const QStyleOption& option, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.restore();
}

/// On light desktops Fusion's own edge of fields and its ring around a focus are seen.
void drawFieldEdge(QPainter& painter, const QStyleOption& option, bool focused)
{
    const QColor window = option.palette.color(QPalette::Window);
    if (!isLight(window))
        drawEdge(painter, option, focused ? focusRingColor(window) : outlineOn(option.palette));
}

void drawIndicatorEdge(QPainter& painter, const QStyleOption& option, void (QPainter::*draw)(const QRectF&))
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outlineOn(option.palette));
    painter.setBrush(Qt::NoBrush);
    (painter.*draw)(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

bool hasKeyboardFocus(const QStyleOption& option)
{
    return option.state & QStyle::State_HasFocus && option.state & QStyle::State_KeyboardFocusChange;
}

} // namespace

// A QComboBox takes the focus, and changes its choice, when the wheel is turned while the pointer happens to
// be over it. Here the wheel gives no focus (StrongFocus), and chooses only in the box that has it
// (styleHint()).
void FrameStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    auto* box = qobject_cast<QComboBox*>(widget);
    if (!box)
        return;
    box->setFocusPolicy(Qt::StrongFocus);
    box->setMaxVisibleItems(12);
}

int FrameStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_TitleBarHeight)
        return 20;
    if (metric == PM_MdiSubWindowFrameWidth)
        return 4;
    if (metric == PM_MdiSubWindowMinimizedWidth)
        return 290; // holds the captions of the reading and the chapter window whole
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int FrameStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const
{
    if (hint == SH_ComboBox_Popup)
        return 0; // a list with a scroll bar; as a menu it would hold every entry, and cover the screen
    if (hint == SH_ComboBox_AllowWheelScrolling)
        return widget && widget->hasFocus();
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

// The marks of title bars are drawn: reading Qt's pictures of them loads every picture format that
// the desktop knows into memory.
QIcon FrameStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    switch (which) {
    case SP_TitleBarMenuButton:
        return iconOf(PictureId::Application);
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

// Fusion's outlines can hardly be told from the window, least of all on dark desktops.
void FrameStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) {
        if (option->state & State_KeyboardFocusChange)
            drawEdge(*painter, *option, focusRingColor(option->palette.color(QPalette::Window)));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!(option->state & State_Enabled))
        return;
    if (element == PE_FrameLineEdit)
        drawFieldEdge(*painter, *option, option->state & State_HasFocus);
    else if (element == PE_PanelButtonCommand && hasKeyboardFocus(*option))
        drawFieldEdge(*painter, *option, true);
    else if (element == PE_IndicatorCheckBox && !qobject_cast<const QMenu*>(widget))
        drawIndicatorEdge(*painter, *option, &QPainter::drawRect);
    else if (element == PE_IndicatorRadioButton && !qobject_cast<const QMenu*>(widget))
        drawIndicatorEdge(*painter, *option, &QPainter::drawEllipse);
}

// A selection is paler in a control without the focus; Qt makes it so in a window without it. In the list of
// a combo box there is always one.
void FrameStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* row = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element != CE_ItemViewItem || !row || !widget || widget->hasFocus() ||
        widget->window()->windowType() == Qt::Popup) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionViewItem resting = *row;
    resting.state &= ~State_Active;
    QProxyStyle::drawControl(element, &resting, painter, widget);
}

// QFontMetrics measures the two ends apart. Joined they may be wider, and Fusion would leave out the end
// after all.
QString captionForRoom(const QString& caption, const QFontMetrics& letters, int room)
{
    QString shown = letters.elidedText(caption, Qt::ElideMiddle, room);
    for (int less = room; less > 0 && letters.elidedText(shown, Qt::ElideRight, room) != shown; --less)
        shown = letters.elidedText(caption, Qt::ElideMiddle, less);
    return shown;
}

// Fusion caches the pixmaps of combo boxes and of scroll bars' arrows by QPalette::cacheKey() and never frees
// the keys. Each new window's palettes have new keys although their colours are the same, so that the memory
// would grow with each window opened: Fusion is handed a palette whose key it knows already.
template <class Option>
Option FrameStyle::withKnownPalette(Option option) const
{
    const auto group = option.palette.currentColorGroup(); // enabled and disabled palettes count as equal
    const auto known = std::find(m_palettes.cbegin(), m_palettes.cend(), option.palette);
    option.palette = known != m_palettes.cend() ? *known : m_palettes.emplaceBack(option.palette);
    option.palette.setCurrentColorGroup(group);
    return option;
}

// Fusion draws the marks of a title bar's buttons for a higher bar; in this one they are mere dots.
void FrameStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        const QStyleOptionComboBox known = withKnownPalette(*combo);
        QProxyStyle::drawComplexControl(control, &known, painter, widget);
        if (known.state & State_Enabled)
            drawFieldEdge(*painter, known, hasKeyboardFocus(known));
        return;
    }
    if (const auto* scrollBar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        const QStyleOptionSlider known = withKnownPalette(*scrollBar);
        QProxyStyle::drawComplexControl(control, &known, painter, widget);
        if (control == CC_ScrollBar && known.state & State_HasFocus)
            drawFocusRing(*painter, known);
        return;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || !bar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionTitleBar rest = *bar;
    if (bar->titleBarState & State_Active) // its white letters have a shadow, which must not be white too
        rest.palette.setColor(QPalette::Text, Qt::black);
    if (widget) {                   // QMdiSubWindow leaves out the end, where the reference stands
        constexpr int margins = 14; // that Fusion leaves beside the text
        const int room = subControlRect(control, bar, SC_TitleBarLabel, widget).width() - margins;
        rest.text = captionForRoom(widget->windowTitle(), painter->fontMetrics(), room);
    }
    for (const TitleButton& button : titleButtons)
        rest.subControls &= ~button.control;
    QProxyStyle::drawComplexControl(control, &rest, painter, widget);
    for (const TitleButton& button : titleButtons) {
        const QRect rect = subControlRect(control, bar, button.control, widget);
        if (bar->subControls & button.control && rect.isValid())
            drawTitleButton(*painter, rect, button, *bar);
    }
}
