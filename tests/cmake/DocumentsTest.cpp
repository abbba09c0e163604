// What the documents of the sources say about the sources.

#include "tests/cmake/ChildOutput.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString root = QStringLiteral(QUAYSIDE_SOURCE_FOLDER);

QString contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

// What the first group of the pattern matches, in the order of the text.
QStringList matches(const QString& text, const char* pattern)
{
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

// The documents in the root and all below docs/.
QStringList documents()
{
    QStringList paths;
    for (const QFileInfo& file : QDir(root).entryInfoList({"*.md"}, QDir::Files))
        paths += file.filePath();
    QDirIterator below(root + "/docs", {"*.md"}, QDir::Files, QDirIterator::Subdirectories);
    while (below.hasNext())
        paths += below.next();
    return paths;
}

class Readme : public testing::TestWithParam<const char*>
{
protected:
    static QString text() { return contents(root + '/' + GetParam()); }
};

// What it says to start has to be among what the build makes.
TEST_P(Readme, NamesOnlyProgramsThatTheBuildMakes)
{
    const QStringList programs = matches(text(), "build/dev/(\\w+/[\\w/]+)");
    EXPECT_GE(programs.size(), 2);
    for (const QString& path : programs)
        outputOf("ninja", {"-C", QUAYSIDE_BUILD_FOLDER, "-t", "query", path});
}

TEST_P(Readme, IsShort)
{
    EXPECT_LE(text().count('\n'), 70);
}

INSTANTIATE_TEST_SUITE_P(Languages, Readme, testing::Values("README.md", "README.zh-CN.md"),
                         [](const auto& row) { return row.index == 0 ? "English" : "Chinese"; });

TEST(Documents, LinkOnlyToWhatExists)
{
    int count = 0;
    for (const QString& document : documents()) {
        const QDir folder = QFileInfo(document).dir();
        for (const QString& link : matches(contents(document), R"(\]\(([^)#: ]+)(?:#[^)]*)?\))")) {
            EXPECT_TRUE(QFileInfo::exists(folder.filePath(link)))
                << document.toStdString() << ": " << link.toStdString();
            ++count;
        }
    }
    EXPECT_GE(count, 10);
}

// What is typed, without remarks.
QString commands(const QString& document)
{
    return matches(contents(root + '/' + document), "^ +((?:\\$|\\./|apt|cmake) ?[^#\n]*[^# \n])")
        .join('\n');
}

TEST(Documents, HaveTheSameCommandsInBothLanguages)
{
    EXPECT_NE("", commands("README.md"));
    EXPECT_EQ(commands("README.md").toStdString(), commands("README.zh-CN.md").toStdString());
    const QString handbook = "docs/handbook/";
    const QStringList chapters = QDir(root + '/' + handbook).entryList({"*.md"}, QDir::Files);
    EXPECT_EQ(7, chapters.size());
    for (const QString& chapter : chapters)
        EXPECT_EQ(commands(handbook + chapter).toStdString(),
                  commands(handbook + "zh_CN/" + chapter).toStdString())
            << chapter.toStdString();
}

// The page of operations is made from a file that says how each differs from Windows.
class OperationsPage : public testing::Test
{
protected:
    static QString differences() { return contents(root + "/tools/operations/differences.tsv"); }

    ChildResult made(const QString& lines) const
    {
        QFile file(m_folder.filePath("differences.tsv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines.toUtf8());
        file.close();
        return resultOf(QUAYSIDE_OPERATIONS_PAGE, {"en", file.fileName()});
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(OperationsPage, SaysOfEachOperationWhatTheTableSays)
{
    const ChildResult page = made(differences());
    EXPECT_EQ(0, page.status);
    const QRegularExpression row(
        "\\| 2 \\| \\[RegOpenKeyExW\\]\\(@ref .*\\) \\| not 0 \\| `result` "
        "\\(null where the key is not found\\) \\|  \\| "
        "the caller owns `result` \\| several levels");
    EXPECT_TRUE(row.match(page.output).hasMatch());
    EXPECT_TRUE(page.output.contains("- IPlatformCursorManager: [LoadCursorW]("));
}

TEST_F(OperationsPage, RefusesAFileWithoutOneOfTheOperations)
{
    const ChildResult page =
        made(differences().remove(QRegularExpression("cursor\tGetCursor\t[^\n]*\n")));
    EXPECT_EQ(1, page.status);
    EXPECT_EQ("Nothing is said of cursor GetCursor\n", page.output.toStdString());
}

TEST_F(OperationsPage, RefusesAnOperationThatDoesNotExist)
{
    const ChildResult page = made(differences() + "cursor\tHideCursor\ta\tb\n");
    EXPECT_EQ(1, page.status);
    EXPECT_TRUE(page.output.startsWith("There is no such operation: cursor\tHideCursor"))
        << page.output.toStdString();
}

TEST_F(OperationsPage, RefusesALineWithoutAllLanguages)
{
    EXPECT_EQ(1, made(differences() + "cursor\tGetCursor\tonly English\n").status);
}

TEST(Documents, SayWhatIsInEachFolder)
{
    const QStringList told = matches(contents(root + "/CONTRIBUTING.md"), R"(^\| `(\w+)/` \|)");
    QStringList folders = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.removeAll("build");
    for (const QString& folder : folders)
        EXPECT_TRUE(told.contains(folder)) << folder.toStdString();
    EXPECT_EQ(told.size(), folders.size());
}

TEST(Documents, HelpOfTheScriptNamesEveryCommand)
{
    const QStringList commands = matches(contents(root + "/dev"), "^command_(\\w+)\\(\\)");
    const QString help = outputOf("bash", {root + "/dev", "help"});
    EXPECT_GE(commands.size(), 15);
    for (const QString& command : commands)
        EXPECT_TRUE(command == "help" || help.contains("./dev " + command + ' '))
            << command.toStdString();
}

} // namespace
