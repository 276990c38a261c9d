#include "LikeFunction.h"

#include "Engine.h"
#include "TextSearch.h"
#include "Verses.h"

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

    bool matches(std::string_view text)
    {
        if (!m_block || !m_block->holds(text.data()))
            return m_pattern.matches(text);
        // Rows are asked for in ascending order: all between `from` and the next match need no look at their
        // text.
        if (text.data() < m_from || text.data() > m_nextMatch) {
            const std::size_t next = m_search->next(m_block->rowAt(text.data()), m_block->size());
            m_from = text.data();
            m_nextMatch = next < m_block->size() ? m_block->text(next).data() : m_block->textsEnd();
        }
        return text.data() == m_nextMatch;
    }

private:
    LikePattern m_pattern;
    const VerseBlock* m_block = nullptr;
    std::optional<TextSearch> m_search;
    const char* m_from = nullptr;
    const char* m_nextMatch = nullptr;
};

std::string_view textOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text ? text : "", static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// like(pattern, text), which is what `text LIKE pattern` calls.
void like(sqlite3_context* context, int, sqlite3_value** arguments)
try {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    auto* test = static_cast<LikeTest*>(sqlite3_get_auxdata(context, 0));
    std::unique_ptr<LikeTest> fresh;
    if (!test) {
        const auto* verses = static_cast<const Verses*>(sqlite3_user_data(context));
        fresh = std::make_unique<LikeTest>(*verses, textOf(arguments[0]));
        test = fresh.get();
    }
    sqlite3_result_int(context, test->matches(textOf(arguments[1])));
    if (fresh)
        sqlite3_set_auxdata(context, 0, fresh.release(),
                            [](void* used) { delete static_cast<LikeTest*>(used); });
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
