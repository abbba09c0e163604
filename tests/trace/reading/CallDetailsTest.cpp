#include "trace/reading/CallDetails.h"
#include "tests/trace/reading/OpenRecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class CallDetailsTest : public OpenRecordingTest
{
protected:
    QString details(qint64 number)
    {
        return CallDetails(call(number), operation(number), m_recording->handleText(number)).text();
    }
};

TEST_F(CallDetailsTest, TellAllThatIsRecorded)
{
    take(Made()
             .add(Made::open("HKEY_CURRENT_USER", "A", "0x5581"))
             .add(Made::query("0x5581", "Size", "07000000"))
             .bytes());
    EXPECT_EQ(details(2).toStdString(), "Call 2: RegQueryValueExW (register)\n"
                                        "Caller: libfoo.so+0x10\n"
                                        "Entered: 100 ns after the start, in thread 1\n"
                                        "Took: 2.0 us\n"
                                        "Result: ERROR_SUCCESS\n"
                                        "\n"
                                        "Arguments:\n"
                                        "    key = 0x5581 [HKEY_CURRENT_USER\\A]\n"
                                        "    valueName = \"Size\"\n"
                                        "    reserved = null\n"
                                        "    type = 0x7ff1\n"
                                        "    data = 0x7ff2\n"
                                        "    byteCount = 4\n"
                                        "\n"
                                        "Written by the service:\n"
                                        "    type = REG_DWORD\n"
                                        "    data = <07000000> (4 bytes)\n"
                                        "    byteCount = 4");
}

TEST_F(CallDetailsTest, ShowLongDataWhole)
{
    const QByteArray digits(1000, 'a');
    take(Made().add(Made::query("HKEY_CURRENT_USER", "v", digits)).bytes());
    EXPECT_TRUE(details(1).contains(QLatin1String("<" + digits + ">")));
}

TEST_F(CallDetailsTest, SayThatACallNeverReturned)
{
    take(Made::header() + Made::begun(1, Made::close("0x1")));
    EXPECT_TRUE(details(1).contains("It never returned."));
    EXPECT_FALSE(details(1).contains("Result"));
}

TEST_F(CallDetailsTest, NameAProcedureAndTheCallAroundIt)
{
    take(Made()
             .add({"font", "enumFontFamiliesEx", "{}", "1"})
             .addBytes("{\"n\":2,\"t\":1,\"d\":2,\"thread\":1,\"depth\":1,\"in\":1,\"callback\":"
                       "\"EnumFontFamExProc\",\"args\":{\"fontType\":4},\"result\":0}\n")
             .bytes());
    EXPECT_TRUE(details(2).startsWith("Call 2: EnumFontFamExProc, a procedure of the library\n"));
    EXPECT_TRUE(details(2).contains("\nWithin call: 1\n"));
}

} // namespace
} // namespace trace
