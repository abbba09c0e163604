#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/files/FileTree.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

class FileExistence : public testing::Test
{
protected:
    /// Asks for `path`, and leaves the answer's path in `real`.
    int exists(const QString& path)
    {
        return manager.isFileExist(path.toStdWString().c_str(), real);
    }

    /// Asks for a path below the tree.
    int existsInTree(const QByteArray& path) { return exists(tree.path(path)); }

    QString realPath() const { return QString::fromStdWString(real); }

    /// Makes the folder PADDING...NAME and returns its name, so long that what is appended to
    /// "./" and it comes to stand at index `index` of the path.
    QByteArray paddedFolder(int index, const QByteArray& name)
    {
        const int characters = QString::fromUtf8(name).size();
        // In two folders, as no name may be longer than 255 bytes.
        const int padding = index - 2 - characters - 1;
        const QByteArray outer(padding / 2, '-');
        tree.folder(outer);
        QByteArray inner = outer + '/' + QByteArray(padding - padding / 2, '-') + name;
        tree.folder(inner);
        tree.enter();
        return inner;
    }

    FileTree tree;
    PlatformDirectoryManagerImp manager;
    CStdStr<wchar_t> real = L"untouched";
};

TEST_F(FileExistence, NullPathLeavesTheResultAlone)
{
    EXPECT_EQ(0, manager.isFileExist(nullptr, real));
    EXPECT_EQ(std::wstring(L"untouched"), real);
}

TEST_F(FileExistence, ExistingPathIsMadeAbsolute)
{
    tree.folder("folder");
    tree.file("folder/file");
    tree.enter();
    for (const char* path : {"folder/file", "./folder/file", "folder/../folder//file"}) {
        EXPECT_EQ(1, exists(path));
        EXPECT_EQ(tree.path("folder/file"), realPath());
    }
}

TEST_F(FileExistence, ExistingFolderKeepsItsTrailingSeparator)
{
    tree.folder("folder");
    EXPECT_EQ(1, existsInTree("folder"));
    EXPECT_EQ(tree.path("folder"), realPath());
    EXPECT_EQ(1, existsInTree("folder/"));
    EXPECT_EQ(tree.path("folder/"), realPath());
}

TEST_F(FileExistence, MissingPathIsCopied)
{
    for (const char* path : {"none", "", "./none", "/none/none", "none/"}) {
        EXPECT_EQ(0, exists(path));
        EXPECT_EQ(QString(path), realPath());
    }
}

TEST_F(FileExistence, PathWithoutSeparatorIsNotLookedForInOtherCase)
{
    tree.file("abc");
    tree.enter();
    EXPECT_EQ(0, exists("ABC"));
    EXPECT_EQ(1, exists("./ABC"));
    EXPECT_EQ(tree.path("abc"), realPath());
}

struct CaseRow
{
    const char* onDisk;
    const char* asked;
};

class FileExistenceInOtherCase : public FileExistence, public testing::WithParamInterface<CaseRow>
{
};

TEST_P(FileExistenceInOtherCase, GivesThePathOnDisk)
{
    tree.file(GetParam().onDisk);
    EXPECT_EQ(1, existsInTree(GetParam().asked));
    EXPECT_EQ(tree.path(GetParam().onDisk), realPath());
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileExistenceInOtherCase,
    testing::Values(CaseRow{"abc.txt", "ABC.TXT"}, CaseRow{"ABC.TXT", "abc.txt"},
                    CaseRow{"noext", "NoExt"}, CaseRow{"a.b.c", "A.B.C"}, CaseRow{"x.", "X."},
                    CaseRow{"ÄÖ.ß", "äö.ß"}, CaseRow{"Ω😀.dat", "ω😀.DAT"},
                    CaseRow{"two words; more.txt", "TWO words; MORE.txt"},
                    // Brackets are wildcards only in the filter, which holds the extension alone.
                    CaseRow{"[x].txt", "[X].txt"}, CaseRow{"A*B", "a*b"}, CaseRow{"A?", "a?"}));

TEST_F(FileExistence, FolderIsFoundInOtherCase)
{
    tree.folder("Folder");
    EXPECT_EQ(1, existsInTree("fOLDER"));
    EXPECT_EQ(tree.path("Folder"), realPath());
}

TEST_F(FileExistence, OnlyTheLastComponentMayDifferInCase)
{
    tree.folder("Folder");
    tree.file("Folder/file");
    EXPECT_EQ(0, existsInTree("folder/file"));
    EXPECT_EQ(0, existsInTree("folder/FILE"));
    EXPECT_EQ(1, existsInTree("Folder/FILE"));
}

TEST_F(FileExistence, NameMustMatchWhereTheFilterDoes)
{
    tree.file("other.txt");
    tree.file("abc");
    EXPECT_EQ(0, existsInTree("report.TXT"));
    EXPECT_EQ(0, existsInTree("AB*"));
    EXPECT_EQ(0, existsInTree("a?c"));
    EXPECT_EQ(tree.path("a?c"), realPath());
}

TEST_F(FileExistence, NameThatIsNoPatternFindsNothing)
{
    tree.file("A[");
    tree.file("b");
    EXPECT_EQ(0, existsInTree("b["));
    EXPECT_EQ(0, existsInTree("b.[a*"));
}

TEST_F(FileExistence, HiddenEntriesAreFoundOnlyAsTheyAre)
{
    tree.file(".Hidden");
    tree.file(".Hidden.txt");
    EXPECT_EQ(0, existsInTree(".hidden"));
    EXPECT_EQ(0, existsInTree(".hidden.txt"));
    EXPECT_EQ(1, existsInTree(".Hidden"));
}

