#include "support/Files.h"

#include <algorithm>

// A pipe is in no folder.
bool Files::makePipe(const std::string&)
{
    return false;
}

// They need a right that users do not have.
bool Files::makeLink(const std::string&, const std::string&)
{
    return false;
}

bool Files::canBeNamed(const std::string& name)
{
    return std::none_of(name.begin(), name.end(), [](unsigned char c) {
        return c < ' ' || c == 0xFF ||
               std::string("<>:\"\\|?*").find(static_cast<char>(c)) != std::string::npos;
    });
}
