#include "store/LikeFunction.h"

#include "store/Sqlite.h"
#include "store/TextSearch.h"
#include "store/Verses.h"
#include <functional>

namespace {

/// A pattern in use by a statement, kept with it from row to row.
class LikeTest
{
public:
    LikeTest(const Verses& verses, std::string_view pattern)
        : m_pattern(pattern)
    {
        if (verses.block) {
            m_block = &*verses.block;
            m_search.emplace(*m_block, pattern);
        }
    }

    /// The result of like() for a text. NULL, for which it is unknown, has none.
    void answer(sqlite3_context* context, sqlite3_value* value)
    {
        const auto* text = static_cast<const char*>(sqlite3_value_blob(value));
        if (isDecided(text))
            sqlite3_result_int(context, text == m_nextMatch);
        else if (text || sqlite3_value_type(value) != SQLITE_NULL)
            sqlite3_result_int(context, matches(value, text));
    }

private:
    /// SQLite asks for the rows in ascending order: none from the text last looked at to the next match needs
    /// a look at its text.
    bool isDecided(const char* text) const
    {
        const std::less<const char*> before; // "<" is not defined for what is in no common array
        return m_from && !before(text, m_from) && !before(m_nextMatch, text);
    }

    bool matches(sqlite3_value* value, const char* text)
    {
        if (!m_block || !m_block->holds(text))
            return m_pattern.matches(valueBytes(value));
        m_row = m_block->rowAt(text, std::less<>()(text, m_from) ? 0 : m_row);
        m_row = m_search->next(m_row, m_block->size());
        m_from = text;
        m_nextMatch = m_row < m_block->size() ? m_block->text(m_row).data() : m_block->textsEnd();
        return text == m_nextMatch;
    }

    LikePattern m_pattern;
    const VerseBlock* m_block = nullptr;
    std::optional<TextSearch> m_search;
    const char* m_from = nullptr;      ///< the text last looked at, none at first
    const char* m_nextMatch = nullptr; ///< the next text that matches, or the end of all
    std::size_t m_row = 0;             ///< of the next match
};

/// like(pattern, text), which is what `text LIKE pattern` calls. Unknown, that is NULL, when either is NULL.
void like(sqlite3_context* context, int, sqlite3_value** arguments)
try {
    if (auto* test = static_cast<LikeTest*>(sqlite3_get_auxdata(context, 0))) {
        test->answer(context, arguments[1]);
    } else if (sqlite3_value_type(arguments[0]) != SQLITE_NULL) {
        const auto* verses = static_cast<const Verses*>(sqlite3_user_data(context));
        auto fresh = std::make_unique<LikeTest>(*verses, valueBytes(arguments[0]));
        fresh->answer(context, arguments[1]);
        sqlite3_set_auxdata(context, 0, fresh.release(),
                            [](void* used) { delete static_cast<LikeTest*>(used); });
    }
} catch (const DataError& error) {
    sqlite3_result_error(context, error.what(), -1);
    sqlite3_result_error_code(context, error.number());
} catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
}

} // namespace

int registerLike(sqlite3* connection, const Verses* verses)
{
    return sqlite3_create_function_v2(connection, "like", 2,
                                      SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                                      const_cast<Verses*>(verses), like, nullptr, nullptr, nullptr);
}
