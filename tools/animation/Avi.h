#pragma once

#include <string>
#include <vector>

/// A silent clip: the frames are JPEG pictures, all of one size, shown one after another at a steady pace.
struct Clip
{
    int width;
    int height;
    int framesPerSecond;
    std::vector<std::string> frames;
};

/// The bytes of the clip as an AVI file (RIFF, one MJPEG stream, with an index).
std::string writeAvi(const Clip& clip);
