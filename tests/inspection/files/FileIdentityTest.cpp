#include "inspection/files/FileIdentity.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class FileIdentityTest : public testing::Test
{
protected:
    void write(const QByteArray& bytes)
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("file");
};

TEST_F(FileIdentityTest, APathThatLeadsNowhereHasNone)
{
    EXPECT_FALSE(FileIdentity::of(m_path).exists);
    EXPECT_FALSE(FileIdentity::of(QString()).exists);
}

TEST_F(FileIdentityTest, StaysTheSameUntilTheFileIsWritten)
{
    write("a");
    const FileIdentity before = FileIdentity::of(m_path);
    EXPECT_TRUE(before == FileIdentity::of(m_path));
    write("ab");
    EXPECT_TRUE(before != FileIdentity::of(m_path));
    EXPECT_TRUE(before.isSameFile(FileIdentity::of(m_path)));
}

TEST_F(FileIdentityTest, AnotherFileUnderTheNameIsNotTheSame)
{
    write("a");
    const FileIdentity before = FileIdentity::of(m_path);
    ASSERT_TRUE(QFile::rename(m_path, m_path + "-old"));
    write("a");
    EXPECT_FALSE(before.isSameFile(FileIdentity::of(m_path)));
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_FALSE(before.isSameFile(FileIdentity::of(m_path)));
}

} // namespace
