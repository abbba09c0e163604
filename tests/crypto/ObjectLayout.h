#pragma once

#include <cstring>
#include <string>

/// The members of `object` as the plain struct `Layout` names them.
template <class Layout, class Object>
Layout readLayout(const Object& object)
{
    static_assert(sizeof(Layout) == sizeof(Object));
    Layout layout;
    std::memcpy(&layout, static_cast<const void*>(&object), sizeof layout);
    return layout;
}

/// The bytes that `object` consists of.
template <class Object>
std::string bytesOf(const Object& object)
{
    return {reinterpret_cast<const char*>(&object), sizeof object};
}
