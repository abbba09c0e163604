#include "tests/trace/recorder/RecordedRun.h"
#include "trace/Operations.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

class RecordingTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (qstrlen(QUAYSIDE_EMULATOR) > 0)
            GTEST_SKIP() << "an emulator starts no programs of its own kind";
    }

    static QStringList program(const QStringList& arguments)
    {
        return QStringList(QStringLiteral(QUAYSIDE_RECORDED)) + arguments;
    }

    void record(const QStringList& arguments, const QStringList& options = {})
    {
        m_run.record(program(arguments), options);
    }

    // The output without the recorder.
    static QByteArray plainOutput(const QStringList& arguments)
    {
        RecordedRun run;
        run.run(program(arguments));
        return run.out();
    }

    QJsonValue out(const QJsonObject& call, const char* name) const
    {
        return call.value("out").toObject().value(QLatin1String(name));
    }

    RecordedRun m_run;
};

bool hasReturned(const QJsonObject& call)
{
    return call.contains(QLatin1String("d"));
}

TEST_F(RecordingTest, ChangesNoResultAndNoByte)
{
    const QByteArray plain = plainOutput({"everything"});
    EXPECT_TRUE(plain.contains("RegCloseKey=0")) << plain.toStdString();
    record({"everything"});
    EXPECT_EQ(m_run.out(), plain);
    EXPECT_EQ(m_run.status(), 5);
    EXPECT_EQ(m_run.error(), "");
    record({"everything"}, {"--all"});
    EXPECT_EQ(m_run.out(), plain);
}

TEST_F(RecordingTest, HasEveryOperationOfEveryInterface)
{
    record({"everything"});
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations) {
            if (operation.isDestructor)
                continue;
            const QList<QJsonObject> calls = m_run.calls(operation.name);
            EXPECT_FALSE(calls.isEmpty()) << operation.name;
            for (const QJsonObject& call : calls) {
                EXPECT_TRUE(hasReturned(call)) << operation.name;
                EXPECT_EQ(call.value("manager").toString().toStdString(), manager.name);
                EXPECT_EQ(call.value("args").toObject().size(),
                          static_cast<int>(operation.parameters.size()));
            }
        }
    }
    EXPECT_TRUE(m_run.hasEnded());
}

TEST_F(RecordingTest, LeavesTheProgramsOwnCallsOut)
{
    record({"derived"});
    for (const QJsonObject& call : m_run.calls())
        EXPECT_TRUE(call.value("caller").toString().startsWith("libtrace_caller.so+0x") ||
                    call.contains("callback"));
    const int count = m_run.calls().size();
    record({"derived"}, {"--all"});
    EXPECT_GT(m_run.calls().size(), count);
}

TEST_F(RecordingTest, TellsVersionsAndLibrariesFirst)
{
    record({"everything"}, {"--text", "5"});
    const QJsonObject header = QJsonDocument::fromJson(m_run.lines().first()).object();
    EXPECT_EQ(header.value("quaysideTrace").toInt(), 1);
    EXPECT_EQ(header.value("qt").toString(), QLatin1String(qVersion()));
    EXPECT_EQ(header.value("program").toArray().last().toString(), "everything");
    EXPECT_EQ(header.value("cwd").toString(), QDir(m_run.folder()).canonicalPath());
    EXPECT_EQ(header.value("options").toObject().value("text").toInt(), 5);
    bool hasCaller = false;
    for (const QJsonValue library : header.value("libraries").toArray()) {
        if (library.toObject().value("path").toString().endsWith("/libtrace_caller.so"))
            hasCaller = library.toObject().value("buildId").toString().size() == 40;
    }
    EXPECT_TRUE(hasCaller);
}

TEST_F(RecordingTest, ReadsOutputsAsFarAsTheyAreWritten)
{
    record({"everything"});
    const QList<QJsonObject> queries = m_run.calls("RegQueryValueExW");
    EXPECT_EQ(out(queries[0], "data").toObject().value("data").toString(), "78563412");
    EXPECT_EQ(out(queries[0], "type").toInt(), 4);
    EXPECT_TRUE(queries[1].value("out").toObject().isEmpty()) << "too small";
    EXPECT_EQ(out(queries[2], "data").toObject().value("data").toString(), "785634");
    const auto text = [&](const char* operation, int place, const char* name) {
        return out(m_run.calls(operation).value(place), name).toObject().value("text").toString();
    };
    EXPECT_EQ(text("RegEnumKeyW", 0, "name"), "Key");
    EXPECT_EQ(text("RegEnumKeyExW", 0, "name"), "Key");
    EXPECT_TRUE(m_run.calls("RegEnumKeyExW")[1].value("out").toObject().isEmpty());
    EXPECT_EQ(text("RegEnumValueW", 1, "name"), "T") << "its data do not fit";
    EXPECT_EQ(text("PathRelativePathToW", 0, "relative"), "./b");
    EXPECT_EQ(text("AddBackslash", 0, "path"), "a/b/");
    EXPECT_EQ(text("AddBackslash", 1, "path"), QString(299, 'x') + '/');
    EXPECT_EQ(text("GetPrivateProfileStringW", 2, "buffer"), "fal");
    EXPECT_EQ(text("GetPrivateProfileSectionW", 0, "buffer"), QString::fromLatin1("k=12\0\0", 6));
}

