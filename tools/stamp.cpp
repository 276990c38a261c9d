// Gives the text of Kestrel Reader, the file beside this program, the time that the reader looks for: 5 May
// 1998, 05:00:00 where this computer is. Unpacking a zip sets times by today's summer time, and not by that
// of the day meant; a computer that was moved to another zone has another local time, too.
//
//     kestrel-stamp [/quiet]       /quiet: tells nothing but by its exit code, 0 when the time is set
#include <ctime>
#include <cwchar>
#include <string>
#include <windows.h>

namespace {

/// By the same function that Qt reckons with, so that both mean the same moment whatever the zone's rules
/// are.
std::time_t wantedTime()
{
    std::tm local{};
    local.tm_year = 98;
    local.tm_mon = 4;
    local.tm_mday = 5;
    local.tm_hour = 5;
    local.tm_isdst = -1; // as the zone has it on that day
    return std::mktime(&local);
}

/// Windows counts from the year 1601, in tenths of a microsecond.
FILETIME asFileTime(std::time_t seconds)
{
    constexpr long long between = 11'644'473'600;
    ULARGE_INTEGER count;
    count.QuadPart = static_cast<ULONGLONG>((seconds + between) * 10'000'000);
    return {count.LowPart, count.HighPart};
}

std::wstring databaseBesideUs()
{
    std::wstring path(32768, L'\0'); // the longest
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.rfind(L'\\') + 1) + L"KESTRPT.DAT";
}

bool stamp(const std::wstring& path)
{
    const HANDLE file = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const FILETIME time = asFileTime(wantedTime());
    const bool done = SetFileTime(file, nullptr, nullptr, &time);
    CloseHandle(file);
    return done;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t* arguments, int)
{
    const std::wstring path = databaseBesideUs();
    const bool done = stamp(path);
    if (!std::wcsstr(arguments, L"/quiet")) {
        const std::wstring said =
            done ? L"Kestrel Reader can be started now: its text has the time it must have, in the zone of "
                   L"this computer."
                 : L"The time of this file could not be set; is it there, and may you change it?\n\n" + path;
        MessageBoxW(nullptr, said.c_str(), L"Kestrel Reader (PT)",
                    static_cast<UINT>(done ? MB_ICONINFORMATION : MB_ICONEXCLAMATION));
    }
    return done ? 0 : 1;
}
