#include "tests/ctl/CtlTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class HostCheckCommand : public CtlTest
{
protected:
    static QString library(const QString& name)
    {
        return QStringLiteral(QUAYSIDE_TEST_LIBRARIES "/libhostcheck_%1.so").arg(name);
    }

    // The cells of the first record of that kind.
    static QList<QByteArray> record(const QByteArray& out, const QByteArray& kind)
    {
        for (const QByteArray& line : out.split('\n')) {
            if (line.split('\t').value(1) == kind)
                return line.split('\t');
        }
        return {};
    }
};

TEST_F(HostCheckCommand, SaysThatAProperLibraryLoads)
{
    const Result result = run({"host", "check", library("proper")});
    EXPECT_EQ(result.status, 0) << result.out.toStdString();
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(record(result.out, "verdict").last(), "Can be loaded here.");
    EXPECT_EQ(record(result.out, "error"), QList<QByteArray>());
}

TEST_F(HostCheckCommand, NamesThePathsAndTheVersions)
{
    const QByteArray out = run({"host", "check", library("proper")}).out;
    EXPECT_EQ(record(out, "product").at(3), "glibc");
    EXPECT_FALSE(record(out, "product").at(4).isEmpty());
    EXPECT_FALSE(record(out, "product").at(5).isEmpty());
    EXPECT_TRUE(out.contains("\tneeded\t\tlibKdPlatformBase.so\t"));
    EXPECT_TRUE(QFile::exists(QFile::decodeName(record(out, "needed").at(5))));
}

TEST_F(HostCheckCommand, SaysNoWithTheReason)
{
    const Result result = run({"host", "check", library("missing_symbol")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(record(result.out, "symbol").at(2), "error");
    EXPECT_TRUE(record(result.out, "symbol").last().contains("store::neverWritten("));
    EXPECT_EQ(run({"--quiet", "host", "check", library("missing_symbol")}).out, "");
}

TEST_F(HostCheckCommand, ChecksAllThatAreNamed)
{
    const Result result = run({"host", "check", library("pathless"), library("proper")});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.out.contains("Cannot be loaded here."));
    EXPECT_TRUE(result.out.contains("Can be loaded here."));
}

TEST_F(HostCheckCommand, SaysNoToWhatIsNoLibrary)
{
    write("script.so", "#!/bin/sh\n");
    ASSERT_TRUE(QFile::copy(library("proper"), path("cut.so")));
    ASSERT_TRUE(QFile::resize(path("cut.so"), 1000));
    for (const char* file : {"script.so", "cut.so", "."}) {
        const Result result = run({"host", "check", file});
        EXPECT_EQ(result.status, 1) << file;
        EXPECT_EQ(record(result.out, "file").at(2), "error") << file;
    }
}

TEST_F(HostCheckCommand, FailsWhereThereIsNoFileAndChecksTheOthers)
{
    const Result result = run({"host", "check", "none.so", library("proper")});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("none.so"));
    EXPECT_TRUE(result.out.contains("Can be loaded here."));
}

TEST_F(HostCheckCommand, AsksTheApplicationThatIsNamed)
{
    write("other", "no application");
    const Result result = run({"host", "check", "--application", "other", library("proper")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(record(result.out, "application").at(2), "warning");
    EXPECT_EQ(status({"host", "check", "--application", "none", library("proper")}), 3);
}

TEST_F(HostCheckCommand, LoadsForATrial)
{
    const Result good = run({"host", "check", "--load", library("proper")});
    EXPECT_EQ(good.status, 0) << good.out.toStdString();
    EXPECT_EQ(record(good.out, "trial").last(), "The library was loaded.");
    const Result bad = run({"host", "check", "--load", library("missing_symbol")});
    EXPECT_EQ(bad.status, 1);
    EXPECT_TRUE(record(bad.out, "trial").last().contains("neverWritten"));
}

TEST_F(HostCheckCommand, TriesNoLibraryOfAnotherMachine)
{
    QFile proper(library("proper"));
    ASSERT_TRUE(proper.open(QIODevice::ReadOnly));
    QByteArray bytes = proper.readAll();
    constexpr int machine = 18; // the place of its number in the header
    bytes[machine] = 8;
    write("other.so", bytes);
    const Result result = run({"host", "check", "--load", "other.so"});
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(result.out.contains("\ttrial\t"));
}

TEST_F(HostCheckCommand, EndsATrialAtTheLimit)
{
    const Result result = run({"host", "check", "--load", "--limit", "0.2", library("hangs")});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(record(result.out, "trial").last().contains("0.2 seconds"));
}

TEST_F(HostCheckCommand, CallsALimitThatIsNoneWrongUsage)
{
    for (const char* limit : {"0", "-1", "x", "nan", "1e9"})
        EXPECT_EQ(status({"host", "check", "--limit", limit, library("proper")}), 2) << limit;
    EXPECT_EQ(status({"host", "check"}), 2);
}

TEST_F(HostCheckCommand, HasOneShapeOfJson)
{
    const QByteArray out = run({"--json", "host", "check", library("pathless")}).out;
    const QJsonObject document = QJsonDocument::fromJson(out).object();
    EXPECT_EQ(document["status"].toInt(), 1);
    const QJsonArray records = document["records"].toArray();
    ASSERT_LT(2, records.size()) << out.toStdString();
    for (const QJsonValue& value : records)
        EXPECT_EQ(
            (QStringList{"here", "kind", "library", "remark", "severity", "subject", "wanted"}),
            value.toObject().keys());
    EXPECT_EQ(records[0].toObject()["kind"].toString(), "verdict");
    EXPECT_EQ(records[1].toObject()["subject"].toString(), "libhostcheck_helper.so");
}

} // namespace
