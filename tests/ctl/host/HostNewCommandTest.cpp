#include "tests/ctl/CtlTest.h"

#include <QDir>
#include <QFileInfo>

namespace {

class HostNewCommand : public CtlTest
{
protected:
    /// What is in the folder of the test, hidden names too.
    QStringList names() const
    {
        return QDir(path(".")).entryList(QDir::AllEntries | QDir::System | QDir::Hidden |
                                         QDir::NoDotAndDotDot);
    }
};

TEST_F(HostNewCommand, NamesTheFilesThatItHasWritten)
{
    const Result result = run({"host", "new", "sample"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out, "sample/CMakeLists.txt\nsample/HostLibrary.cpp\nsample/README.md\n");
    for (const QByteArray& name : result.out.trimmed().split('\n'))
        EXPECT_TRUE(QFileInfo(path(QString::fromUtf8(name))).isFile()) << name.toStdString();
    EXPECT_EQ(names(), QStringList("sample"));
}

TEST_F(HostNewCommand, FillsInNameAndVersion)
{
    run({"host", "new", "my-library_2"});
    const QByteArray build = read("my-library_2/CMakeLists.txt");
    EXPECT_TRUE(build.contains("project(my-library_2 ")) << build.toStdString();
    EXPECT_TRUE(build.contains("find_package(Quayside 1.0 ")) << build.toStdString();
    for (const char* file : {"CMakeLists.txt", "HostLibrary.cpp", "README.md"})
        EXPECT_FALSE(read(QStringLiteral("my-library_2/") + file).contains('@')) << file;
}

TEST_F(HostNewCommand, TakesAPathInFrontOfTheName)
{
    write("libraries/readme", "");
    EXPECT_EQ(status({"host", "new", path("libraries/sample/")}), 0);
    EXPECT_TRUE(read("libraries/sample/CMakeLists.txt").contains("project(sample "));
}

TEST_F(HostNewCommand, OverwritesNothing)
{
    write("file", "mine");
    QDir(path(".")).mkdir("folder");
    QFile::link("nowhere", path("link"));
    for (const char* name : {"file", "folder", "link"}) {
        const Result result = run({"host", "new", name});
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_EQ(result.error, QByteArray("quaysidectl: ") + name + " is there already.\n");
    }
    EXPECT_EQ(read("file"), "mine");
    EXPECT_TRUE(QDir(path("folder")).isEmpty());
    EXPECT_EQ(names(), QStringList({"file", "folder", "link"}));
}

TEST_F(HostNewCommand, RefusesWhatIsNoName)
{
    for (const char* name : {"", ".", "..", "/", "2fast", "a b", "a.b", "@NAME@", "\xC3\xA4"})
        EXPECT_EQ(status({"host", "new", QString::fromUtf8(name)}), 2) << name;
    EXPECT_EQ(names(), QStringList());
}

TEST_F(HostNewCommand, LeavesNothingWhereItCannotWrite)
{
    const Result result = run({"host", "new", "none/sample"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("none/sample cannot be written: ")) << result.error.data();
    EXPECT_EQ(names(), QStringList());
}

TEST_F(HostNewCommand, LeavesNothingWhereTheListCannotBeWritten)
{
    const Result result = shell("$CTL host new sample >&-");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(HostNewCommand, MakesAFolderAsTheShellDoes)
{
    shell("umask 027; $CTL host new sample");
    const QFile::Permissions wanted = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                      QFile::ReadUser | QFile::WriteUser | QFile::ExeUser |
                                      QFile::ReadGroup | QFile::ExeGroup;
    EXPECT_EQ(QFileInfo(path("sample")).permissions(), wanted);
}

} // namespace
