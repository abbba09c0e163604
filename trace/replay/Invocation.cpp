#include "trace/replay/Invocation.h"

#include "trace/operations/Members.h"

#include <array>
#include <cstring>
#include <type_traits>
#include <utility>

namespace replay {

namespace {

using trace::Interface;
using Invoker = void (*)(void* object, const std::uint64_t* words, Answer& answer);

// What the recorder makes of an argument, the other way round.
template <typename T>
T argument(std::uint64_t word)
{
    if constexpr (std::is_reference_v<T>) {
        return *reinterpret_cast<std::remove_reference_t<T>*>(word);
    } else if constexpr (std::is_pointer_v<T>) {
        return reinterpret_cast<T>(word);
    } else if constexpr (std::is_same_v<T, bool>) {
        return word != 0;
    } else if constexpr (std::is_enum_v<T>) {
        return static_cast<T>(static_cast<std::underlying_type_t<T>>(word));
    } else if constexpr (std::is_integral_v<T>) {
        return static_cast<T>(word);
    } else if constexpr (std::is_trivially_copyable_v<T>) {
        static_assert(sizeof(T) <= sizeof word);
        T record;
        std::memcpy(&record, &word, sizeof record);
        return record;
    } else {
        return *reinterpret_cast<const T*>(word);
    }
}

template <typename T>
void take(T&& result, Answer& answer)
{
    using Result = std::decay_t<T>;
    if constexpr (std::is_class_v<Result>) {
        answer.text = result;
        answer.word = reinterpret_cast<std::uint64_t>(&answer.text);
    } else if constexpr (std::is_pointer_v<Result>) {
        answer.word = reinterpret_cast<std::uint64_t>(result);
    } else if constexpr (std::is_signed_v<Result>) {
        answer.word = static_cast<std::uint64_t>(static_cast<std::int64_t>(result));
    } else {
        answer.word = static_cast<std::uint64_t>(result);
    }
}

// The compiler makes the call, so that it is right on every architecture.
template <auto Operation, typename Class, typename Result, typename... Arguments,
          std::size_t... Places>
void perform(Result (Class::* /*type*/)(Arguments...), std::index_sequence<Places...> /*places*/,
             void* object, [[maybe_unused]] const std::uint64_t* words, Answer& answer)
{
    auto& manager = *static_cast<Class*>(object);
    if constexpr (std::is_void_v<Result>)
        (manager.*Operation)(argument<Arguments>(words[Places])...);
    else
        take((manager.*Operation)(argument<Arguments>(words[Places])...), answer);
}

template <typename Class, typename Result, typename... Arguments>
constexpr auto placesOf(Result (Class::* /*type*/)(Arguments...))
{
    return std::index_sequence_for<Arguments...>();
}

template <auto Operation>
void invokeMember(void* object, const std::uint64_t* words, Answer& answer)
{
    perform<Operation>(Operation, placesOf(Operation), object, words, answer);
}

// In the order of the rows without the destructors.
template <auto... Operations>
const Invoker* invokersOf(trace::Members<Operations...> /*members*/)
{
    static constexpr std::array<Invoker, sizeof...(Operations)> invokers = {
        &invokeMember<Operations>...};
    return invokers.data();
}

const Invoker* invokersOf(Interface interface)
{
    switch (interface) {
    case Interface::Services: return invokersOf(trace::ServicesMembers());
    case Interface::UserInput: return invokersOf(trace::UserInputMembers());
    case Interface::Directory: return invokersOf(trace::DirectoryMembers());
    case Interface::Cursor: return invokersOf(trace::CursorMembers());
    case Interface::Font: return invokersOf(trace::FontMembers());
    case Interface::Resource: return invokersOf(trace::ResourceMembers());
    case Interface::Profile: return invokersOf(trace::ProfileMembers());
    case Interface::Message: return invokersOf(trace::MessageMembers());
    case Interface::Register: return invokersOf(trace::RegisterMembers());
    }
    return nullptr;
}

} // namespace

void invoke(Interface interface, std::size_t slot, void* object, const std::uint64_t* words,
            Answer& answer)
{
    const trace::Rows<trace::Operation> rows = trace::manager(interface).operations;
    std::size_t place = 0;
    for (std::size_t i = 0; i < slot; ++i)
        place += rows[i].isDestructor ? 0 : 1;
    invokersOf(interface)[place](object, words, answer);
}

void* managerOf(IPlatformServices& services, Interface interface)
{
    if (interface == Interface::Services)
        return &services;
    const trace::Rows<trace::Operation> rows = trace::manager(Interface::Services).operations;
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        if (rows[slot].isDestructor || trace::interfaceOfAccessor(slot) != interface)
            continue;
        Answer answer;
        invoke(Interface::Services, slot, &services, nullptr, answer);
        return reinterpret_cast<void*>(answer.word);
    }
    return nullptr;
}

std::size_t slotOf(Interface interface, const trace::Operation& operation)
{
    return static_cast<std::size_t>(&operation - trace::manager(interface).operations.begin());
}

} // namespace replay
