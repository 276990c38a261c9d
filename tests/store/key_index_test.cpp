#include "store/KeyIndex.h"
#include "store/LetterCase.h"
#include "store/TestDatabase.h"

namespace {

/// The verses of a database file.
VerseBlock read(const std::string& path)
{
    sqlite3* connection = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    const VerseBlock block(connection, std::filesystem::file_size(asPath(path)));
    sqlite3_close(connection);
    return block;
}

std::size_t firstFrom(const VerseBlock& block, const std::string& prefix, std::size_t row)
{
    while (row < block.size() && !foldCase(block.key(row)).starts_with(prefix))
        ++row;
    return row;
}

} // namespace

// A row too early would give right answers, too, since SQLite or the cursor looks at it again, but slowly.
TEST(KeyIndex, FindsTheFirstRowOfAPrefixFromAnyRowOn)
{
    const VerseBlock block = read(KESTREL_INSTALL_DIR "/KESTRPT.DAT");
    const KeyIndex index(block);
    for (const char* keys :
         {"Mt:1:1", "Mt:24:43", "Mt:2", "Ps:119:", "Rv:22:21", "J", "1", "Xy:1", "Gn:1:1:1", ""}) {
        const std::string prefix = foldCase(keys);
        for (const std::size_t row : {0U, 1U, 1070U, 7957U, 20'000U, 31'101U, 31'102U})
            EXPECT_EQ(index.next(prefix, row), firstFrom(block, prefix, row)) << keys << " from " << row;
    }
}
