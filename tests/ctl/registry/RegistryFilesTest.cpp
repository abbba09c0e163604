#include "tests/ctl/CtlTest.h"

namespace {

class CtlRegistryFiles : public CtlTest
{
protected:
    static QByteArray file(const QByteArray& statements)
    {
        return "Windows Registry Editor Version 5.00\r\n\r\n" + statements;
    }
};

TEST_F(CtlRegistryFiles, ExportAKeyInUtf16OrUtf8)
{
    writeStore("[A]\nv=5$x\n[B]\nw=5$y\n");
    const QByteArray text = file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n");
    EXPECT_EQ(out({"registry", "export", "A", "--encoding", "utf-8"}), text);
    EXPECT_EQ(status({"registry", "export", "A", "a.reg"}), 0);
    EXPECT_TRUE(read("a.reg").startsWith("\xFF\xFEW"));
    EXPECT_EQ(read("a.reg").size(), 2 + 2 * text.size());
    EXPECT_EQ(status({"registry", "export", "A", "b.reg", "--encoding", "utf-8"}), 0);
    EXPECT_EQ(read("b.reg"), text);
    EXPECT_EQ(status({"registry", "export", "A", "--encoding", "utf-7"}), 2);
}

TEST_F(CtlRegistryFiles, SayThatThereIsNotEnoughMemoryForThem)
{
    if (isEmulated() || isSanitized())
        GTEST_SKIP() << "the memory is not the program's alone";
    const Result result = shell(
        "{ echo 'Windows Registry Editor Version 5.00'; echo '[HKEY_CURRENT_USER\\A]';"
        "for ((i = 0; i < 400000; ++i)); do echo \"\\\"v$i\\\"=\\\"text\\\"\"; done; } >large.reg;"
        "ulimit -v 200000; $CTL --store s.ini registry import large.reg; exit $?");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("large.reg: There is not enough memory"))
        << result.error.toStdString();
    EXPECT_EQ(shell("ls").out, "large.reg\n");
}

TEST_F(CtlRegistryFiles, TakeNamesOfEncodingsAsPeopleWriteThem)
{
    writeStore("[A]\nv=5$x\n");
    for (const QString& name : QStringList{"UTF-8", "utf8", "Utf-8"})
        EXPECT_TRUE(out({"registry", "export", "A", "--encoding", name}).startsWith("Windows"));
    for (const QString& name : QStringList{"UTF-16", "utf16", "utf-16le", "UTF-16LE"})
        EXPECT_TRUE(out({"registry", "export", "A", "--encoding", name}).startsWith("\xFF\xFE"));
}