TEST_F(RecordingTest, KeepsTheSignOfANumberThatHasNoName)
{
    record({"everything"});
    const QJsonObject arguments = m_run.calls("getKeyState")[0].value("args").toObject();
    EXPECT_EQ(arguments.value("virtualKey").toInt(), -5);
}

TEST_F(RecordingTest, TellsSizeAndTimesOfARegularFileAlone)
{
    record({"everything"});
    const QJsonObject first = out(m_run.calls("findFirstFile")[0], "data").toObject();
    const QJsonObject next = out(m_run.calls("findNextFile")[0], "data").toObject();
    EXPECT_EQ(first.value("cFileName").toObject().value("text").toString(), "one.txt");
    EXPECT_EQ(first.value("nFileSizeLow").toInt(), 5);
    EXPECT_TRUE(first.contains("ftLastWriteTime.low"));
    EXPECT_EQ(next.value("cFileName").toObject().value("text").toString(), "two");
    EXPECT_EQ(next.size(), 2);
}

TEST_F(RecordingTest, KeepsUnitsThatAreNoCharacters)
{
    record({"everything"});
    bool hasSurrogate = false;
    bool hasByte = false;
    for (const QByteArray& line : m_run.lines()) {
        hasSurrogate = hasSurrogate || line.contains("\"\xF0\x9F\x98\x80\\ud800\"");
        hasByte = hasByte || line.contains("\"\\udcffn\"");
    }
    EXPECT_TRUE(hasSurrogate);
    EXPECT_TRUE(hasByte);
}

TEST_F(RecordingTest, SeesACallThatNeverReturned)
{
    const QMap<QString, int> statuses = {{"crash", 134}, {"kill", 137}, {"exit", 3}};
    for (auto way = statuses.begin(); way != statuses.end(); ++way) {
        SCOPED_TRACE(way.key().toStdString());
        record({way.key()});
        EXPECT_EQ(m_run.status(), way.value());
        ASSERT_EQ(m_run.calls("enumFontFamiliesEx").size(), 1);
        EXPECT_FALSE(hasReturned(m_run.calls("enumFontFamiliesEx")[0]));
        ASSERT_EQ(m_run.calls("EnumFontFamExProc").size(), 1);
        EXPECT_FALSE(hasReturned(m_run.calls("EnumFontFamExProc")[0]));
        EXPECT_TRUE(hasReturned(m_run.calls("addLogFont")[0]));
        EXPECT_FALSE(m_run.hasEnded());
    }
}

TEST_F(RecordingTest, FollowsNestingExceptionsJumpsAndThreads)
{
    record({"across"});
    EXPECT_EQ(m_run.out(), plainOutput({"across"}));
    const QList<QJsonObject> enumerations = m_run.calls("enumFontFamiliesEx");
    ASSERT_EQ(enumerations.size(), 3);
    EXPECT_TRUE(enumerations[0].value("thrown").toBool());
    EXPECT_FALSE(hasReturned(enumerations[1])) << "left by a jump";
    EXPECT_EQ(enumerations[2].value("depth").toInt(), 0);
    const QJsonObject procedure = m_run.calls("EnumFontFamExProc")[2];
    const QJsonObject within = m_run.calls("isURL")[0];
    EXPECT_EQ(procedure.value("in"), enumerations[2].value("n"));
    EXPECT_EQ(within.value("in"), procedure.value("n"));
    EXPECT_EQ(within.value("depth").toInt(), 2);
    const QList<QJsonObject> codePages = m_run.calls("IsValidCodePage");
    EXPECT_EQ(codePages[0].value("thread").toInt(), 2);
    EXPECT_EQ(codePages[1].value("thread").toInt(), 1);
}

TEST_F(RecordingTest, LeavesProgramsOfTheirOwnMakingAsTheyAre)
{
    record({"derived"});
    EXPECT_EQ(m_run.out(), plainOutput({"derived"}));
    EXPECT_TRUE(m_run.out().contains("cast=1 added=4 type=1"));
    EXPECT_EQ(m_run.calls("GetPrivateProfileIntW")[0].value("result").toInt(), 1012);
}

TEST_F(RecordingTest, LeavesValuesOutWhereTheyAreHidden)
{
    record({"everything"}, {"--hide", "DATA"});
    const QJsonObject set = m_run.calls("RegSetValueExW")[0].value("args").toObject();
    EXPECT_EQ(set.value("data").toObject(), (QJsonObject{{"hidden", 4}}));
    EXPECT_EQ(set.value("valueName").toObject().value("text").toString(), "N");
    EXPECT_EQ(out(m_run.calls("GetPrivateProfileStringW")[0], "buffer").toObject(),
              (QJsonObject{{"hidden", 2}}));
    EXPECT_FALSE(m_run.read("recording").contains("fallback\":{\"text"));
}

