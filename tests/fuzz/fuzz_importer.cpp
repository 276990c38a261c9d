// The readers of the files that the data are made of: whatever the bytes, they read them or refuse them by
// InputError. The first byte chooses the reader, the rest is the file.

#include "database/Maps.h"
#include "database/Png.h"
#include "database/Topics.h"
#include "importer/Corrections.h"
#include "importer/InputError.h"
#include "importer/Typography.h"
#include "importer/Unicode.h"
#include "importer/VerseList.h"
#include <cstdint>
#include <cstdlib>

namespace {

std::u32string lettersOf(const std::string& text)
{
    std::u32string letters;
    const auto characters = fromUtf8(text);
    for (const char32_t character : characters.value_or(U"")) {
        if (isLetter(character))
            letters += character;
    }
    return letters;
}

void correct(std::string_view bytes)
{
    std::vector<Verse> verses = {{{"Gn", 1, 1}, "a água e a terra"}, {{"Gn", 1, 2}, "A gaveta estava"}};
    applyCorrections(verses, readCorrections(bytes, "corrections"), "corrections");
}

void mend(const std::string& text)
{
    if (lettersOf(mendTypography(text)) != lettersOf(text))
        std::abort();
}

void readChosen(unsigned choice, const std::string& bytes)
{
    std::set<std::string> names;
    switch (choice % 6) {
    case 0:
        readVerseList(bytes, "list");
        break;
    case 1:
        correct(bytes);
        break;
    case 2:
        mend(bytes);
        break;
    case 3:
        readTopics(bytes, "topics", "Events", names);
        break;
    case 4:
        readMapList(bytes, "maps");
        break;
    case 5:
        withNaturalSize(bytes, 800, 600);
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    try {
        readChosen(data[0], std::string(reinterpret_cast<const char*>(data + 1), size - 1));
    } catch (const InputError&) {
        // Refused, as it should be.
    }
    return 0;
}
