#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

/// A window's view of the database: an SQL text, run by refresh(), whose rows are then walked one at a time.
///
/// All texts are UTF-8. The database is opened at the first refresh() after setDatabaseName(), read-only;
/// every data source of the process on the same path shares it. Rows of `NewTestament` always come in
/// ascending `VerseNumber` order. refresh() and moveNext() throw DataError with SQLite's own text.
class DataSource
{
public:
    DataSource();
    ~DataSource();
    DataSource(const DataSource&) = delete;
    DataSource& operator=(const DataSource&) = delete;

    /// The path of the database file. Changing it forgets the current result.
    void setDatabaseName(std::string path);

    /// The SQL text: one statement and nothing behind it. It takes effect with the next refresh().
    void setRecordSource(std::string sql);
    const std::string& recordSource() const;

    /// Runs the SQL text and stands on its first row; a text that holds a NUL finds none. After a throw there
    /// is no current row.
    void refresh();

    /// The number of rows reached so far: 0 exactly when the result has no row.
    int recordCount() const;
    /// True when there is no current row: past the last one, or none at all.
    bool eof() const;
    /// Steps to the next row; does nothing at the end.
    void moveNext();

    /// A column of the current row as text (a BLOB as its bytes); empty at the end and for NULL or an unknown
    /// column. Valid until the next operation.
    std::string_view field(int position) const;
    std::string_view field(std::string_view column) const;

    /// Called at the end of refresh() and moveNext(), when another row is the current one, or none is any
    /// more: for bound controls. It may read the row, and may set an SQL text and refresh(), which calls it
    /// again. It must not destroy the data source or replace itself. It is not called when refresh() or
    /// moveNext() throws, by moveNext() at the end, or by setDatabaseName(), although there is no current row
    /// then.
    std::function<void()> currentRowChanged;

private:
    class Cursor;
    std::string m_databaseName;
    std::string m_recordSource;
    std::unique_ptr<Cursor> m_cursor;
};
