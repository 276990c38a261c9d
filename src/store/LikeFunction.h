#pragma once

struct sqlite3;
struct Verses;

/// Replaces SQLite's LIKE by LikePattern. On the block's own texts, which SQLite hands over uncopied,
/// TextSearch sweeps ahead to the next match instead of trying each. The verses must outlive the connection.
/// Returns SQLite's result code.
int registerLike(sqlite3* connection, const Verses* verses);
