#include "trace/reading/Leaks.h"

#include "tests/trace/reading/RecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class LeaksTest : public RecordingTest
{
protected:
    /// Each leak as "call description".
    QStringList leaks(const Made& recording)
    {
        m_file = read(recording.bytes());
        Leaks leaks(*m_file);
        walk(*m_file, [&leaks](const CallEntry& entry) { leaks.add(entry); });
        m_all = leaks.all();
        QStringList lines;
        for (const Leaks::Leak& leak : m_all)
            lines += QStringLiteral("%1 %2").arg(leak.handle.maker).arg(leak.handle.description);
        return lines;
    }

    std::unique_ptr<TraceFile> m_file;
    std::vector<Leaks::Leak> m_all;
};

TEST_F(LeaksTest, FindsNothingWhereAllIsGivenBack)
{
    EXPECT_EQ(leaks(Made()
                        .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                        .add(Made::close("0x1"))
                        .add(Made::open("HKEY_CURRENT_USER", "B", ""))),
              QStringList());
}

TEST_F(LeaksTest, NamesTheCallThatMadeTheHandle)
{
    EXPECT_EQ(leaks(Made()
                        .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                        .add(Made::open("0x1", "B", "0x2"))
                        .add(Made::close("0x1"))),
              QStringList("2 HKEY_CURRENT_USER\\A\\B"));
    EXPECT_EQ(m_all[0].caller, "libfoo.so+0x10");
    EXPECT_EQ(m_all[0].operation, "RegOpenKeyExW");
    EXPECT_EQ(m_all[0].handle.kind, HandleTable::Kind::Key);
}

// Only one of the two is to be closed.
TEST_F(LeaksTest, TakesAKeyThatIsHandedBackForTheSame)
{
    const Made::Call same = {"register", "RegOpenKeyW",
                             "{\"key\":{\"handle\":\"0x1\"},\"subKey\":{\"text\":\"\"}}", "0",
                             "{\"result\":{\"handle\":\"0x1\"}}"};
    EXPECT_EQ(leaks(Made().add(Made::open("HKEY_CURRENT_USER", "A", "0x1")).add(same)),
              QStringList("1 HKEY_CURRENT_USER\\A"));
}

TEST_F(LeaksTest, FindsSearchesImagesAndArrays)
{
    const QByteArray pattern = "{\"pattern\":{\"text\":\"/x/*\"},\"data\":null}";
    EXPECT_EQ(
        leaks(Made()
                  .add({"directory", "findFirstFile", pattern, "{\"handle\":\"0x77\"}"})
                  .add({"resource", "createImage", "{\"kind\":0,\"width\":16,\"height\":8}",
                        "{\"handle\":\"0x1\"}"})
                  .add({"resource", "createBrush", "{\"color\":255}", "{\"handle\":\"0x40001\"}"})
                  .add({"resource", "deleteObject", "{\"handle\":{\"handle\":\"0x40001\"}}"})
                  .add({"directory", "PathFindExtensionW", "{\"path\":{\"text\":\"a.b\"}}",
                        "{\"text\":\".b\"}"})),
        QStringList({"1 /x/*", "2 createImage(0, 16, 8)", "5 a.b"}));
    EXPECT_EQ(m_all[0].handle.kind, HandleTable::Kind::Search);
    EXPECT_EQ(m_all[1].handle.kind, HandleTable::Kind::Graphics);
    EXPECT_EQ(m_all[2].handle.kind, HandleTable::Kind::Array);
}

// Memory that is handed out again was freed before.
TEST_F(LeaksTest, TakesAnArrayForFreedWhoseAddressIsUsedAgain)
{
    const Made::Call array = {"directory", "PathFindExtensionW", "{\"path\":{\"text\":\"a.b\"}}",
                              "{\"pointer\":\"0x77\",\"text\":\".b\"}"};
    EXPECT_EQ(leaks(Made().add(array).add(array)), QStringList("2 a.b"));
}

} // namespace
} // namespace trace
