#include "tests/ctl/CtlTest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

class Program : public CtlTest
{
};

TEST_F(Program, TellsItsVersion)
{
    const Result result = run({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.startsWith("quaysidectl "));
    EXPECT_EQ(result.error, "");
}

TEST_F(Program, HelpsOnEveryLevel)
{
    EXPECT_TRUE(out({"--help"}).contains("registry list [KEY]"));
    EXPECT_TRUE(out({"registry", "--help"}).contains("registry list [KEY]"));
    EXPECT_TRUE(out({"registry", "list", "--help"}).contains("--recursive"));
    EXPECT_EQ(status({"registry", "list", "-h"}), 0);
}

TEST_F(Program, CallsWhatItDoesNotKnowWrongUsage)
{
    for (const QStringList& line :
         {QStringList(), QStringList{"nonsense"}, QStringList{"registry", "nonsense"},
          QStringList{"--nonsense"}, QStringList{"registry", "list", "--nonsense"},
          QStringList{"registry", "list", "A", "B"}, QStringList{"registry", "set", "A"}}) {
        const Result result = run(line);
        EXPECT_EQ(result.status, 2) << line.join(' ').toStdString();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.error.startsWith("quaysidectl: "));
    }
}

TEST_F(Program, WorksOnTheFileThatIsNamedInsteadOfTheUsualStore)
{
    EXPECT_EQ(status({"--store", "other.ini", "registry", "set", "A", "v", "text"}), 0);
    EXPECT_TRUE(read("other.ini").contains("v=5$text"));
    EXPECT_EQ(storeBytes(), "");
    EXPECT_EQ(out({"registry", "get", "A", "v", "--store", "other.ini"}), "text\n");
}

TEST_F(Program, ReadsNoStoreThatIsNotThere)
{
    const Result result = run({"--store", "none.ini", "registry", "list"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("none.ini"));
}

TEST_F(Program, ReadsNoFolderAsAStore)
{
    EXPECT_EQ(status({"--store", ".", "registry", "list"}), 3);
}

TEST_F(Program, CallsAStoreWithoutANameWrongUsage)
{
    writeStore("[A]\nv=5$old\n");
    EXPECT_EQ(status({"--store", "", "registry", "delete", "A", "v"}), 2);
    EXPECT_EQ(status({"--store=", "registry", "set", "A", "v", "new"}), 2);
    EXPECT_EQ(status({"registry", "set", "A", "v", "new", "--store", ""}), 2);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$old\n");
}

TEST_F(Program, MakesNoFolderForAStore)
{
    EXPECT_EQ(status({"--store", "none/s.ini", "registry", "set", "A", "v", "1"}), 3);
    EXPECT_EQ(shell("ls").out, "");
}

TEST_F(Program, SavesNoFileThatIsNoStoreUnlessForced)
{
    const QByteArray text("Dear reader,\nthis is a letter.\n[A]\nv=5$x\n");
    write("letter", text);
    for (const QString& command :
         QStringList{"set A w new", "delete A v", "rename A B", "copy A B", "import a.reg"}) {
        write("a.reg", "REGEDIT4\n[HKEY_CURRENT_USER\\A]\n\"v\"=\"y\"\n");
        const Result refused = shell("$CTL --store letter registry " + command);
        EXPECT_EQ(refused.status, 3) << command.toStdString();
        EXPECT_TRUE(refused.error.contains("letter has lines that are no entries"));
        EXPECT_EQ(read("letter"), text) << command.toStdString();
        EXPECT_EQ(shell("$CTL --store letter --quiet registry " + command + " --dry-run").status,
                  0);
        EXPECT_EQ(shell("$CTL --store letter registry " + command + " --force").status, 0);
        EXPECT_NE(read("letter"), text) << command.toStdString();
        write("letter", text);
    }
}

TEST_F(Program, TellsADamagedStoreThatItReads)
{
    writeStore("[A]\nv=5$x\n[B]\nno entry\n");
    const Result found = run({"registry", "get", "A", "v"});
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.out, "x\n");
    EXPECT_TRUE(found.error.contains("registry.ini has lines that are no entries"));
    const Result checked = run({"registry", "check"});
    EXPECT_EQ(checked.status, 1);
    EXPECT_TRUE(checked.out.startsWith("damaged\t"));
}

TEST_F(Program, TellsWrongUsageInItsDocument)
{
    for (const QStringList& line :
         {QStringList{"--json"}, QStringList{"registry", "nonsense", "--json"},
          QStringList{"--json", "registry", "list", "--nonsense"},
          QStringList{"registry", "set", "A", "--json"}}) {
        const Result result = run(line);
        EXPECT_EQ(result.status, 2) << line.join(' ').toStdString();
        const QJsonObject document = QJsonDocument::fromJson(result.out).object();
        EXPECT_EQ(document.value("status").toInt(), 2) << result.out.toStdString();
        EXPECT_FALSE(document.value("error").toString().isEmpty());
    }
}

