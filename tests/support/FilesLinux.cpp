#include "support/Files.h"

#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>

bool Files::makePipe(const std::string& path)
{
    if (mkfifo(path.c_str(), 0600) != 0)
        throw std::runtime_error("no pipe could be made: " + path);
    return true;
}

bool Files::makeLink(const std::string& target, const std::string& path)
{
    std::filesystem::create_symlink(target, path);
    return true;
}

bool Files::canBeNamed(const std::string&)
{
    return true;
}
