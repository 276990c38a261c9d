#pragma once

class QMdiArea;

/// Sets the minimised windows side by side along the bottom of the area, from the left, further rows above.
void lineUpIcons(QMdiArea& area);
