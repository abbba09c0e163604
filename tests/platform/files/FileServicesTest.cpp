#include "platform/PlatformDirectoryManagerImp.h"
#include "platform/PlatformFontManagerImp.h"
#include "platform/PlatformServicesImp.h"

#include <gtest/gtest.h>

namespace {

static_assert(sizeof(PlatformDirectoryManagerImp) == sizeof(void*), "the interface, nothing else");

TEST(FileServices, DirectoryManagerIsMadeOnce)
{
    PlatformServicesImp services;
    IPlatformDirectoryManager* manager = services.directoryManager();
    ASSERT_NE(nullptr, manager);
    EXPECT_EQ(manager, services.directoryManager());
    EXPECT_EQ(1, manager->isURL(L"http://a.b"));
    EXPECT_NE(manager, PlatformServicesImp().directoryManager());
}

TEST(FileServices, FontManagerIsMadeOnceAndKeepsItsFonts)
{
    PlatformServicesImp services;
    IPlatformFontManager* manager = services.fontManager();
    ASSERT_NE(nullptr, manager);
    ENUMLOGFONTEXW record{};
    record.elfLogFont.lfFaceName[0] = L'x';
    manager->addLogFont(L"global", &record);
    EXPECT_EQ(manager, services.fontManager());
    EXPECT_EQ(std::wstring(L"global"), services.fontManager()->getGlobalNameByLocalName(L"x"));
}

// Programs override single operations of a manager.
TEST(FileServices, ManagersCanBeDerivedFrom)
{
    class Derived : public PlatformDirectoryManagerImp
    {
        int isURL(const wchar_t* /*text*/) override { return 2; }
    };
    Derived derived;
    IPlatformDirectoryManager& manager = derived;
    EXPECT_EQ(2, manager.isURL(nullptr));
    EXPECT_EQ(1, manager.IsPathRelative(L"a"));
    static_assert(!std::is_final_v<PlatformFontManagerImp>);
}

} // namespace
