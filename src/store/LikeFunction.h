#pragma once

struct sqlite3;
struct Verses;

/// Replaces the engine's LIKE by LikePattern, which sweeps ahead over the block's texts (TextSearch) instead
/// of being tried on each. The verses must outlive the connection. Returns the engine's result code.
int registerLike(sqlite3* connection, const Verses* verses);
