#pragma once

#include "app/CStdStr.h"
#include "trace/Operations.h"

#include <cstddef>
#include <cstdint>

class IPlatformServices;

namespace replay {

/// What an operation returned: a number, an address, or, where it returns a wide string, the
/// address of `text`.
struct Answer
{
    std::uint64_t word = 0;
    CStdStr<wchar_t> text;
};

/// Calls the operation in a slot of an interface through its virtual table, with the types of its
/// declaration. `object` is the address as the accessor of the services object returned it; `words`
/// are numbers with their signs, addresses (of what is passed by reference or as a class too) and
/// small records.
void invoke(trace::Interface interface, std::size_t slot, void* object, const std::uint64_t* words,
            Answer& answer);

/// The object of that interface that the services object hands out; null where it has none.
void* managerOf(IPlatformServices& services, trace::Interface interface);

/// The slot of an operation of that interface.
std::size_t slotOf(trace::Interface interface, const trace::Operation& operation);

} // namespace replay
