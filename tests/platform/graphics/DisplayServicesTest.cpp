#include "platform/PlatformCursorManagerImp.h"
#include "platform/PlatformResourceManagerImp.h"
#include "platform/PlatformServicesImp.h"
#include "platform/PlatformUserInputManagerImp.h"

#include "tests/platform/graphics/CountedImages.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

static_assert(!std::has_virtual_destructor_v<PlatformUserInputManagerImp>);
static_assert(!std::is_final_v<PlatformUserInputManagerImp>);
static_assert(!std::is_final_v<PlatformResourceManagerImp>);
static_assert(!std::is_final_v<PlatformCursorManagerImp>);
static_assert(sizeof(PlatformCursorManagerImp) == sizeof(void*), "no state but the virtual table");

TEST(DisplayServices, GiveTheSameManagersEveryTime)
{
    PlatformServicesImp services;
    EXPECT_NE(nullptr, dynamic_cast<PlatformUserInputManagerImp*>(services.userInputManager()));
    EXPECT_NE(nullptr, dynamic_cast<PlatformResourceManagerImp*>(services.resourceManager()));
    EXPECT_NE(nullptr, dynamic_cast<PlatformCursorManagerImp*>(services.cursorManager()));
    EXPECT_EQ(services.userInputManager(), services.userInputManager());
    EXPECT_EQ(services.resourceManager(), services.resourceManager());
    EXPECT_EQ(services.cursorManager(), services.cursorManager());
}

TEST(DisplayServices, HaveManagersOfTheirOwn)
{
    PlatformServicesImp one;
    PlatformServicesImp other;
    one.userInputManager()->setKeyPressed(0x20, true);
    EXPECT_NE(0, one.userInputManager()->getKeyState(VK_SPACE));
    EXPECT_EQ(0, other.userInputManager()->getKeyState(VK_SPACE));
}

TEST(DisplayServices, TakeTheirImagesWithThem)
{
    CountedImages images;
    {
        PlatformServicesImp services;
        static_cast<PlatformResourceManagerImp*>(services.resourceManager())
            ->addObject(IPlatformResourceManager::ObjImage, images.make());
        EXPECT_EQ(0, images.destroyed);
    }
    EXPECT_EQ(1, images.destroyed);
}

} // namespace
