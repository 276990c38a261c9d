#include "store/ProcessorTime.h"

#include <windows.h>

namespace {

/// Windows counts in tenths of a microsecond.
std::chrono::nanoseconds asDuration(const FILETIME& time)
{
    const ULARGE_INTEGER count{{time.dwLowDateTime, time.dwHighDateTime}};
    return std::chrono::nanoseconds(static_cast<long long>(count.QuadPart) * 100);
}

} // namespace

// std::clock() goes on here while the process waits.
std::chrono::nanoseconds processorTime()
{
    FILETIME begun{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetProcessTimes(GetCurrentProcess(), &begun, &ended, &kernel, &user);
    return asDuration(kernel) + asDuration(user);
}
