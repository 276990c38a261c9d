#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The bytes of a file. Throws InputError with its path when it cannot be read, is no regular file or larger
/// than 64 MB.
std::string readFile(const std::filesystem::path& path);

/// Writes a file, or leaves the one that was there when it cannot be written; then throws InputError with its
/// path.
void writeFile(const std::filesystem::path& path, std::string_view bytes);
