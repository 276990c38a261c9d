#pragma once

/// Every allocation of the process, SQLite's and ours: counts them and lets one of them fail, or all from
/// there on.
class Allocations
{
public:
    /// False when SQLite had been used before it could be told where to take its memory.
    static bool areWatched();

    /// Begins to count.
    static void failAt(int number, bool allAfter);
    /// Whether any has failed since.
    static bool stopFailing();
};
