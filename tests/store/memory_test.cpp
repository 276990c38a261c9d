// Memory that runs out: whichever allocation fails, of the engine's or of ours, the answer is an error or the
// right one, and the same question is answered when there is memory again.
#include "TestDatabase.h"
#include <cstdlib>
#include <functional>
#include <new>

namespace {

/// Counts every allocation of the process and lets one of them fail, or all from there on.
class Allocations
{
public:
    static void failAt(int number, bool allAfter)
    {
        failing = number;
        failsOn = allAfter;
        count = 0;
        failed = false;
    }
    /// Whether any has failed since.
    static bool stopFailing()
    {
        failing = 0;
        return failed;
    }
    static bool mayPass()
    {
        if (failing == 0)
            return true;
        ++count;
        if (failsOn ? count < failing : count != failing)
            return true;
        failed = true;
        return false;
    }

private:
    static inline int failing = 0;
    static inline int count = 0;
    static inline bool failsOn = false;
    static inline bool failed = false;
};

sqlite3_mem_methods engineMemory; ///< as the engine came with it

/// The engine takes its memory by other methods only before its first use.
const bool engineMemoryIsWatched = [] {
    if (sqlite3_config(SQLITE_CONFIG_GETMALLOC, &engineMemory) != SQLITE_OK)
        return false;
    sqlite3_mem_methods watched = engineMemory;
    watched.xMalloc = [](int size) { return Allocations::mayPass() ? engineMemory.xMalloc(size) : nullptr; };
    watched.xRealloc = [](void* memory, int size) {
        return Allocations::mayPass() ? engineMemory.xRealloc(memory, size) : nullptr;
    };
    return sqlite3_config(SQLITE_CONFIG_MALLOC, &watched) == SQLITE_OK;
}();

} // namespace

// All of them, so that what one takes no other kind gives back.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocations::mayPass() ? std::malloc(size ? size : 1) : nullptr;
}
void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return operator new(size, std::nothrow);
}
void* operator new[](std::size_t size)
{
    return operator new(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

namespace {

using Answer = std::vector<std::string>;

/// All columns of all rows.
void read(DataSource& source, Answer& answer)
{
    for (source.refresh(); !source.eof(); source.moveNext())
        for (int column = 0; column < 4; ++column)
            answer.emplace_back(source.field(column));
}

class FailingMemory : public testing::TestWithParam<const char*>
{
protected:
    FailingMemory()
    {
        EXPECT_TRUE(engineMemoryIsWatched);
        makeDatabase(m_folder.file(), smallBible);
        m_kept.setDatabaseName(m_folder.file());
        m_kept.setRecordSource(GetParam());
    }

    Answer askAnew()
    {
        DataSource source;
        Answer answer;
        source.setDatabaseName(m_folder.file());
        source.setRecordSource(GetParam());
        read(source, answer);
        return answer;
    }

    Answer askKept()
    {
        Answer answer;
        read(m_kept, answer);
        return answer;
    }

    /// Asks once for each allocation that it takes, with that one failing; then again with memory enough. How
    /// many.
    int failEach(bool allAfter, const std::function<Answer()>& ask)
    {
        const Answer expected = ask();
        EXPECT_FALSE(expected.empty());
        for (int number = 1; number < 20'000; ++number) {
            Answer answer;
            std::string error;
            Allocations::failAt(number, allAfter);
            try {
                answer = ask();
            } catch (const DataError& caught) {
                Allocations::stopFailing();
                error = caught.description();
                EXPECT_EQ(caught.number(), SQLITE_NOMEM) << number << ": " << error;
            } catch (const std::bad_alloc& caught) {
                Allocations::stopFailing();
                error = caught.what();
            }
            if (!Allocations::stopFailing() && error.empty() && answer == expected)
                return number - 1;
            if (error.empty()) {
                EXPECT_EQ(answer, expected) << "no error, and another answer, at " << number;
            }
            EXPECT_EQ(ask(), expected) << "with memory again, after " << number;
            if (HasFailure())
                break;
        }
        ADD_FAILURE() << "it never came to its end";
        return 0;
    }

    TestFolder m_folder;
    DataSource m_kept;
};

TEST_P(FailingMemory, whileAnOpenDatabaseIsAskedIsAnError)
{
    EXPECT_GT(failEach(false, [this] { return askKept(); }), 5);
    EXPECT_GT(failEach(true, [this] { return askKept(); }), 5);
}

INSTANTIATE_TEST_SUITE_P(
    kinds, FailingMemory,
    testing::Values(
        "SELECT * FROM NewTestament WHERE VerseNumber = 4",
        "SELECT * FROM NewTestament WHERE VerseId = 'Gn:1:2'",
        "SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:1*'",
        "SELECT * FROM NewTestament WHERE (KJVerseText LIKE '*[!0-9a-z]luz[!0-9a-z]*' OR KJVerseText "
        "LIKE '*deus*') AND VerseNumber > 2",
        "SELECT * FROM NewTestament WHERE KJVerseText NOT LIKE '*j*' AND VerseId LIKE '*1*'",
        "SELECT * FROM NewTestament", "SELECT * FROM ClassifiedVerses WHERE Type = 'Events'",
        "SELECT * FROM NTMaps WHERE MapNumber = 1"));

class FailingMemoryAtTheOpening : public FailingMemory
{
};

TEST_P(FailingMemoryAtTheOpening, isAnError)
{
    EXPECT_GT(failEach(false, [this] { return askAnew(); }), 100);
    EXPECT_GT(failEach(true, [this] { return askAnew(); }), 100);
}

TEST_P(FailingMemoryAtTheOpening, isForgottenByTheSameSourcesNextUse)
{
    const Answer expected = askAnew();
    bool failed = true;
    for (int number = 1; failed; ++number) {
        DataSource source;
        Answer answer;
        source.setDatabaseName(m_folder.file());
        source.setRecordSource(GetParam());
        Allocations::failAt(number, false);
        try {
            read(source, answer);
        } catch (const std::exception&) {
            Allocations::stopFailing();
        }
        failed = Allocations::stopFailing();
        answer.clear();
        ASSERT_NO_THROW(read(source, answer)) << number;
        ASSERT_EQ(answer, expected) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(kinds, FailingMemoryAtTheOpening,
                         testing::Values("SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:1*'",
                                         "SELECT * FROM NTMaps WHERE MapNumber = 1"));

} // namespace
