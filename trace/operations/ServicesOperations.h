#pragma once

#include "trace/operations/Parameters.h"

namespace trace {

inline constexpr Operation servicesOperations[] = {
    destructor("~IPlatformServices"),
    destructor("~IPlatformServices (deleting)"),
    {"userInputManager", {Role::Manager}},
    {"clipBoardManager", {Role::Manager}, {}, true},
    {"directoryManager", {Role::Manager}},
    {"cursorManager", {Role::Manager}},
    {"fontManager", {Role::Manager}},
    {"resourceManager", {Role::Manager}},
    {"profileManager", {Role::Manager}},
    {"messageManager", {Role::Manager}},
    {"registerManager", {Role::Manager}},
    {"plotManager", {Role::Manager}, {}, true},
    {"localeManager", {Role::Manager}, {}, true},
};

} // namespace trace
