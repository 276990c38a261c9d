#include "widgets/Fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

namespace {

constexpr double designedWidth = 12.73; ///< of the alphabet in Liberation Sans, in multiples of the type size
constexpr double tolerance = 1.03;

double widthOf(QFont font)
{
    constexpr int exactEnough = 100;
    font.setPixelSize(exactEnough);
    return QFontMetricsF(font).horizontalAdvance("abcdefghijklmnopqrstuvwxyz") / exactEnough;
}

} // namespace

QFont Fonts::tahomaOf(int points)
{
    QFont font(tahoma, points);
    font.setStretch(QFont::AnyStretch); // else QFont::resolve() takes the stretch of the application's font
    return font;
}

QFont Fonts::captionsOf(int points)
{
    QFont font = tahomaOf(points);
    const double width = widthOf(font);
    if (width > designedWidth * tolerance)
        font.setStretch(static_cast<int>(100 * designedWidth / width));
    return font;
}

void Fonts::install(const QString& folder)
{
    const QDir fonts(folder);
    for (const QString& file : fonts.entryList({"*.ttf"}))
        QFontDatabase::addApplicationFont(fonts.filePath(file));
    // Measured on the Bible's text, Liberation Sans is within 1 % of Tahoma's width, and Liberation Serif as
    // wide as Times New Roman.
    QFont::insertSubstitutions(tahoma, {"Liberation Sans", "DejaVu Sans Condensed"});
    QFont::insertSubstitutions(timesNewRoman, {"Liberation Serif", "Tinos"});
}
