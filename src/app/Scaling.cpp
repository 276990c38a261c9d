#include "app/Scaling.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QList>
#include <QScreen>

namespace {

/// A number by which Qt scales, in an environment variable; in a list of them, one for each screen.
struct Setting
{
    const char* name;
    double min;
    double max;
};

constexpr double minFactor = 0.25;
constexpr double maxFactor = 8;

constexpr Setting settings[] = {
    {"QT_SCALE_FACTOR", minFactor, maxFactor},
    {"QT_SCREEN_SCALE_FACTORS", minFactor, maxFactor},
    {"QT_FONT_DPI", 24, 768},
};

// "2", or "1;2", or "HDMI-1=2;eDP-1=1.5"; "nan" is a number to QByteArray, and within no bounds.
bool makesSense(const Setting& setting, const QByteArray& value)
{
    for (const QByteArray& part : value.split(';')) {
        const double number = part.mid(part.lastIndexOf('=') + 1).toDouble();
        if (!(number >= setting.min && number <= setting.max))
            return false;
    }
    return true;
}

} // namespace

void ignoreSenselessScaling()
{
    for (const Setting& setting : settings)
        if (qEnvironmentVariableIsSet(setting.name) && !makesSense(setting, qgetenv(setting.name)))
            qunsetenv(setting.name);
}

bool isScreenUsable()
{
    const double factor = QGuiApplication::primaryScreen()->devicePixelRatio();
    return factor >= minFactor && factor <= maxFactor;
}
