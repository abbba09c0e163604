#pragma once

#include <cstdint>

/// A handle as the number that it is, and back.
inline std::intptr_t number(const void* handle)
{
    return reinterpret_cast<std::intptr_t>(handle);
}

inline void* toHandle(std::intptr_t number)
{
    return reinterpret_cast<void*>(number);
}
