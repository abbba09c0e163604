#include "tests/platform/files/DirectorySearch.h"

#include <QDir>

namespace {

using DirectorySearchTest = DirectorySearch;

TEST_F(DirectorySearchTest, PatternWithoutDirectoryFindsNothing)
{
    tree.file("a.txt");
    tree.enter();
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(L"*.txt", data.get()));
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(L"a.txt", data.get()));
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(L"", data.get()));
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(L".\\a.txt", data.get()));
    EXPECT_TRUE(data.untouched(*data.get()));
}

TEST_F(DirectorySearchTest, NullArgumentsFindNothing)
{
    tree.file("a.txt");
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(nullptr, data.get()));
    EXPECT_EQ(INVALID_HANDLE_VALUE, manager.findFirstFile(tree.wide("a.txt").c_str(), nullptr));
    EXPECT_TRUE(data.untouched(*data.get()));
}

TEST_F(DirectorySearchTest, InvalidHandleHasAllBitsSet)
{
    EXPECT_EQ(-1L, reinterpret_cast<long>(manager.findFirstFile(L"none", data.get())));
}

TEST_F(DirectorySearchTest, MissingOrEmptyDirectoryFindsNothing)
{
    EXPECT_EQ(QStringList(), searchTree("*"));
    EXPECT_EQ(QStringList(), searchTree("missing/*"));
    EXPECT_TRUE(data.untouched(*data.get()));
}

TEST_F(DirectorySearchTest, ListsFilesAndFoldersHiddenOnesToo)
{
    tree.file("file");
    tree.file(".hidden");
    tree.folder("folder");
    tree.folder(".git");
    EXPECT_EQ(QStringList({".git", ".hidden", "file", "folder"}), searchTree("*"));
}

TEST_F(DirectorySearchTest, OrderIsByNameIgnoringCase)
{
    for (const char* name : {"b", "C", "a", "_", "10", "9", "Ä", "é", "Z"})
        tree.file(name);
    EXPECT_EQ(QStringList({"10", "9", "_", "a", "b", "C", "Z", "Ä", "é"}), searchTree("*"));
}

TEST_F(DirectorySearchTest, FollowsLinksAndLeavesBrokenOnesAndPipesOut)
{
    tree.file("target", 7);
    tree.folder("folder");
    tree.pipe("pipe");
    tree.link("to file", "target");
    tree.link("to folder", "folder");
    tree.link("to pipe", "pipe");
    tree.link("broken", "missing");
    tree.link("loop", "loop");
    EXPECT_EQ(QStringList({"folder", "target", "to file", "to folder", "to pipe"}),
              searchTree("*"));
}

TEST_F(DirectorySearchTest, ExistingFileIsTheOnlyEntry)
{
    for (const char* name : {"a.txt", "A.TXT", "[a].txt", "*.txt"})
        tree.file(name);
    EXPECT_EQ(QStringList("a.txt"), searchTree("a.txt"));
    EXPECT_EQ(QStringList("[a].txt"), searchTree("[a].txt"));
    EXPECT_EQ(QStringList("*.txt"), searchTree("*.txt"));
}

TEST_F(DirectorySearchTest, FileThatNoListingWouldShowIsFoundByItsLink)
{
    tree.file("target");
    tree.link("link", "target");
    EXPECT_EQ(QStringList("link"), searchTree("link"));
}

TEST_F(DirectorySearchTest, NamesMatchWithoutRegardToCase)
{
    for (const char* name : {"a.txt", "B.TXT", "c.text", "Straße", "ÄÖ"})
        tree.file(name);
    tree.folder("Folder");
    EXPECT_EQ(QStringList({"a.txt", "B.TXT"}), searchTree("*.Txt"));
    EXPECT_EQ(QStringList("Folder"), searchTree("fOLDER"));
    EXPECT_EQ(QStringList("ÄÖ"), searchTree("äö"));
}

TEST_F(DirectorySearchTest, WildcardsAreThoseOfNameFilters)
{
    for (const char* name : {"a1", "a2", "b1", "b12", "c[1]"})
        tree.file(name);
    EXPECT_EQ(QStringList({"a1", "a2", "b1"}), searchTree("??"));
    EXPECT_EQ(QStringList({"a1", "b1"}), searchTree("[ab]1"));
    EXPECT_EQ(QStringList({"b1"}), searchTree("[!a]1"));
    EXPECT_EQ(QStringList({"b12"}), searchTree("b?*2"));
    EXPECT_EQ(QStringList({"c[1]"}), searchTree("c[[]1]"));
}

