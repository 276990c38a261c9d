#pragma once

#include <QImage>
#include <QString>

/// The title of the box in which copyOrReport() reports.
inline constexpr char clipboardErrorTitle[] = "Clipboard Error";

/// Clears the clipboard and puts a text on it, as plain text alone and to the letter (CR LF stay). A desktop
/// that does not take it is reported in a box, and nothing else changes; false then.
bool copyOrReport(const QString& text);

/// The same with a picture.
bool copyOrReport(const QImage& picture);
