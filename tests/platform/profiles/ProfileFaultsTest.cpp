#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/RandomBytes.h"

#include <QFileInfo>

#include <cstdio>

namespace {

// Files that nobody has written as a profile, or that change under the calls.
class ProfileFaults : public ProfileManagerTest
{
};

TEST_F(ProfileFaults, BinaryFileHasNoValues)
{
    write(randomBytes());
    EXPECT_EQ("", readNarrow("S", "k"));
    EXPECT_EQ(L"d", readWide(L"S", L"k", L"d"));
    EXPECT_EQ(randomBytes(), content());
}

TEST_F(ProfileFaults, BinaryFileTakesANarrowValue)
{
    write(randomBytes());
    EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    EXPECT_EQ("v", readNarrow("S", "k"));
    EXPECT_TRUE(content().contains("[S]\nk=v\n"));
}

TEST_F(ProfileFaults, BinaryFileTakesAWideValue)
{
    write(randomBytes());
    EXPECT_EQ(1, writeWide(L"S", L"k", L"v"));
    EXPECT_EQ(L"v", readWide(L"S", L"k"));
}

TEST_F(ProfileFaults, FileThatIsReplacedBetweenCallsIsReadAnew)
{
    write("[S]\nk=one\n");
    EXPECT_EQ("one", readNarrow("S", "k"));
    EXPECT_EQ(L"one", readWide(L"S", L"k"));
    const QString other = folder.filePath("other.ini");
    {
        QFile file(other);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(12, file.write("[S]\nk=other\n"));
    }
    EXPECT_EQ(0, std::rename(other.toUtf8().constData(), narrow.constData()));
    EXPECT_EQ("other", readNarrow("S", "k"));
    EXPECT_EQ(L"other", readWide(L"S", L"k"));
    EXPECT_EQ(1, writeNarrow("S", "j", "new"));
    EXPECT_EQ("[S]\nj=new\nk=other\n", content());
}

TEST_F(ProfileFaults, LinkIsFollowedByBothFamilies)
{
    const QString target = folder.filePath("target.ini");
    EXPECT_TRUE(QFile::link("target.ini", path));
    EXPECT_EQ(1, writeNarrow("S", "narrow", "v"));
    EXPECT_EQ(1, writeWide(L"S", L"wide", L"w"));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ("w", readNarrow("S", "wide"));
    EXPECT_EQ(L"v", readWide(L"S", L"narrow"));
    EXPECT_EQ("[S]\nnarrow=v\nwide=w\n", content());
    EXPECT_FALSE(QFileInfo(target).isSymLink());
}

TEST_F(ProfileFaults, LineOfFiftyMegabytesIsReadAndKept)
{
    constexpr int size = 50 * 1024 * 1024;
    write("[S]\nk=" + QByteArray(size, 'v') + "\nother=x\n");
    EXPECT_EQ("x", readNarrow("S", "other"));
    EXPECT_EQ(std::string(1023, 'v'), readNarrow("S", "k"));
    EXPECT_EQ(1, writeNarrow("S", "other", "y"));
    EXPECT_EQ("y", readNarrow("S", "other"));
    EXPECT_EQ(size + 15, content().size());
}

} // namespace
