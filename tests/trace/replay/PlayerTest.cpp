#include "tests/trace/replay/ReplayTest.h"

namespace replay {
namespace {

using Made = MadeRecording;

class PlayerTest : public ReplayTest
{
protected:
    static Made::Call set(const QByteArray& key, const QByteArray& name)
    {
        return {"register", "RegSetValueExW",
                "{\"key\":{\"handle\":\"" + key + "\"},\"valueName\":{\"text\":\"" + name +
                    "\"},\"reserved\":0,\"type\":4,\"data\":{\"data\":\"07000000\",\"length\":4},"
                    "\"byteCount\":4}"};
    }
    static Made::Call exists(const QByteArray& path, const QByteArray& answer)
    {
        return {"directory", "GetFileAttributesW", "{\"path\":{\"text\":\"" + path + "\"}}",
                answer};
    }
    static QByteArray usual(const QByteArray& found = "07000000")
    {
        return Made()
            .add(Made::open("HKEY_CURRENT_USER", "A", ""))
            .add(set("HKEY_CURRENT_USER", "A"))
            .add(Made::open("HKEY_CURRENT_USER", "A", "0x5581"))
            .add(Made::query("0x5581", "A", found))
            .add(Made::close("0x5581"))
            .bytes();
    }
};

TEST_F(PlayerTest, FindsNoDifferenceWhereThereIsNone)
{
    const ReplayReport report = replay(usual());
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.performed, 5);
    EXPECT_TRUE(report.isEqual());
    EXPECT_EQ(skipped(report), "");
}

TEST_F(PlayerTest, FindsWhatTheServiceAnswersOtherwise)
{
    const ReplayReport report = replay(usual("08000000"));
    EXPECT_EQ(differences(report), "4 data: <08000000> (4 bytes) -> <07000000> (4 bytes)\n");
    EXPECT_FALSE(report.isEqual());
    EXPECT_EQ(differences(replay(usual(""))),
              "4 (result): ERROR_INVALID_FUNCTION -> ERROR_SUCCESS\n"
              "4 type:  -> REG_DWORD\n4 data:  -> <07000000> (4 bytes)\n4 byteCount:  -> 4\n");
}

TEST_F(PlayerTest, ComparesHandlesByWhatTheyAre)
{
    EXPECT_EQ(
        differences(replay(Made().add(Made::open("HKEY_CURRENT_USER", "None", "0x5")).bytes())),
        "1 (result): ERROR_SUCCESS -> ERROR_FILE_NOT_FOUND\n1 result: 0x5 -> 0x0\n");
    const Made::Call same = {"register", "RegOpenKeyW",
                             "{\"key\":{\"handle\":\"HKEY_USERS\"},\"subKey\":null,\"result\":{"
                             "\"pointer\":\"0x1\"}}",
                             "0", "{\"result\":{\"handle\":\"HKEY_CLASSES_ROOT\"}}"};
    EXPECT_EQ(differences(replay(Made().add(same).bytes())),
              "1 result: HKEY_CLASSES_ROOT -> HKEY_USERS\n");
}

TEST_F(PlayerTest, SkipsWhatCannotBePerformedAndSaysWhy)
{
    using Reason = SkipReason;
    const auto reasonOf = [this](const QByteArray& bytes) {
        const ReplayReport report = replay(bytes);
        EXPECT_EQ(differences(report), "");
        return report.skipped.empty() ? Reason::None : report.skipped.back().reason;
    };
    const auto reason = [&](const Made::Call& call) { return reasonOf(Made().add(call).bytes()); };
    EXPECT_EQ(reason(Made::query("0x5581", "A", "")), Reason::UnknownHandle);
    EXPECT_EQ(reason({"register", "RegOther"}), Reason::UnknownOperation);
    EXPECT_EQ(reason({"directory", "isURL", "{\"path\":{\"text\":\"a\",\"length\":9}}"}),
              Reason::None);
    EXPECT_EQ(reason({"directory", "isURL", "{\"text\":{\"text\":\"a\",\"length\":9}}"}),
              Reason::Shortened);
    EXPECT_EQ(reason({"directory", "isURL", "{\"text\":{\"hidden\":9}}"}), Reason::Hidden);
    EXPECT_EQ(reason({"directory", "isURL", "{\"text\":{\"pointer\":\"0x9\"}}"}),
              Reason::Unreadable);
    EXPECT_EQ(reason(Made::close("HKEY_USERS")), Reason::RootGivenBack);
    EXPECT_EQ(reason({"resource", "loadString",
                      "{\"module\":{\"handle\":\"0x77\"},\"id\":1,\"buffer\":null,\"size\":1}"}),
              Reason::Module);
    EXPECT_EQ(reason(exists("/no/such/folder", "{\"flags\":144,\"names\":[]}")),
              Reason::UnknownPath);
    EXPECT_EQ(reasonOf(Made::header() + Made::begun(1, {"directory", "isURL"})),
              Reason::NeverReturned);
    EXPECT_EQ(reasonOf(Made::header() + Made::begun(1, {"directory", "isURL"}).chopped(2) +
                       ",\"d\":5,\"thrown\":true}\n"),
              Reason::LeftOtherwise);
    QByteArray bytes = usual();
    bytes += Made::line(6, Made::query("0x5581", "A", ""));
    EXPECT_EQ(reasonOf(bytes), Reason::EndedHandle);
}

TEST_F(PlayerTest, DoubtsWhatDiffersAfterAChangeThatWasNotPerformed)
{
    Made::Call hidden = set("HKEY_CURRENT_USER", "A");
    hidden.arguments.replace("{\"data\":\"07000000\",\"length\":4}", "{\"hidden\":4}");
    const Made::Call asked = Made::query("HKEY_CURRENT_USER", "A", "07000000");
    const ReplayReport report = replay(Made().add(hidden).add(asked).bytes());
    EXPECT_EQ(differences(report), "");
    ASSERT_EQ(report.skipped.size(), 2U);
    EXPECT_EQ(report.skipped[1].reason, SkipReason::AfterGap);
    EXPECT_NE(differences(replay(Made().add(asked).bytes())), "");
}

TEST_F(PlayerTest, TrustsNoSearchInAFolderOfWhichNothingIsKnown)
{
    const QByteArray data = "{\"dwFileAttributes\":{\"flags\":16,\"names\":[]},\"cFileName\":{"
                            "\"text\":\"home\"}}";
    const QByteArray bytes =
        Made()
            .add({"directory", "findFirstFile",
                  "{\"pattern\":{\"text\":\"/*\"},\"data\":{\"pointer\":\"0x1\"}}",
                  "{\"handle\":\"0x55\"}", "{\"data\":" + data + "}"})
            .add({"directory", "findNextFile",
                  "{\"search\":{\"handle\":\"0x55\"},\"data\":{\"pointer\":\"0x1\"}}", "1",
                  "{\"data\":" + data + "}"})
            .bytes();
    ReplayFolder folder(QStringLiteral("/home"));
    const ReplayReport report = replay(*read(bytes), folder);
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.skippedCount(), 2);
}

