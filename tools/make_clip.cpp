// Draws the clip that plays during a search: make_clip OUT

#include "animation/Avi.h"
#include "animation/SearchScene.h"
#include "importer/Files.h"
#include <exception>
#include <iostream>
#include <QBuffer>
#include <QByteArray>

namespace {

constexpr int framesPerSecond = 12;
constexpr int frameCount = 30;
constexpr int jpegQuality = 88;

std::string jpeg(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "JPEG", jpegQuality))
        throw std::runtime_error("Qt cannot write JPEG pictures; is its JPEG plugin installed?");
    return bytes.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "Usage: make_clip OUT\n";
        return 2;
    }
    try {
        Clip clip{sceneWidth, sceneHeight, framesPerSecond, {}};
        for (int frame = 0; frame < frameCount; ++frame)
            clip.frames.push_back(jpeg(drawSearchScene(static_cast<double>(frame) / frameCount)));
        writeFile(argv[1], writeAvi(clip));
    } catch (const std::exception& error) {
        std::cerr << "make_clip: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
