#pragma once

#include "trace/operations/Parameters.h"
#include "trace/operations/Records.h"

namespace trace {

inline constexpr Parameter cursorPosParameters[] = {
    needed(record("point", Role::RecordOut, pointFields, Extent::Whole)),
};

inline constexpr Parameter loadCursorParameters[] = {
    plain("module", Role::ModuleHandle),
    plain("name", Role::UnreadText),
};

// The point is read, and changed in its place.
inline constexpr Parameter screenToClientParameters[] = {
    needed(plain("window", Role::WindowHandle)),
    needed(record("point", Role::Record, pointFields, Extent::Whole)),
};

inline constexpr Parameter setCursorParameters[] = {plain("cursor", Role::CursorHandle)};

inline constexpr Operation cursorOperations[] = {
    destructor("~IPlatformCursorManager"),
    destructor("~IPlatformCursorManager (deleting)"),
    {"GetCursorPos", {Role::Number, Failure::Zero}, cursorPosParameters},
    {"LoadCursorW", {Role::CursorHandle, Failure::Zero}, loadCursorParameters, true},
    {"ScreenToClient", {Role::Number, Failure::Zero}, screenToClientParameters},
    {"GetCursor", {Role::CursorHandle}},
    {"SetCursor", {Role::CursorHandle}, setCursorParameters},
};

} // namespace trace
