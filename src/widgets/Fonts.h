#pragma once

#include <QFont>

/// The faces the windows name. Where a system lacks them, substitutes of nearly the same widths stand in
/// (Fonts::install).
namespace Fonts {

inline const QString tahoma = QStringLiteral("Tahoma");
inline const QString timesNewRoman = QStringLiteral("Times New Roman");

/// Tahoma in a size in points.
QFont tahomaOf(int points);

/// Declares the substitutes; once, before the first window.
void install();

} // namespace Fonts
