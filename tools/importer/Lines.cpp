#include "importer/Lines.h"

#include "importer/InputError.h"
#include "importer/Unicode.h"

namespace {

constexpr std::size_t maxLineBytes = 1 << 16; // a verse before and after its correction, and room to spare

void checkCharacters(std::string_view line, const std::string& place)
{
    if (line.size() > maxLineBytes)
        throw InputError(place + "the line is too long.");
    if (line.starts_with("\xef\xbb\xbf"))
        throw InputError(place + "there is a byte order mark; take it away.");
    const auto characters = fromUtf8(line);
    if (!characters)
        throw InputError(place + "this is not valid UTF-8.");
    for (const char32_t character : *characters) {
        if (character == U'\r')
            throw InputError(place + "there is a carriage return; lines must end with a line feed alone.");
        if (character != U'\t' && isControl(character))
            throw InputError(place + "there is a control character.");
    }
}

} // namespace

std::string at(const std::string& file, std::size_t lineNumber)
{
    return file + ", line " + std::to_string(lineNumber) + ": ";
}

std::vector<std::string_view> readLines(std::string_view bytes, const std::string& file)
{
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const std::string place = at(file, lines.size() + 1);
        const std::size_t end = bytes.find('\n');
        if (end == std::string_view::npos)
            throw InputError(place + "the line has no line feed at its end; the file may be cut off.");
        checkCharacters(bytes.substr(0, end), place);
        lines.push_back(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
    }
    return lines;
}

std::vector<std::string_view> splitAtTabs(std::string_view line)
{
    std::vector<std::string_view> pieces;
    std::size_t tab;
    while ((tab = line.find('\t')) != std::string_view::npos) {
        pieces.push_back(line.substr(0, tab));
        line.remove_prefix(tab + 1);
    }
    pieces.push_back(line);
    return pieces;
}
