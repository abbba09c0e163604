#include "trace/reading/TraceDifference.h"

#include "tests/trace/reading/RecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class TraceDifferenceTest : public RecordingTest
{
protected:
    /// Each difference as "kind before after part: was -> is".
    QStringList differences(const QByteArray& before, const QByteArray& after) const
    {
        const auto first = read(before, "a.trace");
        const auto second = read(after, "b.trace");
        TraceDifference difference(*first, *second);
        while (difference.step()) {
        }
        QStringList lines;
        for (const TraceDifference::Row& row : difference.rows())
            lines += QStringLiteral("%1 %2 %3 %4: %5 -> %6")
                         .arg(QLatin1String(nameOf(row.kind)))
                         .arg(row.before)
                         .arg(row.after)
                         .arg(row.part, row.was, row.is);
        return lines;
    }
    QStringList differences(const Made& before, const Made& after) const
    {
        return differences(before.bytes(), after.bytes());
    }

private:
    static const char* nameOf(TraceDifference::Kind kind)
    {
        switch (kind) {
        case TraceDifference::Kind::Added: return "added";
        case TraceDifference::Kind::Removed: return "removed";
        case TraceDifference::Kind::Changed: break;
        }
        return "changed";
    }
};

TEST_F(TraceDifferenceTest, ComparesHandlesPointersAndOffsetsByRole)
{
    Made::Call moved = Made::open("HKEY_CURRENT_USER", "A", "0x9999");
    moved.caller = "libfoo.so+0x77";
    moved.arguments.replace("0x7ff0", "0x1ff0");
    EXPECT_EQ(differences(Made()
                              .add(Made::open("HKEY_CURRENT_USER", "A", "0x5581"))
                              .add(Made::query("0x5581", "v", "07000000"))
                              .add(Made::close("0x5581")),
                          Made()
                              .add(moved)
                              .add(Made::query("0x9999", "v", "07000000"))
                              .add(Made::close("0x9999"))),
              QStringList());
}

TEST_F(TraceDifferenceTest, TellsResultsAndOutputsThatDiffer)
{
    EXPECT_EQ(
        differences(Made().add(Made::query("HKEY_CURRENT_USER", "v", "07000000")),
                    Made().add(Made::query("HKEY_CURRENT_USER", "v", "08000000"))),
        QStringList("changed 1 1 data (written): <07000000> (4 bytes) -> <08000000> (4 bytes)"));
    EXPECT_EQ(
        differences(Made().add(Made::close("0x1")),
                    Made().add({"register", "RegCloseKey", "{\"key\":{\"handle\":\"0x1\"}}", "1"})),
        QStringList("changed 1 1 (result): ERROR_SUCCESS -> ERROR_INVALID_FUNCTION"));
}

TEST_F(TraceDifferenceTest, PairsCallsAroundOnesThatAreAddedOrRemoved)
{
    Made before;
    Made after;
    after.add(Made::query("HKEY_CURRENT_USER", "first", "07000000"));
    for (const char* name : {"a", "b", "c"}) {
        before.add(Made::query("HKEY_CURRENT_USER", name, "07000000"));
        after.add(Made::query("HKEY_CURRENT_USER", name, "07000000"));
    }
    before.add(Made::close("0x1"));
    EXPECT_EQ(differences(before, after), QStringList({"added 0 1 :  -> ", "removed 4 0 :  -> "}));
}

TEST_F(TraceDifferenceTest, PairsCallsWithOtherArguments)
{
    EXPECT_EQ(differences(Made().add(Made::query("HKEY_CURRENT_USER", "v", "07000000")),
                          Made().add(Made::query("HKEY_CURRENT_USER", "w", "07000000"))),
              QStringList("changed 1 1 valueName: \"v\" -> \"w\""));
}

TEST_F(TraceDifferenceTest, LetsManagersTakeTurnsInAnyOrder)
{
    const Made::Call font = {"font", "IsValidCodePage", "{\"codePage\":936}"};
    EXPECT_EQ(differences(Made().add(font).add(Made::close("0x1")),
                          Made().add(Made::close("0x1")).add(font)),
              QStringList());
}

TEST_F(TraceDifferenceTest, TellsHandlesOfDifferentCalls)
{
    const auto recording = [](const char* asked) {
        return Made()
            .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
            .add(Made::open("HKEY_CURRENT_USER", "A", "0x2"))
            .add(Made::query(asked, "v", ""));
    };
    EXPECT_EQ(differences(recording("0x1"), recording("0x2")),
              QStringList("changed 3 3 key: handle of call 1 -> handle of call 2"));
}

TEST_F(TraceDifferenceTest, TellsACallThatDidNotReturn)
{
    const QByteArray begun = Made::header() + Made::begun(1, Made::close("0x1"));
    EXPECT_EQ(differences(Made().add(Made::close("0x1")).bytes(), begun),
              QStringList({"changed 1 1 (outcome): returned -> never returned",
                           "changed 1 1 (result): ERROR_SUCCESS -> "}));
}

TEST_F(TraceDifferenceTest, LeavesTimesAndThePointerAlone)
{
    const auto recording = [](const char* number) {
        const QByteArray value(number);
        return Made()
            .add({"cursor", "GetCursorPos", "{\"point\":{\"pointer\":\"0x1\"}}", "1",
                  "{\"point\":{\"x\":" + value + ",\"y\":2}}"})
            .add({"directory", "findNextFile", "{\"search\":{\"handle\":\"0x5\"}}", "1",
                  "{\"data\":{\"dwFileAttributes\":128,\"ftLastWriteTime.low\":" + value + "}}"});
    };
    EXPECT_EQ(differences(recording("1"), recording("2")), QStringList());
}

} // namespace
} // namespace trace
