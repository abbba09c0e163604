#pragma once

#include <cstring>

/// The place of a member function in its class's virtual table, counted from 0, or -1 where it is
/// not virtual: read from the pointer's representation in the Itanium C++ ABI.
template <class Member>
int virtualSlot(Member member)
{
    struct Representation
    {
        long pointer;
        long adjustment;
    } raw;
    static_assert(sizeof raw == sizeof member);
    std::memcpy(&raw, &member, sizeof raw);
#if defined(__aarch64__)
    const bool isVirtual = (raw.adjustment & 1) != 0;
    const long offset = raw.pointer;
#else
    const bool isVirtual = (raw.pointer & 1) != 0;
    const long offset = raw.pointer - 1;
#endif
    return isVirtual ? static_cast<int>(offset / static_cast<long>(sizeof(void*))) : -1;
}
