#include "clip/AviBytes.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

namespace AviBytes {
QByteArray littleEndian(quint32 value)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const char* id, const QByteArray& data)
{
    const QByteArray padding(data.size() % 2, 0);
    return QByteArray(id) + littleEndian(static_cast<quint32>(data.size())) + data + padding;
}

QByteArray list(const char* type, const QByteArray& items)
{
    return chunk("LIST", QByteArray(type) + items);
}

QByteArray jpeg(const QColor& color, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 95);
    return bytes;
}

QByteArray headers(quint32 microseconds, int width, int height, int bits)
{
    const QByteArray main = littleEndian(microseconds) + QByteArray(52, 0);
    const QByteArray picture = littleEndian(40) + littleEndian(static_cast<quint32>(width)) +
                               littleEndian(static_cast<quint32>(height)) +
                               littleEndian(1u | static_cast<quint32>(bits) << 16) +
                               (bits == 0 ? QByteArray("MJPG") : QByteArray(4, 0)) + QByteArray(20, 0);
    const QByteArray stream = chunk("strh", "vids" + QByteArray(52, 0)) + chunk("strf", picture);
    return list("hdrl", chunk("avih", main) + list("strl", stream));
}

QByteArray file(const QByteArray& headers, const QByteArray& movie)
{
    return chunk("RIFF", "AVI " + headers + list("movi", movie));
}

QByteArray goodClip()
{
    return file(headers(20'000), chunk("00dc", jpeg(Qt::red)) + chunk("00dc", jpeg(Qt::green)) +
                                     chunk("00dc", jpeg(Qt::blue)));
}
} // namespace AviBytes
