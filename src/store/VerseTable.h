#pragma once

struct sqlite3;
struct Verses;

/// Registers the module `VerseRows`: a virtual table over the block, with the columns and the order of
/// `NewTestament`.
///
/// It narrows the rows to visit by conditions of these forms, by as many as a query has:
///
///     VerseNumber  = < <= > >=   by binary search
///     VerseId      = LIKE        by the key index, as far as the key's beginning is known
///     KJVerseText  LIKE          by TextSearch
///
/// Everything else is left to SQLite. Rows come in ascending VerseNumber order, and the table says so to
/// SQLite. VerseTable.cpp tells how a query runs. The verses must outlive the connection. Returns SQLite's
/// result code.
int registerVerseTable(sqlite3* connection, const Verses* verses);
