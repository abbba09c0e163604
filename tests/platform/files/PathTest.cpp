#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/files/ArrayAllocations.h"
#include "tests/platform/files/FileTree.h"
#include "tests/support/CanaryBuffer.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace {

struct TextRow
{
    std::wstring text;
    std::wstring result;
};

std::wstring repeated(std::size_t count, wchar_t character)
{
    return std::wstring(count, character);
}

class AddBackslash : public testing::TestWithParam<TextRow>
{
};

TEST_P(AddBackslash, EndsThePathWithASeparator)
{
    CanaryBuffer<wchar_t> buffer(256, GetParam().text);
    EXPECT_EQ(buffer.data(), PlatformDirectoryManagerImp().AddBackslash(buffer.data()));
    const std::wstring& result = GetParam().result;
    buffer.expect(result + repeated(256 - result.size(), L'\0'));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, AddBackslash,
    testing::Values(TextRow{L"", L"/"}, TextRow{L"/", L"/"}, TextRow{L"\\", L"/"},
                    TextRow{L"a", L"a/"}, TextRow{L"a/", L"a/"}, TextRow{L"a\\", L"a/"},
                    TextRow{L"a//", L"a//"}, TextRow{L"C:\\a\\b", L"C:/a/b/"},
                    TextRow{L"\\\\host\\share\\", L"//host/share/"},
                    TextRow{L"\U0001F600", L"\U0001F600/"},
                    TextRow{repeated(254, L'x'), repeated(254, L'x') + L'/'},
                    TextRow{repeated(255, L'\\'), repeated(255, L'/')},
                    TextRow{repeated(254, L'\U0001F600'), repeated(254, L'\U0001F600') + L'/'}));

TEST(AddBackslashLimit, LongTextGetsNoTerminator)
{
    for (const std::size_t length : {255U, 256U, 300U, 5000U}) {
        CanaryBuffer<wchar_t> buffer(length + 1, repeated(length, L'x'));
        EXPECT_EQ(buffer.data(), PlatformDirectoryManagerImp().AddBackslash(buffer.data()));
        buffer.expect(repeated(length, L'x') + L'/');
    }
}

TEST(AddBackslashLimit, WritesNoMoreThanTheTextBehindTheZeroedPart)
{
    CanaryBuffer<wchar_t> buffer(400, repeated(300, L'x'));
    PlatformDirectoryManagerImp().AddBackslash(buffer.data());
    // The separator takes the terminator's place, and what follows is not touched.
    buffer.expect(repeated(300, L'x') + L'/');
}

TEST(AddBackslashLimit, NullGivesNull)
{
    EXPECT_EQ(nullptr, PlatformDirectoryManagerImp().AddBackslash(nullptr));
}

TEST(SHGetFolderPath, SucceedsAndWritesNothing)
{
    PlatformDirectoryManagerImp manager;
    CanaryBuffer<wchar_t> buffer(260);
    for (const int folder : {-1, 0, 5, 0x1A, 0x8000})
        EXPECT_EQ(0, manager.SHGetFolderPath(&manager, folder, nullptr, 0, buffer.data()));
    buffer.expectUntouched();
    EXPECT_EQ(0, manager.SHGetFolderPath(nullptr, 0, nullptr, 0, nullptr));
}

struct RelativeRow
{
    const wchar_t* from;
    const wchar_t* to;
    std::wstring result;
};

class RelativePath : public testing::TestWithParam<RelativeRow>
{
};

