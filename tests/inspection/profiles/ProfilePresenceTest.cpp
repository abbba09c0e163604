#include "inspection/profiles/ProfilePresence.h"
#include "inspection/profiles/ProfileBytes.h"
#include "tests/inspection/profiles/ProfileFixture.h"

namespace {

using Fate = ProfilePresence::Fate;

class ProfilePresenceTest : public testing::Test
{
protected:
    void SetUp() override { m_file.write("[S]\n"); }
    Fate fate() const { return m_presence.fate(m_file.path()); }

    ProfileFixture m_file;
    ProfilePresence m_presence;
};

TEST_F(ProfilePresenceTest, TellsThatAFileIsGone)
{
    m_presence.note(m_file.path());
    EXPECT_EQ(fate(), Fate::Same);
    QFile::remove(m_file.path());
    EXPECT_EQ(fate(), Fate::Deleted);
}

TEST_F(ProfilePresenceTest, DoesNotForgetAFileThatIsReadAgainWhenItIsGone)
{
    m_presence.note(m_file.path());
    QFile::remove(m_file.path());
    m_presence.note(m_file.path());
    EXPECT_EQ(fate(), Fate::Deleted);
    m_presence.forget();
    EXPECT_EQ(fate(), Fate::Same);
}

TEST_F(ProfilePresenceTest, TellsThatAnotherFileLiesThere)
{
    m_presence.note(m_file.path());
    ASSERT_TRUE(QFile::rename(m_file.path(), m_file.folder() + QStringLiteral("/other")));
    m_file.write("[S]\n");
    EXPECT_EQ(fate(), Fate::Replaced);
    m_presence.note(m_file.path());
    EXPECT_EQ(fate(), Fate::Same);
}

TEST_F(ProfilePresenceTest, IsNotConcernedByWritingToTheFile)
{
    m_presence.note(m_file.path());
    m_file.write("[S]\na=1\n");
    EXPECT_EQ(fate(), Fate::Same);
}

TEST_F(ProfilePresenceTest, KnowsNothingOfOtherFiles)
{
    m_presence.note(m_file.path());
    EXPECT_EQ(m_presence.fate(m_file.folder() + QStringLiteral("/none.ini")), Fate::Same);
}

TEST(ProfileBytes, PutsBytesBackInPlaceUnderANewStamp)
{
    const ProfileFixture file;
    file.write("[S]\na=1\n");
    const QDateTime stamp = file.stamp();
    const auto inode = [&file] { return QFileInfo(file.path()).birthTime(); };
    const QDateTime born = inode();
    ASSERT_TRUE(ProfileBytes::restore(file.path(), QByteArray("[S]\na=\xe4\r\n")));
    EXPECT_EQ(file.bytes(), "[S]\na=\xe4\r\n");
    EXPECT_GT(file.stamp(), stamp);
    EXPECT_EQ(inode(), born);
}

TEST(ProfileBytes, TellAFileWithoutBytesFromNone)
{
    const ProfileFixture file;
    EXPECT_EQ(ProfileBytes::of(file.path()), std::nullopt);
    ASSERT_TRUE(ProfileBytes::restore(file.path(), QByteArray()));
    EXPECT_EQ(ProfileBytes::of(file.path()), QByteArray());
    ASSERT_TRUE(ProfileBytes::restore(file.path(), std::nullopt));
    EXPECT_FALSE(QFile::exists(file.path()));
}

} // namespace
