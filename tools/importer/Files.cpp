#include "importer/Files.h"

#include "importer/InputError.h"
#include <fstream>
#include <iterator>

std::string readFile(const std::filesystem::path& path)
{
    // A folder opens, but does not read.
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open() || std::filesystem::is_directory(path))
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
