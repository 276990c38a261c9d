#pragma once

#include <chrono>

/// What this process has used of its processors since its start, all threads together; it stands still while
/// the process waits or the computer sleeps.
std::chrono::nanoseconds processorTime();
