// Any bytes at all in the place of a map's picture must give a picture of a size that maps have, or none.
#include "maps/MapPicture.h"
#include <cstdlib>
#include <QCoreApplication>
#include <QLoggingCategory>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication application(*argc, *argv); // finds the picture plugins
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QImage image =
        decodedImage(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!image.isNull() && (image.width() < 1 || image.height() < 1 || naturalExtent(image).isEmpty()))
        std::abort();
    return 0;
}
