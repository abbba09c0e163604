#pragma once

#include "trace/operations/Parameters.h"

namespace trace {

inline constexpr Parameter wideStringParameters[] = {
    needed(plain("section", Role::Text)),
    needed(plain("key", Role::Text)),
    value(plain("fallback", Role::Text)),
    value(needed(out("buffer", Role::TextOut, Extent::ResultCut, "size", Written::Given))),
    plain("size", Role::Unsigned),
    needed(plain("file", Role::Text)),
};

inline constexpr Parameter narrowStringParameters[] = {
    needed(plain("section", Role::NarrowText)),
    needed(plain("key", Role::NarrowText)),
    value(plain("fallback", Role::UnreadNarrowText)),
    value(needed(out("buffer", Role::NarrowTextOut, Extent::ResultCut, "size", Written::Given))),
    plain("size", Role::Unsigned),
    needed(plain("file", Role::NarrowText)),
};

inline constexpr Parameter wideNumberParameters[] = {
    needed(plain("section", Role::Text)),
    needed(plain("key", Role::Text)),
    plain("fallback", Role::Number),
    needed(plain("file", Role::Text)),
};

inline constexpr Parameter narrowNumberParameters[] = {
    plain("section", Role::UnreadNarrowText),
    plain("key", Role::UnreadNarrowText),
    plain("fallback", Role::Number),
    plain("file", Role::UnreadNarrowText),
};

inline constexpr Parameter sectionNamesParameters[] = {
    plain("buffer", Role::Unwritten),
    plain("size", Role::Unsigned),
    plain("file", Role::UnreadText),
};

// The size bounds nothing.
inline constexpr Parameter wideSectionParameters[] = {
    needed(plain("section", Role::Text)),
    value(needed(out("buffer", Role::TextsOut, Extent::Result))),
    plain("size", Role::Unsigned),
    needed(plain("file", Role::Text)),
};

inline constexpr Parameter writeWideParameters[] = {
    needed(plain("section", Role::Text)),
    needed(plain("key", Role::Text)),
    value(plain("value", Role::Text)),
    needed(plain("file", Role::Text)),
};

inline constexpr Parameter writeNarrowParameters[] = {
    needed(plain("section", Role::NarrowText)),
    needed(plain("key", Role::NarrowText)),
    value(plain("value", Role::NarrowText)),
    needed(plain("file", Role::NarrowText)),
};

inline constexpr Parameter openProfileParameters[] = {plain("file", Role::UnreadText)};

inline constexpr Parameter queryStringParameters[] = {
    plain("section", Role::UnreadText),
    plain("key", Role::UnreadText),
    value(plain("fallback", Role::UnreadText)),
    plain("buffer", Role::Unwritten),
    plain("size", Role::Unsigned),
};

inline constexpr Parameter outSettingsParameters[] = {plain("settings", Role::Pointer)};

// A text of length 0 counts as a failure: nearly always the entry is missing.
inline constexpr Operation profileOperations[] = {
    destructor("~IPlatformProfileManager"),
    destructor("~IPlatformProfileManager (deleting)"),
    {"GetPrivateProfileStringW", {Role::Unsigned, Failure::Zero}, wideStringParameters},
    {"GetPrivateProfileStringA", {Role::Unsigned, Failure::Zero}, narrowStringParameters},
    {"GetPrivateProfileIntW", {Role::Unsigned}, wideNumberParameters},
    {"GetPrivateProfileIntA", {Role::Unsigned}, narrowNumberParameters, true},
    {"GetPrivateProfileSectionNamesW",
     {Role::Unsigned, Failure::Zero},
     sectionNamesParameters,
     true},
    {"GetPrivateProfileSectionW", {Role::Unsigned, Failure::Zero}, wideSectionParameters},
    {"WritePrivateProfileStringW", {Role::Number, Failure::Zero}, writeWideParameters},
    {"WritePrivateProfileStringA", {Role::Number, Failure::Zero}, writeNarrowParameters},
    {"OpenPrivateProfile", {Role::Number, Failure::Zero}, openProfileParameters, true},
    {"QueryPrivateProfileString", {Role::Unsigned, Failure::Zero}, queryStringParameters, true},
    {"ClosePrivateProfile", {Role::Number, Failure::Zero}, {}, true},
    {"SetOutQSettings", {Role::None}, outSettingsParameters, true},
};

} // namespace trace
