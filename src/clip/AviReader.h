#pragma once

#include <chrono>
#include <QByteArrayView>
#include <QImage>
#include <QList>

/// The pictures of a clip, decoded, each to be shown for the same time. A damaged file may give none.
struct AviClip
{
    std::chrono::microseconds frameTime; ///< never 0
    QList<QImage> frames;
};

namespace AviLimits {
constexpr int frames = 1'000;                             ///< sound or damaged
constexpr int side = 4'096;                               ///< pixels
constexpr qint64 decodedBytes = qint64(64) * 1024 * 1024; ///< all frames together
} // namespace AviLimits

/// Reads the frames of an AVI clip: motion JPEG, or uncompressed pictures of 24 or 32 bits.
///
///     RIFF 'AVI '
///       LIST hdrl            avih: microseconds per frame
///         LIST strl          strf: size, depth and compression of the first stream's pictures
///       LIST movi            00dc, 00db: one frame each, at times gathered in LIST rec
///
/// Every length is held against the bytes that are there; chunks of other kinds are skipped. A frame that is
/// cut off, damaged or too large is left out, so any bytes at all give a clip, if need be one without frames.
AviClip readAvi(QByteArrayView bytes);
