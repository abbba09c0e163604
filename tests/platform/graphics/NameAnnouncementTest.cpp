// Which copies of names are announced to the host libraries. This program is its own host.

#include "host/HostLibraries.h"
#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/graphics/FontCatalogue.h"

#include <utility>

namespace {

std::size_t g_announced = 0;

class NameAnnouncement : public FontCatalogue
{
protected:
    /// The number of copies announced since the last call.
    static std::size_t announced() { return std::exchange(g_announced, 0); }

    ENUMLOGFONTEXW font = record(L"local", ANSI_CHARSET);
};

TEST_F(NameAnnouncement, MakingTheCatalogueAnnouncesNothing)
{
    announced();
    const PlatformFontManagerImp another;
    EXPECT_EQ(0U, announced());
}

TEST_F(NameAnnouncement, NewNamesAreAnnouncedOnceForEachKeyAndValue)
{
    announced();
    // The key of the family, and the key and the value of the name.
    manager.addLogFont(L"global", &font);
    EXPECT_EQ(3U, announced());
}

TEST_F(NameAnnouncement, KnownNamesAreNotAnnouncedAgain)
{
    manager.addLogFont(L"global", &font);
    announced();
    manager.addLogFont(L"global", &font);
    EXPECT_EQ(0U, announced());
    manager.addLogFont(L"another", &font);
    EXPECT_EQ(2U, announced());
    font = record(L"new", ANSI_CHARSET);
    manager.addLogFont(L"global", &font);
    EXPECT_EQ(1U, announced());
}

TEST_F(NameAnnouncement, CallersOwnCopyOfTheArgumentIsTheOnlyOtherOne)
{
    const CStdStr<wchar_t> name = L"global";
    announced();
    manager.addLogFont(name, &font);
    EXPECT_EQ(4U, announced());
}

TEST_F(NameAnnouncement, EnumerationAnnouncesNothing)
{
    manager.addLogFont(L"global", &font);
    announced();
    EXPECT_EQ(0, enumerate(L"global"));
    EXPECT_EQ(0, enumerate(L"local"));
    EXPECT_EQ(0, enumerateAll());
    EXPECT_EQ(0U, announced());
}

TEST_F(NameAnnouncement, SearchByLocalNameAnnouncesNothing)
{
    manager.addLogFont(L"global", &font);
    announced();
    EXPECT_EQ(std::wstring(L"global"), manager.getGlobalNameByLocalName(L"local"));
    EXPECT_EQ(0U, announced());
}

TEST_F(NameAnnouncement, ExistenceTestAnnouncesNothing)
{
    PlatformDirectoryManagerImp directories;
    CStdStr<wchar_t> real;
    announced();
    EXPECT_EQ(1, directories.isFileExist(L"/", real));
    EXPECT_EQ(0, directories.isFileExist(L"/does/not/exist", real));
    EXPECT_EQ(0U, announced());
}

} // namespace

void updateCStringManagerData(const void* /*string*/)
{
    ++g_announced;
}
