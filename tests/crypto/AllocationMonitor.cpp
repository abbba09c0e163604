#include "tests/crypto/AllocationMonitor.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

struct Watch
{
    bool isActive = false;
    bool hasFailed = false;
    std::size_t allowed = 0;
    std::size_t largest = 0;
    long balance = 0;
};

thread_local Watch watch;

void* allocate(std::size_t size)
{
    if (watch.isActive) {
        if (watch.allowed == 0) {
            watch.hasFailed = true;
            throw std::bad_alloc();
        }
        --watch.allowed;
        ++watch.balance;
        watch.largest = std::max(watch.largest, size);
    }
    if (void* memory = std::malloc(std::max(size, std::size_t{1})))
        return memory;
    throw std::bad_alloc();
}

void release(void* memory)
{
    if (watch.isActive && memory)
        --watch.balance;
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}

void* operator new[](std::size_t size)
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

AllocationMonitor::AllocationMonitor(std::size_t allowed)
{
    watch = {};
    watch.allowed = allowed;
    watch.isActive = true;
}

AllocationMonitor::~AllocationMonitor()
{
    watch.isActive = false;
}

bool AllocationMonitor::hasFailed()
{
    return watch.hasFailed;
}

std::size_t AllocationMonitor::largest()
{
    return watch.largest;
}

long AllocationMonitor::balance()
{
    return watch.balance;
}
