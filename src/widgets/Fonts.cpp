#include "widgets/Fonts.h"

#include <QStringList>

QFont Fonts::tahomaOf(int points)
{
    return QFont(tahoma, points);
}

void Fonts::install()
{
    // Measured against the named faces on the Bible's text: within 1 % of Tahoma's width, the same as Times
    // New Roman's.
    QFont::insertSubstitutions(tahoma, {"Liberation Sans", "DejaVu Sans Condensed"});
    QFont::insertSubstitutions(timesNewRoman, {"Liberation Serif", "Tinos"});
}