TEST_F(PlayerTest, TouchesNothingOutsideOfItsFolder)
{
    const QByteArray file = path("own.ini").toUtf8();
    const auto written = [&file](const char* operation) {
        return Made::Call{
            "profile", operation,
            "{\"section\":{\"text\":\"S\"},\"key\":{\"text\":\"k\"},\"value\":{\"text\":"
            "\"v\"},\"file\":{\"text\":\"" +
                file + "\"}}",
            "1"};
    };
    const Made::Call asked = {
        "profile", "GetPrivateProfileStringW",
        "{\"section\":{\"text\":\"S\"},\"key\":{\"text\":\"k\"},\"fallback\":null,\"buffer\":{"
        "\"pointer\":\"0x7\"},\"size\":16,\"file\":{\"text\":\"" +
            file + "\"}}",
        "1", "{\"buffer\":{\"text\":\"v\"}}"};
    const ReplayReport report = replay(Made()
                                           .add(written("WritePrivateProfileStringW"))
                                           .add(written("WritePrivateProfileStringA"))
                                           .add(asked)
                                           .bytes());
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.performed, 3);
    EXPECT_FALSE(QFile::exists(path("own.ini")));
}

TEST_F(PlayerTest, GivesPathsBackAsTheyWereRecorded)
{
    const auto exist = [](const QByteArray& path, const QByteArray& real) {
        return Made()
            .add({"directory", "isFileExist",
                  "{\"path\":{\"text\":\"" + path + "\"},\"realPath\":{\"text\":\"\"}}", "1",
                  "{\"realPath\":{\"text\":\"" + real + "\"}}"})
            .bytes();
    };
    const auto in = [this](const QByteArray& bytes, const char* directory) {
        ReplayFolder folder{QLatin1String(directory)};
        QFile file(folder.directory() + "/One.txt");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        folder.setKnown(QStringLiteral("one.txt"));
        folder.setKnown(QStringLiteral("/home/x/one.txt"));
        return differences(replay(*read(bytes), folder));
    };
    EXPECT_EQ(in(exist("/home/x/one.txt", "/home/x/One.txt"), "/home/x"), "");
    EXPECT_EQ(in(exist("./one.txt", "/home/x/One.txt"), "/home/x"), "");
    EXPECT_EQ(in(exist("./one.txt", "/home/y/One.txt"), ""), "");
    EXPECT_NE(in(exist("./one.txt", "/home/x/one.txt"), "/home/x"), "");
    EXPECT_NE(in(exist("./one.txt", "/home/y/two.txt"), ""), "");
}

