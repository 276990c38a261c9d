#include "importer/Corrections.h"

#include "importer/InputError.h"
#include "importer/Lines.h"
#include <map>
#include <unordered_map>

namespace {

/// A correction whose place in the published verse is known.
struct Placed
{
    std::size_t begin;
    const Correction* correction;

    std::size_t end() const { return begin + correction->before.size(); }
};

std::string naming(const Correction& correction, const std::string& file)
{
    return at(file, correction.line) + correction.key + ": the piece \"" + correction.before + "\" ";
}

/// Whole characters are found or none, since a UTF-8 sequence never begins inside another.
std::size_t findOnce(const std::string& published, const Correction& correction, const std::string& file)
{
    const std::size_t first = published.find(correction.before);
    if (first == std::string::npos)
        throw InputError(naming(correction, file) + "does not occur in the published verse.");
    if (published.find(correction.before, first + 1) != std::string::npos)
        throw InputError(naming(correction, file) + "occurs more than once in the published verse.");
    return first;
}

/// The pieces of one verse, by their place in it.
using Pieces = std::map<std::size_t, Placed>;

void addPiece(Pieces& pieces, const Placed& piece, const std::string& file)
{
    const auto next = pieces.lower_bound(piece.begin);
    const bool meetsNext = next != pieces.end() && next->first < piece.end();
    const bool meetsPrevious = next != pieces.begin() && std::prev(next)->second.end() > piece.begin;
    if (meetsNext || meetsPrevious)
        throw InputError(naming(*piece.correction, file) + "overlaps another piece of the same verse.");
    pieces.emplace(piece.begin, piece);
}

} // namespace

std::vector<Correction> readCorrections(std::string_view bytes, const std::string& file)
{
    const auto lines = readLines(bytes, file);
    if (lines.empty() || lines[0] != "book\tchapter\tverse\tbefore\tafter\twitness")
        throw InputError(at(file, 1) + "the header line of the corrections is missing.");
    std::vector<Correction> corrections;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto columns = splitAtTabs(lines[i]);
        if (columns.size() != 6)
            throw InputError(at(file, i + 1) + "there are " + std::to_string(columns.size()) +
                             " columns, not the six of book, chapter, verse, before, after and witness.");
        if (columns[3].empty())
            throw InputError(at(file, i + 1) + "the piece to be mended is empty.");
        corrections.push_back({writtenKey(columns), std::string(columns[3]), std::string(columns[4]), i + 1});
    }
    return corrections;
}

void applyCorrections(std::vector<Verse>& verses, const std::vector<Correction>& corrections,
                      const std::string& file)
{
    std::unordered_map<std::string, Verse*> byKey;
    for (Verse& verse : verses)
        byKey.emplace(verse.key.text(), &verse);

    std::unordered_map<Verse*, Pieces> mended;
    for (const Correction& correction : corrections) {
        const auto found = byKey.find(correction.key);
        if (found == byKey.end())
            throw InputError(naming(correction, file) + "belongs to a verse that does not exist.");
        Verse* verse = found->second;
        addPiece(mended[verse], {findOnce(verse->text, correction, file), &correction}, file);
    }

    for (auto& [verse, pieces] : mended) {
        // From the end, so that the places before stay true.
        for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
            const Correction& correction = *piece->second.correction;
            verse->text.replace(piece->first, correction.before.size(), correction.after);
        }
    }
}
