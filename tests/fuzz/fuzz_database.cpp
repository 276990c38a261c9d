// Opens whatever comes as a database file and runs the windows' queries on it. Verses that come must be in
// order.
#include "store/DataError.h"
#include "store/DataSource.h"
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <unistd.h>

namespace {

void run(DataSource& source, const char* sql)
{
    long long last = std::numeric_limits<long long>::min();
    source.setRecordSource(sql);
    try {
        source.refresh();
        for (int rows = 0; !source.eof() && rows < 10'000; ++rows) {
            for (int column = 0; column < 4; ++column)
                source.field(column);
            if (const auto number = source.field("VerseNumber"); !number.empty()) {
                const long long now = std::atoll(std::string(number).c_str());
                if (now <= last || !source.field("KJVerseText").starts_with(' '))
                    std::abort();
                last = now;
            }
            source.moveNext();
        }
    } catch (const DataError& error) {
        if (error.number() == 0 || error.description().empty())
            std::abort();
    }
}

/// One file for all runs, in memory where the system has a place for that.
class InputFile
{
public:
    InputFile()
    {
        const int handle = mkstemp(m_path.data());
        if (handle < 0)
            std::abort();
        close(handle);
    }
    ~InputFile() { std::filesystem::remove(m_path); }
    void write(const std::uint8_t* data, std::size_t size) const
    {
        std::ofstream(m_path, std::ios::binary)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    const std::string& path() const { return m_path; }

private:
    std::string m_path =
        std::filesystem::is_directory("/dev/shm") ? "/dev/shm/kestrel-fuzz-XXXXXX" : "kestrel-fuzz-XXXXXX";
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const InputFile file;
    file.write(data, size);
    DataSource source;
    source.setDatabaseName(file.path());
    for (const char* sql :
         {"SELECT * FROM NewTestament", "SELECT * FROM NewTestament WHERE VerseNumber = 1",
          "SELECT * FROM NewTestament WHERE VerseId LIKE 'Mt:*'",
          "SELECT * FROM NewTestament WHERE VerseId = 'Mt:1:1'",
          "SELECT * FROM NewTestament WHERE (KJVerseText LIKE '*luz*' OR KJVerseText LIKE '*deus*')",
          "SELECT * FROM NewTestament WHERE KJVerseText NOT LIKE '*[!a-z]e[!a-z]*'"})
        run(source, sql);
    for (const char* sql : {"SELECT * FROM main.ClassifiedVerses WHERE Type = 'Events'",
                            "SELECT MapDesc, Pic FROM main.NTMaps WHERE MapNumber = 1"})
        run(source, sql);
    return 0;
}
