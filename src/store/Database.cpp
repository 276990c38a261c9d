#include "store/Database.h"

#include "store/LikeFunction.h"
#include "store/Limits.h"
#include "store/VerseTable.h"
#include <filesystem>
#include <map>

namespace {

/// The path as an address that SQLite takes literally, whatever characters it holds. The file counts as
/// unchangeable, so that SQLite neither locks it nor looks for a journal beside it.
std::string readOnlyUri(const std::string& path)
{
    std::string uri = path.starts_with('/') ? "file://" : "file:";
    constexpr char hex[] = "0123456789ABCDEF";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = std::string_view("/-._~").find(c) != std::string_view::npos ||
                           (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (plain)
            uri += c;
        else
            uri.append({'%', hex[byte >> 4], hex[byte & 15]});
    }
    return uri + "?mode=ro&immutable=1";
}

/// The condition that some value of the column is longer.
std::string exceeds(const std::string& column, std::size_t bytes)
{
    return "max(length(CAST(" + column + " AS BLOB))) > " + std::to_string(bytes);
}

} // namespace

std::shared_ptr<Database> Database::open(const std::string& path)
{
    static std::map<std::string, std::weak_ptr<Database>> opened;
    auto& known = opened[path];
    auto database = known.lock();
    if (!database) {
        database = std::make_shared<Database>(path);
        known = database;
    }
    return database;
}

Database::Database(const std::string& path)
{
    // Only files have a length: opening a pipe would wait for ever, and a folder fails late with a message
    // that misleads.
    std::error_code unreadable;
    const std::filesystem::path file(std::u8string(path.begin(), path.end())); // UTF-8 on every system
    const std::uintmax_t fileSize = std::filesystem::file_size(file, unreadable);
    if (unreadable)
        throw DataError(SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN));
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(readOnlyUri(path).c_str(), &connection,
                                       SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    m_connection.reset(connection);
    if (result != SQLITE_OK)
        throw connection ? sqliteError(connection) : DataError(result, sqlite3_errstr(result));
    setUp();
    readVerses(fileSize);
    if (hasEndlessTopics() || hasEndlessMaps())
        throw damage();
    sqlite3_db_release_memory(connection); // the pages just read are not needed soon
    allowReadingOnly(connection);
}

void Database::setUp()
{
    limitSqlite(m_connection.get(), m_work);
    if (registerLike(m_connection.get(), &m_verses) != SQLITE_OK ||
        registerVerseTable(m_connection.get(), &m_verses) != SQLITE_OK)
        throw sqliteError(m_connection.get());
    // Texts are read as they lie in the file, and every file of ours holds UTF-8.
    const Statement encoding = prepare("PRAGMA encoding");
    if (sqlite3_step(encoding.get()) != SQLITE_ROW)
        throw sqliteError(m_connection.get());
    if (columnBytes(encoding.get(), 0) != "UTF-8")
        throw DataError(SQLITE_NOTADB, sqlite3_errstr(SQLITE_NOTADB));
    execute("PRAGMA temp_store = MEMORY");
    execute("PRAGMA cache_size = -256");
    // The order is part of the view, so that it holds whatever plan SQLite makes; where the rows come in
    // order anyway, it costs nothing. Named with temp, the table is ours whatever tables the file has.
    execute("CREATE TEMP VIEW NewTestament AS SELECT VerseId, VerseNumber, KJVerseText FROM temp.VerseRows "
            "ORDER BY VerseNumber");
    execute("PRAGMA query_only = ON");
}

void Database::readVerses(std::size_t fileSize)
{
    try {
        m_verses.block.emplace(m_connection.get(), fileSize);
        m_verses.keys.emplace(*m_verses.block);
    } catch (const DataError& error) {
        // The file will stay as it is, but there may be memory for it the next time.
        if (error.number() == SQLITE_NOMEM)
            throw;
        m_verses.damage = error;
    }
}

/// Whether there are more topics, longer lists or longer titles than a window could show.
bool Database::hasEndlessTopics()
{
    return isTrue("count(*) > " + std::to_string(limits::maxTopics) + " OR " +
                      exceeds("VerseList", limits::maxTopicListBytes) + " OR " +
                      exceeds("Name", limits::maxTitleBytes),
                  "ClassifiedVerses");
}

bool Database::hasEndlessMaps()
{
    return isTrue(exceeds("MapDesc", limits::maxTitleBytes), "NTMaps");
}

/// Whatever else is wrong with the table is left to the queries that meet it.
bool Database::isTrue(const std::string& condition, const std::string& table)
try {
    m_work = {};
    const Statement check = compile(m_connection.get(), "SELECT " + condition + " FROM main." + table);
    return sqlite3_step(check.get()) == SQLITE_ROW && sqlite3_column_int(check.get(), 0) != 0;
} catch (const DataError&) {
    return false;
}

void Database::execute(const char* sql)
{
    if (sqlite3_exec(m_connection.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw sqliteError(m_connection.get());
}

Statement Database::prepare(const std::string& sql)
{
    m_work = {};
    Statement statement = compile(m_connection.get(), sql);
    // SQLite reads no further than a ";", and passes over a comment to its end. Only where it has read the
    // whole text is a backslash behind it an error, which is no token of SQL.
    sqlite3_stmt* withToken = nullptr;
    const int result = sqlite3_prepare_v2(m_connection.get(), (sql + '\\').c_str(), -1, &withToken, nullptr);
    const Statement discarded(withToken);
    if (result == SQLITE_OK)
        throw DataError(SQLITE_ERROR, sqlite3_errstr(SQLITE_ERROR));
    if (result != SQLITE_ERROR)
        throw sqliteError(m_connection.get());
    return statement;
}
