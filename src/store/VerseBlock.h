#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_context;
struct sqlite3_value;

/// The rows of `NewTestament`, read once and never changed: ascending by number, no number twice.
///
/// Texts lie one after another, each begun by a blank, so that they can be handed out without a copy and
/// searched in one sweep. A row whose number is no whole number is left out.
class VerseBlock
{
public:
    /// Reads the table of the connection's file, at most `expectedBytes` long. Throws DataError.
    VerseBlock(sqlite3* connection, std::size_t expectedBytes);

    /// How many rows there are. The next three want a row below that.
    std::size_t size() const { return m_numbers.size(); }
    std::int64_t number(std::size_t row) const { return m_numbers[row]; }
    std::string_view key(std::size_t row) const { return part(m_keys, m_keyStarts, row); }
    std::string_view text(std::size_t row) const { return part(m_texts, m_textStarts, row); }

    /// The first row whose number is not below, or above, this one; size() if there is none.
    std::size_t rowNotBelow(std::int64_t number) const;
    std::size_t rowAbove(std::int64_t number) const;

    const char* textsEnd() const { return m_texts.data() + m_texts.size(); }
    /// Whether this address is in the texts.
    bool holds(const char* address) const
    {
        const std::less<const char*> before;
        return !before(address, m_texts.data()) && before(address, textsEnd());
    }
    /// The row whose text holds this address of the texts. `from` is that row or an earlier one, to seek
    /// from.
    std::size_t rowAt(const char* address, std::size_t from) const;

    /// How common each byte is in a sample of the texts, bit 0x20 set throughout.
    const std::array<std::uint32_t, 256>& byteCounts() const { return m_byteCounts; }

private:
    using Starts = std::vector<std::uint32_t>;

    static std::string_view part(const std::string& all, const Starts& starts, std::size_t row)
    {
        return {all.data() + starts[row], starts[row + 1] - starts[row]};
    }
    bool read(sqlite3* connection, const std::string& rows);
    static void gather(sqlite3_context* context, int, sqlite3_value** columns);
    void append(std::int64_t number, std::string_view key, std::string_view text);
    void countBytes();

    std::vector<std::int64_t> m_numbers;
    std::string m_keys;
    std::string m_texts;
    Starts m_keyStarts; ///< one more than rows: each key ends where the next one starts
    Starts m_textStarts;
    std::array<std::uint32_t, 256> m_byteCounts{};
};
