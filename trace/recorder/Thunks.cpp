#include "trace/recorder/Thunks.h"

#include "trace/operations/CursorOperations.h"
#include "trace/operations/DirectoryOperations.h"
#include "trace/operations/FontOperations.h"
#include "trace/operations/Members.h"
#include "trace/operations/MessageOperations.h"
#include "trace/operations/ProfileOperations.h"
#include "trace/operations/RegisterOperations.h"
#include "trace/operations/ResourceOperations.h"
#include "trace/operations/ServicesOperations.h"
#include "trace/operations/UserInputOperations.h"
#include "trace/recorder/Thunk.h"

#include <array>
#include <utility>

namespace recorder {

namespace {

using trace::Interface;
using Slots = std::array<void*, tables::slotLimit>;

// The slot of an operation: the destructors stand between the others.
constexpr std::size_t slotOf(trace::Rows<trace::Operation> rows, std::size_t place)
{
    std::size_t slot = 0;
    while (rows[slot].isDestructor || place-- > 0)
        ++slot;
    return slot;
}

template <Interface Kind, const auto& Rows, auto... Operations, std::size_t... Places>
Slots thunks(trace::Members<Operations...>, std::index_sequence<Places...>)
{
    Slots slots = {};
    ((slots[slotOf(Rows, Places)] =
          reinterpret_cast<void*>(&Thunk<Kind, slotOf(Rows, Places), decltype(Operations)>::call)),
     ...);
    return slots;
}

template <Interface Kind, const auto& Rows, typename Members>
Slots thunks()
{
    return thunks<Kind, Rows>(Members(), std::make_index_sequence<Members::count>());
}

} // namespace

void* thunkOf(Interface interface, std::size_t slot)
{
    static const Slots slots[] = {
        thunks<Interface::Services, trace::servicesOperations, trace::ServicesMembers>(),
        thunks<Interface::UserInput, trace::userInputOperations, trace::UserInputMembers>(),
        thunks<Interface::Directory, trace::directoryOperations, trace::DirectoryMembers>(),
        thunks<Interface::Cursor, trace::cursorOperations, trace::CursorMembers>(),
        thunks<Interface::Font, trace::fontOperations, trace::FontMembers>(),
        thunks<Interface::Resource, trace::resourceOperations, trace::ResourceMembers>(),
        thunks<Interface::Profile, trace::profileOperations, trace::ProfileMembers>(),
        thunks<Interface::Message, trace::messageOperations, trace::MessageMembers>(),
        thunks<Interface::Register, trace::registerOperations, trace::RegisterMembers>(),
    };
    return slots[static_cast<std::size_t>(interface)][slot];
}

} // namespace recorder