TEST_F(RecordingTest, ShortensTextsAndData)
{
    record({"everything"}, {"--text", "2"});
    EXPECT_EQ(m_run.calls("RegSetValueExW")[1].value("args").toObject().value("data").toObject(),
              (QJsonObject{{"data", "7856"}, {"length", 3}}));
    EXPECT_EQ(out(m_run.calls("RegEnumKeyW")[0], "name").toObject(),
              (QJsonObject{{"text", "Ke"}, {"length", 3}}));
}

TEST_F(RecordingTest, HasOnlyTheOperationsThatAreChosen)
{
    record({"everything"}, {"-e", "register,!RegCloseKey"});
    EXPECT_FALSE(m_run.calls("RegOpenKeyExW").isEmpty());
    EXPECT_TRUE(m_run.calls("RegCloseKey").isEmpty());
    EXPECT_TRUE(m_run.calls("findFirstFile").isEmpty());
}

TEST_F(RecordingTest, NeedsNoMoreMemoryWithTime)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps what is freed for a while";
#endif
    record({"often", "20000"});
    EXPECT_EQ(m_run.out(), "grown=0\n");
    EXPECT_EQ(m_run.calls("RegQueryValueExW").size(), 22000);
}

TEST_F(RecordingTest, PrintsTheCallsAsTheyCome)
{
    record({"everything"}, {"-p", "-e", "isURL"});
    EXPECT_TRUE(QRegularExpression("^[0-9]+ libtrace_caller.so\\+0x[0-9a-f]+ isURL\\("
                                   "text = \"http://example.com/\"\\) = 1 \\([0-9.]+ .s\\)\n")
                    .match(QString::fromUtf8(m_run.error()))
                    .hasMatch())
        << m_run.error().toStdString();
    record({"everything"}, {"--failures", "-e", "findClose"});
    EXPECT_EQ(m_run.error().count('\n'), 1);
    EXPECT_TRUE(m_run.error().contains(" findClose(search = 0x0) = 0 ("))
        << m_run.error().toStdString();
}

TEST_F(RecordingTest, PrintsTheCallsThatNeverReturnedLast)
{
    record({"exit"}, {"-p"});
    const QList<QByteArray> printed = m_run.error().split('\n');
    ASSERT_GE(printed.size(), 3);
    EXPECT_TRUE(printed[printed.size() - 3].contains(" enumFontFamiliesEx("))
        << m_run.error().toStdString();
    EXPECT_TRUE(printed[printed.size() - 3].endsWith(" (never returned)"));
    EXPECT_TRUE(printed[printed.size() - 2].contains(" EnumFontFamExProc("));
    EXPECT_TRUE(printed[printed.size() - 2].endsWith(" (never returned)"));
}

TEST_F(RecordingTest, PrintsWhatHandlesStandFor)
{
    record({"everything"}, {"-p", "-e", "register"});
    EXPECT_TRUE(QRegularExpression(" RegCloseKey\\(key = 0x[0-9a-f]+ \\[HKEY_")
                    .match(QString::fromUtf8(m_run.error()))
                    .hasMatch())
        << m_run.error().toStdString();
}

TEST_F(RecordingTest, ReachesAProgramThroughAScriptAndLeavesItsChildrenAlone)
{
    m_run.record({"sh", "-c",
                  QStringLiteral("%1 exit; echo \"$LD_PRELOAD\" >preloaded; exit 9")
                      .arg(QStringLiteral(QUAYSIDE_RECORDED))});
    EXPECT_EQ(m_run.status(), 9);
    EXPECT_EQ(m_run.calls("addLogFont").size(), 1);
    EXPECT_TRUE(m_run.read("preloaded").contains("libquayside-trace.so"));
}

TEST_F(RecordingTest, SaysWhenNothingIsRecorded)
{
    m_run.record({"true"});
    EXPECT_EQ(m_run.status(), 0);
    EXPECT_TRUE(m_run.error().contains("Nothing is recorded"));
    m_run.record({"./none"});
    EXPECT_EQ(m_run.status(), 3);
    m_run.record({"true"}, {"-e", "RegFoo"});
    EXPECT_EQ(m_run.status(), 2);
}

TEST_F(RecordingTest, RecordsTheApplicationWithTheSampleHostLibrary)
{
    m_run.setEnvironment("LD_LIBRARY_PATH", QStringLiteral(QUAYSIDE_TEST_HOST_FOLDER));
    m_run.setEnvironment("HOST_STORE", "store.ini");
    m_run.setEnvironment("HOST_CALL_SLOTS", "1");
    m_run.setEnvironment("HOST_STATUS", "6");
    m_run.record({QStringLiteral(QUAYSIDE_EXECUTABLE)});
    EXPECT_EQ(m_run.status(), 6);
    EXPECT_TRUE(m_run.out().contains("register.value=12345678 type=4 size=4"));
    EXPECT_EQ(m_run.calls("RegQueryValueExW").size(), 1);
    EXPECT_EQ(m_run.calls("messageBox").size(), 1);
    EXPECT_TRUE(m_run.hasEnded());
}

} // namespace
