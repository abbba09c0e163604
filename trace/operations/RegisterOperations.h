#pragma once

#include "trace/operations/Names.h"
#include "trace/operations/Parameters.h"

namespace trace {

inline constexpr Result registryStatus = {Role::Choice, Failure::NonZero, Life::None, statusNames};

constexpr Parameter typeOut()
{
    Parameter type = out("type", Role::ChoiceOut);
    type.names = valueTypeNames;
    return type;
}

inline constexpr Parameter queryValueParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("valueName", Role::Text),
    plain("reserved", Role::Unwritten),
    typeOut(),
    value(out("data", Role::DataOut, Extent::Size, "byteCount")),
    out("byteCount", Role::SizeInOut),
};

inline constexpr Parameter createKeyExParameters[] = {
    needed(plain("key", Role::KeyHandle)),      plain("subKey", Role::Text),
    plain("reserved", Role::Unsigned),          plain("keyClass", Role::UnreadText),
    named("options", Role::Flags, optionNames), named("access", Role::Flags, accessNames),
    plain("attributes", Role::Pointer),         out("result", Role::LostKeyOut),
    plain("disposition", Role::Unwritten),
};

inline constexpr Parameter openKeyExParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("subKey", Role::Text),
    named("options", Role::Flags, optionNames),
    named("access", Role::Flags, accessNames),
    begins(needed(out("result", Role::KeyHandleOut, Extent::Whole, nullptr, Written::WhenOpened))),
};

// The key is not needed: with an empty sub-key it is handed back, whatever it is.
inline constexpr Parameter openKeyParameters[] = {
    plain("key", Role::KeyHandle),
    plain("subKey", Role::Text),
    begins(needed(out("result", Role::KeyHandleOut, Extent::Whole, nullptr, Written::WhenOpened))),
};

inline constexpr Parameter setValueParameters[] = {
    needed(plain("key", Role::KeyHandle)),    plain("valueName", Role::Text),
    plain("reserved", Role::Unsigned),        named("type", Role::Choice, valueTypeNames),
    value({"data", Role::Data, "byteCount"}), plain("byteCount", Role::Unsigned),
};

inline constexpr Parameter closeKeyParameters[] = {ends(plain("key", Role::KeyHandle))};

inline constexpr Parameter queryInfoParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("keyClass", Role::Unwritten),
    plain("classLength", Role::Unwritten),
    plain("reserved", Role::Unwritten),
    out("subKeys", Role::NumberOut),
    out("longestSubKey", Role::NumberOut),
    plain("longestClass", Role::Unwritten),
    out("values", Role::NumberOut),
    out("longestValueName", Role::NumberOut),
    out("longestValueData", Role::NumberOut),
    plain("securityDescriptor", Role::Unwritten),
    plain("lastWriteTime", Role::Unwritten),
};

inline constexpr Parameter enumKeyParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("index", Role::Unsigned),
    out("name", Role::TextOut, Extent::Asked),
    plain("capacity", Role::Unsigned),
};

inline constexpr Parameter deleteKeyParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("subKey", Role::Text),
};

inline constexpr Parameter deleteValueParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("valueName", Role::Text),
};

inline constexpr Parameter enumKeyExParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("index", Role::Unsigned),
    out("name", Role::TextOut, Extent::Size, "nameLength"),
    out("nameLength", Role::NumberOut),
    plain("reserved", Role::Unwritten),
    plain("keyClass", Role::Unwritten),
    plain("classLength", Role::Unwritten),
    plain("lastWriteTime", Role::Unwritten),
};

inline constexpr Parameter enumValueParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("index", Role::Unsigned),
    out("name", Role::TextOut, Extent::Size, "nameLength", Written::WhenListed),
    out("nameLength", Role::NumberOut, Extent::Whole, nullptr, Written::WhenListed),
    plain("reserved", Role::Unwritten),
    typeOut(),
    value(out("data", Role::DataOut, Extent::Size, "byteCount")),
    out("byteCount", Role::SizeInOut),
};

inline constexpr Parameter queryValueShortParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("valueName", Role::Text),
    value(out("data", Role::DataOut, Extent::Size, "byteCount")),
    out("byteCount", Role::SizeInOut),
};

inline constexpr Parameter deleteKeyExParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("subKey", Role::Text),
    named("access", Role::Flags, accessNames),
    plain("reserved", Role::Unsigned),
};

inline constexpr Parameter createKeyParameters[] = {
    needed(plain("key", Role::KeyHandle)),
    plain("subKey", Role::Text),
    out("result", Role::LostKeyOut),
};

inline constexpr Operation registerOperations[] = {
    {"RegQueryValueExW", registryStatus, queryValueParameters},
    {"RegCreateKeyExW", registryStatus, createKeyExParameters},
    {"RegOpenKeyExW", registryStatus, openKeyExParameters},
    {"RegOpenKeyW", registryStatus, openKeyParameters},
    {"RegSetValueExW", registryStatus, setValueParameters},
    {"RegCloseKey", registryStatus, closeKeyParameters},
    {"RegQueryInfoKeyW", registryStatus, queryInfoParameters},
    {"RegEnumKeyW", registryStatus, enumKeyParameters},
    {"RegDeleteKeyW", registryStatus, deleteKeyParameters},
    {"RegDeleteValueW", registryStatus, deleteValueParameters},
    {"RegEnumKeyExW", registryStatus, enumKeyExParameters},
    {"RegEnumValueW", registryStatus, enumValueParameters},
    {"RegQueryValueW", registryStatus, queryValueShortParameters},
    {"RegDeleteKeyExW", registryStatus, deleteKeyExParameters},
    {"RegCreateKeyW", registryStatus, createKeyParameters},
    destructor("~IPlatformRegisterManager"),
    destructor("~IPlatformRegisterManager (deleting)"),
};

} // namespace trace
