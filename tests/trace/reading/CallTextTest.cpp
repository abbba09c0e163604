#include "trace/reading/CallText.h"
#include "tests/trace/reading/RecordingTest.h"
#include "trace/reading/HandleTable.h"

namespace trace {
namespace {

class CallTextTest : public RecordingTest
{
protected:
    /// The lines of all calls of a recording.
    QStringList lines(const QByteArray& bytes) const
    {
        const auto file = read(bytes);
        QStringList lines;
        HandleTable handles;
        const CallText text(handles);
        for (const CallEntry& entry : file->calls()) {
            const Operation* const operation = file->operation(entry);
            if (HandleTable::isMaking(operation))
                handles.follow(*file, entry);
            const std::optional<Call> call = file->call(entry);
            lines += call ? text.line(*call, operation) : QString();
            if (!HandleTable::isMaking(operation))
                handles.follow(*file, entry);
        }
        return lines;
    }
    QString line(const MadeRecording::Call& call) const
    {
        return lines(MadeRecording().add(call).bytes()).value(0);
    }
};

using Made = MadeRecording;

TEST_F(CallTextTest, ShowsArgumentsOutputsResultAndTime)
{
    EXPECT_EQ(line(Made::query("HKEY_CURRENT_USER", "Size", "07000000")),
              "1 libfoo.so+0x10 RegQueryValueExW(key = HKEY_CURRENT_USER, valueName = \"Size\", "
              "reserved = null, type = 0x7ff1 -> REG_DWORD, data = 0x7ff2 -> <07000000> (4 bytes), "
              "byteCount = 4 -> 4) = ERROR_SUCCESS (1.0 us)");
}

TEST_F(CallTextTest, ShowsHandlesWithTheirPathsUntilTheyAreClosed)
{
    const QStringList lines =
        this->lines(Made()
                        .add(Made::open("HKEY_CURRENT_USER", "Software/A", "0x5581"))
                        .add(Made::open("0x5581", "B", "0x5582"))
                        .add(Made::close("0x5582"))
                        .add(Made::close("0x5582"))
                        .bytes());
    EXPECT_TRUE(lines[0].contains(
        "result = 0x7ff0 -> 0x5581 [HKEY_CURRENT_USER\\Software\\A]) = ERROR_SUCCESS"));
    EXPECT_TRUE(lines[2].contains("RegCloseKey(key = 0x5582 [HKEY_CURRENT_USER\\Software\\A\\B])"));
    EXPECT_TRUE(lines[3].contains("RegCloseKey(key = 0x5582)"));
}

TEST_F(CallTextTest, IndentsNestedCalls)
{
    const QStringList lines = this->lines(
        Made()
            .add({"font", "enumFontFamiliesEx", "{\"procedure\":{\"callback\":\"libfoo.so+0x3\"}}",
                  "1"})
            .addBytes("{\"n\":2,\"t\":1,\"d\":2,\"thread\":1,\"depth\":1,\"in\":1,\"callback\":"
                      "\"EnumFontFamExProc\",\"args\":{\"fontType\":{\"flags\":4,\"names\":"
                      "[\"TRUETYPE_FONTTYPE\"]},\"record\":{\"lfHeight\":12,\"lfFaceName\":\"A\"}},"
                      "\"result\":0}\n")
            .bytes());
    EXPECT_EQ(lines[0],
              "1 libfoo.so+0x10 enumFontFamiliesEx(procedure = libfoo.so+0x3) = 1 (1.0 us)");
    EXPECT_EQ(lines[1], "2   EnumFontFamExProc(fontType = TRUETYPE_FONTTYPE, record = "
                        "{lfHeight = 12, lfFaceName = \"A\"}) = 0 (2 ns)");
}

TEST_F(CallTextTest, SaysThatACallNeverReturned)
{
    EXPECT_EQ(lines(Made::header() + Made::begun(1, Made::close("0x1"))).value(0),
              "1 libfoo.so+0x10 RegCloseKey(key = 0x1) (never returned)");
}

TEST_F(CallTextTest, ShowsTextsByTheirRoles)
{
    const QString shown = line({"x", "y",
                                R"({"a":null,"b":{"text":"q\"\\\n\u001b\ud800z"},)"
                                R"("c":{"text":"ab","length":500},"d":{"hidden":16},)"
                                R"("e":{"flags":0,"names":[]},"f":{"flags":4096,"names":[]},)"
                                R"("g":{"flags":3,"names":["A","B"]},"h":[1,true,"t"],)"
                                R"("i":18446744073709551615})",
                                "null"});
    EXPECT_EQ(
        shown,
        "1 libfoo.so+0x10 y(a = null, b = \"q\\\"\\\\\\u000a\\u001b\\ud800z\", c = \"ab\"... "
        "(500 characters), d = <hidden> (16 bytes), e = 0, f = 0x1000, g = A|B, h = [1, true, "
        "\"t\"], i = 18446744073709551615) = null (1.0 us)");
}

TEST_F(CallTextTest, ShowsWhatIsInAnArray)
{
    EXPECT_EQ(line({"directory", "PathFindExtensionW", "{\"path\":{\"text\":\"a.b\"}}",
                    "{\"pointer\":\"0x77\",\"text\":\".b\"}"}),
              "1 libfoo.so+0x10 PathFindExtensionW(path = \"a.b\") = 0x77 \".b\" (1.0 us)");
}

TEST_F(CallTextTest, ShowsNoResultOfAnOperationThatReturnsNothing)
{
    EXPECT_EQ(line({"userInput", "setKeyPressed", "{\"qtKey\":32,\"pressed\":true}", "null"}),
              "1 libfoo.so+0x10 setKeyPressed(qtKey = 32, pressed = true) (1.0 us)");
}

TEST_F(CallTextTest, ShortensLongData)
{
    const QByteArray digits(2000, '7');
    const QString shown = line({"x", "y", "{\"a\":{\"data\":\"" + digits + "\",\"length\":1000}}"});
    EXPECT_TRUE(shown.contains("777...> (1000 bytes)"));
    EXPECT_LT(shown.size(), 200);
}

TEST_F(CallTextTest, ChoosesTheUnitOfTimes)
{
    EXPECT_EQ(CallText::time(0), "0 ns");
    EXPECT_EQ(CallText::time(999), "999 ns");
    EXPECT_EQ(CallText::time(4321), "4.3 us");
    EXPECT_EQ(CallText::time(1200000), "1.2 ms");
    EXPECT_EQ(CallText::time(90000000000), "90.0 s");
}

} // namespace
} // namespace trace