TEST_F(PlayerTest, AnswersProceduresAsTheyAnswered)
{
    const auto fonts = [](const QByteArray& inner) {
        const QByteArray record =
            "{\"lfFaceName\":{\"text\":\"F\"},\"lfCharSet\":2,\"lfHeight\":7}";
        return Made()
                   .add({"font", "addLogFont",
                         "{\"globalName\":{\"text\":\"G\"},\"record\":" + record + "}", "null",
                         "{\"record\":{\"elfScript\":{\"text\":\"\xE7\xAC\xA6\xE5\x8F\xB7\"}}}"})
                   .add({"font", "enumFontFamiliesEx",
                         "{\"dc\":null,\"filter\":null,\"procedure\":{\"callback\":\"x\"},"
                         "\"callerValue\":-3,\"flags\":0}",
                         "9"})
                   .bytes() +
               inner;
    };
    const auto procedure = [](const QByteArray& number, const QByteArray& value) {
        return "{\"n\":" + number +
               ",\"t\":1,\"d\":2,\"thread\":1,\"depth\":1,\"in\":2,\"callback\":"
               "\"EnumFontFamExProc\",\"args\":{\"record\":{\"lfHeight\":7,\"lfWidth\":0,"
               "\"lfEscapement\":0,\"lfOrientation\":0,\"lfWeight\":0,\"lfItalic\":0,"
               "\"lfUnderline\":0,\"lfStrikeOut\":0,\"lfCharSet\":2,\"lfOutPrecision\":0,"
               "\"lfClipPrecision\":0,\"lfQuality\":0,\"lfPitchAndFamily\":0,\"lfFaceName\":{"
               "\"text\":\"F\"},\"elfFullName\":{\"text\":\"\"},\"elfStyle\":{\"text\":\"\"},"
               "\"elfScript\":{\"text\":\"\xE7\xAC\xA6\xE5\x8F\xB7\"}},\"metric\":null,"
               "\"fontType\":{\"flags\":4,\"names\":[\"TRUETYPE_FONTTYPE\"]},\"callerValue\":" +
               value + "},\"result\":9}\n";
    };
    EXPECT_EQ(differences(replay(fonts(procedure("3", "-3")))), "");
    EXPECT_EQ(differences(replay(fonts(procedure("3", "-4")))),
              "2 (procedure).callerValue: -4 -> -3\n");
    EXPECT_EQ(differences(replay(fonts(procedure("3", "-3") + procedure("4", "-3")))),
              "2 (procedure): called 2 times -> called 1 times\n");
    const QByteArray within = Made::line(
        4, {"directory", "isURL", "{\"text\":{\"text\":\"x\"}}", "1", "{}", "\"in\":3,"});
    EXPECT_EQ(differences(replay(fonts(procedure("3", "-3") + within))), "4 (result): 1 -> 0\n");
}

} // namespace
} // namespace replay
