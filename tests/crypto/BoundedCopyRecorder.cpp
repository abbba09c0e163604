#include "tests/crypto/BoundedCopyRecorder.h"

#include "host/HostLibraries.h"

#include <cstring>
#include <stdexcept>

BoundedCopyRecorder g_boundedCopies;

int strcpy_s(char* destination, int size, const char* source)
{
    g_boundedCopies.copies.push_back({size, source});
    if (g_boundedCopies.behaviour == BoundedCopyRecorder::ThrowsException)
        throw std::runtime_error("copy");
    if (g_boundedCopies.behaviour == BoundedCopyRecorder::ThrowsInt)
        throw 42;
    std::memcpy(destination, source, static_cast<std::size_t>(size));
    return 0;
}
