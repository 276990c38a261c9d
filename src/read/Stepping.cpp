#include "read/Stepping.h"

double leadingNumber(const QString& text)
{
    const QString number = text.trimmed();
    qsizetype end = number.startsWith('-') ? 1 : 0;
    while (end < number.size() && number[end] >= '0' && number[end] <= '9')
        ++end;
    return number.left(end).toDouble();
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
