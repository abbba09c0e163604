#pragma once

#include <vector>

/// A virtual key with its Windows name.
struct VirtualKey
{
    int code;
    const char* name;
};

/// Those that the key-state service answers for, in its order.
std::vector<VirtualKey> knownKeys();

/// Others that programs ask for: they always read as up.
std::vector<VirtualKey> unknownKeys();

/// Whether the key-state service answers for this code at all.
bool isKnownKey(int code);
