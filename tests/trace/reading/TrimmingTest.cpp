#include "trace/reading/Trimming.h"

#include "tests/trace/reading/RecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class TrimmingTest : public RecordingTest
{
protected:
    QVector<qint64> chosen(const QByteArray& bytes, const char* set) const
    {
        const auto file = read(bytes);
        CallFilter filter;
        EXPECT_TRUE(filter.add(QLatin1String(set)));
        Trimming trimming(*file, filter);
        walk(*file, [&trimming](const CallEntry& entry) { trimming.add(entry); });
        QVector<qint64> numbers;
        for (const qint64 number : trimming.chosen())
            numbers += number;
        return numbers;
    }

    static QByteArray nested(int number, int enclosing, const Made::Call& call)
    {
        Made::Call inner = call;
        inner.more = "\"in\":" + QByteArray::number(enclosing) + ",";
        return Made::line(number, inner);
    }
    static QByteArray callback(int number, int enclosing)
    {
        return "{\"n\":" + QByteArray::number(number) +
               ",\"t\":1,\"d\":1,\"thread\":1,\"depth\":1,\"in\":" + QByteArray::number(enclosing) +
               ",\"callback\":\"EnumFontFamExProc\",\"args\":{},\"result\":1}\n";
    }
};

using Numbers = QVector<qint64>;

TEST_F(TrimmingTest, KeepsTheCallsThatMadeTheHandlesUsed)
{
    const QByteArray bytes = Made()
                                 .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                                 .add(Made::open("HKEY_CURRENT_USER", "B", "0x2"))
                                 .add(Made::open("0x1", "C", "0x3"))
                                 .add(Made::query("0x2", "v", ""))
                                 .add(Made::query("0x3", "v", ""))
                                 .bytes();
    EXPECT_EQ(chosen(bytes, "5"), Numbers({1, 3, 5}));
    EXPECT_EQ(chosen(bytes, "4"), Numbers({2, 4}));
    EXPECT_EQ(chosen(bytes, "9"), Numbers());
}

TEST_F(TrimmingTest, TakesTheMakerThatWasTheLastBeforeTheCall)
{
    const QByteArray bytes = Made()
                                 .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                                 .add(Made::close("0x1"))
                                 .add(Made::open("HKEY_CURRENT_USER", "B", "0x1"))
                                 .add(Made::query("0x1", "v", ""))
                                 .bytes();
    EXPECT_EQ(chosen(bytes, "4"), Numbers({3, 4}));
    EXPECT_EQ(chosen(bytes, "2"), Numbers({1, 2}));
}

TEST_F(TrimmingTest, KeepsEnclosingCallsAndWhatTheyNeed)
{
    const QByteArray bytes = Made::header() +
                             Made::line(1, Made::open("HKEY_CURRENT_USER", "A", "0x1")) +
                             Made::line(2, Made::query("0x1", "outer", "")) +
                             nested(3, 2, Made::open("HKEY_CURRENT_USER", "B", "0x2")) +
                             Made::line(4, Made::query("0x2", "v", ""));
    EXPECT_EQ(chosen(bytes, "4"), Numbers({1, 2, 3, 4}));
}

TEST_F(TrimmingTest, KeepsTheAnswersOfProcedures)
{
    const QByteArray bytes =
        Made::header() + Made::line(1, {"font", "enumFontFamiliesEx", "{}", "1"}) + callback(2, 1) +
        callback(3, 1) + Made::line(4, {"font", "enumFontFamiliesEx", "{}", "1"}) + callback(5, 4);
    EXPECT_EQ(chosen(bytes, "1"), Numbers({1, 2, 3}));
    EXPECT_EQ(chosen(bytes, "5"), Numbers({4, 5}));
}

TEST_F(TrimmingTest, EndsWhereADamagedRecordingEnclosesInACircle)
{
    const QByteArray bytes =
        Made::header() + nested(1, 2, Made::close("0x1")) + nested(2, 1, Made::close("0x1"));
    EXPECT_EQ(chosen(bytes, "2"), Numbers({1, 2}));
}

} // namespace
} // namespace trace
