#pragma once

struct sqlite3;

/// Bounds what a damaged file can make the engine do: the size of values, the memory, and the work done,
/// which is counted in `steps`: a statement that finds too many there fails as "interrupted". Set it to 0 to
/// begin anew.
void limitSqlite(sqlite3* connection, int& steps);

/// From now on this connection only reads: whatever else a statement asks for is "not authorized".
void allowReadingOnly(sqlite3* connection);
