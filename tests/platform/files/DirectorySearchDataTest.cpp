// What a search writes to the caller's record, and its handle.

#include "tests/platform/files/DirectorySearch.h"

#include <QDir>

#include <cstddef>
#include <cwchar>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using DirectorySearchDataTest = DirectorySearch;

static_assert(offsetof(_WIN32_FIND_DATAW, ftCreationTime) == 4);
static_assert(offsetof(_WIN32_FIND_DATAW, ftLastAccessTime) == 12);
static_assert(offsetof(_WIN32_FIND_DATAW, ftLastWriteTime) == 20);
static_assert(offsetof(_WIN32_FIND_DATAW, nFileSizeHigh) == 28);
static_assert(offsetof(_WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(_WIN32_FIND_DATAW, dwReserved0) == 36);
static_assert(offsetof(_WIN32_FIND_DATAW, dwReserved1) == 40);
static_assert(offsetof(_WIN32_FIND_DATAW, cFileName) == 44);
static_assert(offsetof(_WIN32_FIND_DATAW, cAlternateFileName) == 44 + 260 * 4);
static_assert(sizeof(_WIN32_FIND_DATAW) == 44 + 260 * 4 + 14 * 4);

TEST_F(DirectorySearchDataTest, AttributesTellFoldersFromTheRest)
{
    tree.file("file");
    tree.folder("folder");
    tree.link("link", "folder");
    EXPECT_TRUE(find("file"));
    EXPECT_EQ(128U, data->dwFileAttributes);
    EXPECT_TRUE(find("folder"));
    EXPECT_EQ(16U, data->dwFileAttributes);
    EXPECT_TRUE(find("link"));
    EXPECT_EQ(16U, data->dwFileAttributes);
}

TEST_F(DirectorySearchDataTest, FolderLeavesSizeAndTimesAlone)
{
    tree.folder("folder");
    ASSERT_TRUE(find("folder"));
    EXPECT_TRUE(data.untouched(data->ftCreationTime));
    EXPECT_TRUE(data.untouched(data->ftLastAccessTime));
    EXPECT_TRUE(data.untouched(data->ftLastWriteTime));
    EXPECT_TRUE(data.untouched(data->nFileSizeHigh));
    EXPECT_TRUE(data.untouched(data->nFileSizeLow));
}

TEST_F(DirectorySearchDataTest, LinkToAPipeLeavesSizeAndTimesAlone)
{
    tree.pipe("pipe");
    tree.link("link", "pipe");
    ASSERT_TRUE(find("link"));
    EXPECT_EQ(128U, data->dwFileAttributes);
    EXPECT_TRUE(data.untouched(data->ftLastWriteTime));
    EXPECT_TRUE(data.untouched(data->nFileSizeLow));
}

TEST_F(DirectorySearchDataTest, ReservedFieldsAndShortNameAreNeverWritten)
{
    tree.file("file", 1);
    tree.folder("folder");
    EXPECT_EQ(QStringList({"file", "folder"}), searchTree("f*"));
    EXPECT_TRUE(data.untouched(data->dwReserved0));
    EXPECT_TRUE(data.untouched(data->dwReserved1));
    EXPECT_TRUE(data.untouched(data->cAlternateFileName));
}

struct SizeRow
{
    qint64 size;
    DWORD high;
    DWORD low;
};

class DirectorySearchSize : public DirectorySearch, public testing::WithParamInterface<SizeRow>
{
};

TEST_P(DirectorySearchSize, IsSplitIntoTwoWords)
{
    tree.file("file", GetParam().size);
    tree.link("link", "file");
    for (const char* name : {"file", "link"}) {
        ASSERT_TRUE(find(name));
        EXPECT_EQ(GetParam().high, data->nFileSizeHigh);
        EXPECT_EQ(GetParam().low, data->nFileSizeLow);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, DirectorySearchSize,
                         testing::Values(SizeRow{0, 0, 0}, SizeRow{1, 0, 1},
                                         SizeRow{0x80000000, 0, 0x80000000},
                                         SizeRow{0xFFFFFFFF, 0, 0xFFFFFFFF},
                                         SizeRow{0x100000000, 1, 0},
                                         SizeRow{0x2FFFFFFFE, 2, 0xFFFFFFFE}));

struct TimeRow
{
    qint64 seconds;
    DWORD low;
};

class DirectorySearchTime : public DirectorySearch, public testing::WithParamInterface<TimeRow>
{
};

TEST_P(DirectorySearchTime, IsInPlainSecondsOrAllOnes)
{
    tree.file("file");
    const timespec time{GetParam().seconds, 0};
    const timespec times[] = {time, time};
    ASSERT_EQ(0, utimensat(AT_FDCWD, tree.path("file").toUtf8(), times, 0));
    ASSERT_TRUE(find("file"));
    EXPECT_EQ(GetParam().low, data->ftLastAccessTime.dwLowDateTime);
    EXPECT_EQ(GetParam().low, data->ftLastWriteTime.dwLowDateTime);
    EXPECT_EQ(0U, data->ftLastAccessTime.dwHighDateTime);
    EXPECT_EQ(0U, data->ftLastWriteTime.dwHighDateTime);
}

INSTANTIATE_TEST_SUITE_P(Times, DirectorySearchTime,
                         testing::Values(TimeRow{1, 1}, TimeRow{1700000000, 1700000000},
                                         TimeRow{-1, 0xFFFFFFFF}, TimeRow{-86400, 0xFFFFFFFF},
                                         TimeRow{0x7FFFFFFF, 0x7FFFFFFF},
                                         TimeRow{0x80000000, 0x80000000},
                                         TimeRow{0xFFFFFFFE, 0xFFFFFFFE},
                                         TimeRow{0x100000000, 0xFFFFFFFF},
                                         // To Qt the very start of 1970 is no time at all.
                                         TimeRow{0, 0xFFFFFFFF}));

// The hour that the clocks of the tests' time zone go through twice.
INSTANTIATE_TEST_SUITE_P(RepeatedHour, DirectorySearchTime,
                         testing::Values(TimeRow{1729987200, 1729987200},
                                         TimeRow{1729990799, 1729990799},
                                         TimeRow{1729990800, 1729990800},
                                         TimeRow{1729994399, 1729994399}));

TEST_F(DirectorySearchDataTest, AccessAndWriteTimesAreKeptApart)
{
    tree.file("file");
    const timespec times[] = {{1111111111, 0}, {1222222222, 999999999}};
    ASSERT_EQ(0, utimensat(AT_FDCWD, tree.path("file").toUtf8(), times, 0));
    ASSERT_TRUE(find("file"));
    EXPECT_EQ(1111111111U, data->ftLastAccessTime.dwLowDateTime);
    EXPECT_EQ(1222222222U, data->ftLastWriteTime.dwLowDateTime);
}

TEST_F(DirectorySearchDataTest, CreationIsTheBirthTimeWhereTheFileSystemKeepsIt)
{
    tree.file("file");
    const QByteArray file = tree.path("file").toUtf8();
    usleep(1100000); // from here on the last change lies in another second than the birth
    ASSERT_EQ(0, chmod(file, 0600));
    struct statx status;
    ASSERT_EQ(0, statx(AT_FDCWD, file, 0, STATX_BTIME | STATX_CTIME, &status));
    const auto& expected =
        (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime : status.stx_ctime;
    ASSERT_TRUE(find("file"));
    EXPECT_EQ(static_cast<DWORD>(expected.tv_sec), data->ftCreationTime.dwLowDateTime);
    EXPECT_EQ(0U, data->ftCreationTime.dwHighDateTime);
}

TEST_F(DirectorySearchDataTest, CreationIsTheLastChangeWhereNoBirthTimeIsKept)
{
    const char* const file = "/proc/self/comm";
    const int descriptor = open(file, O_RDONLY | O_CLOEXEC); // while it is open, its times stay
    ASSERT_GE(descriptor, 0);
    const timespec times[] = {{1111111111, 0}, {1222222222, 0}};
    ASSERT_EQ(0, utimensat(AT_FDCWD, file, times, 0));
    struct statx status;
    ASSERT_EQ(0, statx(AT_FDCWD, file, 0, STATX_BTIME | STATX_CTIME, &status));
    ASSERT_EQ(0U, status.stx_mask & STATX_BTIME);
    void* handle = manager.findFirstFile(L"/proc/self/comm", data.get());
    ASSERT_EQ(1, manager.findClose(handle));
    EXPECT_EQ(static_cast<DWORD>(status.stx_ctime.tv_sec), data->ftCreationTime.dwLowDateTime);
    EXPECT_EQ(0U, data->ftCreationTime.dwHighDateTime);
    EXPECT_EQ(1222222222U, data->ftLastWriteTime.dwLowDateTime);
    close(descriptor);
}

TEST_F(DirectorySearchDataTest, NameIsPaddedWithZeros)
{
    tree.file("abc");
    ASSERT_TRUE(find("abc"));
    const std::wstring name(data->cFileName, MAX_PATH);
    EXPECT_EQ(std::wstring(L"abc").append(MAX_PATH - 3, L'\0'), name);
}

TEST_F(DirectorySearchDataTest, LongestNamesFit)
{
    const QByteArray one(255, 'x');
    const QByteArray two(255, 'y');
    tree.file(one);
    tree.file(two);
    EXPECT_EQ(QStringList({one, two}), searchTree("*"));
    EXPECT_EQ(255U, wcslen(data->cFileName));
}

// A name on the file system is never that long, but one that a search path stands before is.
class DirectorySearchNameLimit : public DirectorySearch, public testing::WithParamInterface<int>
{
};

TEST_P(DirectorySearchNameLimit, IsTheSizeOfItsField)
{
    const QByteArray file(200, 'x');
    const QByteArray prefix(GetParam() - file.size() - 1, 'p');
    tree.file(file, 7);
    QDir::setSearchPaths(prefix, {tree.path()});
    ASSERT_TRUE(find(prefix + ':' + file));
    QDir::setSearchPaths(prefix, {});
    std::wstring expected = QString(prefix + ':' + file).toStdWString();
    expected.resize(MAX_PATH, L'\0');
    EXPECT_EQ(expected, std::wstring(data->cFileName, MAX_PATH));
    EXPECT_TRUE(data.untouched(data->cAlternateFileName));
    EXPECT_EQ(7U, data->nFileSizeLow);
}

INSTANTIATE_TEST_SUITE_P(Lengths, DirectorySearchNameLimit, testing::Values(259, 260, 261, 300));

TEST_F(DirectorySearchDataTest, NextEntryKeepsTheSizeAndTimesOfTheFirst)
{
    tree.file("a", 5);
    tree.file("b", 9);
    void* handle = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    const _WIN32_FIND_DATAW first = *data.get();
    EXPECT_EQ(5U, first.nFileSizeLow);
    ASSERT_EQ(1, manager.findNextFile(handle, data.get()));
    EXPECT_EQ(std::wstring(L"b"), std::wstring(data->cFileName));
    EXPECT_EQ(5U, data->nFileSizeLow);
    EXPECT_EQ(first.ftLastWriteTime.dwLowDateTime, data->ftLastWriteTime.dwLowDateTime);
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchDataTest, NextEntryWritesOnlyNameAndAttributes)
{
    tree.file("a", 5);
    tree.folder("b");
    void* handle = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    CanaryRecord<_WIN32_FIND_DATAW> next;
    ASSERT_EQ(1, manager.findNextFile(handle, next.get()));
    EXPECT_EQ(16U, next->dwFileAttributes);
    EXPECT_TRUE(next.untouched(next->ftCreationTime));
    EXPECT_TRUE(next.untouched(next->ftLastAccessTime));
    EXPECT_TRUE(next.untouched(next->ftLastWriteTime));
    EXPECT_TRUE(next.untouched(next->nFileSizeHigh));
    EXPECT_TRUE(next.untouched(next->nFileSizeLow));
    EXPECT_TRUE(next.untouched(next->cAlternateFileName));
    next.expectIntact();
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchDataTest, AttributesOfTheNextEntryAreThoseOfTheMoment)
{
    tree.file("a");
    tree.folder("b");
    tree.file("c");
    tree.link("d", "b");
    void* handle = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    ASSERT_EQ(0, rmdir(tree.path("b").toUtf8()));
    ASSERT_EQ(0, unlink(tree.path("c").toUtf8()));
    tree.folder("c");
    for (const DWORD expected : {128U, 16U, 128U}) {
        ASSERT_EQ(1, manager.findNextFile(handle, data.get()));
        EXPECT_EQ(expected, data->dwFileAttributes);
    }
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchDataTest, NothingFollowsTheLastEntryHoweverOftenItIsAsked)
{
    tree.file("a");
    tree.file("b");
    void* handle = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    EXPECT_EQ(1, manager.findNextFile(handle, data.get()));
    CanaryRecord<_WIN32_FIND_DATAW> next;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(0, manager.findNextFile(handle, next.get()));
    EXPECT_TRUE(next.untouched(*next.get()));
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchDataTest, NullRecordDoesNotAdvance)
{
    tree.file("a");
    tree.file("b");
    void* handle = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    EXPECT_EQ(0, manager.findNextFile(handle, nullptr));
    EXPECT_EQ(1, manager.findNextFile(handle, data.get()));
    EXPECT_EQ(1, manager.findClose(handle));
}

TEST_F(DirectorySearchDataTest, NullAndInvalidHandlesAreRefused)
{
    for (void* handle : {HANDLE{}, INVALID_HANDLE_VALUE}) {
        EXPECT_EQ(0, manager.findNextFile(handle, data.get()));
        EXPECT_EQ(0, manager.findClose(handle));
    }
    EXPECT_TRUE(data.untouched(*data.get()));
}

TEST_F(DirectorySearchDataTest, SearchesAreIndependentOfEachOther)
{
    tree.file("a");
    tree.file("b");
    void* one = manager.findFirstFile(tree.wide("*").c_str(), data.get());
    void* two = PlatformDirectoryManagerImp().findFirstFile(tree.wide("*").c_str(), data.get());
    EXPECT_NE(one, two);
    EXPECT_EQ(1, manager.findNextFile(one, data.get()));
    EXPECT_EQ(1, manager.findClose(one));
    EXPECT_EQ(1, manager.findNextFile(two, data.get()));
    EXPECT_EQ(0, manager.findNextFile(two, data.get()));
    EXPECT_EQ(1, manager.findClose(two));
}

} // namespace
