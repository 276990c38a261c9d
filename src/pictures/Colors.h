#pragma once

#include <QColor>

/// The colours that the program's pictures are drawn in, chosen by the face they stand on.
struct PictureColors
{
    QColor line;   ///< outlines: slate, as a kestrel's head and tail
    QColor paper;  ///< pages, maps, glass
    QColor accent; ///< what acts: chestnut, as a kestrel's back
    QColor cool;   ///< what informs: steel blue
};

/// The ink for pictures on this face; a disabled picture is drawn in one pale grey.
PictureColors pictureColors(const QColor& face, bool enabled = true);

/// The colour of a focus ring on this face: blue where blue stands out, else black or white. At least 3:1.
QColor focusRingColor(const QColor& face);

/// Contrast between two opaque colours, 1 (none) to 21 (black on white).
double contrastRatio(const QColor& one, const QColor& other);

/// Whether black stands out from a colour at least as well as white.
bool isLight(const QColor& color);

/// The colour that lies at share (0 to 1) of the way from one colour to another.
QColor blended(const QColor& from, const QColor& to, double share);
