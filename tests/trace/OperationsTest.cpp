// The table of operations against the interfaces: the same slots, the same parameters.

#include "trace/Operations.h"
#include "trace/operations/Members.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

using trace::Interface;
using trace::Role;

namespace {

// The slot of a virtual operation. The C++ ABI of both architectures puts the offset in the table
// into the first word of a member pointer: with 1 added to it, except on ARM, which marks a virtual
// operation in the second word.
template <typename Member>
std::size_t slotOf(Member member)
{
    std::uintptr_t words[2];
    static_assert(sizeof words == sizeof member);
    std::memcpy(words, &member, sizeof words);
#ifdef __aarch64__
    EXPECT_EQ(words[1] & 1U, 1U) << "not virtual";
    return words[0] / sizeof(void*);
#else
    EXPECT_EQ(words[0] & 1U, 1U) << "not virtual";
    return (words[0] - 1) / sizeof(void*);
#endif
}

// Which roles may stand for a type of argument.
template <typename T>
bool fits(Role role)
{
    const auto is = [role](std::initializer_list<Role> roles) {
        return std::find(roles.begin(), roles.end(), role) != roles.end();
    };
    if constexpr (std::is_same_v<T, CStdStr<wchar_t>>)
        return is({Role::String});
    else if constexpr (std::is_same_v<T, CStdStr<wchar_t>&>)
        return is({Role::StringOut});
    else if constexpr (std::is_same_v<T, HKEY*&>)
        return is({Role::LostKeyOut});
    else if constexpr (std::is_enum_v<T>)
        return is({Role::Choice});
    else if constexpr (std::is_integral_v<T>)
        return is({std::is_signed_v<T> || std::is_same_v<T, bool> ? Role::Number : Role::Unsigned,
                   Role::Choice, Role::Flags});
    else if constexpr (std::is_class_v<T>)
        return is({Role::RecordValue});
    else if constexpr (std::is_same_v<T, const wchar_t*>)
        return is({Role::Text, Role::UnreadText});
    else if constexpr (std::is_same_v<T, const char*>)
        return is({Role::NarrowText, Role::UnreadNarrowText});
    else if constexpr (std::is_same_v<T, const unsigned char*>)
        return is({Role::Data});
    else if constexpr (std::is_same_v<T, wchar_t*>)
        return is({Role::TextOut, Role::TextsOut, Role::TextInOut, Role::DataOut, Role::UnreadText,
                   Role::Unwritten});
    else if constexpr (std::is_same_v<T, char*>)
        return is({Role::NarrowTextOut});
    else if constexpr (std::is_same_v<T, unsigned char*>)
        return is({Role::DataOut, Role::Unwritten});
    else if constexpr (std::is_same_v<T, unsigned int*> || std::is_same_v<T, int*>)
        return is({Role::NumberOut, Role::ChoiceOut, Role::SizeInOut, Role::Unwritten});
    else if constexpr (std::is_same_v<T, HKEY*>)
        return is({Role::KeyHandleOut});
    else if constexpr (std::is_same_v<T, void*>)
        return is({Role::KeyHandle, Role::SearchHandle, Role::ObjectHandle, Role::WindowHandle,
                   Role::MonitorHandle, Role::CursorHandle, Role::ModuleHandle, Role::Pointer,
                   Role::DataOut});
    else if constexpr (std::is_function_v<std::remove_pointer_t<T>>)
        return is({Role::Callback});
    else
        return is({Role::Record, Role::RecordOut, Role::Pointer, Role::Unwritten});
}

template <typename T>
bool fitsResult(Role role)
{
    if constexpr (std::is_void_v<T>)
        return role == Role::None;
    else if constexpr (std::is_same_v<T, wchar_t*>)
        return role == Role::Text || role == Role::Pointer;
    else if constexpr (std::is_class_v<std::remove_pointer_t<T>> && std::is_pointer_v<T>)
        return role == Role::Manager;
    else
        return fits<T>(role) || role == Role::Manager;
}

template <typename Class, typename Returned, typename... Arguments>
void expectRow(const trace::Operation& row, Returned (Class::*)(Arguments...))
{
    SCOPED_TRACE(row.name);
    EXPECT_TRUE(fitsResult<Returned>(row.result.role));
    ASSERT_EQ(row.parameters.size(), sizeof...(Arguments));
    std::size_t place = 0;
    [[maybe_unused]] const auto expectRole = [&](bool isFitting) {
        EXPECT_TRUE(isFitting) << row.parameters[place].name;
        ++place;
    };
    (expectRole(fits<Arguments>(row.parameters[place].role)), ...);
}

// The slots of the operations that are no destructors, in the order of the rows.
std::vector<std::size_t> operationSlots(const trace::Manager& manager)
{
    std::vector<std::size_t> slots;
    for (std::size_t slot = 0; slot < manager.operations.size(); ++slot) {
        if (!manager.operations[slot].isDestructor)
            slots.push_back(slot);
    }
    return slots;
}

template <auto... members>
void expectRows(const trace::Manager& manager, trace::Members<members...>)
{
    SCOPED_TRACE(manager.name);
    const std::vector<std::size_t> slots = operationSlots(manager);
    ASSERT_EQ(slots.size(), sizeof...(members));
    std::size_t place = 0;
    const auto expectMember = [&](auto member) {
        EXPECT_EQ(slotOf(member), slots[place]) << manager.operations[slots[place]].name;
        expectRow(manager.operations[slots[place]], member);
        ++place;
    };
    (expectMember(members), ...);
}

// A virtual operation that is added to a class gets the first slot behind the inherited ones.
template <typename Inherited>
struct Longer : Inherited
{
    virtual void next() = 0;

protected:
    ~Longer() = default;
};

template <typename Inherited>
std::size_t slotCount()
{
    return slotOf(&Longer<Inherited>::next);
}

// How the documentation tells an operation.
std::string documented(const trace::Manager& manager, const trace::Operation& operation)
{
    constexpr const char* failures[] = {"", "0", "not 0", "all bits"};
    std::string parameters;
    for (const trace::Parameter& parameter : operation.parameters) {
        const bool isWritten = parameter.extent != trace::Extent::None;
        const std::string name = parameter.name;
        parameters += (parameters.empty() ? "" : ", ") + (isWritten ? "**" + name + "**" : name);
    }
    return std::string("| ") + manager.name + " | `" + operation.name + "` | " + parameters +
           " | " + failures[static_cast<std::size_t>(operation.result.failure)] + " |\n";
}

std::string documentation()
{
    std::ifstream file(QUAYSIDE_SOURCES "/docs/TRACE.md");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(OperationsTest, TheDocumentationHasTheRows)
{
    std::string rows = "| manager | operation | parameters | failure |\n|---|---|---|---|\n";
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations)
            rows += operation.isDestructor ? "" : documented(manager, operation);
    }
    EXPECT_NE(documentation().find(rows), std::string::npos) << rows;
}

