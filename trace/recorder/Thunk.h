#pragma once

#include "platform/IPlatformServices.h"
#include "trace/Operations.h"
#include "trace/recorder/Call.h"
#include "trace/recorder/Procedures.h"
#include "trace/recorder/Recording.h"
#include "trace/recorder/Tables.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace recorder {

/// How an argument travels from a recording operation to the original. The C++ ABI passes the
/// address of a class with a copy constructor of its own; here it stays an address, so that no copy
/// is made, since copies are announced to the host library.
template <typename T>
using Passed = std::conditional_t<std::is_class_v<T> && !std::is_trivially_copyable_v<T>,
                                  std::add_pointer_t<T>, T>;

/// An argument or a result as a word: a number with its sign, an address, a small record.
template <typename T>
std::uint64_t wordOf(const T& value)
{
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<std::uint64_t>(value);
    else if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && std::is_signed_v<T>))
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    else if constexpr (std::is_integral_v<T>)
        return static_cast<std::uint64_t>(value);
    else {
        static_assert(std::is_trivially_copyable_v<T> && sizeof(T) <= sizeof(std::uint64_t));
        std::uint64_t word = 0;
        std::memcpy(&word, &value, sizeof value);
        return word;
    }
}

/// Of an argument that is passed by reference, or that became an address, the address.
template <typename T>
std::uint64_t argumentWord(const Passed<T>& value)
{
    if constexpr (std::is_reference_v<T>)
        return reinterpret_cast<std::uint64_t>(&value);
    else
        return wordOf(value);
}

/// Of a result that is a class, the address.
template <typename T>
std::uint64_t resultWord(const T& value)
{
    if constexpr (std::is_class_v<T>)
        return reinterpret_cast<std::uint64_t>(&value);
    else
        return wordOf(value);
}

template <typename T>
T& handedOn(T& value)
{
    return value;
}

/// A procedure of the caller's is replaced by one that records its calls.
inline IPlatformFontManager::EnumProcedure handedOn(IPlatformFontManager::EnumProcedure procedure)
{
    return procedures::recording(procedure);
}

/// The recording operation for a slot of an interface; `Member` is the type of the operation.
template <trace::Interface Kind, std::size_t Slot, typename Member>
struct Thunk;

template <trace::Interface Kind, std::size_t Slot, typename Class, typename Result,
          typename... Arguments>
struct Thunk<Kind, Slot, Result (Class::*)(Arguments...)>
{
    using Function = Result (*)(Class*, Passed<Arguments>...);

    static Result call(Class* object, Passed<Arguments>... arguments)
    {
        const CallSite site{reinterpret_cast<std::uintptr_t>(__builtin_return_address(0)),
                            __builtin_dwarf_cfa()};
        const auto original = reinterpret_cast<Function>(
            reinterpret_cast<std::uintptr_t>(tables::original(Kind, object, Slot)));
        if (Recording::instance().wants(static_cast<std::size_t>(Kind), Slot, site.caller))
            return recorded(original, site, object, arguments...);
        return performed(original, object, arguments...);
    }

private:
    static Result recorded(Function original, const CallSite& site, Class* object,
                           Passed<Arguments>... arguments)
    {
        // One word more, since there is no array of none.
        const std::uint64_t words[] = {argumentWord<Arguments>(arguments)..., 0};
        const trace::Manager& manager = trace::manager(Kind);
        Call call(manager, manager.operations[Slot], object, words, site);
        if constexpr (std::is_void_v<Result>) {
            performed(original, object, handedOn(arguments)...);
            call.returned(0);
        } else {
            return answered(call, original, object, arguments...);
        }
    }

    // The result is made where the caller wants it, since a copy would be announced: there is no
    // constructor of copies here, so that another way does not link.
    static Result answered(Call& call, Function original, Class* object,
                           Passed<Arguments>... arguments)
    {
        Result result = performed(original, object, handedOn(arguments)...);
        call.returned(resultWord(result));
        return result;
    }

    // A manager that is handed out is recorded from then on.
    static Result performed(Function original, Class* object, Passed<Arguments>... arguments)
    {
        if constexpr (Kind == trace::Interface::Services) {
            const Result manager = original(object, arguments...);
            tables::learn(Slot, manager);
            return manager;
        } else {
            return original(object, arguments...);
        }
    }
};

} // namespace recorder
