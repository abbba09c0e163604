#include "trace/Operations.h"

#include "trace/operations/CursorOperations.h"
#include "trace/operations/DirectoryOperations.h"
#include "trace/operations/FontOperations.h"
#include "trace/operations/MessageOperations.h"
#include "trace/operations/ProfileOperations.h"
#include "trace/operations/RegisterOperations.h"
#include "trace/operations/ResourceOperations.h"
#include "trace/operations/ServicesOperations.h"
#include "trace/operations/UserInputOperations.h"

#include <algorithm>

namespace trace {

namespace {

constexpr Manager table[] = {
    {"services", servicesOperations},   {"userInput", userInputOperations},
    {"directory", directoryOperations}, {"cursor", cursorOperations},
    {"font", fontOperations},           {"resource", resourceOperations},
    {"profile", profileOperations},     {"message", messageOperations},
    {"register", registerOperations},
};
static_assert(sizeof table / sizeof table[0] == interfaceCount);

template <typename Row>
const Row* findNamed(Rows<Row> rows, std::string_view name)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const Row& row) { return name == row.name; });
    return found == rows.end() ? nullptr : found;
}

} // namespace

Rows<Manager> managers()
{
    return table;
}

const Manager& manager(Interface which)
{
    return table[static_cast<std::size_t>(which)];
}

const Manager* findManager(std::string_view name)
{
    return findNamed(managers(), name);
}

const Operation* findOperation(std::string_view managerName, std::string_view name)
{
    const Manager* found = findManager(managerName);
    return found ? findNamed(found->operations, name) : nullptr;
}

const Operation* findCallback(std::string_view name)
{
    return name == enumProcedure.name ? &enumProcedure : nullptr;
}

const Parameter* findParameter(const Operation& operation, std::string_view name)
{
    return findNamed(operation.parameters, name);
}

Interface interfaceOfAccessor(std::size_t slot)
{
    // An accessor is named after its manager.
    constexpr std::string_view ending = "Manager";
    const std::string_view name = manager(Interface::Services).operations[slot].name;
    if (name.size() < ending.size())
        return Interface::Services;
    const Manager* found = findManager(name.substr(0, name.size() - ending.size()));
    return found ? static_cast<Interface>(found - table) : Interface::Services;
}

bool isFailure(const Operation& operation, std::uint64_t result)
{
    switch (operation.result.failure) {
    case Failure::Never: return false;
    case Failure::Zero: return result == 0;
    case Failure::NonZero: return result != 0;
    case Failure::MinusOne:
        // A result of 32 bits may have come here with its sign or without.
        return result == ~std::uint64_t{0} || result == 0xFFFFFFFF;
    }
    return false;
}

} // namespace trace
