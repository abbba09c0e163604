#include "trace/recorder/Memory.h"

#include "trace/recorder/Descriptor.h"
#include "trace/recorder/Modules.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace recorder::memory {

namespace {

constexpr std::size_t pageSize = 4096; // or a multiple of it

// A file in memory: the kernel copies into it what it can read, and tells where that ends.
int g_exchange = -1;
std::mutex g_exchangeMutex;

std::uintptr_t g_heapBegin = 0;

std::uintptr_t numberOf(const void* address)
{
    return reinterpret_cast<std::uintptr_t>(address);
}

// 0 where the process has no such heap.
std::uintptr_t findHeap()
{
    struct Close
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    const std::unique_ptr<std::FILE, Close> maps(std::fopen("/proc/self/maps", "re"));
    char line[512];
    while (maps && std::fgets(line, sizeof line, maps.get())) {
        unsigned long begin = 0;
        if (std::strstr(line, "[heap]") && std::sscanf(line, "%lx", &begin) == 1)
            return begin;
    }
    return 0;
}

std::uintptr_t findStackEnd()
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return 0;
    void* begin = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &begin, &size);
    pthread_attr_destroy(&attributes);
    return numberOf(begin) + size;
}

std::uintptr_t stackEnd()
{
    static thread_local std::uintptr_t end = findStackEnd();
    return end;
}

// The end of what is surely readable from this address on; the address itself where nothing is.
std::uintptr_t surelyReadableEnd(std::uintptr_t address)
{
    const std::uintptr_t stack = stackEnd();
    if (address >= numberOf(__builtin_frame_address(0)) && address < stack)
        return stack;
    if (g_heapBegin != 0 && address >= g_heapBegin) {
        const std::uintptr_t heapEnd = numberOf(sbrk(0));
        if (address < heapEnd)
            return heapEnd;
    }
    return std::max(address, Modules::instance().readableEnd(address));
}

// One page at most: the kernel stops at the first one that cannot be read.
std::size_t copyByKernel(const void* from, void* to, std::size_t size)
{
    const std::lock_guard<std::mutex> lock(g_exchangeMutex);
    // Past the library, which a sanitizer replaces by a function that checks what it is given.
    const long written = syscall(SYS_pwrite64, g_exchange, from, size, 0L);
    if (written <= 0)
        return 0;
    const long read = syscall(SYS_pread64, g_exchange, to, static_cast<std::size_t>(written), 0L);
    return read > 0 ? static_cast<std::size_t>(read) : 0;
}

// What is read here may be another's red zone: it is only looked at, as the service will do.
__attribute__((no_sanitize("address", "undefined"))) void
copySurely(const unsigned char* from, unsigned char* to, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        to[i] = from[i];
}

template <typename Unit>
__attribute__((no_sanitize("address", "undefined"))) std::size_t lengthUpTo(const Unit* units,
                                                                            std::size_t limit)
{
    std::size_t length = 0;
    while (length < limit && units[length] != 0)
        ++length;
    return length;
}

} // namespace

void prepare()
{
    g_exchange = outOfTheWay(memfd_create("recording", MFD_CLOEXEC));
    g_heapBegin = findHeap();
}

std::size_t copy(const void* from, void* to, std::size_t size)
{
    const std::uintptr_t begin = numberOf(from);
    std::size_t done = 0;
    while (done < size) {
        const std::uintptr_t address = begin + done;
        auto* target = static_cast<unsigned char*>(to) + done;
        const std::uintptr_t sure = surelyReadableEnd(address);
        if (sure > address) {
            const std::size_t piece = std::min<std::size_t>(size - done, sure - address);
            copySurely(reinterpret_cast<const unsigned char*>(address), target, piece);
            done += piece;
            continue;
        }
        const std::size_t piece = std::min(size - done, pageSize - address % pageSize);
        const std::size_t read =
            copyByKernel(reinterpret_cast<const void*>(address), target, piece);
        done += read;
        if (read < piece)
            break;
    }
    return done;
}

template <typename Unit>
Text<Unit> text(const Unit* units, std::size_t limit, std::vector<Unit>& copied)
{
    const std::uintptr_t address = numberOf(units);
    const std::size_t sure = (surelyReadableEnd(address) - address) / sizeof(Unit);
    const std::size_t inPlace = lengthUpTo(units, std::min(sure, limit));
    if (inPlace < sure || inPlace == limit)
        return {units, inPlace};
    copied.clear();
    while (copied.size() < limit) {
        const Unit* next = units + copied.size();
        // To the end of the page, since what lies behind may not be readable, but one unit at
        // least.
        const std::size_t toEnd = (pageSize - numberOf(next) % pageSize) / sizeof(Unit);
        const std::size_t wanted = std::min(std::max<std::size_t>(toEnd, 1), limit - copied.size());
        const std::size_t before = copied.size();
        copied.resize(before + wanted);
        const std::size_t read = copy(next, copied.data() + before, wanted * sizeof(Unit));
        const std::size_t length = lengthUpTo(copied.data() + before, read / sizeof(Unit));
        copied.resize(before + length);
        if (length < wanted)
            return {read == 0 && before == 0 ? nullptr : copied.data(), copied.size()};
    }
    return {copied.data(), copied.size()};
}

template Text<wchar_t> text(const wchar_t*, std::size_t, std::vector<wchar_t>&);
template Text<char> text(const char*, std::size_t, std::vector<char>&);

} // namespace recorder::memory
