#include "database/Database.h"

#include "importer/InputError.h"
#include "store/BookCatalog.h"
#include <algorithm>
#include <set>
#include <sqlite3.h>

namespace {

// SQLite's file format: where a row's payload begins to spill over, and what an overflow page takes.
constexpr int overflowPageLoad = databasePageSize - 4;
constexpr int minLocalPayload = (databasePageSize - 12) * 32 / 255 - 23;

class Connection
{
public:
    explicit Connection(const std::string& path)
    {
        const int result =
            sqlite3_open_v2(path.c_str(), &m_handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        if (result != SQLITE_OK) {
            const std::string message = sqlite3_errmsg(m_handle);
            sqlite3_close(m_handle);
            throw InputError("Cannot write " + path + ": " + message + ".");
        }
    }
    ~Connection() { sqlite3_close(m_handle); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void run(const char* sql) { check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr)); }

    void check(int result) const
    {
        if (result != SQLITE_OK && result != SQLITE_DONE && result != SQLITE_ROW)
            throw InputError(std::string("The database cannot be built: ") + sqlite3_errmsg(m_handle) + ".");
    }

    sqlite3* handle() const { return m_handle; }

private:
    sqlite3* m_handle = nullptr;
};

/// A prepared statement, filled from the left and stepped.
class Statement
{
public:
    Statement(Connection& connection, const char* sql)
        : m_connection(connection)
    {
        connection.check(sqlite3_prepare_v2(connection.handle(), sql, -1, &m_handle, nullptr));
    }
    ~Statement() { sqlite3_finalize(m_handle); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& number(int value)
    {
        m_connection.check(sqlite3_bind_int(m_handle, ++m_bound, value));
        return *this;
    }
    Statement& text(const std::string& value)
    {
        const auto length = static_cast<int>(value.size());
        m_connection.check(sqlite3_bind_text(m_handle, ++m_bound, value.data(), length, SQLITE_TRANSIENT));
        return *this;
    }
    Statement& bytes(const std::string& value)
    {
        const auto length = static_cast<int>(value.size());
        m_connection.check(sqlite3_bind_blob(m_handle, ++m_bound, value.data(), length, SQLITE_TRANSIENT));
        return *this;
    }

    /// Runs a statement that gives no row and makes it ready for the next values.
    void insert()
    {
        m_connection.check(sqlite3_step(m_handle));
        m_connection.check(sqlite3_reset(m_handle));
        m_bound = 0;
    }
    int firstNumber()
    {
        m_connection.check(sqlite3_step(m_handle));
        return sqlite3_column_int(m_handle, 0);
    }

private:
    Connection& m_connection;
    sqlite3_stmt* m_handle = nullptr;
    int m_bound = 0;
};

void createTables(Connection& connection)
{
    // The number is the key of the rows, so that they lie in its order and are read without an index.
    connection.run(
        "CREATE TABLE NewTestament (VerseId TEXT NOT NULL, VerseNumber INTEGER PRIMARY KEY,"
        " KJVerseText TEXT NOT NULL);"
        "CREATE TABLE ClassifiedVerses (TopicId INTEGER PRIMARY KEY, Name TEXT NOT NULL,"
        " VerseList TEXT NOT NULL, Type TEXT NOT NULL);"
        "CREATE TABLE NTMaps (MapNumber INTEGER PRIMARY KEY, MapDesc TEXT NOT NULL, Pic BLOB NOT NULL);");
}

/// The books whose verses are numbered first.
std::set<std::string_view> newTestamentBooks()
{
    std::set<std::string_view> books;
    for (const Book& book : bookCatalog()) {
        if (book.testament == "New Testament")
            books.insert(book.abbreviation);
    }
    return books;
}

void insertVerses(Connection& connection, std::vector<Verse> verses)
{
    const auto newTestament = newTestamentBooks();
    std::stable_partition(verses.begin(), verses.end(),
                          [&](const Verse& verse) { return newTestament.contains(verse.key.book); });
    Statement statement(connection,
                        "INSERT INTO NewTestament (VerseId, VerseNumber, KJVerseText) VALUES (?, ?, ?)");
    int number = 0;
    for (const Verse& verse : verses) {
        // Key and text are joined with nothing between them, so the text brings the blank.
        statement.text(verse.key.text()).number(++number).text(" " + verse.text).insert();
    }
}

void insertTopics(Connection& connection, const std::vector<Topic>& topics)
{
    Statement statement(connection, "INSERT INTO ClassifiedVerses (Name, VerseList, Type) VALUES (?, ?, ?)");
    for (const Topic& topic : topics)
        statement.text(topic.name).text(topic.verseList).text(topic.type).insert();
}

void insertMaps(Connection& connection, const std::vector<Map>& maps)
{
    Statement statement(connection, "INSERT INTO NTMaps (MapNumber, MapDesc, Pic) VALUES (?, ?, ?)");
    for (const Map& map : maps)
        statement.number(map.number).text(map.description).bytes(map.picture).insert();
}

int pageCount(Connection& connection)
{
    return Statement(connection, "PRAGMA page_count").firstNumber();
}

/// The length of a blob of zeros whose row takes exactly this many overflow pages.
int fillerLength(int overflowPages)
{
    const int payload = minLocalPayload + overflowPages * overflowPageLoad;
    // The row's header: its own length, and the blob's type in as many bytes of seven bits as it needs.
    int typeBytes = 1;
    while ((2LL * payload + 12) >> (7 * typeBytes) != 0)
        ++typeBytes;
    return payload - 1 - typeBytes;
}

/// Makes the file as long as it must be by pages that were in use and are free again.
void addFreePages(Connection& connection, int pages)
{
    if (pages == 0)
        return;
    connection.run("CREATE TABLE Filler (Zeros BLOB)");
    if (pages > 1)
        Statement(connection, "INSERT INTO Filler VALUES (zeroblob(?))")
            .number(fillerLength(pages - 1))
            .insert();
    if (pageCount(connection) != databasePages)
        throw InputError("The database cannot be built: SQLite stores the filling in other than " +
                         std::to_string(pages) + " pages.");
    connection.run("DROP TABLE Filler");
}

int writeDatabase(const std::string& path, const std::vector<Verse>& verses, const std::vector<Topic>& topics,
                  const std::vector<Map>& maps)
{
    Connection connection(path);
    // No journal and no waiting for the disk: a file that is not finished is thrown away. Freed pages are
    // zeroed.
    connection.run(("PRAGMA page_size = " + std::to_string(databasePageSize)).c_str());
    connection.run("PRAGMA auto_vacuum = NONE; PRAGMA encoding = 'UTF-8'; PRAGMA secure_delete = ON;"
                   "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN");
    createTables(connection);
    insertVerses(connection, verses);
    insertTopics(connection, topics);
    insertMaps(connection, maps);
    const int freePages = databasePages - pageCount(connection);
    if (freePages < 0)
        throw InputError("The data are " + std::to_string(-freePages * databasePageSize) +
                         " bytes too long for a database of " +
                         std::to_string(databasePages * databasePageSize) + " bytes.");
    connection.run("COMMIT; BEGIN");
    addFreePages(connection, freePages);
    connection.run("COMMIT");
    return freePages;
}

} // namespace

int buildDatabase(const std::filesystem::path& path, const std::vector<Verse>& verses,
                  const std::vector<Topic>& topics, const std::vector<Map>& maps)
{
    const std::filesystem::path unfinished = path.string() + ".new";
    std::error_code error;
    std::filesystem::remove(unfinished, error);
    try {
        const int freePages = writeDatabase(unfinished.string(), verses, topics, maps);
        std::filesystem::rename(unfinished, path);
        return freePages;
    } catch (const std::exception&) {
        std::filesystem::remove(unfinished, error);
        throw;
    }
}
