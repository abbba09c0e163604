#pragma once

#include "trace/operations/Names.h"
#include "trace/operations/Parameters.h"

namespace trace {

inline constexpr Parameter messageBoxParameters[] = {
    plain("owner", Role::WindowHandle),
    plain("text", Role::UnreadText),
    plain("caption", Role::UnreadText),
    named("style", Role::Flags, boxNames),
};

inline constexpr Parameter messageParameters[] = {
    plain("window", Role::WindowHandle),
    plain("message", Role::Unsigned),
    plain("wParam", Role::Unsigned),
    plain("lParam", Role::Number),
};

inline constexpr Parameter taskDialogParameters[] = {
    plain("config", Role::Pointer),
    plain("button", Role::Unwritten),
    plain("radioButton", Role::Unwritten),
    plain("verificationChecked", Role::Unwritten),
};

inline constexpr Operation messageOperations[] = {
    {"messageBox",
     {Role::Choice, Failure::Never, Life::None, answerNames},
     messageBoxParameters,
     true},
    {"postMessage", {Role::Number, Failure::Zero}, messageParameters, true},
    {"sendMessage", {Role::Number}, messageParameters, true},
    {"TaskDialogIndirect",
     {Role::Choice, Failure::NonZero, Life::None, dialogResultNames},
     taskDialogParameters,
     true},
    destructor("~IPlatformMessageManager"),
    destructor("~IPlatformMessageManager (deleting)"),
};

} // namespace trace
