#include "platform/PlatformServicesImp.h"

#include <QSettings>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <ostream>
#include <utility>
#include <vector>

namespace {

// What operator delete is given, while somebody listens.
std::vector<void*>* g_freed = nullptr;

// How many allocations succeed before each one fails; a negative number: all do.
int g_allocationsLeft = -1;
int g_blocksInUse = 0;

} // namespace

// Both sides are replaced, so that memory is given back to where it came from.
void* operator new(std::size_t size)
{
    void* memory =
        g_allocationsLeft == 0 ? nullptr : std::malloc(size); // NOLINT(cppcoreguidelines-no-malloc)
    if (!memory)
        throw std::bad_alloc();
    if (g_allocationsLeft > 0)
        --g_allocationsLeft;
    ++g_blocksInUse;
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (std::vector<void*>* listener = std::exchange(g_freed, nullptr)) {
        listener->push_back(memory);
        g_freed = listener;
    }
    if (memory)
        --g_blocksInUse;
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    operator delete(memory);
}

namespace {

// All managers, in the order of the fields. As addresses: two interfaces have no common base.
std::vector<void*> allManagers(IPlatformServices& services)
{
    return {services.userInputManager(), services.directoryManager(), services.cursorManager(),
            services.fontManager(),      services.resourceManager(),  services.profileManager(),
            services.messageManager(),   services.registerManager()};
}

// Memory of a manager that is gone may serve a later one while it cleans up.
std::vector<void*> firstOfEach(const std::vector<void*>& addresses)
{
    std::vector<void*> first;
    for (void* address : addresses) {
        if (std::find(first.begin(), first.end(), address) == first.end())
            first.push_back(address);
    }
    return first;
}

TEST(PlatformServices, AccessorsThatAreNotProvidedReturnNull)
{
    PlatformServicesImp services;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(nullptr, services.clipBoardManager());
        EXPECT_EQ(nullptr, services.plotManager());
        EXPECT_EQ(nullptr, services.localeManager());
    }
}

TEST(PlatformServices, AccessorsReturnTheSameManagerEveryTime)
{
    PlatformServicesImp services;
    const std::vector<void*> managers = allManagers(services);
    EXPECT_EQ(0, std::count(managers.begin(), managers.end(), nullptr));
    EXPECT_EQ(managers, allManagers(services));
}

TEST(PlatformServices, ObjectsHaveManagersOfTheirOwn)
{
    PlatformServicesImp one;
    PlatformServicesImp other;
    EXPECT_NE(one.messageManager(), other.messageManager());
}

TEST(PlatformServices, HoldsOnePointerForEachManager)
{
    EXPECT_EQ(9 * sizeof(void*), sizeof(PlatformServicesImp));
}

TEST(PlatformServices, FieldsAreNullUntilAsked)
{
    const PlatformServicesImp services;
    const auto* words = reinterpret_cast<void* const*>(&services);
    for (int field = 1; field <= 8; ++field)
        EXPECT_EQ(nullptr, words[field]) << field;
}

TEST(PlatformServices, FieldsStandInOrder)
{
    PlatformServicesImp services;
    const std::vector<void*> managers = allManagers(services);
    const auto* words = reinterpret_cast<void* const*>(&services);
    EXPECT_EQ(managers, std::vector<void*>(words + 1, words + 9));
}

TEST(PlatformServices, DestructionWithoutManagersFreesNothing)
{
    std::vector<void*> freed;
    freed.reserve(8);
    {
        const PlatformServicesImp services;
        g_freed = &freed;
    }
    g_freed = nullptr;
    EXPECT_TRUE(freed.empty());
}

TEST(PlatformServices, ManagersAreReleasedInFieldOrder)
{
    std::vector<void*> freed;
    freed.reserve(1024);
    auto services = std::make_unique<PlatformServicesImp>();
    const std::vector<void*> managers = allManagers(*services);
    g_freed = &freed;
    services->~PlatformServicesImp();
    g_freed = nullptr;
    // What the managers themselves held was freed in between.
    const auto isManager = [&managers](void* memory) {
        return std::find(managers.begin(), managers.end(), memory) != managers.end();
    };
    freed.erase(std::remove_if(freed.begin(), freed.end(), std::not_fn(isManager)), freed.end());
    EXPECT_EQ(managers, firstOfEach(freed));
    new (services.get()) PlatformServicesImp;
}

// An accessor of a manager that needs more memory than its own, and its field.
struct Accessor
{
    const char* name;
    void* (*manager)(IPlatformServices& services);
    int field;
};

std::ostream& operator<<(std::ostream& stream, const Accessor& accessor)
{
    return stream << accessor.name;
}

class ThrowingConstructor : public testing::TestWithParam<Accessor>
{
protected:
    // Asks for the manager where memory runs out after so many allocations.
    bool throwsAfter(int allocations)
    {
        g_allocationsLeft = allocations;
        bool thrown = false;
        try {
            manager = GetParam().manager(services);
        } catch (const std::bad_alloc&) {
            thrown = true;
        }
        g_allocationsLeft = -1;
        return thrown;
    }

    const void* field() const
    {
        return reinterpret_cast<void* const*>(&services)[GetParam().field];
    }

    PlatformServicesImp services;
    const void* manager = nullptr;
};

// The first allocation is the manager's own, those that follow are its constructor's.
TEST_P(ThrowingConstructor, LeavesNothingBehind)
{
    int allocations = 0;
    const int blocks = g_blocksInUse;
    while (throwsAfter(allocations)) {
        ASSERT_EQ(nullptr, field()) << allocations;
        ASSERT_EQ(blocks, g_blocksInUse) << allocations;
        ++allocations;
    }
    EXPECT_GE(allocations, 2);
    EXPECT_NE(nullptr, manager);
    EXPECT_EQ(manager, field());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ThrowingConstructor,
    testing::Values(Accessor{"userInputManager",
                             [](IPlatformServices& s) -> void* { return s.userInputManager(); }, 1},
                    Accessor{"fontManager",
                             [](IPlatformServices& s) -> void* { return s.fontManager(); }, 4}));

TEST(PlatformServices, GlobalObjectIsOneOfThem)
{
    IPlatformServices* services = &g_PlatformServices;
    EXPECT_EQ(services->messageManager(), g_PlatformServices.messageManager());
    EXPECT_NE(nullptr, services->messageManager());
}

} // namespace
