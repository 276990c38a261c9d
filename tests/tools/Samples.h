#pragma once

#include "importer/Files.h"
#include "importer/VerseList.h"
#include <cstdlib>
#include <filesystem>
#include <QCryptographicHash>
#include <random>
#include <string>
#include <vector>

inline constexpr const char* publishedSum =
    "aadefc71fc4ada2b185075e701d5a308a12535f6c92c66c058fc667112476b32";

/// A new folder, which no other process has: the tests of two builds run side by side. Whoever asks removes
/// it.
inline std::filesystem::path newFolder()
{
    std::random_device chance;
    std::filesystem::path folder;
    do
        folder = std::filesystem::temp_directory_path() / ("kestrel-tools-" + std::to_string(chance()));
    while (!std::filesystem::create_directory(folder));
    return folder;
}

inline std::string sha256(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

/// The real text as it was published, which is never kept in the checkout: the one that KESTREL_TEXT names,
/// or the one that lies beside the checkout; empty when neither is there.
inline std::filesystem::path referenceText()
{
    const char* named = std::getenv("KESTREL_TEXT");
    for (const auto& path : {std::filesystem::path(named ? named : ""),
                             std::filesystem::path(KESTREL_SOURCE_DIR) / "../shared/data/scripture-pt.tsv"}) {
        if (std::filesystem::is_regular_file(path) && sha256(readFile(path)) == publishedSum)
            return path;
    }
    return {};
}

inline constexpr const char* noReferenceText = "The published text is not here.";

/// Our list of what is mended in it.
inline const std::filesystem::path ourCorrections =
    std::filesystem::path(KESTREL_SOURCE_DIR) / "data/text/corrections.tsv";

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
