#include "clip/AviBytes.h"
#include "clip/AviReader.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QRandomGenerator>
#include <QtEndian>

using namespace AviBytes;
using std::chrono::microseconds;

namespace {
bool looksLike(const QImage& frame, const QColor& color)
{
    const QColor seen = frame.pixelColor(frame.width() / 2, frame.height() / 2);
    return qAbs(seen.red() - color.red()) < 8 && qAbs(seen.green() - color.green()) < 8 &&
           qAbs(seen.blue() - color.blue()) < 8;
}

QByteArray oneFrame()
{
    return chunk("00dc", jpeg(Qt::red));
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

TEST(AviReader, ReadsEveryFrameInOrder)
{
    const AviClip clip = readAvi(goodClip());
    ASSERT_EQ(clip.frames.size(), 3);
    EXPECT_EQ(clip.frameTime, microseconds(20'000));
    EXPECT_EQ(clip.frames[0].size(), QSize(24, 16));
    EXPECT_TRUE(looksLike(clip.frames[0], Qt::red));
    EXPECT_TRUE(looksLike(clip.frames[1], Qt::green));
    EXPECT_TRUE(looksLike(clip.frames[2], Qt::blue));
}

TEST(AviReader, ReadsTheInstalledClip)
{
    const QByteArray bytes = readAll(KESTREL_INSTALL_DIR "/SEARCH.AVI");
    ASSERT_FALSE(bytes.isEmpty()) << "SEARCH.AVI is not built";
    const qsizetype header = bytes.indexOf("avih");
    ASSERT_GT(header, 0);
    const auto told = qFromLittleEndian<quint32>(bytes.constData() + header + 8 + 16);
    const AviClip clip = readAvi(bytes);
    ASSERT_GT(told, 0u);
    EXPECT_EQ(clip.frames.size(), static_cast<qsizetype>(told));
    EXPECT_EQ(clip.frameTime.count(), qFromLittleEndian<quint32>(bytes.constData() + header + 8));
}

TEST(AviReader, ReadsFramesInRecordLists)
{
    const QByteArray movie =
        list("rec ", oneFrame() + chunk("01wb", "sound")) + list("rec ", chunk("00db", jpeg(Qt::blue)));
    const AviClip clip = readAvi(file(headers(20'000), movie));
    ASSERT_EQ(clip.frames.size(), 2);
    EXPECT_TRUE(looksLike(clip.frames[1], Qt::blue));
}

TEST(AviReader, SkipsChunksItDoesNotKnow)
{
    const QByteArray junk = chunk("JUNK", QByteArray(7, 'x'));
    const QByteArray bytes = chunk("RIFF", "AVI " + junk + headers(20'000) + junk +
                                               list("movi", junk + oneFrame() + junk + oneFrame()) +
                                               chunk("idx1", QByteArray(32, 0)));
    EXPECT_EQ(readAvi(bytes).frames.size(), 2);
}

TEST(AviReader, OnlyTheFirstStreamSaysHowPicturesAreKept)
{
    const QByteArray sound = list("strl", chunk("strf", QByteArray(40, 0)));
    const QByteArray picture = headers(20'000).sliced(12); // the items of the header list
    const QByteArray bytes = file(list("hdrl", picture + sound), oneFrame());
    EXPECT_EQ(readAvi(bytes).frames.size(), 1);
}

TEST(AviReader, ReadsJpegPicturesWhereNoHeaderSaysHowTheyAreKept)
{
    const QList<QImage> frames = readAvi(file(QByteArray(), oneFrame())).frames;
    ASSERT_EQ(frames.size(), 1);
    EXPECT_TRUE(looksLike(frames[0], Qt::red));
}

TEST(AviReader, ReadsUncompressedPicturesOf24Bits)
{
    // Two rows of three pixels, the bottom row first, each row filled up to twelve bytes.
    const QByteArray bottom = QByteArray::fromHex("0000ff 0000ff 0000ff 000000");
    const QByteArray top = QByteArray::fromHex("ff0000 00ff00 0000ff 000000");
    const AviClip clip = readAvi(file(headers(20'000, 3, 2, 24), chunk("00db", bottom + top)));
    ASSERT_EQ(clip.frames.size(), 1);
    EXPECT_EQ(clip.frames[0].pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(clip.frames[0].pixelColor(1, 0), QColor(Qt::green));
    EXPECT_EQ(clip.frames[0].pixelColor(2, 0), QColor(Qt::red));
    EXPECT_EQ(clip.frames[0].pixelColor(0, 1), QColor(Qt::red));
}

TEST(AviReader, ReadsUncompressedPicturesOf32BitsTopRowFirst)
{
    const QByteArray rows = QByteArray::fromHex("ff000000 00ff0000");
    const AviClip clip = readAvi(file(headers(20'000, 1, -2, 32), chunk("00db", rows)));
    ASSERT_EQ(clip.frames.size(), 1);
    EXPECT_EQ(clip.frames[0].pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(clip.frames[0].pixelColor(0, 1), QColor(Qt::green));
}

TEST(AviReader, KeepsNoHoldOfTheBytes)
{
    for (const int height : {1, -1}) {
        QByteArray bytes =
            file(headers(20'000, 1, height, 32), chunk("00db", QByteArray::fromHex("ff000000")));
        const AviClip clip = readAvi(bytes);
        ASSERT_EQ(clip.frames.size(), 1);
        bytes.fill(0);
        EXPECT_EQ(clip.frames[0].pixelColor(0, 0), QColor(Qt::blue)) << height;
    }
}

TEST(AviReader, LeavesOutUncompressedPicturesThatCannotBe)
{
    struct Row
    {
        int width, height, bits;
    };
    for (const Row row :
         {Row{3, 3, 24}, Row{65535, 65535, 24}, Row{65535, 65535, 32}, Row{0, 2, 24}, Row{3, 0, 24},
          Row{-3, 2, 24}, Row{3, 2, 16}, Row{3, INT_MIN, 32}, Row{INT_MAX, INT_MAX, 32}}) {
        const QByteArray bytes =
            file(headers(20'000, row.width, row.height, row.bits), chunk("00db", QByteArray(24, 0)));
        EXPECT_TRUE(readAvi(bytes).frames.isEmpty()) << row.width << " x " << row.height << ", " << row.bits;
    }
}

TEST(AviReader, NoTimePerFrameMeansTenFramesASecond)
{
    EXPECT_EQ(readAvi(file(headers(0), oneFrame())).frameTime, microseconds(100'000));
    EXPECT_EQ(readAvi(file(QByteArray(), oneFrame())).frameTime, microseconds(100'000));
}

TEST(AviReader, AHeaderNeedsToHoldNoMoreThanTheTimePerFrame)
{
    const QByteArray time = littleEndian(20'000);
    EXPECT_EQ(readAvi(file(list("hdrl", chunk("avih", time)), oneFrame())).frameTime, microseconds(20'000));
    EXPECT_EQ(readAvi(file(list("hdrl", chunk("avih", time.first(3))), oneFrame())).frameTime,
              microseconds(100'000));
}

TEST(AviReader, BytesThatAreNoClipGiveNoFrames)
{
    EXPECT_TRUE(readAvi(QByteArrayView()).frames.isEmpty());
    EXPECT_TRUE(readAvi(goodClip().first(60)).frames.isEmpty());
    EXPECT_TRUE(readAvi(goodClip().replace("AVI ", "WAVE")).frames.isEmpty());
}

TEST(AviReader, NoiseAnywhereInAClipOnlyLosesFrames)
{
    for (quint32 seed = 1; seed <= 300; ++seed) {
        QRandomGenerator random(seed);
        QByteArray clip = goodClip();
        for (int i = 0; i < 40; ++i)
            clip[random.bounded(clip.size())] = static_cast<char>(random.bounded(256));
        const AviClip read = readAvi(clip);
        EXPECT_LE(read.frames.size(), 3) << "seed " << seed;
        EXPECT_GT(read.frameTime.count(), 0) << "seed " << seed;
    }
}

TEST(AviReader, AClipCutAnywhereKeepsItsWholeFrames)
{
    const QByteArray clip = goodClip();
    qsizetype before = 0;
    for (qsizetype length = 0; length <= clip.size(); ++length) {
        const qsizetype frames = readAvi(clip.first(length)).frames.size();
        EXPECT_GE(frames, before);
        before = frames;
    }
    EXPECT_EQ(before, 3);
    EXPECT_EQ(readAvi(clip.chopped(2)).frames.size(), 2) << "the last frame is not whole";
}

TEST(AviReader, NoiseInTheFramesLeavesTheOthers)
{
    const QByteArray movie = oneFrame() + chunk("00dc", QByteArray(500, 'x')) + oneFrame();
    EXPECT_EQ(readAvi(file(headers(20'000), movie)).frames.size(), 2);
}

TEST(AviReader, AHugeLengthEndsTheClip)
{
    for (const quint32 length : {0x7fffffffu, 0xfffffff7u, 0xffffffffu}) {
        const QByteArray huge = "00dc" + littleEndian(length) + jpeg(Qt::green);
        EXPECT_EQ(readAvi(file(headers(20'000), oneFrame() + huge)).frames.size(), 1);
    }
}

TEST(AviReader, LeavesOutAHugeJpeg)
{
    for (const QByteArray& sides : {QByteArray("\x13\x88\x13\x88"), QByteArray("\xff\xff\xff\xff")}) {
        QByteArray picture = jpeg(Qt::red);
        const qsizetype frameHeader = picture.indexOf("\xff\xc0");
        ASSERT_GT(frameHeader, 0);
        picture.replace(frameHeader + 5, 4, sides);
        EXPECT_EQ(readAvi(file(headers(20'000), chunk("00dc", picture) + oneFrame())).frames.size(), 1);
    }
}

TEST(AviReader, StopsAtAThousandFrames)
{
    const QByteArray frame = chunk("00db", QByteArray(4, 0));
    EXPECT_EQ(readAvi(file(headers(20'000, 1, 1, 32), frame.repeated(1'500))).frames.size(), 1'000);
}

TEST(AviReader, DamagedFramesCountToo)
{
    const QByteArray movie = chunk("00db", QByteArray()).repeated(999);
    const QByteArray sound = chunk("00db", QByteArray(4, 0)).repeated(3);
    EXPECT_EQ(readAvi(file(headers(20'000, 1, 1, 32), movie + sound)).frames.size(), 1);
}

TEST(AviReader, StopsBeforeItsFramesFillTheMemory)
{
    const QByteArray frame = chunk("00dc", jpeg(Qt::gray, 4096, 1024)); // 16 MiB decoded
    EXPECT_EQ(readAvi(file(headers(20'000), frame.repeated(6))).frames.size(), 4);
    EXPECT_EQ(readAvi(file(headers(20'000), frame.repeated(4) + oneFrame())).frames.size(), 4);
}

TEST(AviReader, ReadsPicturesOf4096PixelsASideAndNoLargerOnes)
{
    const auto framesOf = [](int width, int height) {
        const QByteArray picture(4 * width * height, 0);
        return readAvi(file(headers(20'000, width, height, 32), chunk("00db", picture))).frames.size();
    };
    EXPECT_EQ(framesOf(4096, 1), 1);
    EXPECT_EQ(framesOf(1, 4096), 1);
    EXPECT_EQ(framesOf(4097, 1), 0);
    EXPECT_EQ(framesOf(1, 4097), 0);
}

TEST(AviReader, ThePictureHeaderNeedsToReachToTheCompression)
{
    const QByteArray picture = littleEndian(40) + littleEndian(1) + littleEndian(1) +
                               littleEndian(1u | 32u << 16) + QByteArray(4, 0);
    const auto framesWith = [](const QByteArray& header) {
        const QByteArray headers = list("hdrl", list("strl", chunk("strf", header)));
        return readAvi(file(headers, chunk("00db", QByteArray(4, 0)))).frames.size();
    };
    EXPECT_EQ(framesWith(picture), 1);
    EXPECT_EQ(framesWith(picture.chopped(1)), 0) << "taken for JPEG";
}
