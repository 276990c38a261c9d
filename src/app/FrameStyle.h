#pragma once

#include <QFontMetrics>
#include <QList>
#include <QPalette>
#include <QProxyStyle>

/// A caption with its middle left out where it is wider than the room, in pixels: the reference stands at its
/// end.
QString captionForRoom(const QString& caption, const QFontMetrics& letters, int room);

/// The one style of all windows, on every desktop: the windows' sizes count their title bars and borders in.
class FrameStyle : public QProxyStyle
{
    Q_OBJECT

public:
    FrameStyle()
        : QProxyStyle("Fusion")
    {
    }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    template <class Option>
    Option withKnownPalette(Option option) const;

    mutable QList<QPalette> m_palettes; ///< of combo boxes and scroll bars; all differ
};
