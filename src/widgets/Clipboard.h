#pragma once

#include <QImage>
#include <QString>
#include <stdexcept>

/// The clipboard could not be written.
class ClipboardError : public std::runtime_error
{
public:
    ClipboardError()
        : std::runtime_error("Can't open Clipboard")
    {
    }
    int number() const { return 521; }
};

/// Clears the clipboard and puts a text on it, as plain text alone and to the letter (CR LF stay).
/// Throws ClipboardError when the platform does not take it.
void copyText(const QString& text);

/// The same with a picture.
void copyPicture(const QImage& picture);

/// copyText(), with the failure reported in a box.
void copyTextOrReport(const QString& text);

/// copyPicture(), with the failure reported in a box.
void copyPictureOrReport(const QImage& picture);
