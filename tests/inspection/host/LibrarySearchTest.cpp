#include "inspection/host/LibrarySearch.h"
#include "tests/inspection/host/HostFile.h"

namespace {

const QByteArray helper = "libhostcheck_helper.so";

class LibrarySearchTest : public testing::Test
{
protected:
    FoundLibrary find(const QString& requester, const QByteArray& name = helper)
    {
        LibrarySearch search(m_places, m_objects);
        const auto object = m_objects.at(requester);
        return search.find(name, {object.get()});
    }

    QString foundPath(const FoundLibrary& found)
    {
        return found.object ? QDir::cleanPath(found.object->path) : QString();
    }

    QString copyOfHelper(const QString& folder, const QByteArray& bytes)
    {
        QDir().mkpath(m_folder.path(folder));
        return m_folder.file(folder + '/' + QString::fromUtf8(helper), bytes);
    }

    FileFolder m_folder;
    SearchPlaces m_places; // none
    ElfObjects m_objects;
    const QString m_original = QUAYSIDE_TEST_LIBRARIES "/helper/libhostcheck_helper.so";
    const QByteArray m_bytes = bytesOf(m_original);
};

TEST_F(LibrarySearchTest, FollowsTheRpathFromTheLibrarysOwnFolder)
{
    const FoundLibrary found = find(testLibrary("rpath"));
    EXPECT_EQ(FoundBy::Rpath, found.by);
    EXPECT_EQ(m_original, foundPath(found));
}

TEST_F(LibrarySearchTest, FollowsTheRunpathFolderByFolder)
{
    const FoundLibrary found = find(testLibrary("runpath"));
    EXPECT_EQ(FoundBy::Runpath, found.by);
    EXPECT_EQ(m_original, foundPath(found));
}

TEST_F(LibrarySearchTest, FindsNothingWithoutAPath)
{
    const FoundLibrary found = find(testLibrary("pathless"));
    EXPECT_EQ(FoundBy::Nothing, found.by);
    EXPECT_EQ(nullptr, found.object);
}

TEST_F(LibrarySearchTest, TakesTheEnvironmentBeforeTheRunpathAndAfterTheRpath)
{
    const QString other = copyOfHelper("environment", m_bytes);
    m_places.libraryPath = QFile::encodeName("/none;" + m_folder.path("environment"));
    EXPECT_EQ(other, foundPath(find(testLibrary("runpath"))));
    EXPECT_EQ(FoundBy::LibraryPath, find(testLibrary("runpath")).by);
    EXPECT_EQ(m_original, foundPath(find(testLibrary("rpath"))));
}

TEST_F(LibrarySearchTest, InheritsTheRpathOfThoseThatLedThere)
{
    LibrarySearch search(m_places, m_objects);
    const auto program = m_objects.at(testLibrary("rpath"));
    const auto pathless = m_objects.at(testLibrary("pathless"));
    const auto runpath = m_objects.at(testLibrary("no_default_folders"));
    EXPECT_EQ(FoundBy::Rpath, search.find(helper, {pathless.get(), program.get()}).by);
    ASSERT_TRUE(runpath->runpath);
    EXPECT_EQ(FoundBy::Nothing, search.find(helper, {runpath.get(), program.get()}).by);
}

TEST_F(LibrarySearchTest, PassesALibraryForAnotherMachineOver)
{
    const QString wrong = copyOfHelper("wrong", forOtherMachine(m_bytes));
    const QString right = copyOfHelper("right", m_bytes);
    m_places.defaultFolders = QStringList{m_folder.path("wrong"), m_folder.path("right")};
    const FoundLibrary found = find(testLibrary("pathless"));
    EXPECT_EQ(FoundBy::DefaultFolder, found.by);
    EXPECT_EQ(right, foundPath(found));
    EXPECT_EQ(QStringList{wrong}, found.passedOver);
}

TEST_F(LibrarySearchTest, EndsAtAFileThatIsNoLibrary)
{
    copyOfHelper("wrong", "text");
    copyOfHelper("right", m_bytes);
    m_places.defaultFolders = QStringList{m_folder.path("wrong"), m_folder.path("right")};
    EXPECT_EQ(ElfFault::Unknown, find(testLibrary("pathless")).object->fault);
}

TEST_F(LibrarySearchTest, LeavesTheSystemsFoldersOutWhereTheLibraryWantsThat)
{
    copyOfHelper("default", m_bytes);
    m_places.defaultFolders = QStringList{m_folder.path("default")};
    EXPECT_EQ(FoundBy::DefaultFolder, find(testLibrary("pathless")).by);
    EXPECT_EQ(FoundBy::Nothing, find(testLibrary("no_default_folders")).by);
}

TEST_F(LibrarySearchTest, TakesANameWithAFolderAsAPath)
{
    const FoundLibrary found = find(testLibrary("pathless"), "$ORIGIN/helper/" + helper);
    EXPECT_EQ(FoundBy::Path, found.by);
    EXPECT_EQ(m_original, foundPath(found));
}

TEST(SearchFolders, StandForTheWorkingDirectoryWhereTheyAreEmpty)
{
    EXPECT_EQ((QStringList{"/a", ".", "/b"}), searchFolders("/a::/b", ":", "/o"));
    EXPECT_EQ((QStringList{"/a", "/o/b"}), searchFolders("/a;${ORIGIN}/b", ":;", "/o"));
    EXPECT_EQ(QStringList(), searchFolders("", ":", "/o"));
}

} // namespace
