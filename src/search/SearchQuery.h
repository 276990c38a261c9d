#pragma once

#include "search/SearchMemory.h"
#include <optional>
#include <string>

/// What the reader has typed and chosen, the texts trimmed.
struct SearchInputs
{
    QString text1;
    QString text2;
    std::int16_t connective; ///< 0 and, 1 and not, 2 or; -1 when none is chosen
    std::int16_t range;      ///< place in searchRanges(); -1 when none is chosen
    std::int16_t wholeWord;  ///< 1 when only whole words count
    QString rangeText;       ///< the entry's own text
};

/// Whether these inputs would run the last query once more. Letter case does not count, nor does the
/// connective while there is no second word.
bool isLastQuery(const SearchInputs& inputs, const SearchMemory& memory);

/// Each apostrophe replaced by "?", any one character. Nothing else is escaped: wildcards keep their meaning.
QString escapeQuotes(QString word);

/// Asks for a character before and after the word that is no ASCII letter or digit. There is no anchor: a
/// word that ends a verse with nothing behind it is not found, on purpose, and an accented letter counts as
/// the end of a word.
QString wrapWholeWord(const QString& word);

/// The SQL text; none when the connective is no connective.
std::optional<std::string> searchSql(const QString& word1, const QString& word2, int connective,
                                     const QString& rangeCondition);
