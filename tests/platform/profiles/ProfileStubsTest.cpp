#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/CanaryBuffer.h"

#include "platform/PlatformServicesImp.h"

namespace {

static_assert(sizeof(PlatformProfileManagerImp) == sizeof(void*), "the interface, nothing else");

class ProfileStubs : public ProfileManagerTest
{
protected:
    ProfileStubs() { write("[S]\nk=7\n"); }
};

TEST_F(ProfileStubs, TheNarrowNumberIsZeroWhateverTheFileHolds)
{
    EXPECT_EQ(0U, manager.GetPrivateProfileIntA("S", "k", 5, narrow.constData()));
    EXPECT_EQ(0U, manager.GetPrivateProfileIntA(nullptr, nullptr, 5, nullptr));
}

TEST_F(ProfileStubs, SectionNamesAreNotListed)
{
    CanaryBuffer<wchar_t> buffer(8);
    EXPECT_EQ(0U, manager.GetPrivateProfileSectionNamesW(buffer.data(), 8, wide.c_str()));
    EXPECT_EQ(0U, manager.GetPrivateProfileSectionNamesW(nullptr, 0, nullptr));
    buffer.expectUntouched();
}

TEST_F(ProfileStubs, OpenProfilesHoldNothing)
{
    EXPECT_EQ(1, manager.OpenPrivateProfile(wide.c_str()));
    EXPECT_EQ(1, manager.OpenPrivateProfile(nullptr));
    CanaryBuffer<wchar_t> buffer(8);
    EXPECT_EQ(0U, manager.QueryPrivateProfileString(L"S", L"k", L"-", buffer.data(), 8));
    buffer.expectUntouched();
    EXPECT_EQ(1, manager.ClosePrivateProfile());
    EXPECT_EQ(1, manager.ClosePrivateProfile());
}

TEST_F(ProfileStubs, ForeignSettingsAreNotTaken)
{
    manager.SetOutQSettings(nullptr);
    manager.SetOutQSettings(&manager);
    EXPECT_EQ(L"7", readWide(L"S", L"k"));
    EXPECT_EQ("[S]\nk=7\n", content());
}

TEST(ProfileServices, TheManagerIsMadeOnce)
{
    PlatformServicesImp services;
    IPlatformProfileManager* made = services.profileManager();
    ASSERT_NE(nullptr, dynamic_cast<PlatformProfileManagerImp*>(made));
    EXPECT_EQ(made, services.profileManager());
}

TEST(ProfileServices, SingleOperationsCanBeReplaced)
{
    class Derived : public PlatformProfileManagerImp
    {
        int ClosePrivateProfile() override { return 2; }
    };
    Derived derived;
    IPlatformProfileManager& manager = derived;
    EXPECT_EQ(2, manager.ClosePrivateProfile());
    EXPECT_EQ(1, manager.OpenPrivateProfile(nullptr));
}

} // namespace
