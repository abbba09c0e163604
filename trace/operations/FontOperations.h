#pragma once

#include "trace/operations/Parameters.h"
#include "trace/operations/Records.h"

namespace trace {

inline constexpr Parameter enumFontParameters[] = {
    plain("dc", Role::Pointer),         record("filter", Role::Record, fontFilterFields),
    plain("procedure", Role::Callback), plain("callerValue", Role::Number),
    plain("flags", Role::Unsigned),
};

// The script is the only field that is written.
inline constexpr Parameter addFontParameters[] = {
    plain("globalName", Role::String),
    needed(record("record", Role::Record, fontFields, Extent::Script)),
};

inline constexpr Parameter localNameParameters[] = {plain("localName", Role::String)};
inline constexpr Parameter codePageParameters[] = {plain("codePage", Role::Unsigned)};

inline constexpr Operation fontOperations[] = {
    destructor("~IPlatformFontManager"),
    destructor("~IPlatformFontManager (deleting)"),
    {"enumFontFamiliesEx", {Role::Number, Failure::MinusOne}, enumFontParameters},
    {"addLogFont", {Role::None}, addFontParameters},
    {"getGlobalNameByLocalName", {Role::String}, localNameParameters},
    {"IsValidCodePage", {Role::Number, Failure::Zero}, codePageParameters, true},
};

// What the services call of the caller: not in any virtual table.
inline constexpr Parameter enumProcedureParameters[] = {
    record("record", Role::Record, fontFields),
    plain("metric", Role::Pointer),
    named("fontType", Role::Flags, fontTypeNames),
    plain("callerValue", Role::Number),
};
inline constexpr Operation enumProcedure = {
    "EnumFontFamExProc", {Role::Number}, enumProcedureParameters};

} // namespace trace
