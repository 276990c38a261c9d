#include "store/VerseBlock.h"

#include "store/Limits.h"
#include "store/Sqlite.h"
#include <algorithm>

namespace {

constexpr std::size_t sampleEvery = 64;

/// Takes the function away again, so that no other statement can call it.
struct RemoveGather
{
    sqlite3* connection;
    ~RemoveGather()
    {
        sqlite3_create_function(connection, "gather", 3, SQLITE_UTF8, nullptr, nullptr, nullptr, nullptr);
    }
};

} // namespace

VerseBlock::VerseBlock(sqlite3* connection, std::size_t expectedBytes)
{
    m_texts.reserve(std::min(expectedBytes, limits::maxBlockBytes));
    // The file is built in order, which is quickest to read; any other is read again, sorted by SQLite.
    if (!read(connection, "main.NewTestament"))
        read(connection, "(SELECT * FROM main.NewTestament ORDER BY VerseNumber)");
    countBytes();
}

/// False, with part of the rows read, when they do not come in the order of their numbers.
bool VerseBlock::read(sqlite3* connection, const std::string& rows)
{
    m_numbers.clear();
    m_keys.clear();
    m_texts.clear();
    m_keyStarts.assign(1, 0);
    m_textStarts.assign(1, 0);
    // SQLite hands the rows to an aggregate function in two thirds of the time that a step and six calls for
    // the columns of each row take.
    const RemoveGather removed{connection};
    if (sqlite3_create_function(connection, "gather", 3, SQLITE_UTF8 | SQLITE_DIRECTONLY, this, nullptr,
                                gather, [](sqlite3_context*) {}) != SQLITE_OK)
        throw sqliteError(connection);
    const Statement statement =
        compile(connection, "SELECT gather(VerseId, VerseNumber, KJVerseText) FROM " + rows);
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_ABORT)
        throw sqliteError(connection);
    return result == SQLITE_ROW;
}

/// Called by SQLite for each row. A row out of order ends the statement with SQLITE_ABORT.
void VerseBlock::gather(sqlite3_context* context, int, sqlite3_value** columns)
try {
    auto& block = *static_cast<VerseBlock*>(sqlite3_user_data(context));
    if (sqlite3_value_type(columns[1]) != SQLITE_INTEGER)
        return;
    const std::int64_t number = sqlite3_value_int64(columns[1]);
    if (block.m_numbers.empty() || number > block.m_numbers.back())
        block.append(number, valueBytes(columns[0]), valueBytes(columns[2]));
    else if (number < block.m_numbers.back())
        sqlite3_result_error_code(context, SQLITE_ABORT);
} catch (const DataError& error) {
    sqlite3_result_error_code(context, error.number());
} catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
}

void VerseBlock::append(std::int64_t number, std::string_view key, std::string_view text)
{
    if (key.size() > limits::maxKeyBytes || text.size() > limits::maxVerseBytes)
        throw damage();
    m_numbers.push_back(number);
    m_keys += key;
    m_texts.append(text.starts_with(' ') ? "" : " ").append(text);
    if (m_keys.size() > limits::maxBlockBytes || m_texts.size() > limits::maxBlockBytes)
        throw DataError(SQLITE_TOOBIG, sqlite3_errstr(SQLITE_TOOBIG));
    m_keyStarts.push_back(static_cast<std::uint32_t>(m_keys.size()));
    m_textStarts.push_back(static_cast<std::uint32_t>(m_texts.size()));
}

void VerseBlock::countBytes()
{
    for (std::size_t row = 0; row < size(); row += sampleEvery) {
        for (const char c : text(row))
            ++m_byteCounts[static_cast<unsigned char>(c) | 0x20];
    }
}

std::size_t VerseBlock::rowNotBelow(std::int64_t number) const
{
    const auto found = std::lower_bound(m_numbers.begin(), m_numbers.end(), number);
    return static_cast<std::size_t>(found - m_numbers.begin());
}

std::size_t VerseBlock::rowAbove(std::int64_t number) const
{
    const auto found = std::upper_bound(m_numbers.begin(), m_numbers.end(), number);
    return static_cast<std::size_t>(found - m_numbers.begin());
}

std::size_t VerseBlock::rowAt(const char* address, std::size_t from) const
{
    const auto offset = static_cast<std::uint32_t>(address - m_texts.data());
    // It is mostly close by: counting a few rows at once is quicker than deciding at each.
    constexpr std::size_t few = 8;
    if (from + few < m_textStarts.size()) {
        std::size_t passed = 0;
        for (std::size_t i = 1; i <= few; ++i)
            passed += m_textStarts[from + i] <= offset;
        from += passed;
        if (passed < few)
            return from;
    }
    // Ever longer steps, then halving the last one, stay in the cache.
    std::size_t step = few;
    while (from + step < m_textStarts.size() && m_textStarts[from + step] <= offset) {
        from += step;
        step *= 2;
    }
    const auto first = m_textStarts.begin() + static_cast<std::ptrdiff_t>(from);
    const auto last =
        m_textStarts.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, m_textStarts.size()));
    return static_cast<std::size_t>(std::upper_bound(first, last, offset) - m_textStarts.begin() - 1);
}
