#include "importer/Files.h"

#include "importer/InputError.h"
#include <cstdint>
#include <fstream>
#include <iterator>

namespace {

constexpr std::uintmax_t maxBytes = 64 << 20; // the text has 4 MB, a map's picture a fifth of one

} // namespace

std::string readFile(const std::filesystem::path& path)
{
    // A folder opens, but does not read; a pipe may never end.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw InputError("Cannot read " + path.string() + ".");
    if (std::filesystem::file_size(path, error) > maxBytes)
        throw InputError(path.string() + " is larger than 64 MB, which no input is.");
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open())
        throw InputError("Cannot read " + path.string() + ".");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const std::filesystem::path& path, std::string_view bytes)
{
    const std::filesystem::path unfinished = path.string() + ".new";
    std::ofstream file(unfinished, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    std::error_code error;
    if (file)
        std::filesystem::rename(unfinished, path, error);
    if (!file || error) {
        std::filesystem::remove(unfinished, error);
        throw InputError("Cannot write " + path.string() + ".");
    }
}