TEST_F(CtlRegistryFiles, TellWhatTheFormatHasNoRoomFor)
{
    writeStore("[A]\nlist=1, 2\nv=5$x\n");
    const Result result = run({"registry", "export", "A", "--encoding", "utf-8"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.out.contains("\"v\"=\"x\""));
    EXPECT_TRUE(result.error.contains(": 1."));
}

TEST_F(CtlRegistryFiles, AreNotWrittenWhereThatIsImpossible)
{
    writeStore("[A]\nv=5$x\n");
    EXPECT_EQ(status({"registry", "export", "A", "none/a.reg"}), 3);
    EXPECT_EQ(status({"--json", "registry", "export", "A"}), 2);
}

// Replaced by a file, a pipe would never end.
TEST_F(CtlRegistryFiles, AreWrittenIntoAPipeThatIsThere)
{
    writeStore("[A]\nv=5$x\n");
    EXPECT_EQ(shell("mkfifo pipe; timeout 60 cat pipe >got & "
                    "$CTL registry export A pipe --encoding utf-8; wait; test -p pipe")
                  .status,
              0);
    EXPECT_EQ(read("got"), file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n"));
}

TEST_F(CtlRegistryFiles, AreAppendedWhereTheOutputIs)
{
    writeStore("[A]\nv=5$x\n");
    const QByteArray whole = "before\n" + file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n");
    for (const QString& name : QStringList{"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        write("log", "before\n");
        shell("$CTL registry export A " + name + " --encoding utf-8 >>log");
        EXPECT_EQ(read("log"), whole) << name.toStdString();
    }
}

TEST_F(CtlRegistryFiles, AreImported)
{
    writeStore("[A]\ngone=5$x\n");
    write("a.reg", file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=dword:00000007\r\n\"gone\"=-\r\n"
                        "[-HKEY_CURRENT_USER\\B]\r\n"));
    EXPECT_EQ(status({"registry", "import", "a.reg"}), 0);
    EXPECT_EQ(out({"registry", "list", "-r"}),
              "key\tHKEY_CURRENT_USER\\\\A\t\t\t\t\n"
              "value\tHKEY_CURRENT_USER\\\\A\tv\tREG_DWORD\t7\t\n");
}

TEST_F(CtlRegistryFiles, AreImportedFromTheInputAndInACodePage)
{
    EXPECT_EQ(run({"registry", "import", "-", "--code-page", "GBK"},
                  "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"\xD6\xD0\"\r\n")
                  .status,
              0);
    EXPECT_EQ(out({"registry", "get", "A", "v"}), "\xE4\xB8\xAD\n");
}

TEST_F(CtlRegistryFiles, AreNotImportedInACodePageThatIsNotTheirs)
{
    const QByteArray text("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"\xD6\xFF\xD0\"\r\n");
    EXPECT_EQ(run({"registry", "import", "-", "--code-page", "nonsense"}, text).status, 2);
    const Result result = run({"registry", "import", "-", "--code-page", "UTF-8"}, text);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.contains("UTF-8"));
    EXPECT_EQ(storeBytes(), "");
}

TEST_F(CtlRegistryFiles, TellTheFateOfEachStatementInADryRun)
{
    write("a.reg", file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n\"m\"=hex(7):00,00\r\n"));
    const Result result = run({"registry", "import", "a.reg", "--dry-run"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "3\tHKEY_CURRENT_USER\\\\A\t\t\t\tCreates the key\n"
                          "4\tHKEY_CURRENT_USER\\\\A\tv\t\tREG_SZ x\tSets the value\n"
                          "5\tHKEY_CURRENT_USER\\\\A\tm\t\tREG_MULTI_SZ 00 00\t"
                          "Refused: REG_MULTI_SZ cannot be stored.\n");
    EXPECT_EQ(storeBytes(), "");
}

TEST_F(CtlRegistryFiles, AreImportedBelowAKey)
{
    write("a.reg", file("[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"x\"\r\n"));
    EXPECT_EQ(status({"registry", "import", "a.reg", "--prefix", "HKLM\\Vendor\\Product"}), 0);
    EXPECT_EQ(out({"registry", "get", "Vendor/Product/A", "v"}), "x\n");
}

TEST_F(CtlRegistryFiles, AreImportedAfterABackup)
{
    writeStore("[A]\nlist=1, 2\n");
    write("a.reg", file("[-HKEY_CURRENT_USER\\A]\r\n"));
    EXPECT_EQ(status({"registry", "import", "a.reg", "--backup", "none/b.ini"}), 3);
    EXPECT_EQ(storeBytes(), "[A]\nlist=1, 2\n");
    EXPECT_EQ(status({"registry", "import", "a.reg", "--backup", "b.ini"}), 0);
    EXPECT_EQ(read("b.ini"), "[A]\nlist=1, 2\n");
    EXPECT_EQ(storeBytes(), "");
}

TEST_F(CtlRegistryFiles, AreImportedAfterABackupIntoAPipe)
{
    writeStore("[A]\nv=5$x\n");
    write("a.reg", file("[-HKEY_CURRENT_USER\\A]\r\n"));
    EXPECT_EQ(shell("mkfifo pipe; timeout 60 cat pipe >got & "
                    "$CTL registry import a.reg --backup pipe; wait; test -p pipe")
                  .status,
              0);
    EXPECT_EQ(read("got"), "[A]\nv=5$x\n");
}

TEST_F(CtlRegistryFiles, AreNotWrittenOverTheStore)
{
    write("s.ini", "[A]\nv=5$x\n");
    write("a.reg", file("[-HKEY_CURRENT_USER\\A]\r\n"));
    shell("ln -s s.ini link.ini; mkdir folder");
    for (const QString& name : QStringList{"s.ini", "./folder/../s.ini", "link.ini"}) {
        EXPECT_EQ(status({"--store", "s.ini", "registry", "export", "A", name}), 2);
        EXPECT_EQ(status({"--store", "s.ini", "registry", "import", "a.reg", "--backup", name}), 2);
        EXPECT_EQ(read("s.ini"), "[A]\nv=5$x\n");
    }
    EXPECT_EQ(status({"--store", "new.ini", "registry", "import", "a.reg", "--backup", "new.ini"}),
              2);
}

TEST_F(CtlRegistryFiles, AreRefusedWholeWhereTheyAreNone)
{
    write("a.reg", "nonsense\n");
    EXPECT_EQ(status({"registry", "import", "a.reg"}), 3);
    EXPECT_EQ(status({"registry", "import", "none.reg"}), 3);
    EXPECT_EQ(status({"registry", "import", "."}), 3);
}

} // namespace
