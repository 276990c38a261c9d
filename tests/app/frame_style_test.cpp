// What the style draws itself must be seen, on light and on dark desktops.
#include "app/FrameStyle.h"
#include "pictures/Colors.h"
#include <gtest/gtest.h>
#include <QCommonStyle>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QSet>
#include <QStyleOption>

namespace {

QPalette desktop(const QColor& window, const QColor& base, const QColor& text)
{
    QPalette palette(window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    return palette;
}

QPalette light()
{
    return desktop(QColor(0xefefef), Qt::white, Qt::black);
}

QPalette dark()
{
    return desktop(QColor(0x353535), QColor(0x2d2d2d), QColor(0xeeeeec));
}

QImage drawn(QStyle::PrimitiveElement element, const QPalette& palette)
{
    QImage image(24, 24, QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    QStyleOptionButton option;
    option.rect = QRect(5, 5, 14, 14);
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    FrameStyle().drawPrimitive(element, &option, &painter, nullptr);
    return image;
}

QImage titleBar(QStyle::State state)
{
    QImage image(200, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    QStyleOptionTitleBar bar;
    bar.rect = image.rect();
    bar.palette = light();
    bar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    bar.titleBarState = state;
    bar.subControls = QStyle::SC_All;
    FrameStyle().drawComplexControl(QStyle::CC_TitleBar, &bar, &painter, nullptr);
    return image;
}

/// How many pixels of the mark's colour lie on the row or, as here, the diagonal of the close button.
int whiteOnDiagonal(const QImage& image, const QRect& button)
{
    int count = 0;
    for (int i = -4; i <= 4; ++i)
        count += contrastRatio(image.pixelColor(button.center() + QPoint(i, i)), Qt::white) < 1.3;
    return count;
}

} // namespace

class Outline : public testing::TestWithParam<QStyle::PrimitiveElement>
{
};

TEST_P(Outline, OfAnEmptyIndicatorIsSeenOnLightAndDark)
{
    for (const QPalette& palette : {light(), dark()}) {
        const QImage image = drawn(GetParam(), palette);
        const QColor window = palette.color(QPalette::Window);
        // The middles of the four sides.
        for (const QPoint& side : {QPoint(5, 12), QPoint(18, 12), QPoint(12, 5), QPoint(12, 18)})
            EXPECT_GE(contrastRatio(image.pixelColor(side), window), 3) << side.x() << "," << side.y();
        EXPECT_EQ(image.pixelColor(1, 1), window);
    }
}

INSTANTIATE_TEST_SUITE_P(Indicators, Outline,
                         testing::Values(QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton));

TEST(TitleBar, CloseButtonBearsACross)
{
    QStyleOptionTitleBar bar;
    bar.rect = QRect(0, 0, 200, 20);
    bar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    const QRect close =
        FrameStyle().subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarCloseButton, nullptr);
    ASSERT_TRUE(close.isValid());
    EXPECT_GE(whiteOnDiagonal(titleBar(QStyle::State_Active), close), 7);
}

TEST(Palettes, ThatSayTheSameShareOneIdentityInComboBoxesAndScrollBars)
{
    class Recorder : public QCommonStyle
    {
    public:
        void drawComplexControl(ComplexControl, const QStyleOptionComplex* option, QPainter*,
                                const QWidget*) const override
        {
            keys.insert(option->palette.cacheKey());
        }
        mutable QSet<qint64> keys;
    };
    FrameStyle style;
    auto* recorder = new Recorder;
    style.setBaseStyle(recorder);
    const auto draw = [&style](QStyle::ComplexControl control, auto option, const QPalette& palette) {
        option.palette = palette;
        QImage image(8, 8, QImage::Format_RGB32);
        QPainter painter(&image);
        style.drawComplexControl(control, &option, &painter, nullptr);
    };
    for (int window = 0; window < 10; ++window) {
        draw(QStyle::CC_ComboBox, QStyleOptionComboBox(), light());
        draw(QStyle::CC_ScrollBar, QStyleOptionSlider(), light());
    }
    EXPECT_EQ(recorder->keys.size(), 1);
    draw(QStyle::CC_ComboBox, QStyleOptionComboBox(), dark());
    draw(QStyle::CC_ScrollBar, QStyleOptionSlider(), light());
    EXPECT_EQ(recorder->keys.size(), 2);
}

TEST(ComboBoxes, LookAsInTheBaseStyleWhetherEnabledOrNot)
{
    const auto drawn = [](QStyle& style, QPalette palette, bool enabled) {
        palette.setCurrentColorGroup(enabled ? QPalette::Active : QPalette::Disabled);
        QStyleOptionComboBox combo;
        combo.palette = palette;
        combo.rect = QRect(0, 0, 80, 24);
        combo.state = enabled ? QStyle::State_Enabled | QStyle::State_Active : QStyle::State_Active;
        QImage image(combo.rect.size(), QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        QPixmapCache::clear(); // both styles would share its pictures
        style.drawComplexControl(QStyle::CC_ComboBox, &combo, &painter, nullptr);
        return image;
    };
    FrameStyle style;
    QProxyStyle base("Fusion");
    for (const QPalette& palette : {light(), dark()}) {
        EXPECT_EQ(drawn(style, palette, true), drawn(base, palette, true));
        EXPECT_EQ(drawn(style, palette, false), drawn(base, palette, false));
        EXPECT_NE(drawn(style, palette, false), drawn(style, palette, true));
    }
}
