// What a reader waits for: opening the store, looking verses up, searching the whole Bible. Every query is a
// fresh statement, as in the windows, and every row that is counted as read has had all its columns read.
//
// The database is named in KESTREL_DATABASE, a list of patterns to search for, one a line, in
// KESTREL_PATTERNS. bench/compare runs this and holds the figures against their limits.

#include "store/Database.h"
#include "store/DataSource.h"
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

const std::string allVerses = "SELECT * FROM NewTestament";

std::string databasePath()
{
    const char* path = std::getenv("KESTREL_DATABASE");
    return path ? path : "KESTRPT.DAT";
}

void show(DataSource& source, const std::string& condition)
{
    source.setRecordSource(allVerses + condition);
    source.refresh();
    for (int column = 0; column < 3; ++column)
        benchmark::DoNotOptimize(source.field(column));
}

int readAll(DataSource& source, const std::string& condition)
{
    source.setRecordSource(allVerses + condition);
    for (source.refresh(); !source.eof(); source.moveNext()) {
        benchmark::DoNotOptimize(source.field(0));
        benchmark::DoNotOptimize(source.field(2));
    }
    return source.recordCount();
}

void open(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(std::make_unique<Database>(databasePath()));
}

/// The first row of a query, as the reading window shows it.
void firstRow(benchmark::State& state, const std::string& condition)
{
    DataSource source;
    source.setDatabaseName(databasePath());
    show(source, condition);
    if (source.eof())
        state.SkipWithError("no such verse");
    for (auto _ : state)
        show(source, condition);
}

/// The same as the very first query after opening, which is not part of the time.
void firstUse(benchmark::State& state, const std::string& condition)
{
    for (auto _ : state) {
        const auto kept = Database::open(databasePath());
        DataSource source;
        source.setDatabaseName(databasePath());
        const auto start = std::chrono::steady_clock::now();
        show(source, condition);
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void search(benchmark::State& state, const std::string& condition)
{
    DataSource source;
    source.setDatabaseName(databasePath());
    int rows = readAll(source, condition); // opens the database
    for (auto _ : state)
        rows = readAll(source, condition);
    state.counters["rows"] = rows;
}

/// What nothing that looks at every letter can be quicker than: one pass over all texts in memory.
void onePass(benchmark::State& state)
{
    DataSource source;
    source.setDatabaseName(databasePath());
    source.setRecordSource(allVerses);
    std::string texts;
    for (source.refresh(); !source.eof(); source.moveNext())
        texts += source.field(2);
    for (auto _ : state)
        benchmark::DoNotOptimize(texts.find('\0')); // which is not there
}

/// Every verse of Psalm 119 looked up by its key as a prefix, and one that does not exist.
void psalm119(benchmark::State& state)
{
    DataSource source;
    source.setDatabaseName(databasePath());
    show(source, " WHERE VerseNumber = 1"); // opens the database
    for (auto _ : state) {
        for (int verse = 1; verse <= 177; ++verse)
            show(source, " WHERE VerseId LIKE 'Ps:119:" + std::to_string(verse) + "*'");
    }
}

void registerAll()
{
    using benchmark::RegisterBenchmark;
    const std::string byNumber = " WHERE VerseNumber = 23145";
    const std::string byKey = " WHERE VerseId = 'Ps:119:176'";
    const std::string byPrefix = " WHERE VerseId LIKE 'Ps:119:176*'";
    RegisterBenchmark("one pass over the text", onePass)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("open", open)->Unit(benchmark::kMillisecond);
    RegisterBenchmark("verse by number", firstRow, byNumber);
    RegisterBenchmark("verse by key", firstRow, byKey);
    RegisterBenchmark("verse by prefix", firstRow, byPrefix);
    RegisterBenchmark("verse by prefix J", firstRow, " WHERE VerseId LIKE 'J*'");
    RegisterBenchmark("first use by number", firstUse, byNumber)->UseManualTime()->Iterations(5);
    RegisterBenchmark("first use by key", firstUse, byKey)->UseManualTime()->Iterations(5);
    RegisterBenchmark("first use by prefix", firstUse, byPrefix)->UseManualTime()->Iterations(5);
    RegisterBenchmark("one word", search, " WHERE KJVerseText LIKE '*amor*'");
    RegisterBenchmark("whole word", search, " WHERE KJVerseText LIKE '*[!0-9a-zA-Z]amor[!0-9a-zA-Z]*'");
    RegisterBenchmark("two words with OR", search,
                      " WHERE (KJVerseText LIKE '*casa*' OR KJVerseText LIKE '*terra*')");
    RegisterBenchmark("commonest words with OR", search,
                      " WHERE (KJVerseText LIKE '*Deus*' OR KJVerseText LIKE '*Senhor*')");
    RegisterBenchmark("letters everywhere with OR", search,
                      " WHERE (KJVerseText LIKE '*a*' OR KJVerseText LIKE '*e*')");
    RegisterBenchmark("wildcards with OR", search,
                      " WHERE (KJVerseText LIKE '*?e?*' OR KJVerseText LIKE '*[aeiou]??*')");
    RegisterBenchmark("two words with AND", search,
                      " WHERE KJVerseText LIKE '*Deus*' AND KJVerseText LIKE '*Senhor*'");
    RegisterBenchmark("two words with NOT", search,
                      " WHERE KJVerseText LIKE '*Deus*' AND KJVerseText NOT LIKE '*Senhor*'");
    RegisterBenchmark("NOT alone", search, " WHERE KJVerseText NOT LIKE '*Deus*'");
    RegisterBenchmark("only wildcards", search, " WHERE KJVerseText LIKE '*?*'");
    RegisterBenchmark("only a class", search, " WHERE KJVerseText LIKE '*[xyz]*'");
    RegisterBenchmark("whole Bible", search, "");
    RegisterBenchmark("Psalm 119 by prefixes", psalm119);
}

void registerPatterns()
{
    const char* path = std::getenv("KESTREL_PATTERNS");
    std::ifstream list(path ? path : "");
    for (std::string pattern; std::getline(list, pattern);)
        benchmark::RegisterBenchmark(("pattern " + pattern).c_str(), search,
                                     " WHERE KJVerseText LIKE '*" + pattern + "*'");
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    registerAll();
    registerPatterns();
    try {
        benchmark::RunSpecifiedBenchmarks();
    } catch (const DataError& error) {
        std::cerr << databasePath() << ": " << error.what() << '\n';
        return 1;
    }
}
