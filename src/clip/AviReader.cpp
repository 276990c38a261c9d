#include "clip/AviReader.h"

#include <algorithm>
#include <optional>
#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

namespace {

constexpr std::chrono::microseconds usualFrameTime(100'000);

struct Chunk
{
    QByteArrayView id;
    QByteArrayView data;
    bool whole; // false when the file ends before the chunk does

    // The type of a list, "" of any other chunk.
    QByteArrayView listType() const { return isList() ? data.first(4) : QByteArrayView(""); }
    QByteArrayView listItems() const { return data.sliced(4); }

private:
    bool isList() const { return (id == "LIST" || id == "RIFF") && data.size() >= 4; }
};

// Walks the chunks that stand one after another in some bytes.
class Chunks
{
public:
    explicit Chunks(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    std::optional<Chunk> next()
    {
        constexpr qsizetype head = 8;
        if (m_rest.size() < head)
            return std::nullopt;
        const qsizetype length = qFromLittleEndian<quint32>(m_rest.data() + 4);
        const qsizetype left = m_rest.size() - head;
        const qsizetype kept = qMin(length, left);
        const Chunk chunk{m_rest.first(4), m_rest.sliced(head, kept), length <= left};
        const qsizetype padding = length % 2;
        m_rest = m_rest.sliced(qMin(head + kept + padding, m_rest.size()));
        return chunk;
    }

private:
    QByteArrayView m_rest;
};

// How the pictures of the first stream are kept; as JPEG unless a header says otherwise.
struct PictureFormat
{
    bool uncompressed = false;
    qint32 width = 0;
    qint32 height = 0; // negative: the top row comes first
    int bits = 0;
};

std::optional<PictureFormat> readFormat(QByteArrayView header)
{
    constexpr qsizetype minBytes = 20; // up to the field of the compression
    if (header.size() < minBytes)
        return std::nullopt;
    return PictureFormat{
        qFromLittleEndian<quint32>(header.data() + 16) == 0, qFromLittleEndian<qint32>(header.data() + 4),
        qFromLittleEndian<qint32>(header.data() + 8), qFromLittleEndian<quint16>(header.data() + 14)};
}

/// What a clip may still cost. It is charged before a frame is decoded, so that damaged frames cost as much
/// as sound ones.
class Budget
{
public:
    bool takeFrame() { return m_frames-- > 0; }

    /// Whether a picture of this size is within the limits and can still be afforded.
    bool takePicture(qint64 width, qint64 height)
    {
        if (width < 1 || width > AviLimits::side || height < 1 || height > AviLimits::side)
            return false;
        m_bytes -= width * height * 4;
        return m_bytes >= 0;
    }

private:
    int m_frames = AviLimits::frames;
    qint64 m_bytes = AviLimits::decodedBytes;
};

/// What QImage::mirrored() gives, which Qt 6.11 calls deprecated, while flipped() is younger than Qt 6.4.
QImage upsideDown(const QImage& image)
{
    QImage turned(image.size(), image.format());
    for (int y = 0; y < turned.height(); ++y)
        std::copy_n(image.constScanLine(image.height() - 1 - y), image.bytesPerLine(), turned.scanLine(y));
    return turned;
}

QImage decodeUncompressed(QByteArrayView data, const PictureFormat& format, Budget& budget)
{
    const qint64 width = format.width;
    const qint64 height = qAbs(static_cast<qint64>(format.height));
    if ((format.bits != 24 && format.bits != 32) || !budget.takePicture(width, height))
        return {};
    const qint64 stride = (width * format.bits / 8 + 3) / 4 * 4;
    if (data.size() < stride * height)
        return {};
    const auto layout = format.bits == 24 ? QImage::Format_BGR888 : QImage::Format_RGB32;
    const QImage borrowed(reinterpret_cast<const uchar*>(data.data()), static_cast<int>(width),
                          static_cast<int>(height), stride, layout);
    // A picture that needs no change would go on borrowing the clip's bytes.
    const QImage image = borrowed.copy().convertToFormat(QImage::Format_RGB32);
    return format.height > 0 ? upsideDown(image) : image;
}

QImage decodeJpeg(QByteArrayView data, Budget& budget)
{
    QByteArray bytes = QByteArray::fromRawData(data.data(), data.size());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!budget.takePicture(size.width(), size.height()))
        return {};
    return reader.read().convertToFormat(QImage::Format_RGB32);
}

class Reader
{
public:
    AviClip read(QByteArrayView bytes)
    {
        const std::optional<Chunk> file = Chunks(bytes).next();
        if (file && file->id == "RIFF" && file->listType() == "AVI ")
            readFile(file->listItems());
        return {m_frameTime, m_frames};
    }

private:
    void readFile(QByteArrayView bytes)
    {
        Chunks chunks(bytes);
        while (const auto chunk = chunks.next()) {
            if (chunk->listType() == "hdrl")
                readHeaders(chunk->listItems());
            else if (chunk->listType() == "movi")
                readFrames(chunk->listItems());
        }
    }

    void readHeaders(QByteArrayView bytes)
    {
        Chunks chunks(bytes);
        while (const auto chunk = chunks.next()) {
            if (chunk->id == "avih" && chunk->data.size() >= 4) {
                const std::chrono::microseconds time(qFromLittleEndian<quint32>(chunk->data.data()));
                m_frameTime = time.count() > 0 ? time : usualFrameTime;
            } else if (chunk->listType() == "strl" && !m_streamSeen) {
                m_streamSeen = true;
                readStream(chunk->listItems());
            }
        }
    }

    void readStream(QByteArrayView bytes)
    {
        Chunks chunks(bytes);
        while (const auto chunk = chunks.next()) {
            if (chunk->id == "strf")
                m_format = readFormat(chunk->data).value_or(m_format);
        }
    }

    void readFrames(QByteArrayView bytes)
    {
        Chunks chunks(bytes);
        while (const auto chunk = chunks.next()) {
            if (chunk->listType() == "rec ")
                readRecord(chunk->listItems());
            else
                readFrame(*chunk);
        }
    }

    void readRecord(QByteArrayView bytes)
    {
        Chunks chunks(bytes);
        while (const auto chunk = chunks.next())
            readFrame(*chunk);
    }

    void readFrame(const Chunk& chunk)
    {
        if (!chunk.whole || (chunk.id != "00dc" && chunk.id != "00db") || !m_budget.takeFrame())
            return;
        const QImage frame = m_format.uncompressed ? decodeUncompressed(chunk.data, m_format, m_budget)
                                                   : decodeJpeg(chunk.data, m_budget);
        if (!frame.isNull())
            m_frames.append(frame);
    }

    std::chrono::microseconds m_frameTime = usualFrameTime;
    QList<QImage> m_frames;
    PictureFormat m_format;
    Budget m_budget;
    bool m_streamSeen = false;
};

} // namespace

AviClip readAvi(QByteArrayView bytes)
{
    return Reader().read(bytes);
}