TEST_P(RelativePath, IsWrittenWithoutTerminator)
{
    const RelativeRow& row = GetParam();
    for (const unsigned int attributes : {0U, 16U, ~0U}) {
        CanaryBuffer<wchar_t> buffer(64);
        EXPECT_EQ(1, PlatformDirectoryManagerImp().PathRelativePathToW(
                         buffer.data(), row.from, attributes, row.to, ~attributes));
        buffer.expect(row.result);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Paths, RelativePath,
    testing::Values(RelativeRow{L"/a/b", L"/a/b", L"./"}, RelativeRow{L"", L"", L"./"},
                    RelativeRow{L"/a", L"/a/b/c", L"./b/c"}, RelativeRow{L"/a/b", L"/a/x", L"../x"},
                    RelativeRow{L"/a/b", L"/c", L"../../c"}, RelativeRow{L"/A", L"/a", L"../a"},
                    // The one contains the other's text, though it lies outside.
                    RelativeRow{L"/a/b", L"/a/bc/d", L"./../bc/d"},
                    RelativeRow{L"/b", L"/a/b/c", L"./../a/b/c"},
                    // Every text contains the empty one, which is the working folder.
                    RelativeRow{L"", L"x/y", L"./x/y"},
                    // The same folder, written in two ways.
                    RelativeRow{L"/a/b/", L"/a/b", L"."}, RelativeRow{L"/a/b", L"/a/b/", L"./."},
                    RelativeRow{L"/", L"/a", L"./a"}, RelativeRow{L"/a", L"x/y", L"x/y"},
                    RelativeRow{L"/a", L"\\a", L"\\a"},
                    // As many characters as code points.
                    RelativeRow{L"/a", L"/a/\U0001F600\U0001F601", L"./\U0001F600\U0001F601"}));

TEST(RelativePathLimit, NullArgumentsFail)
{
    PlatformDirectoryManagerImp manager;
    CanaryBuffer<wchar_t> buffer(16);
    EXPECT_EQ(0, manager.PathRelativePathToW(nullptr, L"/a", 0, L"/b", 0));
    EXPECT_EQ(0, manager.PathRelativePathToW(buffer.data(), nullptr, 0, L"/b", 0));
    EXPECT_EQ(0, manager.PathRelativePathToW(buffer.data(), L"/a", 0, nullptr, 0));
    buffer.expectUntouched();
}

TEST(RelativePathLimit, LongPathsAreCutAt4096Characters)
{
    for (const std::size_t length : {4095U, 4096U, 4097U, 9000U}) {
        CanaryBuffer<wchar_t> buffer(5000);
        const std::wstring name = repeated(length - 2, L'x');
        EXPECT_EQ(1, PlatformDirectoryManagerImp().PathRelativePathToW(buffer.data(), L"/a", 0,
                                                                       (L"/a/" + name).c_str(), 0));
        const std::size_t written = std::min<std::size_t>(length, 4096);
        buffer.expect((L"./" + name).substr(0, written));
    }
}

/// Runs with a temporary directory of its own choice.
class TempPath : public testing::Test
{
protected:
    ~TempPath() override { qputenv("TMPDIR", m_previous); }

    static void set(const QString& directory) { qputenv("TMPDIR", directory.toUtf8()); }

    static unsigned int get(std::size_t length, CanaryBuffer<wchar_t>& buffer)
    {
        return PlatformDirectoryManagerImp().GetTempPathW(static_cast<unsigned int>(length),
                                                          buffer.data());
    }

    FileTree tree;

private:
    QByteArray m_previous = qgetenv("TMPDIR");
};

TEST_F(TempPath, EndsWithOneSeparatorAndHasNoTerminator)
{
    const std::wstring expected = tree.wide();
    for (const QString& directory : {tree.path(), tree.path("."), tree.path() + '/'}) {
        set(directory);
        CanaryBuffer<wchar_t> buffer(256);
        EXPECT_EQ(expected.size(), get(256, buffer));
        buffer.expect(expected);
    }
}

TEST_F(TempPath, RootStaysOneSeparator)
{
    set("/");
    CanaryBuffer<wchar_t> buffer(8);
    EXPECT_EQ(1U, get(8, buffer));
    buffer.expect(std::wstring(L"/"));
}

TEST_F(TempPath, MissingDirectoryFails)
{
    set(tree.path("missing"));
    CanaryBuffer<wchar_t> buffer(256);
    EXPECT_EQ(0U, get(256, buffer));
    EXPECT_EQ(0U, get(0, buffer));
    buffer.expectUntouched();
}

TEST_F(TempPath, NeedsRoomForATerminatorThatItDoesNotWrite)
{
    set(tree.path());
    const std::size_t size = tree.wide().size();
    for (const std::size_t length : {std::size_t{1}, std::size_t{2}, size - 1, size}) {
        CanaryBuffer<wchar_t> buffer(256);
        EXPECT_EQ(0U, get(length, buffer));
        buffer.expectUntouched();
    }
    for (const std::size_t length : {size + 1, size + 2, std::size_t{0xFFFFFFFF}}) {
        CanaryBuffer<wchar_t> buffer(256);
        EXPECT_EQ(size, get(length, buffer));
        buffer.expect(tree.wide());
    }
}

TEST_F(TempPath, LengthZeroIsUnlimited)
{
    set(tree.path());
    CanaryBuffer<wchar_t> buffer(256);
    EXPECT_EQ(tree.wide().size(), get(0, buffer));
    buffer.expect(tree.wide());
}

TEST_F(TempPath, LengthsCountCodePoints)
{
    tree.folder("😀😁");
    set(tree.path("😀😁"));
    const std::wstring expected = tree.wide("😀😁/");
    ASSERT_EQ(tree.wide().size() + 3, expected.size());
    CanaryBuffer<wchar_t> buffer(256);
    EXPECT_EQ(0U, get(expected.size(), buffer));
    EXPECT_EQ(expected.size(), get(expected.size() + 1, buffer));
    buffer.expect(expected);
}

TEST_F(TempPath, NullBufferFails)
{
    EXPECT_EQ(0U, PlatformDirectoryManagerImp().GetTempPathW(0, nullptr));
    EXPECT_EQ(0U, PlatformDirectoryManagerImp().GetTempPathW(4096, nullptr));
}

TEST(IsPathRelative, AsksForALeadingSeparator)
{
    PlatformDirectoryManagerImp manager;
    for (const wchar_t* path : {L"a", L"a/b", L"./a", L"../a", L"\\a", L"C:/a", L" ", L"~/a"})
        EXPECT_EQ(1, manager.IsPathRelative(path)) << QString::fromWCharArray(path).toStdString();
    for (const wchar_t* path : {L"/", L"/a", L"//a", L":/a"})
        EXPECT_EQ(0, manager.IsPathRelative(path)) << QString::fromWCharArray(path).toStdString();
}

TEST(IsPathRelative, NullAndEmptyAreNot)
{
    EXPECT_EQ(0, PlatformDirectoryManagerImp().IsPathRelative(nullptr));
    EXPECT_EQ(0, PlatformDirectoryManagerImp().IsPathRelative(L""));
}

class Extension : public testing::TestWithParam<TextRow>
{
};

TEST_P(Extension, StartsAtTheLastDotOfTheName)
{
    const std::unique_ptr<wchar_t[]> extension(
        PlatformDirectoryManagerImp().PathFindExtensionW(GetParam().text.c_str()));
    const std::wstring& result = GetParam().result;
    EXPECT_EQ(result + repeated(256 - result.size(), L'\0'), std::wstring(extension.get(), 256));
}

INSTANTIATE_TEST_SUITE_P(
    Paths, Extension,
    testing::Values(TextRow{L"archive.tar.gz", L".gz"}, TextRow{L"name", L""}, TextRow{L"", L""},
                    TextRow{L"/a.b/name", L""}, TextRow{L"/a.b/name.c", L".c"},
                    TextRow{L"name.", L""}, TextRow{L".profile", L".profile"},
                    TextRow{L"a.\U0001F600", L".\U0001F600"}, TextRow{L"a\\b.c\\d", L".c\\d"},
                    TextRow{L"/a.b/", L""}, TextRow{L"a.TXT", L".TXT"},
                    TextRow{L"a." + repeated(255, L'x'), L'.' + repeated(255, L'x')}));

TEST(ExtensionLimit, LongExtensionIsWrittenInFullLengthAndCutAtTheEndOfTheBuffer)
{
    for (const std::size_t length : {256U, 1022U, 1023U, 1024U, 5000U}) {
        const std::wstring suffix = repeated(length, L'x');
        const std::unique_ptr<wchar_t[]> extension(
            PlatformDirectoryManagerImp().PathFindExtensionW((L"a." + suffix).c_str()));
        const std::size_t written = std::min<std::size_t>(length + 1, 1024);
        EXPECT_EQ((L'.' + suffix).substr(0, written), std::wstring(extension.get(), written));
    }
}

TEST(ExtensionLimit, EveryCallReturnsABufferOfItsOwn)
{
    PlatformDirectoryManagerImp manager;
    const wchar_t* path = L"a.b";
    const std::unique_ptr<wchar_t[]> one(manager.PathFindExtensionW(path));
    const std::unique_ptr<wchar_t[]> two(manager.PathFindExtensionW(path));
    EXPECT_NE(one, two);
    one[1023] = L'x'; // the last of its 1,024 characters
    EXPECT_EQ(std::wstring(L".b"), std::wstring(two.get()));
}

// Its size, told by the memory that it takes.
TEST(ExtensionLimit, BufferHolds1024Characters)
{
    const std::unique_ptr<wchar_t[]> buffer(
        PlatformDirectoryManagerImp().PathFindExtensionW(L"a.b"));
    EXPECT_EQ(1024 * sizeof(wchar_t), ArrayAllocations::latest());
}

TEST(ExtensionLimit, NullGivesNull)
{
    EXPECT_EQ(nullptr, PlatformDirectoryManagerImp().PathFindExtensionW(nullptr));
}

} // namespace
