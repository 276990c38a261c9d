#pragma once

#include <string>

/// What a test puts into a folder that not every system has. Paths and names are UTF-8. Each says whether it
/// is there afterwards, and throws where the system has such a thing and failed.
namespace Files {

/// A named pipe.
bool makePipe(const std::string& path);
/// A symbolic link, to something that need not be there.
bool makeLink(const std::string& target, const std::string& path);
/// Whether a folder can hold a file of this name, which may be a path below it.
bool canBeNamed(const std::string& name);

} // namespace Files
