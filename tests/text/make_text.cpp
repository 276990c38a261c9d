// Writes the text that the tests run on: make_text FIXED_VERSES OUT
//
// It has every verse, in the form of a published list, and is no translation of anything: some verses are
// written by hand in FIXED_VERSES (key, tab, text), because tests look for them; all others are sentences
// drawn from Words.h, the same ones every time.

#include "importer/Files.h"
#include "importer/InputError.h"
#include "importer/Lines.h"
#include "importer/VerseList.h"
#include "Words.h"
#include <exception>
#include <iostream>
#include <map>
#include <random>

namespace {

using FixedVerses = std::map<std::string, std::string, std::less<>>;

FixedVerses readFixedVerses(const std::string& file)
{
    FixedVerses verses;
    const std::string bytes = readFile(file);
    for (const std::string_view line : readLines(bytes, file)) {
        const auto columns = splitAtTabs(line);
        const std::string key(columns[0]);
        if (columns.size() != 2 || !canonicalPosition(key) || !verses.emplace(key, columns[1]).second)
            throw InputError(file + ": this is not a key, a tab and a text, or its verse is not new: " + key);
    }
    return verses;
}

/// The sentence with a large letter at its beginning, which may be one of two bytes, as in "à".
std::string begun(std::string sentence)
{
    constexpr char small = 0x20;
    if (sentence[0] == '\xc3')
        sentence[1] = static_cast<char>(sentence[1] & ~small);
    else
        sentence[0] = static_cast<char>(sentence[0] & ~small);
    return sentence;
}

class Writer
{
public:
    std::string verse()
    {
        if (oneIn(180))
            return std::string(any(words::plain));
        std::string text = oneIn(7) ? "E " + happening() : begun(happening());
        if (oneIn(3))
            text += " " + saying(words::ofTheVillage);
        if (oneIn(6))
            text += " " + saying(words::ofTheMiller);
        if (oneIn(55))
            text += " " + saying(words::ofLove);
        if (oneIn(150))
            text += " " + saying(words::ofTheCousins);
        if (oneIn(20))
            text += " Havia ali " + std::to_string(2 + below(300)) + " barcos.";
        if (oneIn(2))
            text += " " + begun(happening());
        return oneIn(30) ? badlySpaced(text) : text;
    }

private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    bool oneIn(int times) { return below(times) == 0; }

    template <class Words>
    words::Word any(const Words& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

    std::string happening()
    {
        std::string sentence = oneIn(2) ? std::string(any(words::times)) + " " : "";
        sentence.append(any(words::people)).append(" ").append(any(words::deeds));
        sentence.append(" ").append(any(words::places));
        if (oneIn(2))
            sentence.append(any(words::tails));
        return sentence.append(".");
    }

    template <class Words>
    std::string saying(const Words& list)
    {
        return std::string(any(list)).append(any(words::ends));
    }

    /// As published texts are here and there; the importer mends it.
    static std::string badlySpaced(std::string text)
    {
        const std::size_t comma = text.find(", ");
        if (comma != std::string::npos)
            text.replace(comma, 2, " ,");
        return text;
    }

    std::mt19937 m_random{31102};
};

std::vector<Verse> wholeText(const FixedVerses& fixed)
{
    Writer writer;
    std::vector<Verse> verses;
    for (const VerseKey& key : canonicalVerses()) {
        const std::string drawn =
            writer.verse(); // before anything else, so that a fixed verse changes no other
        const auto found = fixed.find(key.text());
        verses.push_back({key, found == fixed.end() ? drawn : found->second});
    }
    return verses;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "Usage: make_text FIXED_VERSES OUT\n";
        return 2;
    }
    try {
        writeFile(argv[2], writeVerseList(wholeText(readFixedVerses(argv[1]))));
    } catch (const std::exception& error) {
        std::cerr << "make_text: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
