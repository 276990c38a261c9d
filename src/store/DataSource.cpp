#include "store/DataSource.h"

#include "store/Database.h"

/// What a data source holds between its operations: the database, and the statement while it has a row to
/// show.
class DataSource::Cursor
{
public:
    explicit Cursor(const std::string& path)
        : m_database(Database::open(path))
    {
    }

    void run(const std::string& sql)
    {
        m_statement.reset();
        m_rowsReached = 0;
        // SQLite would read the text only up to the NUL. No key and no verse holds one, so nothing matches.
        if (sql.find('\0') != sql.npos)
            return;
        m_statement = m_database->prepare(sql);
        // An empty text compiles to nothing.
        if (!m_statement)
            throw DataError(SQLITE_MISUSE, sqlite3_errstr(SQLITE_MISUSE));
        step();
    }

    void step()
    {
        const int result = sqlite3_step(m_statement.get());
        if (result == SQLITE_ROW) {
            ++m_rowsReached;
        } else if (result == SQLITE_DONE) {
            m_statement.reset();
        } else {
            const DataError error = sqliteError(m_database->connection());
            m_statement.reset();
            throw error;
        }
    }

    sqlite3_stmt* row() const { return m_statement.get(); }
    int rowsReached() const { return m_rowsReached; }

private:
    std::shared_ptr<Database> m_database;
    Statement m_statement;
    int m_rowsReached = 0;
};

DataSource::DataSource() = default;
DataSource::~DataSource() = default;

void DataSource::setDatabaseName(std::string path)
{
    if (path == m_databaseName)
        return;
    m_databaseName = std::move(path);
    m_cursor.reset();
}

void DataSource::setRecordSource(std::string sql)
{
    m_recordSource = std::move(sql);
}

const std::string& DataSource::recordSource() const
{
    return m_recordSource;
}

void DataSource::refresh()
{
    if (!m_cursor)
        m_cursor = std::make_unique<Cursor>(m_databaseName);
    m_cursor->run(m_recordSource);
    if (currentRowChanged)
        currentRowChanged();
}

int DataSource::recordCount() const
{
    return m_cursor ? m_cursor->rowsReached() : 0;
}

bool DataSource::eof() const
{
    return !m_cursor || !m_cursor->row();
}

void DataSource::moveNext()
{
    if (eof())
        return;
    m_cursor->step();
    if (currentRowChanged)
        currentRowChanged();
}

std::string_view DataSource::field(int position) const
{
    return eof() ? std::string_view() : columnBytes(m_cursor->row(), position);
}

std::string_view DataSource::field(std::string_view column) const
{
    if (eof())
        return {};
    sqlite3_stmt* const row = m_cursor->row();
    for (int position = 0; position < sqlite3_column_count(row); ++position) {
        const std::string_view name = sqlite3_column_name(row, position);
        if (name.size() == column.size() &&
            sqlite3_strnicmp(name.data(), column.data(), static_cast<int>(name.size())) == 0)
            return field(position);
    }
    return {};
}