TEST_F(DirectorySearchTest, BlanksAndSemicolonsDoNotSeparateFilters)
{
    for (const char* name : {"a", "b", "a b;c"})
        tree.file(name);
    EXPECT_EQ(QStringList("a b;c"), searchTree("a b;?"));
    EXPECT_EQ(QStringList(), searchTree("a b"));
    EXPECT_EQ(QStringList(), searchTree("?;b"));
}

TEST_F(DirectorySearchTest, FilterThatIsNoPatternFindsNothing)
{
    for (const char* name : {"a", "["})
        tree.file(name);
    EXPECT_EQ(QStringList(), searchTree("a[*"));
    EXPECT_EQ(QStringList("["), searchTree("["));
}

TEST_F(DirectorySearchTest, EmptyNameFindsNothingInFolders)
{
    tree.folder("folder");
    tree.file("folder/file");
    EXPECT_EQ(QStringList(), searchTree("folder/"));
}

// A single trailing separator is dropped before the file is looked at.
TEST_F(DirectorySearchTest, EmptyNameBehindAFileFindsTheFileWithoutAName)
{
    tree.file("file", 3);
    EXPECT_EQ(QStringList(QString()), searchTree("file/"));
    EXPECT_EQ(FILE_ATTRIBUTE_NORMAL, data->dwFileAttributes);
    EXPECT_EQ(3U, data->nFileSizeLow);
}

TEST_F(DirectorySearchTest, RelativeDirectoriesStartAtTheWorkingDirectory)
{
    tree.folder("folder");
    tree.file("folder/file");
    tree.enter();
    EXPECT_EQ(QStringList("folder"), search(L"./*"));
    EXPECT_EQ(QStringList("file"), search(L"folder/*"));
    EXPECT_EQ(QStringList("folder"), search(L"folder/../*"));
}

TEST_F(DirectorySearchTest, WildcardsInTheDirectoryAreOrdinaryCharacters)
{
    tree.folder("a");
    tree.folder("*");
    tree.file("a/1");
    tree.file("*/2");
    EXPECT_EQ(QStringList("2"), searchTree("*/*"));
    EXPECT_EQ(QStringList(), searchTree("?/*"));
}

TEST_F(DirectorySearchTest, NamesOutsideTheBasicPlaneAreOneCharacterEach)
{
    tree.file("😀.txt");
    EXPECT_EQ(QStringList("😀.txt"), searchTree("?.txt"));
    EXPECT_EQ(std::wstring(L"\U0001F600.txt"), std::wstring(data->cFileName));
}

TEST_F(DirectorySearchTest, NamesThatAreNotTextAreLeftOut)
{
    for (const char* name : {"good", "bad\xFF", "cut\xE2\x82", "half\xED\xA0\x80"})
        tree.file(name);
    EXPECT_EQ(QStringList("good"), searchTree("*"));
}

TEST_F(DirectorySearchTest, FindsTenThousandEntriesInOrder)
{
    constexpr int count = 10000;
    tree.file("000000");
    QStringList expected("000000");
    for (int i = 1; i < count; ++i) {
        const QByteArray name = QByteArray::number(i * 7919 % count).rightJustified(6, '0');
        tree.hardLink(name, "000000");
        expected << name;
    }
    expected.sort();
    EXPECT_EQ(expected, searchTree("*"));
}

TEST_F(DirectorySearchTest, ResourcesAreListedAsQtListsThem)
{
    const QStringList resources = QDir(":/qt-project.org/").entryList();
    ASSERT_FALSE(resources.isEmpty());
    EXPECT_EQ(resources, search(L":/qt-project.org/*"));
}

TEST_F(DirectorySearchTest, SearchPathsAreListedAsQtListsThem)
{
    tree.folder("sub");
    tree.file("sub/one");
    tree.folder("sub/two");
    QDir::setSearchPaths("tree", {tree.path()});
    EXPECT_EQ(QStringList({"one", "two"}), search(L"tree:sub/*"));
    EXPECT_EQ(FILE_ATTRIBUTE_DIRECTORY, data->dwFileAttributes);
    QDir::setSearchPaths("tree", {});
}

} // namespace
