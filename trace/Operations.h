#pragma once

#include "trace/operations/Operation.h"

#include <cstdint>
#include <string_view>

/// The one table of operations. No Qt: the library that records stands on it too.
namespace trace {

/// The places of the interfaces in `managers()`.
enum class Interface : unsigned char
{
    Services,
    UserInput,
    Directory,
    Cursor,
    Font,
    Resource,
    Profile,
    Message,
    Register,
};
constexpr std::size_t interfaceCount = 9;

/// All interfaces, in the order of `Interface`: the services object, then its managers in the order
/// of its accessors.
Rows<Manager> managers();

const Manager& manager(Interface which);

/// Null where there is none of this name.
const Manager* findManager(std::string_view name);

/// The operation of this name; null where there is none.
const Operation* findOperation(std::string_view managerName, std::string_view name);

/// The call-back that the services make into the caller's code, of this name; null for another.
const Operation* findCallback(std::string_view name);

/// Null where there is none of this name.
const Parameter* findParameter(const Operation& operation, std::string_view name);

/// The interface that an accessor of the services object returns; the services object itself for a
/// slot that returns none.
Interface interfaceOfAccessor(std::size_t slot);

/// Whether this result, as a number of 64 bits, means that the operation failed.
bool isFailure(const Operation& operation, std::uint64_t result);

/// The names that apply to `value`, in the order of the rows, each bit named once; `append` is
/// called with each.
template <typename Append>
void forEachName(Rows<BitName> names, std::uint32_t value, Append append)
{
    std::uint32_t unnamed = value;
    for (const BitName& row : names) {
        const bool isNew = row.value == 0 || (unnamed & row.value) == row.value;
        if ((value & row.mask) != row.value || !isNew)
            continue;
        append(row.name);
        unnamed &= ~row.value;
    }
}

} // namespace trace
