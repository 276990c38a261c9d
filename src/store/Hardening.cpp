#include "store/Hardening.h"

#include "store/Limits.h"
#include <sqlite3.h>

namespace {

// Often enough that values of the greatest length, at every step, do not take long until the next check.
constexpr int stepsPerCheck = 10'000;

/// Called by SQLite after so many steps; true ends the statement.
int checkWork(void* argument)
{
    Work& work = *static_cast<Work*>(argument);
    return ++work.checks > limits::maxSteps / stepsPerCheck ||
           processorTime() - work.start > std::chrono::seconds(limits::maxSeconds);
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

void limitSqlite(sqlite3* connection, Work& work)
{
    sqlite3_hard_heap_limit64(limits::maxMemoryBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, limits::maxValueBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_SQL_LENGTH, limits::maxSqlBytes);
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(connection, stepsPerCheck, checkWork, &work);
}

void allowReadingOnly(sqlite3* connection)
{
    sqlite3_set_authorizer(connection, permit, nullptr);
}
