#include "tests/platform/files/ArrayAllocations.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t latestSize = 0;

} // namespace

std::size_t ArrayAllocations::latest()
{
    return latestSize;
}

void* operator new[](std::size_t size)
{
    latestSize = size;
    if (void* memory = std::malloc(std::max(size, std::size_t{1})))
        return memory;
    throw std::bad_alloc();
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
