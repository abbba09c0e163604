#include "platform/files/KnownFile.h"

#include "tests/support/WaitFor.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class KnownFileTest : public testing::Test
{
protected:
    // In its place, as a program does that does not replace files.
    void write(const QByteArray& bytes) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    bool isSure() const
    {
        return waitFor([this] { return FileStamp::of(m_path).isSure(); });
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("a"));
};

TEST_F(KnownFileTest, IsStillWhatWasSeen)
{
    write("one");
    KnownFile seen = KnownFile::of(m_path);
    EXPECT_TRUE(seen.isStill(m_path));
    ASSERT_TRUE(isSure());
    EXPECT_TRUE(seen.isStill(m_path));
    EXPECT_TRUE(seen.stamp().isSure());
}

// What is written through memory is stamped once, with the first byte.
TEST_F(KnownFileTest, TellsAWriteThatTheStampDoesNot)
{
    write("one");
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    uchar* bytes = file.map(0, file.size());
    ASSERT_NE(bytes, nullptr);
    bytes[0] = 'a';
    KnownFile seen = KnownFile::of(m_path);
    bytes[0] = 'b';
    ASSERT_EQ(FileStamp::of(m_path), seen.stamp());
    ASSERT_TRUE(isSure());
    EXPECT_FALSE(seen.isStill(m_path));
    EXPECT_FALSE(seen.isStill(m_path));
}

TEST_F(KnownFileTest, TellsAFileOfAnotherSize)
{
    write("one");
    KnownFile seen = KnownFile::of(m_path);
    write("three");
    EXPECT_FALSE(seen.isStill(m_path));
}

TEST_F(KnownFileTest, NoFileIsStillNone)
{
    KnownFile seen = KnownFile::of(m_path);
    EXPECT_FALSE(seen.exists());
    EXPECT_TRUE(seen.isStill(m_path));
    write("one");
    EXPECT_FALSE(seen.isStill(m_path));
}

} // namespace
