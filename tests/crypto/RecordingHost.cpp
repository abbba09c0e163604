#include "tests/crypto/RecordingHost.h"

#include "host/HostLibraries.h"

#include <cstring>
#include <stdexcept>

RecordingHost g_recordingHost;

int strcpy_s(char* destination, int size, const char* source)
{
    g_recordingHost.copies.push_back({size, source});
    if (g_recordingHost.behaviour == RecordingHost::ThrowsException)
        throw std::runtime_error("copy");
    if (g_recordingHost.behaviour == RecordingHost::ThrowsInt)
        throw 42;
    std::memcpy(destination, source, static_cast<std::size_t>(size));
    return 0;
}
