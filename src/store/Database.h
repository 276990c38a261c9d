#pragma once

#include "store/Hardening.h"
#include "store/Sqlite.h"
#include "store/Verses.h"
#include <string>

/// One database file, opened read-only and for good: what becomes of the file afterwards has no effect.
///
/// The verses are read when it is opened. All data sources of the process on the same path share it, and it
/// lives as long as any of them, or whoever else holds it: the program keeps one for its whole life, opened
/// while the start window shows. All on one thread.
class Database
{
public:
    /// Throws DataError when the file cannot be opened or is no database. Verses that cannot be read are no
    /// error yet: only a query on `NewTestament` meets it.
    static std::shared_ptr<Database> open(const std::string& path);

    explicit Database(const std::string& path);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Compiles an SQL text of one statement. Throws DataError, also when anything follows the statement: a
    /// ";" or a comment that is not closed.
    Statement prepare(const std::string& sql);

    /// For the texts of errors.
    sqlite3* connection() const { return m_connection.get(); }

private:
    struct CloseConnection
    {
        void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    };

    void execute(const char* sql);
    void setUp();
    void readVerses(std::size_t fileSize);
    bool hasEndlessTopics();
    bool hasEndlessMaps();
    bool isTrue(const std::string& condition, const std::string& table);

    Verses m_verses; // outlives the connection, which hands out its texts
    Work m_work;     // the connection counts in it
    std::unique_ptr<sqlite3, CloseConnection> m_connection;
};
