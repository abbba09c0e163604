#include "tests/ctl/CtlTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class CtlOutput : public CtlTest
{
protected:
    static QJsonObject document(const QByteArray& bytes)
    {
        QJsonParseError error;
        const QJsonDocument parsed = QJsonDocument::fromJson(bytes, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << bytes.toStdString();
        return parsed.object();
    }
};

TEST_F(CtlOutput, KeepsEachRecordOnALineOfItsOwn)
{
    writeStore("[A]\nv=\"5$one\\ttwo\\nthree\\\\four\\x1b\"\n");
    EXPECT_EQ(out({"registry", "list", "A"}),
              "value\tHKEY_CURRENT_USER\\\\A\tv\tREG_SZ\tone\\ttwo\\nthree\\\\four\\x1b\t\n");
}

TEST_F(CtlOutput, IsOneJsonDocument)
{
    writeStore("[A]\nv=5$text\nw=1$7\n");
    const QJsonObject result = document(out({"--json", "registry", "list", "A"}));
    EXPECT_EQ(result["command"].toString().toStdString(), "registry list");
    EXPECT_EQ(result["status"].toInt(-1), 0);
    const QJsonArray records = result["records"].toArray();
    ASSERT_EQ(records.size(), 2);
    const QJsonObject expected{{"kind", "value"}, {"key", "HKEY_CURRENT_USER\\A"},
                               {"name", "w"},     {"type", "REG_DWORD"},
                               {"data", "7"},     {"remark", ""}};
    EXPECT_EQ(records[1].toObject(), expected);
}

TEST_F(CtlOutput, TellsErrorsInTheDocumentToo)
{
    const Result result = run({"--json", "registry", "get", "Nope", "v"});
    EXPECT_EQ(result.status, 1);
    const QJsonObject told = document(result.out);
    EXPECT_EQ(told["status"].toInt(), 1);
    EXPECT_TRUE(told["error"].toString().contains("Nope"));
    EXPECT_EQ(told["records"].toArray().size(), 0);
}

TEST_F(CtlOutput, IsAlignedAndHasTitlesOnATerminal)
{
    writeStore("[A]\nlonger=5$x\nv=5$\\x4e2d\n");
    Result result = shell("script -qec \"$CTL registry list A\" /dev/null");
    const QList<QByteArray> lines = result.out.replace("\r", "").split('\n');
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines[0], "Kind   Key                  Name    Type    Data  Remark");
    EXPECT_EQ(lines[1], "value  HKEY_CURRENT_USER\\A  longer  REG_SZ  x");
    EXPECT_EQ(lines[2], "value  HKEY_CURRENT_USER\\A  v       REG_SZ  \xE4\xB8\xAD");
}

TEST_F(CtlOutput, IsAlignedWithoutALocale)
{
    writeStore("[A]\nlonger=5$x\n%U4E2D%U6587=5$y\n");
    const QByteArray text =
        shell("LC_ALL=C script -qec \"$CTL registry get A\" /dev/null").out.replace("\r", "");
    EXPECT_EQ(text, "Name    Data\nlonger  x\n\xE4\xB8\xAD\xE6\x96\x87    y\n");
}

TEST_F(CtlOutput, HasColoursOnATerminalUnlessTheyAreNotWanted)
{
    writeStore("[A]\nv=text\n");
    EXPECT_TRUE(
        shell("TERM=xterm script -qec \"$CTL registry list A\" /dev/null").out.contains("\x1b["));
    EXPECT_FALSE(shell("TERM=xterm NO_COLOR=1 script -qec \"$CTL registry list A\" /dev/null")
                     .out.contains("\x1b["));
    EXPECT_FALSE(
        shell("TERM=dumb script -qec \"$CTL registry list A\" /dev/null").out.contains("\x1b["));
    EXPECT_FALSE(out({"registry", "list", "A"}).contains("\x1b["));
}

} // namespace
