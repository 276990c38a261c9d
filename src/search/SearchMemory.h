#pragma once

#include <cstdint>
#include <QString>

/// How the last search ended.
enum SearchOutcome : std::int16_t { ResultsListed = 0, NoMatches = 1, QueryFailed = 2 };

/// What the search window remembers, above all of its last query. It outlives the window's closing, which
/// only forgets `LastText1`.
struct SearchMemory
{
    QString LastText1; ///< as it was typed, trimmed
    QString LastText2;
    std::int16_t LastConnective = 0; ///< index in `Combo1`
    std::int16_t LastRange = 0;      ///< index in `Combo2`
    std::int16_t LastWholeWord = 0;  ///< 1 when whole words were searched for
    std::int16_t LastOutcome = ResultsListed;
    std::int16_t ListKeyFlag = 0; ///< 1 after a key went down in `List1`: its next click was made by that key
};
