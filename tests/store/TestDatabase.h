#pragma once

#include "store/DataError.h"
#include "store/DataSource.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <sqlite3.h>
#include <string>
#include <vector>

/// A path in UTF-8, as SQLite takes it, is one for the file system, too.
inline std::filesystem::path asPath(const std::string& path)
{
    return std::u8string(path.begin(), path.end());
}

/// A temporary folder for one test, removed with all that is in it.
class TestFolder
{
public:
    TestFolder()
    {
        std::random_device chance;
        do
            m_path = std::filesystem::temp_directory_path() / ("kestrel-store-" + std::to_string(chance()));
        while (!std::filesystem::create_directory(m_path));
    }
    ~TestFolder() { std::filesystem::remove_all(m_path); }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::string file(const std::string& name = "KESTRPT.DAT") const
    {
        const std::u8string path = (m_path / asPath(name)).u8string();
        return std::string(path.begin(), path.end());
    }
    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Writes a database by plain SQL, without any of the code under test.
inline void makeDatabase(const std::string& path, const std::string& sql)
{
    sqlite3* connection = nullptr;
    char* message = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, &message), SQLITE_OK) << message;
    sqlite3_free(message);
    sqlite3_close(connection);
}

inline const std::string verseTable = "PRAGMA page_size = 2048; CREATE TABLE NewTestament (VerseId TEXT, "
                                      "VerseNumber INTEGER, KJVerseText TEXT);";

/// Six verses, stored in disorder, one of them without its leading blank.
inline const std::string smallBible =
    verseTable + "CREATE INDEX ByKey ON NewTestament (VerseId);"
                 "INSERT INTO NewTestament VALUES ('Gn:1:2', 5, ' A gaveta estava vazia.'),"
                 "('Mt:1:1', 1, ' Livro dos recados da estação.'), ('Gn:1:1', 4, 'Dorme o gato na escada.'),"
                 "('Mt:10:1', 3, ' Água e luz.'), ('Mt:2:1', 2, ' E vem o padeiro.'),"
                 "('Gn:1:3', 6, ' Apaga a luz; é tarde.');"
                 "CREATE TABLE ClassifiedVerses (Id INTEGER, Name TEXT, VerseList TEXT, Type TEXT);"
                 "INSERT INTO ClassifiedVerses VALUES (1, 'Água', 'Mt:10:1\\Gn:1:2-3', 'Events');"
                 "CREATE TABLE NTMaps (MapNumber INTEGER, MapDesc TEXT, Pic BLOB);"
                 "INSERT INTO NTMaps VALUES (1, 'Nowhere', x'00FF0041'), (2, NULL, NULL);";

inline DataSource& openIn(DataSource& source, const std::string& path, const std::string& sql)
{
    source.setDatabaseName(path);
    source.setRecordSource(sql);
    source.refresh();
    return source;
}

/// Column 0 of all rows.
inline std::vector<std::string> keys(const std::string& path, const std::string& conditions)
{
    DataSource source;
    std::vector<std::string> result;
    for (openIn(source, path, "SELECT * FROM NewTestament" + conditions); !source.eof(); source.moveNext())
        result.emplace_back(source.field(0));
    return result;
}

/// The error that a query meets, at its first row or any later; number 0 if none.
inline DataError errorOf(const std::string& path, const std::string& sql)
{
    try {
        DataSource source;
        for (openIn(source, path, sql); !source.eof(); source.moveNext()) {
        }
    } catch (const DataError& error) {
        return error;
    }
    return DataError(0, "");
}
