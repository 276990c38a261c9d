#include "read/TypeSize.h"

#include "widgets/Fonts.h"

QFont nextTypeSize(QFont font)
{
    font.setPointSize(font.pointSize() == 24 ? 12 : font.pointSize() + 6);
    return font;
}

QFont otherTypeFace(QFont font, bool& toggle)
{
    font.setFamily(toggle ? Fonts::tahoma : Fonts::timesNewRoman);
    toggle = !toggle;
    return font;
}
