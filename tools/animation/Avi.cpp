#include "animation/Avi.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

constexpr std::uint32_t hasIndex = 0x10;
constexpr std::uint32_t isKeyFrame = 0x10;
/// Where the index counts from: the "movi" that follows the list's head.
constexpr std::uint32_t firstFrameOffset = 4;

std::string number(std::uint32_t value, int bytes)
{
    std::string result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(value >> (8 * i) & 0xff);
    return result;
}

std::string number32(std::size_t value)
{
    return number(static_cast<std::uint32_t>(value), 4);
}

std::string number16(int value)
{
    return number(static_cast<std::uint32_t>(value), 2);
}

/// Chunks begin at even places; the length does not count the byte that sees to it.
std::string chunk(std::string_view type, const std::string& data)
{
    return std::string(type) + number32(data.size()) + data + std::string(data.size() % 2, '\0');
}

std::string list(std::string_view type, const std::string& content)
{
    return chunk("LIST", std::string(type) + content);
}

std::size_t largestFrame(const Clip& clip)
{
    std::size_t largest = 0;
    for (const std::string& frame : clip.frames)
        largest = std::max(largest, frame.size());
    return largest;
}

std::string mainHeader(const Clip& clip)
{
    const std::size_t microseconds = 1000000 / static_cast<std::size_t>(clip.framesPerSecond);
    const std::size_t bytesPerSecond = largestFrame(clip) * static_cast<std::size_t>(clip.framesPerSecond);
    const std::string padding = number32(0);
    const std::string initialFrames = number32(0);
    const std::string streams = number32(1);
    const std::string reserved(16, '\0');
    return chunk("avih", number32(microseconds) + number32(bytesPerSecond) + padding + number32(hasIndex) +
                             number32(clip.frames.size()) + initialFrames + streams +
                             number32(largestFrame(clip)) + number32(static_cast<std::size_t>(clip.width)) +
                             number32(static_cast<std::size_t>(clip.height)) + reserved);
}

std::string streamHeader(const Clip& clip)
{
    const std::string flags = number32(0);
    const std::string priorityAndLanguage = number32(0);
    const std::string initialFrames = number32(0);
    const std::string scale = number32(1);
    const std::string start = number32(0);
    const std::string defaultQuality = number32(0xffffffff);
    const std::string sampleSize = number32(0);
    const std::string place = number16(0) + number16(0) + number16(clip.width) + number16(clip.height);
    return chunk("strh", std::string("vidsMJPG") + flags + priorityAndLanguage + initialFrames + scale +
                             number32(static_cast<std::size_t>(clip.framesPerSecond)) + start +
                             number32(clip.frames.size()) + number32(largestFrame(clip)) + defaultQuality +
                             sampleSize + place);
}

std::string pictureFormat(const Clip& clip)
{
    constexpr std::size_t headerSize = 40;
    const std::string planes = number16(1);
    const std::string bitsPerPixel = number16(24);
    const auto pixels = static_cast<std::size_t>(clip.width) * static_cast<std::size_t>(clip.height);
    const std::string resolutionAndPalette(16, '\0');
    return chunk("strf", number32(headerSize) + number32(static_cast<std::size_t>(clip.width)) +
                             number32(static_cast<std::size_t>(clip.height)) + planes + bitsPerPixel +
                             "MJPG" + number32(pixels * 3) + resolutionAndPalette);
}

} // namespace

std::string writeAvi(const Clip& clip)
{
    std::string frames;
    std::string index;
    for (const std::string& frame : clip.frames) {
        index += "00dc" + number32(isKeyFrame) + number32(firstFrameOffset + frames.size()) +
                 number32(frame.size());
        frames += chunk("00dc", frame);
    }
    const std::string stream = list("strl", streamHeader(clip) + pictureFormat(clip));
    return chunk("RIFF", "AVI " + list("hdrl", mainHeader(clip) + stream) + list("movi", frames) +
                             chunk("idx1", index));
}
