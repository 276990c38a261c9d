#include "Hardening.h"

#include <sqlite3.h>

namespace {

constexpr int longestValue = 8 << 20;          // longer than the whole file
constexpr int longestSql = 100'000;            // far more than any window builds
constexpr sqlite3_int64 mostMemory = 64 << 20; // of the engine, in the whole process
constexpr int stepsAtOnce = 1'000'000;
constexpr int mostStepsAtOnce = 30; // the busiest search takes less than one

int countSteps(void* steps)
{
    return ++*static_cast<int*>(steps) > mostStepsAtOnce;
}

int permit(void*, int action, const char*, const char*, const char*, const char*)
{
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

} // namespace

void limitEngine(sqlite3* connection, int& steps)
{
    sqlite3_hard_heap_limit64(mostMemory);
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, longestValue);
    sqlite3_limit(connection, SQLITE_LIMIT_SQL_LENGTH, longestSql);
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(connection, stepsAtOnce, countSteps, &steps);
}

void allowReadingOnly(sqlite3* connection)
{
    sqlite3_set_authorizer(connection, permit, nullptr);
}
