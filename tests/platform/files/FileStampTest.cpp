#include "platform/files/FileStamp.h"
#include "tests/support/WaitFor.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class FileStampTest : public testing::Test
{
protected:
    QString path(const char* name = "a") const { return m_folder.filePath(QLatin1String(name)); }

    void write(const QByteArray& bytes, const char* name = "a") const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
};

TEST_F(FileStampTest, StaysWhileNothingChanges)
{
    write("12345");
    EXPECT_EQ(FileStamp::of(path()), FileStamp::of(path()));
}

TEST_F(FileStampTest, TellsAFileFromNone)
{
    const FileStamp none = FileStamp::of(path());
    EXPECT_EQ(none, FileStamp());
    write("");
    EXPECT_NE(FileStamp::of(path()), none);
}

TEST_F(FileStampTest, APathThatLeadsNowhereHasNone)
{
    EXPECT_FALSE(FileStamp::of(path()).exists());
    EXPECT_FALSE(FileStamp::of(QString()).exists());
    write("");
    EXPECT_TRUE(FileStamp::of(path()).exists());
}

TEST_F(FileStampTest, IsThatOfTheSameFileWhenItHasBeenWritten)
{
    write("a");
    const FileStamp before = FileStamp::of(path());
    write("ab");
    EXPECT_NE(FileStamp::of(path()), before);
    EXPECT_TRUE(before.isSameFile(FileStamp::of(path())));
}

TEST_F(FileStampTest, AnotherFileUnderTheNameIsNotTheSame)
{
    write("a");
    const FileStamp before = FileStamp::of(path());
    ASSERT_TRUE(QFile::rename(path(), path("old")));
    write("a");
    EXPECT_FALSE(before.isSameFile(FileStamp::of(path())));
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_FALSE(before.isSameFile(FileStamp::of(path())));
}

TEST_F(FileStampTest, TellsAFileThatWasReplaced)
{
    write("12345");
    const FileStamp before = FileStamp::of(path());
    write("54321", "b");
    ASSERT_TRUE(QFile::remove(path()) && QFile::rename(path("b"), path()));
    EXPECT_NE(FileStamp::of(path()), before);
}

TEST_F(FileStampTest, TellsAFolderThatGotAFile)
{
    ASSERT_TRUE(waitFor([this] { return FileStamp::of(m_folder.path()).isSure(); }));
    const FileStamp before = FileStamp::of(m_folder.path());
    write("");
    EXPECT_NE(FileStamp::of(m_folder.path()), before);
}

TEST_F(FileStampTest, IsNotSureRightBehindAChange)
{
    for (int attempt = 0; attempt < 100; ++attempt) { // the machine may be slow
        write("");
        if (!FileStamp::of(path()).isSure())
            return;
    }
    FAIL() << "always sure";
}

} // namespace
