#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/files/FileTree.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class FileAttributes : public testing::Test
{
protected:
    /// Gives the tree's `name` these permissions.
    void permit(const QByteArray& name, mode_t mode)
    {
        ASSERT_EQ(0, chmod(tree.path(name).toUtf8(), mode));
    }

    /// The attributes of the tree's `name`, as a user sees them whom permissions bind.
    int attributesForUser(const char* name)
    {
        permit("", 0755);
        return runUnprivileged(tree.path(), [&] {
            const std::wstring path = QString::fromUtf8(name).toStdWString();
            return static_cast<int>(manager.GetFileAttributesW(path.c_str()));
        });
    }

    int set(const QByteArray& name, unsigned int attributes)
    {
        return manager.SetFileAttributesW(tree.wide(name).c_str(), attributes);
    }

    FileTree tree;
    PlatformDirectoryManagerImp manager;
};

TEST_F(FileAttributes, FilesAreNormalAndFoldersBoth)
{
    tree.file("file");
    tree.folder("folder");
    tree.pipe("pipe");
    tree.link("link", "folder");
    EXPECT_EQ(128U, manager.GetFileAttributesW(tree.wide("file").c_str()));
    EXPECT_EQ(128U, manager.GetFileAttributesW(tree.wide("pipe").c_str()));
    EXPECT_EQ(144U, manager.GetFileAttributesW(tree.wide("folder").c_str()));
    EXPECT_EQ(144U, manager.GetFileAttributesW(tree.wide("folder/").c_str()));
    EXPECT_EQ(144U, manager.GetFileAttributesW(tree.wide("link").c_str()));
}

TEST_F(FileAttributes, MissingFileIsNormal)
{
    tree.link("broken", "missing");
    EXPECT_EQ(128U, manager.GetFileAttributesW(tree.wide("missing").c_str()));
    EXPECT_EQ(128U, manager.GetFileAttributesW(tree.wide("broken").c_str()));
    EXPECT_EQ(128U, manager.GetFileAttributesW(L""));
}

TEST_F(FileAttributes, NullIsInvalid)
{
    EXPECT_EQ(0xFFFFFFFFU, manager.GetFileAttributesW(nullptr));
}

TEST_F(FileAttributes, ReadOnlyIsWhatCanBeReadAndNotWritten)
{
    tree.file("file");
    tree.folder("folder");
    permit("file", 0444);
    permit("folder", 0555);
    EXPECT_EQ(129, attributesForUser("file"));
    EXPECT_EQ(145, attributesForUser("folder"));
}

TEST_F(FileAttributes, WhatCanBeWrittenOrNotBeReadIsNotReadOnly)
{
    tree.file("file");
    tree.folder("folder");
    permit("file", 0666);
    permit("folder", 0777);
    EXPECT_EQ(128, attributesForUser("file"));
    EXPECT_EQ(144, attributesForUser("folder"));
    permit("file", 0222);
    permit("folder", 0333);
    EXPECT_EQ(128, attributesForUser("file"));
    EXPECT_EQ(144, attributesForUser("folder"));
    permit("file", 0);
    EXPECT_EQ(128, attributesForUser("file"));
}

TEST_F(FileAttributes, SettingNothingSucceeds)
{
    EXPECT_EQ(1, set("missing", 0));
    EXPECT_EQ(1, manager.SetFileAttributesW(L"", 0));
    EXPECT_EQ(0, manager.SetFileAttributesW(nullptr, 0));
    EXPECT_EQ(0, manager.SetFileAttributesW(nullptr, FILE_ATTRIBUTE_NORMAL));
}

TEST_F(FileAttributes, OtherAttributesAreIgnored)
{
    tree.file("file");
    EXPECT_EQ(1, set("file", ~(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN)));
    EXPECT_EQ(QStringList("file"), QDir(tree.path()).entryList(QDir::Files | QDir::Hidden));
}

