#pragma once

#include <QString>

#include <cstdint>

/// What tells a file from what it was when it was read, without reading it.
struct ProfileStamp
{
    /// Of a file as it lies there now.
    static ProfileStamp of(const QString& path);

    bool operator==(const ProfileStamp& other) const;
    bool operator!=(const ProfileStamp& other) const { return !(*this == other); }

    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t seconds = 0; ///< of the last modification
    std::int64_t nanoseconds = 0;
};
