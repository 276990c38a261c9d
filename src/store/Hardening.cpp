#include "store/Hardening.h"

#include <sqlite3.h>

namespace {

constexpr int maxValueBytes = 8 << 20;             // longer than the whole file
constexpr int maxSqlBytes = 100'000;               // far more than any window builds
constexpr sqlite3_int64 maxMemoryBytes = 64 << 20; // of the engine, in the whole process
constexpr int stepsPerBatch = 1'000'000;
constexpr int maxStepBatches = 30; // the busiest search takes less than one

int countSteps(void* steps)
{
    return ++*static_cast<int*>(steps) > maxStepBatches;
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

void limitSqlite(sqlite3* connection, int& steps)
{
    sqlite3_hard_heap_limit64(maxMemoryBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, maxValueBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_SQL_LENGTH, maxSqlBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(connection, stepsPerBatch, countSteps, &steps);
}

void allowReadingOnly(sqlite3* connection)
{
    sqlite3_set_authorizer(connection, permit, nullptr);
}
