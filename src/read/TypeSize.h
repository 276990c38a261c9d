#pragma once

#include <QFont>

/// The type after this one on the button "Font Size": 6 points larger, and from 24 points back to 12.
QFont nextTypeSize(QFont font);

/// The type of the button "Font Face". toggle starts false, so the first press gives Times New Roman, the
/// next Tahoma.
QFont otherTypeFace(QFont font, bool& toggle);
