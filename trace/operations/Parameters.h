#pragma once

#include "trace/operations/Operation.h"

/// Short ways to write the rows.
namespace trace {

constexpr Parameter plain(const char* name, Role role)
{
    return {name, role};
}

/// Null here: nothing is done.
constexpr Parameter needed(Parameter parameter)
{
    parameter.isNeeded = true;
    return parameter;
}

/// What is kept under a name, not the name.
constexpr Parameter value(Parameter parameter)
{
    parameter.isValue = true;
    return parameter;
}

constexpr Parameter named(const char* name, Role role, Rows<BitName> names)
{
    return {name, role, nullptr, Extent::None, Written::OnSuccess, false, false, Life::None, names};
}

/// Something that the service writes.
constexpr Parameter out(const char* name, Role role, Extent extent = Extent::Whole,
                        const char* size = nullptr, Written written = Written::OnSuccess)
{
    return {name, role, size, extent, written};
}

constexpr Parameter record(const char* name, Role role, Rows<Field> fields,
                           Extent extent = Extent::None)
{
    return {name, role, nullptr, extent, Written::OnSuccess, false, false, Life::None, {}, fields};
}

constexpr Parameter given(Parameter parameter)
{
    parameter.written = Written::Given;
    return parameter;
}

/// The handle is given back with this call.
constexpr Parameter ends(Parameter parameter)
{
    parameter.life = Life::Ends;
    return parameter;
}

/// The caller owns what it gets.
constexpr Parameter begins(Parameter parameter)
{
    parameter.life = Life::Begins;
    return parameter;
}

constexpr Operation destructor(const char* name)
{
    return {name, {Role::None}, {}, false, true};
}

} // namespace trace