TEST(OperationsTest, RowsStandInTheSlotsOfTheirOperations)
{
    expectRows(manager(Interface::Services), trace::ServicesMembers());
    expectRows(manager(Interface::UserInput), trace::UserInputMembers());
    expectRows(manager(Interface::Directory), trace::DirectoryMembers());
    expectRows(manager(Interface::Cursor), trace::CursorMembers());
    expectRows(manager(Interface::Font), trace::FontMembers());
    expectRows(manager(Interface::Resource), trace::ResourceMembers());
    expectRows(manager(Interface::Profile), trace::ProfileMembers());
    expectRows(manager(Interface::Message), trace::MessageMembers());
    expectRows(manager(Interface::Register), trace::RegisterMembers());
}

TEST(OperationsTest, NoSlotIsWithoutARow)
{
    EXPECT_EQ(manager(Interface::Services).operations.size(), slotCount<IPlatformServices>());
    EXPECT_EQ(manager(Interface::UserInput).operations.size(),
              slotCount<IPlatformUserInputManager>());
    EXPECT_EQ(manager(Interface::Directory).operations.size(),
              slotCount<IPlatformDirectoryManager>());
    EXPECT_EQ(manager(Interface::Cursor).operations.size(), slotCount<IPlatformCursorManager>());
    EXPECT_EQ(manager(Interface::Font).operations.size(), slotCount<IPlatformFontManager>());
    EXPECT_EQ(manager(Interface::Resource).operations.size(),
              slotCount<IPlatformResourceManager>());
    EXPECT_EQ(manager(Interface::Profile).operations.size(), slotCount<IPlatformProfileManager>());
    EXPECT_EQ(manager(Interface::Message).operations.size(), slotCount<IPlatformMessageManager>());
    EXPECT_EQ(manager(Interface::Register).operations.size(),
              slotCount<IPlatformRegisterManager>());
}

TEST(OperationsTest, EverySizeIsAParameterOfTheOperation)
{
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations) {
            for (const trace::Parameter& parameter : operation.parameters) {
                const char* size = parameter.size;
                EXPECT_TRUE(!size || findParameter(operation, size)) << operation.name;
            }
        }
    }
}

TEST(OperationsTest, NoNameStandsTwiceInAnInterface)
{
    for (const trace::Manager& manager : trace::managers()) {
        std::set<std::string> names;
        for (const trace::Operation& operation : manager.operations)
            EXPECT_TRUE(names.insert(operation.name).second) << operation.name;
    }
}

TEST(OperationsTest, AnAccessorLeadsToItsManager)
{
    const trace::Rows<trace::Operation> accessors = manager(Interface::Services).operations;
    EXPECT_EQ(trace::interfaceOfAccessor(0), Interface::Services);
    EXPECT_EQ(trace::interfaceOfAccessor(3), Interface::Services) << accessors[3].name;
    EXPECT_EQ(trace::interfaceOfAccessor(4), Interface::Directory) << accessors[4].name;
    EXPECT_EQ(trace::interfaceOfAccessor(10), Interface::Register) << accessors[10].name;
}

TEST(OperationsTest, AResultIsAFailureAsItsRowSays)
{
    const auto fails = [](const char* manager, const char* operation, std::uint64_t result) {
        return isFailure(*trace::findOperation(manager, operation), result);
    };
    EXPECT_FALSE(fails("register", "RegOpenKeyExW", 0));
    EXPECT_TRUE(fails("register", "RegOpenKeyExW", 2));
    EXPECT_TRUE(fails("directory", "findFirstFile", ~std::uint64_t{0}));
    EXPECT_FALSE(fails("directory", "findFirstFile", 0x1000));
    EXPECT_TRUE(fails("directory", "GetFileAttributesW", 0xFFFFFFFF));
    EXPECT_TRUE(fails("directory", "findNextFile", 0));
    EXPECT_FALSE(fails("directory", "isURL", 0));
}

TEST(OperationsTest, NamesOfSeveralBitsComeFirstAndLeaveNothingToTheSingleOnes)
{
    const trace::Parameter& access =
        *findParameter(*trace::findOperation("register", "RegOpenKeyExW"), "access");
    std::vector<std::string> names;
    trace::forEachName(access.names, 0x20119, [&](const char* name) { names.emplace_back(name); });
    EXPECT_EQ(names, (std::vector<std::string>{"KEY_READ", "KEY_WOW64_64KEY"}));
}
