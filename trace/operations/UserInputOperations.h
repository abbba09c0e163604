#pragma once

#include "trace/operations/Names.h"
#include "trace/operations/Parameters.h"

namespace trace {

inline constexpr Parameter keyParameters[] = {named("virtualKey", Role::Choice, keyNames)};

inline constexpr Parameter pressedParameters[] = {
    plain("qtKey", Role::Number),
    plain("pressed", Role::Number),
};

inline constexpr Parameter findWindowParameters[] = {
    plain("className", Role::Text),
    plain("windowName", Role::Text),
};

inline constexpr Operation userInputOperations[] = {
    {"getAsyncKeyState", {Role::Number}, keyParameters},
    {"getKeyState", {Role::Number}, keyParameters},
    {"setKeyPressed", {Role::None}, pressedParameters},
    {"FindWindowW", {Role::WindowHandle, Failure::Zero}, findWindowParameters},
};

} // namespace trace
