#include "read/Stepping.h"

#include <QRegularExpression>
#include <QtMath>

double leadingNumber(const QString& text)
{
    static const QRegularExpression number(R"(^\s*([+-]?\d+(\.\d*)?))");
    return number.match(text).captured(1).toDouble();
}

std::int32_t verseAfter(const QString& serial)
{
    const double shown = leadingNumber(serial);
    return shown == lastVerse ? 1 : static_cast<std::int32_t>(shown + 1);
}

std::int32_t verseBefore(const QString& serial)
{
    const double shown = leadingNumber(serial);
    return shown == 1 ? lastVerse : static_cast<std::int32_t>(shown - 1);
}

int intervalOf(const QString& seconds)
{
    return qRound(leadingNumber(seconds) * 1000);
}
