#include "importer/Importer.h"

#include "importer/Corrections.h"
#include "importer/Files.h"
#include "importer/InputError.h"
#include "importer/Typography.h"

ImportedText importText(const std::filesystem::path& list, const std::filesystem::path& corrections)
{
    ImportedText text;
    text.verses = readVerseList(readFile(list), list.string());

    if (!corrections.empty()) {
        const auto read = readCorrections(readFile(corrections), corrections.string());
        applyCorrections(text.verses, read, corrections.string());
        text.corrections = read.size();
    }
    mendTypography(text.verses);
    return text;
}

void mendTypography(std::vector<Verse>& verses)
{
    for (Verse& verse : verses) {
        verse.text = mendTypography(verse.text);
        if (verse.text.empty())
            throw InputError(verse.key.text() + ": the corrections and rules leave no text.");
    }
}
