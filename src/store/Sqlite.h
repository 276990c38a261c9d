#pragma once

#include "store/DataError.h"
#include <memory>
#include <sqlite3.h>
#include <string>
#include <string_view>

/// The error that SQLite met last on this connection.
inline DataError sqliteError(sqlite3* connection)
{
    return DataError(sqlite3_errcode(connection), sqlite3_errmsg(connection));
}

/// The error for a file whose content cannot be sound.
inline DataError damage()
{
    return DataError(SQLITE_CORRUPT, sqlite3_errstr(SQLITE_CORRUPT));
}

/// Owns a prepared statement.
struct FinalizeStatement
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A column of the row that a statement stands on: a text or a BLOB as its bytes, a number as text, NULL as
/// nothing. Uncopied, which needs a database whose texts are UTF-8. Valid until the statement moves.
inline std::string_view columnBytes(sqlite3_stmt* statement, int column)
{
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
    return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                 : std::string_view();
}

/// The same of an argument that SQLite hands to a function.
inline std::string_view valueBytes(sqlite3_value* value)
{
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
    return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                 : std::string_view();
}

/// Compiles the first statement of an SQL text; throws what SQLite says of it. Whatever follows it, or a NUL,
/// is not read.
inline Statement compile(sqlite3* connection, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.c_str(), static_cast<int>(sql.size()) + 1, &statement, nullptr) !=
        SQLITE_OK)
        throw sqliteError(connection);
    return Statement(statement);
}
