#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>
#include <string>
#include <sys/types.h>

namespace recorder {

/// The file: whole lines, each written at once, so that a crash takes none of them away.
class RecordFile
{
public:
    /// Where a line begins, and how long it is.
    struct Place
    {
        off_t offset = 0;
        std::size_t size = 0;
    };

    RecordFile() = default;
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    /// Creates the file, or empties it.
    bool open(const std::string& path);
    bool isOpen() const { return m_descriptor >= 0; }

    /// Appends a line, its line feed included.
    Place append(const std::string& line);

    /// `line` is what stands at `place`, longer by what follows its first `kept` bytes. Where it is
    /// still the last line it replaces the former one, otherwise it is appended.
    void complete(const Place& place, const std::string& line, std::size_t kept);

    /// Writes nothing from now on.
    void stop() { m_isFull = true; }

private:
    void write(const char* bytes, std::size_t size, off_t offset);

    std::mutex m_mutex;
    int m_descriptor = -1;
    off_t m_end = 0;
    std::atomic<bool> m_isFull{false};
};

} // namespace recorder
