// Memory that runs out: whichever allocation fails, of SQLite's or of ours, the answer is an error or the
// right one, and the same question is answered when there is memory again.
#include "store/Allocations.h"
#include "store/TestDatabase.h"
#include <functional>

namespace {

using Answer = std::vector<std::string>;

/// All columns of all rows.
void read(DataSource& source, Answer& answer)
{
    for (source.refresh(); !source.eof(); source.moveNext())
        for (int column = 0; column < 4; ++column)
            answer.emplace_back(source.field(column));
}

// Which allocations fail: one, or that one and all after it.
constexpr bool oneAlone = false;
constexpr bool allFromThere = true;

class FailingMemory : public testing::TestWithParam<const char*>
{
protected:
    FailingMemory()
    {
        EXPECT_TRUE(Allocations::areWatched());
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

TEST_P(FailingMemory, WhileAnOpenDatabaseIsAskedIsAnError)
{
    EXPECT_GT(failEach(oneAlone, [this] { return askKept(); }), 5);
    EXPECT_GT(failEach(allFromThere, [this] { return askKept(); }), 5);
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

TEST_P(FailingMemoryAtTheOpening, IsAnError)
{
    EXPECT_GT(failEach(oneAlone, [this] { return askAnew(); }), 100);
    EXPECT_GT(failEach(allFromThere, [this] { return askAnew(); }), 100);
}

TEST_P(FailingMemoryAtTheOpening, IsForgottenByTheSameSourcesNextUse)
{
    const Answer expected = askAnew();
    bool failed = true;
    for (int number = 1; failed; ++number) {
        DataSource source;
        Answer answer;
        source.setDatabaseName(m_folder.file());
        source.setRecordSource(GetParam());
        Allocations::failAt(number, oneAlone);
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
                         testing::Values("SELECT * FROM NewTestament WHERE VerseId LIKE 'Gn:1*'"));

} // namespace