TEST_F(FileExistence, BrokenLinksAndPipesInOtherCaseAreNotFound)
{
    tree.link("broken", "missing");
    tree.pipe("pipe");
    EXPECT_EQ(0, existsInTree("broken"));
    EXPECT_EQ(0, existsInTree("BROKEN"));
    EXPECT_EQ(0, existsInTree("PIPE"));
    EXPECT_EQ(1, existsInTree("pipe"));
}

TEST_F(FileExistence, FirstOfSeveralInOrderIsFound)
{
    for (const char* name : {"FOO", "foo", "fOO"})
        tree.file(name);
    const QFileInfoList entries = QDir(tree.path()).entryInfoList(QDir::Files, QDir::NoSort);
    EXPECT_EQ(1, existsInTree("Foo"));
    EXPECT_EQ(entries.first().absoluteFilePath(), realPath());
}

TEST_F(FileExistence, PathMayPointIntoTheResult)
{
    tree.file("abc.txt");
    real.assign(L"xx" + tree.wide("ABC.TXT"));
    EXPECT_EQ(1, manager.isFileExist(real.c_str() + 2, real));
    EXPECT_EQ(tree.path("abc.txt"), realPath());
    EXPECT_EQ(1, manager.isFileExist(real.c_str(), real));
    EXPECT_EQ(tree.path("abc.txt"), realPath());
    real.assign(L"xx./none");
    EXPECT_EQ(0, manager.isFileExist(real.c_str() + 2, real));
    EXPECT_EQ(QString("./none"), realPath());
}

TEST_F(FileExistence, FindsOneOfTenThousand)
{
    tree.file("file0.txt");
    for (int i = 1; i < 10000; ++i)
        tree.hardLink("file" + QByteArray::number(i) + ".txt", "file0.txt");
    EXPECT_EQ(1, existsInTree("FILE9876.TXT"));
    EXPECT_EQ(tree.path("file9876.txt"), realPath());
    EXPECT_EQ(0, existsInTree("FILE10000.TXT"));
}

// Behind a trailing separator at index n the path is split at the last character of the code n.

TEST_F(FileExistence, TrailingSeparatorUsuallyFindsNoSplit)
{
    tree.folder("dir");
    tree.enter();
    EXPECT_EQ(0, exists("./Dir/"));
    EXPECT_EQ(QString("./Dir/"), realPath());
    EXPECT_EQ(0, existsInTree("Dir/"));
}

TEST_F(FileExistence, TrailingSeparatorAtIndex47SplitsAtTheLastSeparator)
{
    const QByteArray name = paddedFolder(47 - 5, "x") + "/Name";
    tree.folder(name);
    const QString asked = QString("./" + name).replace("Name", "nAME") + "/";
    ASSERT_EQ(47, asked.lastIndexOf('/'));
    EXPECT_EQ(1, exists(asked));
    EXPECT_EQ(tree.path(name) + '/', realPath());
}

TEST_F(FileExistence, TrailingSeparatorAtIndex97SplitsAtTheLastA)
{
    const QByteArray folder = paddedFolder(97 - 4, "xa");
    tree.folder(folder + "/Name");
    // Nothing but the letter separates the folder from the name.
    const QString asked = QString("./" + folder) + "nEme/";
    ASSERT_EQ(97, asked.lastIndexOf('/'));
    EXPECT_EQ(0, exists(asked));
    tree.folder(folder + "/Neme");
    EXPECT_EQ(1, exists(asked));
    EXPECT_EQ(tree.path(folder + "/Neme") + '/', realPath());
}

TEST_F(FileExistence, TrailingSeparatorAtIndex303SplitsAtTheCharacter303)
{
    const QByteArray folder = paddedFolder(303 - 4, "x\u012F");
    tree.folder(folder + "/Name");
    const QString asked = QString("./" + folder) + "nAME/";
    ASSERT_EQ(303, asked.lastIndexOf('/'));
    EXPECT_EQ(1, exists(asked));
    EXPECT_EQ(tree.path(folder + "/Name") + '/', realPath());
}

TEST_F(FileExistence, SplitCharacterIsTakenInItsCase)
{
    const QByteArray folder = paddedFolder(97 - 4, "xA");
    tree.folder(folder + "/Name");
    EXPECT_EQ(0, exists(QString("./" + folder) + "nAME/"));
}

TEST_F(FileExistence, SplitAtTheLastCharacterFindsNothing)
{
    const QByteArray folder = paddedFolder(97 - 4, "xx");
    tree.folder(folder + "xxxa");
    const QString asked = QString("./" + folder) + "XXXa/";
    ASSERT_EQ(97, asked.lastIndexOf('/'));
    EXPECT_EQ(0, exists(asked));
}

// The name behind the split can start with a separator; then the whole paths are equal.
TEST_F(FileExistence, EntryIsAlsoFoundByItsAbsolutePath)
{
    tree.folder("x");
    const int padding = 122 - tree.path("x/z/fOO.TXT").size();
    ASSERT_GT(padding, 0);
    const QByteArray folder = "x/" + QByteArray(padding, '-') + "z";
    tree.folder(folder);
    tree.file(folder + "/foo.txt");
    const QString asked = tree.path(folder + "/fOO.TXT/");
    ASSERT_EQ(122, asked.lastIndexOf('/'));
    EXPECT_EQ(1, exists(asked));
    EXPECT_EQ(tree.path(folder + "/foo.txt/"), realPath());
}

} // namespace
