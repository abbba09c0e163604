#include "trace/reading/CallSubject.h"
#include "tests/trace/reading/OpenRecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class CallSubjectTest : public OpenRecordingTest
{
protected:
    /// "kind place names" of the last call of a recording; empty where it has no subject.
    std::string subject(const Made& recording)
    {
        OpenRecording& open = take(recording.bytes());
        const qint64 number = open.file().calls().back().number;
        const auto found =
            CallSubject::of(call(number), operation(number), [&](const QString& handle) {
                return open.analysis().handles().path(handle, number);
            });
        if (!found)
            return {};
        return std::to_string(static_cast<int>(found->kind)) + " " + found->place.toStdString() +
               " " + found->names.join("|").toStdString();
    }

    static Made::Call profile(const char* file)
    {
        return {"profile", "GetPrivateProfileStringW",
                QByteArray("{\"section\":{\"text\":\"S\"},\"key\":{\"text\":\"k\"},\"fallback\":"
                           "{\"text\":\"\"},\"file\":{\"text\":\"") +
                    file + "\"}}",
                "0", "{\"buffer\":{\"text\":\"\"}}"};
    }
};

TEST_F(CallSubjectTest, IsTheKeyThatWasOpened)
{
    EXPECT_EQ(subject(Made().add(Made::open("HKEY_CURRENT_USER", "A/B", ""))),
              "0 HKEY_CURRENT_USER\\A\\B ");
}

TEST_F(CallSubjectTest, IsTheValueThatWasAskedFor)
{
    EXPECT_EQ(subject(Made()
                          .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                          .add(Made::query("0x1", "v", ""))),
              "0 HKEY_CURRENT_USER\\A v");
}

TEST_F(CallSubjectTest, IsTheKeyOfAnyOtherCallWithAHandle)
{
    Made::Call close = Made::close("0x1");
    const auto open = Made::open("HKEY_CURRENT_USER", "A", "0x1");
    EXPECT_EQ(subject(Made().add(open).add(close)), "0 HKEY_CURRENT_USER\\A ");
    EXPECT_EQ(subject(Made().add(close)), "");
}

TEST_F(CallSubjectTest, IsTheProfileWithSectionAndEntry)
{
    EXPECT_EQ(subject(Made().add(profile("/a/b.ini"))), "1 /a/b.ini S|k");
    EXPECT_EQ(subject(Made().add(profile(""))), "");
}

TEST_F(CallSubjectTest, IsThePatternOfFiles)
{
    const Made::Call find = {"directory", "findFirstFile",
                             "{\"pattern\":{\"text\":\"/etc/*\"},\"data\":{\"pointer\":\"0x1\"}}",
                             "{\"handle\":\"0x9\"}", "{}"};
    const Made::Call close = {"directory", "findClose", "{\"search\":{\"handle\":\"0x9\"}}", "1"};
    EXPECT_EQ(subject(Made().add(find)), "2 /etc/* ");
    EXPECT_EQ(subject(Made().add(find).add(close)), "2 /etc/* ");
    EXPECT_EQ(subject(Made().add(close)), "");
}

TEST_F(CallSubjectTest, IsNothingForOtherCalls)
{
    EXPECT_EQ(subject(Made().add({"message", "messageBox", "{}", "7"})), "");
}

} // namespace
} // namespace trace
