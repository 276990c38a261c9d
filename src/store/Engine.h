#pragma once

#include "DataError.h"
#include <memory>
#include <sqlite3.h>

/// The error that the engine met last on this connection.
inline DataError engineError(sqlite3* connection)
{
    return DataError(sqlite3_errcode(connection), sqlite3_errmsg(connection));
}

/// Owns a prepared statement.
struct FinalizeStatement
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Compiles the first statement of an SQL text; throws what the engine says of it.
inline Statement prepare(sqlite3* connection, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr) !=
        SQLITE_OK)
        throw engineError(connection);
    return Statement(statement);
}
