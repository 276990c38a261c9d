#include "importer/Importer.h"

#include "importer/Corrections.h"
#include "importer/Files.h"
#include "importer/InputError.h"
#include "importer/Typography.h"

ImportedText importText(const std::filesystem::path& list)
{
    ImportedText text;
    text.verses = readVerseList(readFile(list), list.string());

    const std::filesystem::path beside = list.parent_path() / "corrections.tsv";
    if (std::filesystem::exists(beside)) {
        const auto corrections = readCorrections(readFile(beside), beside.string());
        applyCorrections(text.verses, corrections, beside.string());
        text.hasCorrections = true;
        text.corrections = corrections.size();
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
