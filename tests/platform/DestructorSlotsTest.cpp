// Host libraries destroy through the tables of functions: where each interface that has a virtual
// destructor keeps the two forms of it.

#include "platform/PlatformCursorManagerImp.h"
#include "platform/PlatformFontManagerImp.h"
#include "platform/PlatformMessageManagerImp.h"
#include "platform/PlatformProfileManagerImp.h"
#include "platform/PlatformRegisterManagerImp.h"
#include "platform/PlatformResourceManagerImp.h"
#include "platform/PlatformServicesImp.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

int g_destroyed = 0;
int g_freed = 0;

// Counts how often its objects are destroyed and their memory is freed.
template <typename Implementation>
class Witness : public Implementation
{
public:
    ~Witness() override { ++g_destroyed; }

    static void operator delete(void* memory)
    {
        ++g_freed;
        ::operator delete(memory);
    }
};

// As a host library holds it: what begins with the address of the interface's table.
template <typename Interface, typename Implementation>
void* made()
{
    Interface* object = new Witness<Implementation>;
    return object;
}

struct Row
{
    const char* interfaceName;
    void* (*make)();
    int completeSlot; ///< of the destructor that frees nothing; the deleting one is the next
};

std::ostream& operator<<(std::ostream& stream, const Row& row)
{
    return stream << row.interfaceName;
}

class DestructorSlots : public testing::TestWithParam<Row>
{
protected:
    void SetUp() override { g_destroyed = g_freed = 0; }

    static void call(void* object, int slot)
    {
        using Destructor = void (*)(void*);
        (*static_cast<const Destructor* const*>(object))[slot](object);
    }
};

TEST_P(DestructorSlots, FirstFormDestroysAndKeepsTheMemory)
{
    void* object = GetParam().make();
    call(object, GetParam().completeSlot);
    EXPECT_EQ(1, g_destroyed);
    EXPECT_EQ(0, g_freed);
    ::operator delete(object);
}

TEST_P(DestructorSlots, SecondFormDestroysAndFrees)
{
    void* object = GetParam().make();
    call(object, GetParam().completeSlot + 1);
    EXPECT_EQ(1, g_destroyed);
    EXPECT_EQ(1, g_freed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DestructorSlots,
    testing::Values(
        Row{"IPlatformServices", made<IPlatformServices, PlatformServicesImp>, 0},
        Row{"IPlatformCursorManager", made<IPlatformCursorManager, PlatformCursorManagerImp>, 0},
        Row{"IPlatformFontManager", made<IPlatformFontManager, PlatformFontManagerImp>, 0},
        Row{"IPlatformResourceManager", made<IPlatformResourceManager, PlatformResourceManagerImp>,
            0},
        Row{"IPlatformProfileManager", made<IPlatformProfileManager, PlatformProfileManagerImp>, 0},
        // Behind the operations.
        Row{"IPlatformMessageManager", made<IPlatformMessageManager, PlatformMessageManagerImp>, 4},
        Row{"IPlatformRegisterManager", made<IPlatformRegisterManager, PlatformRegisterManagerImp>,
            15}));

} // namespace
