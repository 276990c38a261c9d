// Any bytes at all must give a clip within its limits.
#include "clip/AviReader.h"
#include <cstdlib>
#include <QCoreApplication>
#include <QLoggingCategory>

namespace {
void require(bool condition)
{
    if (!condition)
        std::abort();
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication application(*argc, *argv); // finds the JPEG plugin
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const AviClip clip = readAvi(QByteArrayView(data, static_cast<qsizetype>(size)));
    require(clip.frameTime.count() > 0);
    require(clip.frames.size() <= AviLimits::frames);
    qint64 decoded = 0;
    for (const QImage& frame : clip.frames) {
        require(!frame.isNull() && frame.width() <= AviLimits::side && frame.height() <= AviLimits::side);
        decoded += frame.sizeInBytes();
    }
    require(decoded <= AviLimits::decodedBytes);
    return 0;
}
