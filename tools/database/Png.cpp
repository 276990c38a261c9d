#include "database/Png.h"

#include "importer/InputError.h"
#include <cmath>
#include <cstdint>

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
constexpr double screenPixelsPerMetre = 96 / 0.0254;
/// Length and type before a chunk's data, checksum after it.
constexpr std::size_t chunkOverhead = 12;

std::uint32_t readNumber(std::string_view bytes)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
}

std::string writeNumber(std::uint32_t number)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift & 0xff);
    return bytes;
}

/// The checksum of chunks: CRC-32 of type and data.
std::uint32_t checksum(std::string_view bytes)
{
    std::uint32_t crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? crc >> 1 ^ 0xedb88320 : crc >> 1;
    }
    return ~crc;
}

std::string makeChunk(std::string_view type, const std::string& data)
{
    const std::string body = std::string(type) + data;
    return writeNumber(static_cast<std::uint32_t>(data.size())) + body + writeNumber(checksum(body));
}

/// Takes the first chunk off the rest of a picture.
std::string_view takeChunk(std::string_view& rest)
{
    if (rest.size() < chunkOverhead || readNumber(rest) > rest.size() - chunkOverhead)
        throw InputError("the PNG picture is cut off.");
    const std::string_view chunk = rest.substr(0, readNumber(rest) + chunkOverhead);
    const std::string_view body = chunk.substr(4, chunk.size() - 8);
    if (readNumber(chunk.substr(chunk.size() - 4)) != checksum(body))
        throw InputError("the PNG picture is damaged.");
    rest.remove_prefix(chunk.size());
    return chunk;
}

std::string_view chunkType(std::string_view chunk)
{
    return chunk.substr(4, 4);
}

std::uint32_t pixelsPerMetre(std::uint32_t pixels, int naturalPixels)
{
    return static_cast<std::uint32_t>(std::lround(pixels * screenPixelsPerMetre / naturalPixels));
}

std::string resolutionChunk(std::string_view header, int width, int height)
{
    constexpr char metre = 1;
    const std::string_view size = header.substr(8);
    return makeChunk("pHYs", writeNumber(pixelsPerMetre(readNumber(size), width)) +
                                 writeNumber(pixelsPerMetre(readNumber(size.substr(4)), height)) + metre);
}

} // namespace

bool isPng(std::string_view picture)
{
    return picture.starts_with(signature);
}

std::string withNaturalSize(std::string_view png, int width, int height)
{
    if (!isPng(png))
        throw InputError("the picture is not a PNG.");
    std::string_view rest = png.substr(signature.size());
    const std::string_view header = takeChunk(rest);
    if (chunkType(header) != "IHDR" || header.size() != 13 + chunkOverhead)
        throw InputError("the PNG picture does not begin with its header.");

    std::string result =
        std::string(signature) + std::string(header) + resolutionChunk(header, width, height);
    std::string_view chunk;
    do {
        chunk = takeChunk(rest);
        if (chunkType(chunk) != "pHYs")
            result += chunk;
    } while (chunkType(chunk) != "IEND");
    return result;
}
