#include "store/VerseBlock.h"

#include "store/Sqlite.h"
#include <algorithm>

namespace {

/// More than any sound file can hold; less than offsets of 32 bits can count.
constexpr std::size_t maxBytes = 64 << 20;
constexpr std::size_t sampleEvery = 16;

} // namespace

VerseBlock::VerseBlock(sqlite3* connection, std::size_t expectedBytes)
{
    m_texts.reserve(std::min(expectedBytes, maxBytes));
    // The file is built in order, which is quickest to read; any other is read again and sorted by the
    // engine.
    if (!read(connection, ""))
        read(connection, " ORDER BY VerseNumber");
    countBytes();
}

/// False, with part of the rows read, when they do not come in the order of their numbers.
bool VerseBlock::read(sqlite3* connection, const char* order)
{
    m_numbers.clear();
    m_keys.clear();
    m_texts.clear();
    m_keyStarts.assign(1, 0);
    m_textStarts.assign(1, 0);
    const bool sorted = *order != '\0';
    const auto rows = prepare(
        connection, std::string("SELECT VerseId, VerseNumber, KJVerseText FROM main.NewTestament") + order);
    int result;
    while ((result = sqlite3_step(rows.get())) == SQLITE_ROW) {
        if (sqlite3_column_type(rows.get(), 1) != SQLITE_INTEGER)
            continue;
        const std::int64_t number = sqlite3_column_int64(rows.get(), 1);
        if (!m_numbers.empty() && number <= m_numbers.back()) {
            if (!sorted)
                return false;
            continue;
        }
        const std::string_view text = columnBytes(rows.get(), 2);
        m_numbers.push_back(number);
        m_keys += columnBytes(rows.get(), 0);
        m_texts.append(text.starts_with(' ') ? "" : " ").append(text);
        if (m_keys.size() > maxBytes || m_texts.size() > maxBytes)
            throw DataError(SQLITE_TOOBIG, sqlite3_errstr(SQLITE_TOOBIG));
        m_keyStarts.push_back(static_cast<std::uint32_t>(m_keys.size()));
        m_textStarts.push_back(static_cast<std::uint32_t>(m_texts.size()));
    }
    if (result != SQLITE_DONE)
        throw sqliteError(connection);
    return true;
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
    return std::lower_bound(m_numbers.begin(), m_numbers.end(), number) - m_numbers.begin();
}

std::size_t VerseBlock::rowAbove(std::int64_t number) const
{
    return std::upper_bound(m_numbers.begin(), m_numbers.end(), number) - m_numbers.begin();
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
