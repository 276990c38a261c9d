// What the style draws itself must be seen, on light and on dark desktops.
#include "app/FrameStyle.h"
#include "pictures/Colors.h"
#include "support/ActiveWindow.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QCommonStyle>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QSet>
#include <QStyleOption>
#include <QVBoxLayout>

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

constexpr QRect titleBarRect(0, 0, 200, 20);

QImage titleBar(QStyle::State state, const QString& text = {}, const QWidget* window = nullptr)
{
    QImage image(titleBarRect.size(), QImage::Format_RGB32);
    image.fill(Qt::white); // the corners stay as they are
    QPainter painter(&image);
    QStyleOptionTitleBar bar;
    bar.rect = titleBarRect;
    bar.palette = light();
    bar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    bar.titleBarState = state;
    bar.subControls = QStyle::SC_All;
    bar.text = text;
    FrameStyle().drawComplexControl(QStyle::CC_TitleBar, &bar, &painter, window);
    return image;
}

/// With the pointer over its close button.
QImage touchedTitleBar(QStyle::State state)
{
    QImage image(titleBarRect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionTitleBar bar;
    bar.rect = titleBarRect;
    bar.palette = light();
    bar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    bar.titleBarState = QStyle::State_Active;
    bar.state = state;
    bar.subControls = QStyle::SC_All;
    bar.activeSubControls = QStyle::SC_TitleBarCloseButton;
    FrameStyle().drawComplexControl(QStyle::CC_TitleBar, &bar, &painter, nullptr);
    return image;
}

QRect titleBarPart(QStyle::SubControl part)
{
    QStyleOptionTitleBar bar;
    bar.rect = titleBarRect;
    bar.titleBarFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint;
    return FrameStyle().subControlRect(QStyle::CC_TitleBar, &bar, part, nullptr);
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
    const QRect close = titleBarPart(QStyle::SC_TitleBarCloseButton);
    ASSERT_TRUE(close.isValid());
    EXPECT_GE(whiteOnDiagonal(titleBar(QStyle::State_Active), close), 7);
}

TEST(TitleBar, ButtonUnderThePointerIsLighterAndPressedDarker)
{
    const QPoint face = titleBarPart(QStyle::SC_TitleBarCloseButton).center() - QPoint(0, 5);
    const QPoint other = titleBarPart(QStyle::SC_TitleBarMinButton).center() - QPoint(0, 5);
    const QImage resting = titleBar(QStyle::State_Active);
    const QImage touched = touchedTitleBar(QStyle::State_Enabled);
    const QImage pressed = touchedTitleBar(QStyle::State_Enabled | QStyle::State_Sunken);
    EXPECT_GT(touched.pixelColor(face).lightness(), resting.pixelColor(face).lightness());
    EXPECT_LT(pressed.pixelColor(face).lightness(), resting.pixelColor(face).lightness());
    EXPECT_EQ(touched.pixelColor(other), resting.pixelColor(other));
}

TEST(TitleBar, KeepsBothEndsOfACaptionThatIsTooLong)
{
    QMdiSubWindow window;
    window.setWindowTitle("Map -- " + QString("a long way ").repeated(9) + "(Gn 12)");
    const int room = titleBarPart(QStyle::SC_TitleBarLabel).width() - 14;
    const QString whole = window.windowTitle();
    const QString middleLeftOut = QFontMetrics(QApplication::font()).elidedText(whole, Qt::ElideMiddle, room);
    ASSERT_NE(middleLeftOut, whole);
    EXPECT_EQ(titleBar({}, "Map -- a long way a l...", &window), titleBar({}, middleLeftOut));
}

// Fusion leaves out the end of what is wider than the room.
TEST(TitleBar, KeepsTheEndOfACaptionWhateverTheRoom)
{
    const QString caption = "Map -- The Twelve Tribes and the cities of refuge (Jos 13-21)";
    for (const char* family : {"Liberation Sans", "DejaVu Sans"}) {
        const QFontMetrics letters(QFont(family, 9));
        for (int room = 100; room < 320; ++room) {
            const QString shown = captionForRoom(caption, letters, room);
            EXPECT_EQ(letters.elidedText(shown, Qt::ElideRight, room), shown) << family << room;
            EXPECT_TRUE(shown.endsWith("1)")) << family << room;
        }
        EXPECT_EQ(captionForRoom(caption, letters, 1000), caption);
    }
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
    const auto inside = [](const QImage& image) { return image.copy(image.rect().adjusted(2, 2, -2, -2)); };
    FrameStyle style;
    QProxyStyle base("Fusion");
    for (const QPalette& palette : {light(), dark()}) {
        EXPECT_EQ(inside(drawn(style, palette, true)), inside(drawn(base, palette, true)));
        EXPECT_EQ(drawn(style, palette, false), drawn(base, palette, false));
        EXPECT_NE(drawn(style, palette, false), drawn(style, palette, true));
    }
}

TEST(Fields, HaveAnEdgeThatIsSeenOnDarkDesktopsAndARingAroundTheFocus)
{
    const QStyle::State resting = QStyle::State_Enabled | QStyle::State_Active;
    const QStyle::State focused = resting | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const auto field = [](const auto& draw, QStyle::State state) {
        QImage image(80, 24, QImage::Format_RGB32);
        image.fill(dark().color(QPalette::Window));
        QPainter painter(&image);
        draw(painter, image.rect(), state);
        return image;
    };
    const auto text = [](QPainter& painter, const QRect& rect, QStyle::State state) {
        QStyleOptionFrame option;
        option.palette = dark();
        option.rect = rect;
        option.state = state;
        FrameStyle().drawPrimitive(QStyle::PE_FrameLineEdit, &option, &painter, nullptr);
    };
    const auto combo = [](QPainter& painter, const QRect& rect, QStyle::State state) {
        QStyleOptionComboBox option;
        option.palette = dark();
        option.rect = rect;
        option.state = state;
        FrameStyle().drawComplexControl(QStyle::CC_ComboBox, &option, &painter, nullptr);
    };
    for (const QImage& image :
         {field(text, resting), field(combo, resting), field(text, focused), field(combo, focused)})
        for (const QPoint& side : {QPoint(0, 12), QPoint(79, 12), QPoint(40, 0), QPoint(40, 23)})
            EXPECT_GE(contrastRatio(image.pixelColor(side), dark().color(QPalette::Window)), 3)
                << side.x() << "," << side.y();
    EXPECT_NE(field(text, focused), field(text, resting));
    EXPECT_NE(field(combo, focused), field(combo, resting));
}

TEST(FocusRings, OfTicksAndTabsAreSeenOnLightAndDark)
{
    for (const QPalette& palette : {light(), dark()}) {
        QImage image(80, 24, QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        QStyleOptionFocusRect option;
        option.palette = palette;
        option.rect = image.rect();
        option.state = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        FrameStyle().drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, nullptr);
        EXPECT_GE(contrastRatio(image.pixelColor(40, 0), palette.color(QPalette::Window)), 3);
    }
}

// As rows are drawn in lists and trees.
TEST(Selections, AreDarkBlueAndPalerWithoutTheFocusAndCanBeReadInBoth)
{
    QWidget window;
    QListWidget list;
    list.addItems({QString(8, QChar(0x2588))}); // letters that fill their row
    list.setCurrentRow(0);
    QLineEdit other;
    QVBoxLayout rows(&window);
    rows.addWidget(&list);
    rows.addWidget(&other);
    window.show();
    makeActive(&window);
    const auto colours = [&] {
        const QRect row = list.visualItemRect(list.item(0));
        const QImage image = list.viewport()->grab().toImage();
        return std::pair(image.pixelColor(row.right() - 2, row.center().y()),
                         image.pixelColor(row.left() + 40, row.center().y()));
    };
    list.setFocus();
    const auto [face, letters] = colours();
    EXPECT_EQ(face, list.palette().color(QPalette::Active, QPalette::Highlight));
    EXPECT_GE(contrastRatio(face, letters), 4.5);
    other.setFocus();
    const auto [restingFace, restingLetters] = colours();
    EXPECT_GT(restingFace.lightness(), face.lightness());
    EXPECT_GE(contrastRatio(restingFace, restingLetters), 4.5);
}
