#pragma once

#include <QByteArray>
#include <QColor>

/// Small AVI clips, made byte by byte.
namespace AviBytes {
QByteArray littleEndian(quint32 value);
QByteArray chunk(const char* id, const QByteArray& data);
QByteArray list(const char* type, const QByteArray& items);

/// A JPEG picture of one colour.
QByteArray jpeg(const QColor& color, int width = 24, int height = 16);

/// The header list: motion JPEG for 0 bits, else uncompressed pictures.
QByteArray headers(quint32 microseconds, int width = 24, int height = 16, int bits = 0);

/// A whole file of a header list and the items of the list "movi".
QByteArray file(const QByteArray& headers, const QByteArray& movie);

/// The clip that most tests begin with: red, green and blue, 20 ms each.
QByteArray goodClip();
} // namespace AviBytes
