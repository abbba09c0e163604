#include "tests/ctl/CtlTest.h"

namespace {

class CtlRegistryReading : public CtlTest
{
protected:
    CtlRegistryReading()
    {
        writeStore(
            "[A]\nb=4$00ff10\nB\\v=5$text\nlist=1, 2\nn=1$300\nodd=2$7\n[C]\nv=5$Text more\n");
    }

    QByteArray get(const QStringList& options) const
    {
        return out(QStringList{"registry", "get"} + options);
    }
};

TEST_F(CtlRegistryReading, ListsSubKeysAndValuesWithTypeAndData)
{
    EXPECT_EQ(out({"registry", "list", "A"}),
              "key\tHKEY_CURRENT_USER\\\\A\\\\B\t\t\t\t\n"
              "value\tHKEY_CURRENT_USER\\\\A\tb\tREG_BINARY\t00 ff 10\t\n"
              "unreadable\tHKEY_CURRENT_USER\\\\A\tlist\t\t1, 2\t"
              "A list: the file has a comma without quotes\n"
              "value\tHKEY_CURRENT_USER\\\\A\tn\tREG_DWORD\t300\t\n"
              "value\tHKEY_CURRENT_USER\\\\A\todd\tREG_QWORD\t7\t\n");
}

TEST_F(CtlRegistryReading, ListsEverythingBelowAKey)
{
    const QByteArray all = out({"registry", "list", "-r"});
    EXPECT_TRUE(all.contains("\nvalue\tHKEY_CURRENT_USER\\\\A\\\\B\tv\tREG_SZ\ttext\t\n"));
    EXPECT_TRUE(all.contains("\nvalue\tHKEY_CURRENT_USER\\\\C\tv\tREG_SZ\tText more\t\n"));
    EXPECT_EQ(out({"registry", "list", "HKLM", "--recursive"}), all);
}

TEST_F(CtlRegistryReading, HasNoAnswerForAKeyThatIsNotThere)
{
    EXPECT_EQ(status({"registry", "list", "Nope"}), 1);
    EXPECT_EQ(status({"registry", "list", "HKEY_NONSENSE\\A"}), 2);
    EXPECT_EQ(status({"registry", "list", "HKXX\\A"}), 2);
    EXPECT_EQ(status({"registry", "set", "HKXX\\A", "v", "x"}), 2);
    EXPECT_EQ(status({"registry", "set", "HKCU\\HKXX\\A", "v", "x"}), 0);
    EXPECT_EQ(get({"HKXX\\A", "v"}), "x\n");
}

TEST_F(CtlRegistryReading, PrintsTheDataOfAValueAlone)
{
    EXPECT_EQ(get({"A", "n"}), "300\n");
    EXPECT_EQ(get({"HKEY_LOCAL_MACHINE\\A", "b"}), "00 ff 10\n");
    EXPECT_EQ(get({"A\\B", "v"}), "text\n");
    EXPECT_EQ(get({"A", "n", "--type"}), "REG_DWORD\n");
    EXPECT_EQ(get({"A", "n", "--raw"}), "1$300\n");
    EXPECT_EQ(status({"registry", "get", "A", "n", "--raw", "--type"}), 2);
}

TEST_F(CtlRegistryReading, PrintsTheDataInTheFormThatIsAskedFor)
{
    EXPECT_EQ(get({"A", "n", "--format", "hex"}), "2c 01 00 00\n");
    EXPECT_EQ(get({"A", "n", "--format", "c"}), "0x0000012c\n");
    EXPECT_EQ(get({"A", "b", "--format", "c"}), "{0x00, 0xff, 0x10}\n");
    EXPECT_EQ(get({"A", "n", "--format", "text"}), "300\n");
    EXPECT_EQ(status({"registry", "get", "A", "n", "--format", "x"}), 2);
}

TEST_F(CtlRegistryReading, TellsAnAbsentValueFromAnUnreadableOne)
{
    EXPECT_EQ(status({"registry", "get", "A", "none"}), 1);
    const Result unreadable = run({"registry", "get", "A", "list"});
    EXPECT_EQ(unreadable.status, 3);
    EXPECT_TRUE(unreadable.error.contains("A list"));
    EXPECT_EQ(get({"A", "list", "--raw"}), "1, 2\n");
}

TEST_F(CtlRegistryReading, FindsTextsInNamesAndData)
{
    EXPECT_EQ(out({"registry", "find", "text"}).count('\n'), 2);
    EXPECT_EQ(out({"registry", "find", "text", "C"}).count('\n'), 1);
    EXPECT_EQ(out({"registry", "find", "text", "--case"}).count('\n'), 1);
    EXPECT_EQ(out({"registry", "find", "tex", "--word"}).count('\n'), 0);
    EXPECT_EQ(out({"registry", "find", "B", "--keys"}), "key\tHKEY_CURRENT_USER\\\\A\\\\B\t\t\n");
    EXPECT_EQ(out({"registry", "find", "b", "--names"}),
              "value\tHKEY_CURRENT_USER\\\\A\tb\t00 ff 10\n");
    EXPECT_EQ(out({"registry", "find", "ff 10", "--data"}).count('\n'), 1);
    EXPECT_EQ(status({"registry", "find", "nowhere"}), 1);
}

TEST_F(CtlRegistryReading, FindsRegularExpressions)
{
    EXPECT_EQ(out({"registry", "find", "^t.xt$", "--regex"}).count('\n'), 1);
    EXPECT_EQ(status({"registry", "find", "(", "--regex"}), 2);
}

TEST_F(CtlRegistryReading, ListsWhatHostLibrariesReadOtherwise)
{
    writeStore("[A]\nfine=5$x\nbad=1$5000000000\nlist=1, 2\n");
    const Result result = run({"registry", "check"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out.count('\n'), 2);
    EXPECT_TRUE(result.out.startsWith("altered\tHKEY_CURRENT_USER\\\\A\tbad\t1$5000000000\t"));
    EXPECT_TRUE(result.out.contains("\nunreadable\tHKEY_CURRENT_USER\\\\A\tlist\t1, 2\t"));
    writeStore("[A]\nfine=5$x\n");
    EXPECT_EQ(status({"registry", "check", "A"}), 0);
}

TEST_F(CtlRegistryReading, ComparesTwoKeys)
{
    writeStore("[A]\nold=5$x\nsame=1$1\nv=5$x\n[B]\nnew\\w=5$x\nsame=1$01\nv=5$y\n");
    const Result result = run({"registry", "compare", "A", "B"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "added\tnew\t\t\t\n"
                          "added\tnew\tw\t\tREG_SZ x\n"
                          "removed\t\told\tREG_SZ x\t\n"
                          "changed\t\tv\tREG_SZ x\tREG_SZ y\n");
    EXPECT_EQ(status({"registry", "compare", "A", "A"}), 0);
    EXPECT_EQ(out({"registry", "compare", "HKLM\\A", "HKEY_CURRENT_USER/B"}), result.out);
    EXPECT_EQ(status({"registry", "compare", "HKXX\\A", "B"}), 2);
    EXPECT_EQ(status({"registry", "compare", "A", "Nope"}), 1);
}

TEST_F(CtlRegistryReading, ComparesStoresAndRegistryFiles)
{
    write("one.ini", "[A]\nv=5$x\n");
    write("two.ini", "[A]\nv=5$y\n[B]\nw=5$z\n");
    write("two.reg", "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"v\"=\"y\"\r\n"
                     "[HKEY_CURRENT_USER\\B]\r\n\"w\"=\"z\"\r\n");
    EXPECT_EQ(out({"registry", "compare", "one.ini", "two.ini"}),
              "changed\tA\tv\tREG_SZ x\tREG_SZ y\nadded\tB\t\t\t\nadded\tB\tw\t\tREG_SZ z\n");
    EXPECT_EQ(status({"registry", "compare", "two.ini", "two.reg"}), 0);
    EXPECT_EQ(status({"--store", "one.ini", "registry", "compare", "HKCU", "two.reg"}), 1);
    EXPECT_EQ(out({"--store", "one.ini", "registry", "compare", "A", "two.reg"}),
              "changed\t\tv\tREG_SZ x\tREG_SZ y\n");
}

TEST_F(CtlRegistryReading, ListsAHundredThousandValues)
{
    QByteArray store("[A]\n");
    for (int i = 0; i < manyValues(); ++i)
        store += "value" + QByteArray::number(i) + "=5$text\n";
    writeStore(store);
    EXPECT_EQ(out({"registry", "list", "-r"}).count('\n'), manyValues() + 1);
}

TEST_F(CtlRegistryReading, GetAllValuesOfAKey)
{
    writeStore("[A]\nB\\w=5$below\nn=1$7\nv=5$some text\n[C]\nD\\v=5$x\n[E]\nx=broken\ny=5$x\n");
    EXPECT_EQ(out({"registry", "get", "A"}), "n\t7\nv\tsome text\n");
    EXPECT_EQ(out({"registry", "get", "A", "--type"}), "n\tREG_DWORD\nv\tREG_SZ\n");
    const Result none = run({"registry", "get", "C"});
    EXPECT_EQ(none.status, 0);
    EXPECT_EQ(none.out + none.error, "");
    const Result broken = run({"registry", "get", "E"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.out, "y\tx\n");
    EXPECT_TRUE(broken.error.contains("\"x\""));
    EXPECT_EQ(status({"registry", "get", "None"}), 1);
}

} // namespace
