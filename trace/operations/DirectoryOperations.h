#pragma once

#include "trace/operations/Parameters.h"
#include "trace/operations/Records.h"

namespace trace {

inline constexpr Parameter findFirstParameters[] = {
    needed(plain("pattern", Role::Text)),
    needed(record("data", Role::RecordOut, findFields, Extent::FindFirst)),
};

inline constexpr Parameter findNextParameters[] = {
    needed(plain("search", Role::SearchHandle)),
    needed(record("data", Role::RecordOut, findFields, Extent::FindNext)),
};

inline constexpr Parameter findCloseParameters[] = {
    ends(needed(plain("search", Role::SearchHandle))),
};

inline constexpr Parameter isFileExistParameters[] = {
    needed(plain("path", Role::Text)),
    given(out("realPath", Role::StringOut)),
};

inline constexpr Parameter isUrlParameters[] = {needed(plain("text", Role::Text))};

inline constexpr Parameter addBackslashParameters[] = {
    needed(out("path", Role::TextInOut, Extent::Path)),
};

inline constexpr Parameter folderPathParameters[] = {
    plain("owner", Role::WindowHandle), plain("folder", Role::Number),
    plain("token", Role::Pointer),      plain("flags", Role::Unsigned),
    plain("path", Role::Unwritten),
};

inline constexpr Parameter relativePathParameters[] = {
    needed(out("relative", Role::TextOut, Extent::Asked)), needed(plain("from", Role::Text)),
    named("fromAttributes", Role::Flags, attributeNames),  needed(plain("to", Role::Text)),
    named("toAttributes", Role::Flags, attributeNames),
};

inline constexpr Parameter tempPathParameters[] = {
    plain("length", Role::Unsigned),
    needed(out("buffer", Role::TextOut, Extent::Result, "length")),
};

inline constexpr Parameter pathParameters[] = {needed(plain("path", Role::Text))};

inline constexpr Parameter setAttributesParameters[] = {
    needed(plain("path", Role::Text)),
    named("attributes", Role::Flags, attributeNames),
};

inline constexpr Operation directoryOperations[] = {
    {"findFirstFile", {Role::SearchHandle, Failure::MinusOne, Life::Begins}, findFirstParameters},
    {"findNextFile", {Role::Number, Failure::Zero}, findNextParameters},
    {"findClose", {Role::Number, Failure::Zero}, findCloseParameters},
    {"isFileExist", {Role::Number, Failure::Zero}, isFileExistParameters},
    {"isURL", {Role::Number}, isUrlParameters},
    {"AddBackslash", {Role::Pointer, Failure::Zero}, addBackslashParameters},
    {"SHGetFolderPath", {Role::Number, Failure::Zero}, folderPathParameters, true},
    {"PathRelativePathToW", {Role::Number, Failure::Zero}, relativePathParameters},
    {"GetTempPathW", {Role::Unsigned, Failure::Zero}, tempPathParameters},
    {"GetFileAttributesW",
     {Role::Flags, Failure::MinusOne, Life::None, attributeNames},
     pathParameters},
    {"SetFileAttributesW", {Role::Number, Failure::Zero}, setAttributesParameters},
    {"IsPathRelative", {Role::Number}, pathParameters},
    // An array of 1,024 characters, which the caller frees by delete[].
    {"PathFindExtensionW", {Role::Text, Failure::Zero, Life::Begins}, pathParameters},
};

} // namespace trace