TEST_F(FileAttributes, SettingReadOnlyAsksWhetherEverybodyMayRead)
{
    tree.file("file");
    for (const mode_t mode : {0444U, 0644U, 0777U}) {
        permit("file", mode);
        EXPECT_EQ(1, set("file", FILE_ATTRIBUTE_READONLY)) << std::oct << mode;
        EXPECT_EQ(1, set("file", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE));
    }
    for (const mode_t mode : {0440U, 0404U, 0044U, 0600U, 0333U, 0U}) {
        permit("file", mode);
        EXPECT_EQ(0, set("file", FILE_ATTRIBUTE_READONLY)) << std::oct << mode;
    }
}

TEST_F(FileAttributes, SettingReadOnlyChangesNoPermission)
{
    tree.file("file");
    permit("file", 0646);
    EXPECT_EQ(1, set("file", FILE_ATTRIBUTE_READONLY));
    struct stat status;
    ASSERT_EQ(0, stat(tree.path("file").toUtf8(), &status));
    EXPECT_EQ(0646U, status.st_mode & 0777U);
}

TEST_F(FileAttributes, SettingReadOnlyFailsForFoldersAndWhatIsMissing)
{
    tree.folder("folder");
    permit("folder", 0777);
    EXPECT_EQ(0, set("folder", FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(0, set("missing", FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(0, manager.SetFileAttributesW(L"", FILE_ATTRIBUTE_READONLY));
}

TEST_F(FileAttributes, HidingPutsADotInFrontOfTheName)
{
    tree.file("file", 3);
    tree.enter();
    EXPECT_EQ(1, manager.SetFileAttributesW(L"file", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_FALSE(QFileInfo::exists("file"));
    EXPECT_EQ(3, QFileInfo(".file").size());
}

TEST_F(FileAttributes, HidingRenamesFoldersWithAllThatIsInThem)
{
    tree.folder("folder");
    tree.file("folder/file", 3);
    tree.enter();
    EXPECT_EQ(1, manager.SetFileAttributesW(L"folder", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_FALSE(QFileInfo::exists("folder"));
    EXPECT_EQ(3, QFileInfo(".folder/file").size());
}

TEST_F(FileAttributes, HidingPutsTheDotInFrontOfTheWholePath)
{
    tree.folder("a");
    tree.folder(".a");
    tree.file("a/b");
    tree.enter();
    EXPECT_EQ(1, manager.SetFileAttributesW(L"a/b", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_TRUE(QFileInfo::exists(".a/b"));
    EXPECT_FALSE(QFileInfo::exists("a/b"));
}

TEST_F(FileAttributes, HidingAnAbsolutePathMakesItRelative)
{
    tree.file("file");
    tree.enter();
    // Below the working directory there is no such folder yet.
    EXPECT_EQ(0, set("file", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_TRUE(QFileInfo::exists(tree.path("file")));
    ASSERT_TRUE(QDir().mkpath('.' + tree.path()));
    EXPECT_EQ(1, set("file", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_FALSE(QFileInfo::exists(tree.path("file")));
    EXPECT_TRUE(QFileInfo::exists('.' + tree.path("file")));
}

TEST_F(FileAttributes, HidingFailsForWhatIsMissingAndDoesNotOverwrite)
{
    tree.file("file", 1);
    tree.file(".file", 2);
    tree.enter();
    EXPECT_EQ(0, manager.SetFileAttributesW(L"missing", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(0, manager.SetFileAttributesW(L"", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(0, manager.SetFileAttributesW(L"file", FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(1, QFileInfo("file").size());
    EXPECT_EQ(2, QFileInfo(".file").size());
}

TEST_F(FileAttributes, FailedReadOnlyTestPreventsHiding)
{
    tree.file("file");
    tree.enter();
    constexpr unsigned int both = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN;
    permit("file", 0600);
    EXPECT_EQ(0, manager.SetFileAttributesW(L"file", both));
    EXPECT_TRUE(QFileInfo::exists("file"));
    permit("file", 0644);
    EXPECT_EQ(1, manager.SetFileAttributesW(L"file", both));
    EXPECT_TRUE(QFileInfo::exists(".file"));
}

} // namespace
