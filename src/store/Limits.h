#pragma once

#include <cstddef>

/// What a database may hold and what a statement may cost. A reader meets nothing near these bounds: whatever
/// exceeds them is damage or an attack, and is refused with an error.
namespace limits {

constexpr std::size_t maxKeyBytes = 64;
constexpr std::size_t maxVerseBytes = 8 << 10;
/// Of all keys, or of all verses; offsets of 32 bits can count them.
constexpr std::size_t maxBlockBytes = 64 << 20;
constexpr std::size_t maxTopicListBytes = 64 << 10; ///< of a `VerseList`
constexpr int maxTopics = 5'000;
constexpr std::size_t maxTitleBytes = 1 << 10; ///< of a topic's `Name`, and of a `MapDesc`
constexpr int maxValueBytes = 1 << 20;         ///< of any column; the longest are the maps' pictures

constexpr int maxSqlBytes = 100'000;
constexpr long long maxMemoryBytes = 64 << 20; ///< of SQLite, in the whole process
constexpr int maxSteps = 30'000'000; ///< of SQLite's, for one statement; the busiest search takes a million
constexpr int maxSeconds = 2; ///< of processor time, for one statement; opening takes a hundredth of one

} // namespace limits
