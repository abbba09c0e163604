#include "tests/ctl/CtlTest.h"
#include "tests/support/MadeRecording.h"
#include "trace/bundle/BundleArchive.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Made = MadeRecording;

class CtlTrace : public CtlTest
{
protected:
    CtlTrace() { write("a.trace", usual().bytes()); }

    static Made usual()
    {
        Made::Call image = {"resource", "createImage", "{\"kind\":0,\"width\":16,\"height\":8}",
                            "{\"handle\":\"0x1\"}"};
        image.caller = "libbar.so+0x20";
        return Made()
            .add(Made::open("HKEY_CURRENT_USER", "Software/A", "0x5581"))
            .add(Made::query("0x5581", "Size", "07000000"))
            .add(Made::query("0x5581", "None", ""))
            .add(image)
            .add(Made::close("0x5581"));
    }
};

TEST_F(CtlTrace, DumpsCallsAsText)
{
    const Result result = run({"trace", "dump", "a.trace"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(
        result.out,
        "1 libfoo.so+0x10 RegOpenKeyExW(key = HKEY_CURRENT_USER, subKey = \"Software/A\", options "
        "= "
        "0, access = KEY_READ, result = 0x7ff0 -> 0x5581 [HKEY_CURRENT_USER\\Software\\A]) = "
        "ERROR_SUCCESS (1.0 us)\n"
        "2 libfoo.so+0x10 RegQueryValueExW(key = 0x5581 [HKEY_CURRENT_USER\\Software\\A], "
        "valueName "
        "= \"Size\", reserved = null, type = 0x7ff1 -> REG_DWORD, data = 0x7ff2 -> <07000000> (4 "
        "bytes), byteCount = 4 -> 4) = ERROR_SUCCESS (2.0 us)\n"
        "3 libfoo.so+0x10 RegQueryValueExW(key = 0x5581 [HKEY_CURRENT_USER\\Software\\A], "
        "valueName "
        "= \"None\", reserved = null, type = 0x7ff1, data = 0x7ff2, byteCount = 4) = "
        "ERROR_INVALID_FUNCTION (3.0 us)\n"
        "4 libbar.so+0x20 createImage(kind = 0, width = 16, height = 8) = 0x1 [createImage(0, 16, "
        "8)] (4.0 us)\n"
        "5 libfoo.so+0x10 RegCloseKey(key = 0x5581 [HKEY_CURRENT_USER\\Software\\A]) = "
        "ERROR_SUCCESS (5.0 us)\n");
}

TEST_F(CtlTrace, ReadsTheRecordingOfABundle)
{
    ASSERT_TRUE(QDir(path("")).mkdir("bundle"));
    write("bundle/recording.trace", usual().bytes());
    write("bundle/bundle.json", "{\"quaysideBundle\":1}");
    ASSERT_TRUE(trace::BundleArchive(path("a.qtrace")).pack(path("bundle")));
    for (const char* name : {"a.qtrace", "bundle"}) {
        EXPECT_EQ(out({"trace", "dump", name}), out({"trace", "dump", "a.trace"})) << name;
        EXPECT_EQ(out({"trace", "stat", name}), out({"trace", "stat", "a.trace"})) << name;
        EXPECT_EQ(out({"trace", "leaks", name}), out({"trace", "leaks", "a.trace"})) << name;
        EXPECT_EQ(out({"trace", "trim", name, "--calls", "2"}),
                  out({"trace", "trim", "a.trace", "--calls", "2"}))
            << name;
        EXPECT_EQ(status({"trace", "diff", name, "a.trace"}), 0) << name;
    }
}

TEST_F(CtlTrace, TellsABundleThatCannotBeRead)
{
    write("bad.qtrace", "PK\3\4");
    const Result result = run({"trace", "dump", "bad.qtrace"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("bad.qtrace cannot be unpacked"))
        << result.error.toStdString();
    EXPECT_EQ(status({"trace", "dump", "."}), 3);
}

TEST_F(CtlTrace, DumpsWhatIsWantedAlone)
{
    EXPECT_TRUE(out({"trace", "dump", "a.trace", "--failures"}).startsWith("3 libfoo"));
    EXPECT_TRUE(out({"trace", "dump", "a.trace", "--calls", "2-5,op:Reg*,caller:libfoo", "--grep",
                     "Close|Size"})
                    .startsWith("2 libfoo"));
    EXPECT_EQ(out({"trace", "dump", "a.trace", "--calls", "4"}).count('\n'), 1);
    EXPECT_EQ(status({"trace", "dump", "a.trace", "--grep", "nowhere"}), 1);
    EXPECT_EQ(status({"trace", "dump", "a.trace", "--calls", "9"}), 1);
}

// The shell waits for the line that it expects, and for nothing else.
TEST_F(CtlTrace, DumpsCallsAsTheyComeUntilItIsInterrupted)
{
    const Made::Call close = Made::close("0x77");
    write("6", Made::begun(6, close));
    write("7", Made::line(7, Made::query("HKEY_CURRENT_USER", "Later", "")));
    write("6 again", Made::line(6, close));
    write("8", Made::begun(8, Made::close("0x88")));
    const Result result = shell("$CTL trace dump --follow a.trace >out & dump=$!;"
                                "until grep -q '^5 ' out; do sleep 0.05; done;"
                                "cat 6 7 >>a.trace;"
                                "until grep -q '^7 ' out; do sleep 0.05; done;"
                                "cat '6 again' 8 >>a.trace;"
                                "until grep -q '^6 ' out; do sleep 0.05; done;"
                                "kill -INT $dump; wait $dump");
    EXPECT_EQ(result.status, 0);
    QByteArrayList numbers;
    for (const QByteArray& line : read("out").split('\n'))
        numbers += line.left(line.indexOf(' '));
    EXPECT_EQ(numbers.join(' ').toStdString(), "1 2 3 4 5 7 6 ");
}

TEST_F(CtlTrace, FollowsARecordingThatHasOnlyBegunToItsEnd)
{
    write("b.trace", {});
    write("later", usual().bytes() + Made::begun(6, Made::close("0x88")) +
                       "{\"ended\":{\"calls\":5,\"time\":9}}\n");
    const Result result =
        shell("$CTL --json trace dump --follow --calls 2,6 b.trace >out & dump=$!;"
              "cat later >>b.trace; wait $dump");
    EXPECT_EQ(result.status, 0);
    const QJsonArray records =
        QJsonDocument::fromJson(read("out")).object().value("records").toArray();
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records.at(0).toObject().value("call").toString(), "2");
    EXPECT_EQ(records.at(1).toObject().value("call").toString(), "6");
    EXPECT_EQ(records.at(1).toObject().value("duration").toString(), "");
    EXPECT_EQ(status({"trace", "dump", "--follow", "missing.trace"}), 3);
    EXPECT_EQ(status({"trace", "dump", "--follow", "--calls", "9", "b.trace"}), 1);
}

TEST_F(CtlTrace, DumpsAsJson)
{
    const QJsonObject document =
        QJsonDocument::fromJson(out({"--json", "trace", "dump", "a.trace", "--calls", "3"}))
            .object();
    const QJsonObject record = document.value("records").toArray().at(0).toObject();
    EXPECT_EQ(document.value("status").toInt(-1), 0);
    EXPECT_EQ(record.value("call").toString(), "3");
    EXPECT_EQ(record.value("operation").toString(), "RegQueryValueExW");
    EXPECT_EQ(record.value("result").toString(), "ERROR_INVALID_FUNCTION");
    EXPECT_EQ(record.value("duration").toString(), "3000");
    EXPECT_TRUE(record.value("arguments").toString().contains("valueName = \"None\""));
}

TEST_F(CtlTrace, TellsDamagedLinesAndReadsTheOthers)
{
    write("b.trace", usual().addBytes("damaged\n").bytes().chopped(3));
    const Result cut = run({"trace", "dump", "b.trace"});
    EXPECT_EQ(cut.status, 0);
    EXPECT_EQ(cut.out.count('\n'), 5);
    EXPECT_EQ(cut.error,
              "quaysidectl: b.trace: Line 7 is cut off: the recording has ended within it.\n");
    QByteArray many = Made::header();
    many += QByteArray("x\n").repeated(1200);
    write("c.trace", many);
    const QByteArray error = run({"trace", "dump", "c.trace"}).error;
    EXPECT_EQ(error.count('\n'), 6);
    EXPECT_TRUE(error.contains("c.trace: 1,195 more lines cannot be read."));
}

TEST_F(CtlTrace, RefusesWhatMakesNoSense)
{
    write("text", "no recording\n");
    EXPECT_EQ(status({"trace", "dump", "text"}), 3);
    EXPECT_EQ(status({"trace", "stat", "missing"}), 3);
    EXPECT_EQ(status({"trace", "dump", "a.trace", "--calls", "what:x"}), 2);
    EXPECT_EQ(status({"trace", "dump", "a.trace", "--grep", "("}), 2);
    EXPECT_EQ(status({"trace", "stat", "a.trace", "--top", "x"}), 2);
    EXPECT_EQ(status({"trace", "trim", "a.trace", "b"}), 2);
    EXPECT_EQ(status({"--json", "trace", "trim", "a.trace", "--calls", "1"}), 2);
    EXPECT_EQ(status({"trace", "diff", "a.trace"}), 2);
}

TEST_F(CtlTrace, CountsWhatWasCalledAndAskedFor)
{
    const Result result = run({"trace", "stat", "a.trace"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "operation\tregister\tRegCloseKey\t1\t0\t0\t\t5000\t5000\n"
                          "operation\tregister\tRegQueryValueExW\t2\t1\t0\t\t5000\t3000\n"
                          "operation\tresource\tcreateImage\t1\t0\t0\t\t4000\t4000\n"
                          "operation\tregister\tRegOpenKeyExW\t1\t0\t0\t\t1000\t1000\n"
                          "key\tHKEY_CURRENT_USER\\\\Software\\\\A\t\t1\t\t\t0\t\t\n"
                          "value\tHKEY_CURRENT_USER\\\\Software\\\\A\tNone\t1\t\t\t1\t\t\n"
                          "value\tHKEY_CURRENT_USER\\\\Software\\\\A\tSize\t1\t\t\t0\t\t\n");
    EXPECT_EQ(out({"trace", "stat", "a.trace", "--absent"}),
              "value\tHKEY_CURRENT_USER\\\\Software\\\\A\tNone\t1\t\t\t1\t\t\n");
    EXPECT_EQ(out({"trace", "stat", "a.trace", "--top", "1"}).count("\nvalue"), 1);
    EXPECT_EQ(out({"trace", "stat", "a.trace", "--calls", "3"}).count('\n'), 2);
}

TEST_F(CtlTrace, ListsWhatWasNeverGivenBack)
{
    const Result result = run({"trace", "leaks", "a.trace"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out,
              "graphics\t0x1\tcreateImage(0, 16, 8)\t4\tlibbar.so+0x20\tcreateImage\t\n");
    EXPECT_EQ(result.error, "quaysidectl: The recording has no end: the program was still running, "
                            "or was killed.\n");
    write("b.trace", Made()
                         .add({"directory", "PathFindExtensionW", "{\"path\":{\"text\":\"a.b\"}}",
                               "{\"text\":\".b\"}"})
                         .addBytes("{\"ended\":{\"calls\":1,\"time\":9}}\n")
                         .bytes());
    const Result array = run({"trace", "leaks", "b.trace"});
    EXPECT_EQ(array.status, 0);
    EXPECT_EQ(array.error, "");
    EXPECT_TRUE(array.out.startsWith("array\t"));
}

TEST_F(CtlTrace, ComparesTwoRecordings)
{
    write("b.trace", Made()
                         .add(Made::open("HKEY_CURRENT_USER", "Software/A", "0x6000"))
                         .add(Made::query("0x6000", "Size", "08000000"))
                         .add(Made::query("0x6000", "None", ""))
                         .add(Made::close("0x6000"))
                         .bytes());
    EXPECT_EQ(run({"trace", "diff", "a.trace", "a.trace"}).out, "");
    EXPECT_EQ(status({"trace", "diff", "a.trace", "a.trace"}), 0);
    const Result result = run({"trace", "diff", "a.trace", "b.trace"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "changed\t2\t2\tlibfoo.so+0x10\tRegQueryValueExW\tdata (written)\t"
                          "<07000000> (4 bytes)\t<08000000> (4 bytes)\n"
                          "removed\t4\t\tlibbar.so+0x20\tcreateImage\t\t"
                          "kind = 0, width = 16, height = 8\t\n");
    EXPECT_EQ(out({"trace", "diff", "a.trace", "b.trace", "--first"}).count('\n'), 1);
}

TEST_F(CtlTrace, KeepsCallsWithWhatTheyNeed)
{
    const Result result = run({"trace", "trim", "a.trace", "b.trace", "--calls", "3"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error,
              "quaysidectl: Kept: 2 of 5 calls, 1 of them because others need them.\n");
    const QList<QByteArray> lines = read("a.trace").split('\n');
    EXPECT_EQ(read("b.trace"), lines[0] + '\n' + lines[1] + '\n' + lines[3] + '\n');
    EXPECT_EQ(out({"trace", "trim", "a.trace", "--calls", "3"}), read("b.trace"));
    EXPECT_EQ(out({"trace", "dump", "b.trace"}).count('\n'), 2);
}

TEST_F(CtlTrace, WritesNothingWhereNoCallIsWanted)
{
    write("b.trace", "former");
    EXPECT_EQ(status({"trace", "trim", "a.trace", "b.trace", "--calls", "9"}), 1);
    EXPECT_EQ(read("b.trace"), "former");
}

} // namespace
