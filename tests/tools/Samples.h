#pragma once

#include "importer/VerseList.h"

#include <filesystem>
#include <string>
#include <vector>

/// The reference text, which lies beside the checkout and never in it.
inline const std::filesystem::path referenceText =
    std::filesystem::path(KESTREL_SOURCE_DIR) / "../shared/data/scripture-pt.tsv";

inline constexpr const char* noReferenceText = "The reference text does not lie beside the checkout.";

/// A whole Bible in which every verse has the same text.
inline std::vector<Verse> uniformBible(const std::string& text)
{
    std::vector<Verse> verses;
    for (const VerseKey& key : canonicalVerses())
        verses.push_back({key, text});
    return verses;
}

/// What an operation complains of; empty when it does not throw.
template <typename Error, typename Operation>
std::string complaint(Operation operation)
{
    try {
        operation();
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}
