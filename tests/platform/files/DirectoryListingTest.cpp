// The listing against QDir, which defines it.

#include "platform/files/DirectoryListing.h"
#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/platform/files/RandomTree.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextCodec>

#include <gtest/gtest.h>

namespace {

QDir::Filters filtersOf(DirectoryListing::Hidden hidden)
{
    const QDir::Filters filters = QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot;
    return hidden == DirectoryListing::WithHidden ? filters | QDir::Hidden : filters;
}

/// Lists `directory` both ways, and compares all that is said of each entry.
void compareListings(const QString& directory, const QString& filter)
{
    for (const auto hidden : {DirectoryListing::WithHidden, DirectoryListing::WithoutHidden}) {
        const DirectoryListing listing(directory, hidden);
        const QFileInfoList expected =
            QDir(directory).entryInfoList({filter}, filtersOf(hidden), QDir::NoSort);
        const QStringList names = listing.names(filter);
        ASSERT_EQ(QDir(directory).entryList({filter}, filtersOf(hidden), QDir::NoSort), names)
            << directory.toStdString() << filter.toStdString();
        for (int i = 0; i < names.size(); ++i) {
            EXPECT_EQ(expected[i].isDir(), listing.isFolder(names[i])) << names[i].toStdString();
            EXPECT_EQ(expected[i].absoluteFilePath(), listing.absolutePath(names[i]));
        }
    }
}

bool isPattern(const QString& filter)
{
    return QRegularExpression(QRegularExpression::wildcardToRegularExpression(filter)).isValid();
}

class DirectoryListingOfRandomTrees : public testing::TestWithParam<unsigned int>
{
};

TEST_P(DirectoryListingOfRandomTrees, AgreesWithQDir)
{
    RandomTree tree(GetParam());
    tree.folder("d");
    tree.fill("d/", 400);
    tree.enter();
    for (const QString& directory :
         {tree.path("d"), tree.path("d/"), tree.path("d//"), QString("d"), QString("./d/../d/")})
        compareListings(directory, "*");
    for (int i = 0; i < 60; ++i) {
        const QString filter = QString::fromUtf8(tree.nameOf(1, 3));
        if (isPattern(filter)) // QDir would warn of others
            compareListings(tree.path("d/"), filter);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, DirectoryListingOfRandomTrees, testing::Range(1U, 6U));

// Names that differ only in case compare equal; which of them comes first is decided by the sort.
TEST(DirectoryListing, OrderOfEqualNamesIsThatOfQDir)
{
    FileTree tree;
    for (int i = 0; i < 256; ++i) {
        QByteArray name = "abcdefgh";
        for (int bit = 0; bit < name.size(); ++bit) {
            if ((i >> bit & 1) != 0)
                name[bit] = QChar::fromLatin1(name[bit]).toUpper().toLatin1();
        }
        tree.file(name);
        tree.file(QByteArray::number(i % 16) + name);
    }
    compareListings(tree.path(), "*");
    compareListings(tree.path(), "*a*");
}

TEST(DirectoryListing, UsesTheLocalesEncoding)
{
    FileTree tree;
    for (const char* name : {"a", "\xE4", "\xC4.txt", "\xC3\xA4", "\xA1\xA1", "\x81\x30\x81\x30",
                             "\xFF", "\x81", "\xEF\xBB\xBF", "\\", "~"})
        tree.file(name);
    QTextCodec* const codec = QTextCodec::codecForLocale();
    for (const char* name : {"ISO-8859-1", "GB18030", "Shift_JIS", "US-ASCII", "UTF-8"}) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
        compareListings(tree.path(), "*");
        compareListings(tree.path(), "?");
    }
    QTextCodec::setCodecForLocale(codec);
}

TEST(DirectoryListing, ListsHiddenEntriesWhereAsked)
{
    FileTree tree;
    tree.file("a");
    tree.file(".b");
    const QString path = tree.path();
    EXPECT_EQ(QStringList({".b", "a"}),
              DirectoryListing(path, DirectoryListing::WithHidden).names("*"));
    EXPECT_EQ(QStringList("a"), DirectoryListing(path, DirectoryListing::WithoutHidden).names("*"));
}

// In encodings other than UTF-8 it is QDir that lists.
TEST(DirectoryListing, ListsHiddenEntriesWhereAskedInOtherEncodings)
{
    FileTree tree;
    tree.file("a");
    tree.file(".b");
    QTextCodec* const codec = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    QStringList all = DirectoryListing(tree.path(), DirectoryListing::WithHidden).names("*");
    const QStringList seen =
        DirectoryListing(tree.path(), DirectoryListing::WithoutHidden).names("*");
    QTextCodec::setCodecForLocale(codec);
    all.sort();
    EXPECT_EQ(QStringList({".b", "a"}), all);
    EXPECT_EQ(QStringList("a"), seen);
}

TEST(DirectoryListing, AgreesWithQDirWhereThereIsNothingToList)
{
    FileTree tree;
    tree.file("file");
    tree.folder("empty");
    tree.link("link", "file");
    tree.link("loop", "loop");
    for (const char* name : {"file", "file/", "empty", "missing", "link/", "loop", "file/x/"}) {
        compareListings(tree.path(name), "*");
        compareListings(tree.path(name), "");
    }
    compareListings("", "*");
}

TEST(DirectoryListing, AgreesWithQDirOnSpecialFileSystems)
{
    compareListings("/", "*");
    compareListings("/dev", "*");
    compareListings("/proc/self/fdinfo", "x");
    compareListings("/sys/kernel", "*");
}

TEST(DirectoryListing, AgreesWithQDirOnResourcesAndSearchPaths)
{
    FileTree tree;
    tree.folder("sub");
    tree.file("sub/One");
    tree.file("sub/two");
    tree.folder("sub/:");
    tree.file("sub/:/three");
    QDir::setSearchPaths("tree", {tree.path("sub")});
    compareListings(":/qt-project.org/", "*");
    compareListings(":/", "*");
    compareListings("tree:", "*");
    compareListings("tree::/", "*");
    compareListings("none:x/", "*");
    QDir::setSearchPaths("tree", {});
    compareListings(tree.path("sub/:/"), "*");
    QDir::setCurrent(tree.path("sub"));
    compareListings("./:/", "*");
    QDir::setCurrent("/");
}

// The existence test as it is worded, over QDir.
QString existsByQDir(const QString& path)
{
    if (QFileInfo::exists(path))
        return QFileInfo(path).absoluteFilePath();
    const int last = path.lastIndexOf('/');
    const bool trailing = last >= 0 && last == path.size() - 1;
    const QString rest = trailing ? path.left(last) : path;
    const int split = trailing ? rest.lastIndexOf(QChar(last)) : last;
    if (split < 0 || split == rest.size() - 1)
        return {};
    const QString name = rest.mid(split + 1);
    const QString filter = name.contains('.') ? '*' + name.mid(name.lastIndexOf('.')) : name;
    if (!isPattern(filter))
        return {};
    const QFileInfoList entries =
        QDir(rest.left(split + 1))
            .entryInfoList({filter}, filtersOf(DirectoryListing::WithoutHidden), QDir::NoSort);
    for (const QFileInfo& entry : entries) {
        if (entry.absoluteFilePath().compare(rest, Qt::CaseInsensitive) == 0 ||
            entry.fileName().compare(name, Qt::CaseInsensitive) == 0)
            return entry.absoluteFilePath() + (trailing ? "/" : "");
    }
    return {};
}

class ExistenceInRandomTrees : public testing::TestWithParam<unsigned int>
{
protected:
    void compare(const QString& path)
    {
        // Through the wide text, as a byte order mark at its start is no part of the path.
        const std::wstring asked = path.toStdWString();
        const QString expected = existsByQDir(QString::fromStdWString(asked));
        CStdStr<wchar_t> real;
        ASSERT_EQ(expected.isEmpty() ? 0 : 1, manager.isFileExist(asked.c_str(), real))
            << path.toStdString();
        ASSERT_TRUE((expected.isEmpty() ? asked : expected.toStdWString()) == real)
            << path.toStdString();
        found += expected.isEmpty() ? 0 : 1;
    }

    PlatformDirectoryManagerImp manager;
    int found = 0;
};

TEST_P(ExistenceInRandomTrees, AgreesWithQDir)
{
    RandomTree tree(GetParam());
    // "./" and the name make the index of a trailing separator the code of a letter among the
    // names.
    const QByteArray padded = QByteArray(90, '-') + "a";
    for (const char* folder : {"x", "x/b"})
        tree.folder(folder);
    tree.folder(padded);
    for (const QByteArray& folder : {QByteArray("x/"), QByteArray("x/b/"), padded + '/'})
        tree.fill(folder, 120);
    tree.enter();
    for (int i = 0; i < 150; ++i) {
        const QString name = QString::fromUtf8(tree.nameOf(1, 3));
        for (const QString& path : {tree.path("x/") + name, "./x/b/" + name, "x/" + name + '/',
                                    "./" + padded + name + '/', QString(name).toUpper()})
            compare(path);
    }
    EXPECT_GT(found, 20);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ExistenceInRandomTrees, testing::Range(1U, 4U));

} // namespace