TEST_F(Program, FailsWhereAStoreCannotBeSaved)
{
    write("file", "");
    const Result result = run({"--store", "file/s.ini", "registry", "set", "A", "v", "1"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("file/s.ini"));
}

// The limit stands for a disk that is full: the text is longer than a file may be.
TEST_F(Program, LeavesTheStoreAsItWasWhereTheDiskIsFull)
{
    writeStore("[A]\nv=5$old\n");
    const Result result =
        shell("ulimit -f 1; $CTL registry set A v \"$(printf 'x%.0s' {1..5000})\"");
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$old\n");
    const Result fresh =
        shell("ulimit -f 1; $CTL --store new.ini registry set A v \"$(printf 'x%.0s' {1..5000})\"");
    EXPECT_EQ(fresh.status, 3);
    EXPECT_EQ(shell("ls; ls data/quayside").out, "data\nregistry.ini\n");
}

TEST_F(Program, FailsWhereItsOutputCannotBeWritten)
{
    writeStore("[A]\nv=5$old\n");
    EXPECT_EQ(shell("$CTL registry list -r >/dev/full").status, 3);
    EXPECT_EQ(shell("$CTL registry export A >/dev/full").status, 3);
    EXPECT_EQ(shell("$CTL --help >/dev/full").status, 3);
}

TEST_F(Program, FailsWithoutACrashWhereAPipeIsClosedEarly)
{
    QByteArray store("[A]\n");
    for (int i = 0; i < 20000; ++i)
        store += "value" + QByteArray::number(i) + "=5$text\n";
    writeStore(store);
    const Result result = shell("$CTL registry list -r | head -1; exit ${PIPESTATUS[0]}");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("Broken pipe"));
}

TEST_F(Program, WorksInUtf8WhereNoLocaleIsChosen)
{
    const Result result =
        shell("LC_ALL=C $CTL registry set A 名字 值 && LC_ALL=C $CTL registry get A 名字");
    EXPECT_EQ(result.out, "值\n");
}

TEST_F(Program, SpeaksTheLanguageOfTheLocale)
{
    const Result result = shell("LC_ALL=zh_CN.UTF-8 $CTL registry list Nope");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.contains("没有此键"));
}

// Qt's catalogue lies beside the program, or where that is installed.
TEST_F(Program, HasTheTextsOfQtInTheLanguageOfTheLocale)
{
    const Result result = shell("LC_ALL=zh_CN.UTF-8 $CTL registry list --nonsense");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.error.contains("未知选项")) << result.error.toStdString();
}

TEST_F(Program, TellsHowArgumentsBeginWithAHyphen)
{
    const Result result = run({"registry", "set", "A", "v", "-5"});
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.error.contains("\"--\""));
    EXPECT_EQ(status({"registry", "set", "A", "v", "--", "-5"}), 0);
    EXPECT_EQ(out({"registry", "get", "A", "v"}), "-5\n");
}

TEST_F(Program, TakesNoArgumentThatIsNoText)
{
    const Result result = shell("$CTL registry set A $'bad\\xff' x");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.error.contains("bad"));
    EXPECT_EQ(storeBytes(), "");
}

TEST_F(Program, FailsWhereAStandardStreamIsClosed)
{
    write("p.ini", "[s]\nk=v\n");
    writeStore("[A]\nv=5$x\n");
    const Result unread = shell("$CTL profile merge p.ini --wide <&-");
    EXPECT_EQ(unread.status, 3);
    EXPECT_TRUE(unread.error.contains("The standard input cannot be read: Bad file descriptor"))
        << unread.error.toStdString();
    EXPECT_EQ(shell("$CTL registry list -r >&-").status, 3);
    EXPECT_EQ(shell("$CTL registry set A v y 2>&-").status, 0);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$y\n");
}

TEST_F(Program, FailsWithoutACrashWhereQtCannotStart)
{
    const Result result = shell("QT_QPA_PLATFORM=nosuch $CTL fonts list");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("platform plugin"));
}

TEST_F(Program, PrintsNothingButErrorsWhenItIsQuiet)
{
    writeStore("[A]\nv=5$old\n");
    const Result found = run({"--quiet", "registry", "get", "A", "v"});
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.out + found.error, "");
    EXPECT_EQ(status({"--quiet", "registry", "get", "A", "none"}), 1);
    const Result exported = run({"--quiet", "registry", "export", "A"});
    EXPECT_EQ(exported.status, 0);
    EXPECT_EQ(exported.out + exported.error, "");
    EXPECT_EQ(run({"--quiet", "crypto", "base64"}, "x").out, "");
}

} // namespace
