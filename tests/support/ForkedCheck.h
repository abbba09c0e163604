#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

/// Checks in a process of their own, for what may wait, end the program or need another view of the
/// system: such a check fails one test alone.
namespace ForkedCheck {

constexpr int passed = 0;
constexpr int differed = 1;
constexpr int unavailable = 2;         ///< for checks that the system does not allow
constexpr unsigned int patience = 300; ///< seconds: only what waits for good waits so long

/// How the child ends: its status, or the negative number of the signal that ended it.
inline int statusOf(const std::function<int()>& check)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGALRM, SIG_DFL);
        alarm(patience);
        _exit(check());
    }
    int status = 0;
    EXPECT_EQ(child, waitpid(child, &status, 0));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace ForkedCheck
