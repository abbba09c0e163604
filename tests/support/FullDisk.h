#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

/// While one lives, no file takes more than a few bytes, as on a disk that is full, or more than
/// `bytes`, as on one that is nearly full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes = 4)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(0, getrlimit(RLIMIT_FSIZE, &m_former));
        const rlimit few{bytes, m_former.rlim_max};
        EXPECT_EQ(0, setrlimit(RLIMIT_FSIZE, &few));
    }
    ~FullDisk() { EXPECT_EQ(0, setrlimit(RLIMIT_FSIZE, &m_former)); }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_former{};
};
