#pragma once

#include "store/ProcessorTime.h"

struct sqlite3;

/// How often a statement's work has been checked, and the processor time of the process at its start.
struct Work
{
    int checks = 0;
    std::chrono::nanoseconds start = processorTime();
};

/// Bounds what a damaged file can make SQLite do: the length of values, its memory, and the steps and the
/// processor time for one statement, which fails as "interrupted" when it exceeds them. `work` must outlive
/// the connection; give it a new value before each statement.
void limitSqlite(sqlite3* connection, Work& work);

/// From now on this connection only reads: whatever else a statement asks for is "not authorized".
void allowReadingOnly(sqlite3* connection);
