#include "store/Allocations.h"

#include <cstdlib>
#include <new>
#include <sqlite3.h>

namespace {

int failing = 0; ///< 0 when none is to fail
bool failsOn = false;
int count = 0;
bool failed = false;

bool mayPass()
{
    if (failing == 0)
        return true;
    ++count;
    if (failsOn ? count < failing : count != failing)
        return true;
    failed = true;
    return false;
}

sqlite3_mem_methods sqliteMemory; ///< as SQLite came with it

/// SQLite takes other methods only before its first use.
const bool sqliteIsWatched = [] {
    if (sqlite3_config(SQLITE_CONFIG_GETMALLOC, &sqliteMemory) != SQLITE_OK)
        return false;
    sqlite3_mem_methods watched = sqliteMemory;
    watched.xMalloc = [](int size) { return mayPass() ? sqliteMemory.xMalloc(size) : nullptr; };
    watched.xRealloc = [](void* memory, int size) {
        return mayPass() ? sqliteMemory.xRealloc(memory, size) : nullptr;
    };
    return sqlite3_config(SQLITE_CONFIG_MALLOC, &watched) == SQLITE_OK;
}();

} // namespace

bool Allocations::areWatched()
{
    return sqliteIsWatched;
}

void Allocations::failAt(int number, bool allAfter)
{
    failing = number;
    failsOn = allAfter;
    count = 0;
    failed = false;
}

bool Allocations::stopFailing()
{
    failing = 0;
    return failed;
}

// All of them, so that what one takes no other kind gives back.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return mayPass() ? std::malloc(size ? size : 1) : nullptr;
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
