#include "tests/ctl/CtlTest.h"

namespace {

class CtlRegistryChanges : public CtlTest
{
protected:
    QByteArray raw(const QString& key, const QString& name) const
    {
        return out({"registry", "get", key, name, "--raw"}).trimmed();
    }
};

TEST_F(CtlRegistryChanges, SetValuesOfEachTypeByNameOrNumber)
{
    EXPECT_EQ(status({"registry", "set", "HKLM\\A\\B", "text", "some text"}), 0);
    EXPECT_EQ(status({"registry", "set", "A\\B", "number", "0xff", "--type", "dword"}), 0);
    EXPECT_EQ(status({"registry", "set", "A\\B", "bytes", "00 ff", "--type", "REG_BINARY"}), 0);
    EXPECT_EQ(status({"registry", "set", "A\\B", "large", "7", "--type", "11"}), 0);
    EXPECT_EQ(raw("A/B", "text"), "5$some text");
    EXPECT_EQ(raw("A/B", "number"), "1$255");
    EXPECT_EQ(raw("A/B", "bytes"), "4$00ff");
    EXPECT_EQ(raw("A/B", "large"), "2$7");
}

TEST_F(CtlRegistryChanges, TellWrongDataFromWhatTheServiceRefuses)
{
    EXPECT_EQ(status({"registry", "set", "A", "v", "x", "--type", "dword"}), 2);
    EXPECT_EQ(status({"registry", "set", "A", "v", "x", "--type", "nonsense"}), 2);
    EXPECT_EQ(status({"registry", "set", "A", "v", "00", "--type", "77"}), 3);
    EXPECT_EQ(status({"registry", "set", "A", "v", "00", "--type", "REG_MULTI_SZ"}), 3);
    EXPECT_EQ(status({"registry", "set", "A", "", "text"}), 3);
    EXPECT_EQ(storeBytes(), "");
}

TEST_F(CtlRegistryChanges, SayWhatTheServiceAlters)
{
    const Result result = run({"registry", "set", "A", "v", "300", "--type", "qword"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.error.contains("300 will be read as 44"));
    EXPECT_EQ(raw("A", "v"), "2$44");
}

TEST_F(CtlRegistryChanges, AlterNothingWhenTheyAreStrict)
{
    const Result result = run({"registry", "set", "A", "v", "300", "--type", "qword", "--strict"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.contains("300 will be read as 44"));
    EXPECT_EQ(storeBytes(), "");
    EXPECT_EQ(status({"registry", "set", "A", "v", "3", "--type", "qword", "--strict"}), 0);
}

TEST_F(CtlRegistryChanges, WriteNothingInADryRun)
{
    writeStore("[A]\nv=5$old\n");
    EXPECT_EQ(out({"registry", "set", "A", "v", "new", "--dry-run"}),
              "HKEY_CURRENT_USER\\\\A\tv\tREG_SZ old\tREG_SZ new\t5$new\tOverwrites the value\n");
    EXPECT_EQ(status({"registry", "delete", "A", "-r", "--dry-run"}), 0);
    EXPECT_EQ(status({"registry", "rename", "A", "B", "--dry-run"}), 0);
    EXPECT_EQ(status({"registry", "copy", "A", "B", "--dry-run"}), 0);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$old\n");
}

TEST_F(CtlRegistryChanges, ChangeNothingWhereTheirOutputCannotBeWritten)
{
    writeStore("[A]\nv=5$old\n");
    for (const QString& command :
         QStringList{"delete A -r", "delete A v", "rename A B", "copy A B", "set A v new --json"}) {
        EXPECT_EQ(shell("$CTL registry " + command + " >/dev/full").status, 3)
            << command.toStdString();
        EXPECT_EQ(storeBytes(), "[A]\nv=5$old\n") << command.toStdString();
    }
}

TEST_F(CtlRegistryChanges, DeleteAValueAndNameIt)
{
    writeStore("[A]\nv=5$old\nw=5$kept\n");
    EXPECT_EQ(out({"registry", "delete", "A", "v"}), "value\tHKEY_CURRENT_USER\\\\A\tv\n");
    EXPECT_EQ(storeBytes(), "[A]\nw=5$kept\n");
    EXPECT_EQ(status({"registry", "delete", "A", "v"}), 1);
}

TEST_F(CtlRegistryChanges, DeleteAKeyWithContentsOnlyWhenToldSo)
{
    writeStore("[A]\nB\\v=5$x\nw=5$x\n[C]\nv=5$kept\n");
    const Result refused = run({"registry", "delete", "A"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.error.contains("Values: 2."));
    EXPECT_EQ(out({"registry", "delete", "A", "-r"}), "key\tHKEY_CURRENT_USER\\\\A\t\n"
                                                      "value\tHKEY_CURRENT_USER\\\\A\tw\n"
                                                      "key\tHKEY_CURRENT_USER\\\\A\\\\B\t\n"
                                                      "value\tHKEY_CURRENT_USER\\\\A\\\\B\tv\n");
    EXPECT_EQ(storeBytes(), "[C]\nv=5$kept\n");
    EXPECT_EQ(status({"registry", "delete", "HKCU", "-r"}), 3);
    EXPECT_EQ(status({"registry", "delete", "A", "-r"}), 1);
}

// The service takes a key of the same name along with the value.
TEST_F(CtlRegistryChanges, DeleteAValueWithAKeyOfItsNameOnlyWhenToldSo)
{
    writeStore("[A]\nv=5$x\nv\\w=5$x\n");
    EXPECT_EQ(status({"registry", "delete", "A", "v"}), 1);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$x\nv\\w=5$x\n");
    EXPECT_TRUE(out({"registry", "delete", "A", "v", "-r"}).contains("\tw\n"));
    EXPECT_EQ(status({"registry", "list", "A"}), 1);
}

TEST_F(CtlRegistryChanges, RenameAKeyWithEverythingBelowIt)
{
    writeStore("[A]\nB\\v=broken\nw=5$x\n");
    EXPECT_EQ(status({"registry", "rename", "A", "C"}), 0);
    EXPECT_EQ(storeBytes(), "[C]\nB\\v=broken\nw=5$x\n");
}

TEST_F(CtlRegistryChanges, RenameAValue)
{
    writeStore("[A]\nv=5$x\nw=5$y\n");
    EXPECT_EQ(status({"registry", "rename", "A", "v", "z"}), 0);
    EXPECT_EQ(raw("A", "z"), "5$x");
    EXPECT_EQ(status({"registry", "rename", "A", "v", "z"}), 1);
    EXPECT_EQ(status({"registry", "rename", "A", "w", "z"}), 1);
}

TEST_F(CtlRegistryChanges, RefuseNamesThatAreTakenOrNone)
{
    writeStore("[A]\nv=5$x\n[B]\nv=5$x\n");
    EXPECT_EQ(status({"registry", "rename", "A", "B"}), 1);
    EXPECT_EQ(status({"registry", "rename", "A", "B\\C"}), 2);
    EXPECT_EQ(status({"registry", "rename", "A", ""}), 2);
    EXPECT_EQ(status({"registry", "rename", "HKCU", "B"}), 3);
    EXPECT_EQ(status({"registry", "copy", "A", "B"}), 1);
    EXPECT_EQ(status({"registry", "copy", "A", "A\\C"}), 3);
    EXPECT_EQ(status({"registry", "copy", "HKCU", "D"}), 3);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$x\n[B]\nv=5$x\n");
}

// The store would call it otherwise after a restart.
TEST_F(CtlRegistryChanges, RefuseNamesThatTheStoreDoesNotKeep)
{
    writeStore("[A]\nv=5$x\n");
    const QString unkept = QStringLiteral("general");
    EXPECT_EQ(status({"registry", "rename", "A", unkept}), 1);
    EXPECT_EQ(status({"registry", "copy", "A", unkept}), 1);
    EXPECT_EQ(storeBytes(), "[A]\nv=5$x\n");
}

TEST_F(CtlRegistryChanges, CopyAKeyWithEverythingBelowIt)
{
    writeStore("[A]\nB\\v=broken\nw=5$x\n");
    EXPECT_EQ(status({"registry", "copy", "A", "HKCU\\C\\D"}), 0);
    EXPECT_EQ(storeBytes(), "[A]\nB\\v=broken\nw=5$x\n\n[C]\nD\\B\\v=broken\nD\\w=5$x\n");
}

} // namespace
