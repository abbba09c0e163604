#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Reading what callers point to. An argument may be anything, and what the service does not read
/// must not end the program here: what is not known to be readable is copied by the kernel.
namespace recorder::memory {

/// Makes the copies possible. Called once, before anything is read.
void prepare();

/// Copies `size` bytes; returns how many of them could be read.
std::size_t copy(const void* from, void* to, std::size_t size);

/// The units of a text up to its terminator. They stand where they are, or in `copied`.
template <typename Unit>
struct Text
{
    const Unit* units = nullptr; ///< null: not even the first unit can be read
    std::size_t length = 0;
};

/// Reads up to the terminator or the first unit that cannot be read, `limit` units at most.
template <typename Unit>
Text<Unit> text(const Unit* units, std::size_t limit, std::vector<Unit>& copied);

/// Reads one value; `isRead` tells whether it could be.
template <typename T>
bool value(const void* from, T& to)
{
    return copy(from, &to, sizeof to) == sizeof to;
}

} // namespace recorder::memory
