#include "trace/recorder/RecordFile.h"

#include "trace/recorder/Descriptor.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace recorder {

bool RecordFile::open(const std::string& path)
{
    constexpr mode_t readableByOwner = 0600; // it holds what the registry and the profiles hold
    m_descriptor = outOfTheWay(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, readableByOwner));
    if (!isOpen())
        std::fprintf(stderr, "recording: %s: %s\n", path.c_str(), std::strerror(errno));
    return isOpen();
}

RecordFile::Place RecordFile::append(const std::string& line)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Place place{m_end, line.size()};
    write(line.data(), line.size(), m_end);
    m_end += static_cast<off_t>(line.size());
    return place;
}

void RecordFile::complete(const Place& place, const std::string& line, std::size_t kept)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool isLast = place.offset + static_cast<off_t>(place.size) == m_end;
    const std::size_t from = isLast ? kept : 0;
    const off_t begin = isLast ? place.offset : m_end;
    write(line.data() + from, line.size() - from, begin + static_cast<off_t>(from));
    m_end = begin + static_cast<off_t>(line.size());
}

// After a line that could not be written none is: what follows would not be told from its rest.
void RecordFile::write(const char* bytes, std::size_t size, off_t offset)
{
    while (size > 0 && !m_isFull) {
        const ssize_t written = pwrite(m_descriptor, bytes, size, offset);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            m_isFull = true;
            std::fprintf(stderr, "recording: %s\n", std::strerror(errno));
            return;
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
        offset += written;
    }
}

} // namespace recorder
