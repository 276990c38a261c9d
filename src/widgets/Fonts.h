#pragma once

#include <QFont>

/// The faces the windows name. Where a system lacks them, substitutes of nearly the same widths stand in
/// (Fonts::install).
namespace Fonts {

inline const QString tahoma = QStringLiteral("Tahoma");
inline const QString timesNewRoman = QStringLiteral("Times New Roman");

/// Tahoma in a size in points, for what wraps or scrolls.
QFont tahomaOf(int points);

/// The same for controls, whose sizes are fixed: a wider font that stands in is made as narrow as they need.
QFont captionsOf(int points);

/// Declares the substitutes, and adds the fonts of `folder`, which a copy that is taken along has; once,
/// before the first window.
void install(const QString& folder);

} // namespace Fonts
