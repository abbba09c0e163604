#include "platform/profiles/NarrowLines.h"

#include "tests/platform/profiles/ProfileManagerTest.h"

#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

using States = std::vector<LineState>;

struct Row
{
    const char* name;
    /// Every value occurs once.
    const char* text;
    States states;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

constexpr LineState blank = LineState::Blank;
constexpr LineState header = LineState::Header;
constexpr LineState entry = LineState::Entry;
constexpr LineState comment = LineState::Comment;
constexpr LineState noEquals = LineState::NoEquals;
constexpr LineState twoEquals = LineState::TwoEquals;
constexpr LineState beforeHeader = LineState::BeforeHeader;
constexpr LineState replacedHeader = LineState::ReplacedHeader;
constexpr LineState replacedKey = LineState::ReplacedKey;
constexpr LineState unreachable = LineState::Unreachable;

const Row rows[] = {
    {"Empty", "", {}},
    {"Entries", "[S]\na=v1\n  b  =  v2  \n", {header, entry, entry}},
    {"LastLineWithoutEnd", "[S]\na=v1", {header, entry}},
    {"CarriageReturns", "[S]\r\na=v1\r\n", {header, entry}},
    {"Blank", "\n[S]\n\n  \na=v1\n", {blank, header, blank, blank, entry}},
    {"NoEquals", "[S]\nword\n", {header, noEquals}},
    {"TwoEquals", "[S]\na=v1=v2\nb==v3\n", {header, twoEquals, twoEquals}},
    {"BeforeHeader", "a=v1\n[S]\nb=v2\n", {beforeHeader, header, entry}},
    {"TwoEqualsBeforeHeader", "a=v1=v2\n[S]\n", {twoEquals, header}},
    {"Comments", "; one\n[S]\n# two\n ; a=v1=v2\n", {comment, header, comment, comment}},
    {"CommentBeforeHeader", ";a=v1\n[S]\n", {comment, header}},
    {"CommentWithOneEquals", "[S]\n;a=v1\n#b=v2\n", {header, entry, entry}},
    {"RepeatedHeader",
     "[S]\na=v1\nword\n[S]\nb=v2\n",
     {replacedHeader, replacedHeader, noEquals, header, entry}},
    {"HeaderThreeTimes",
     "[S]\na=v1\n[S]\na=v2\n[S]\na=v3\n",
     {replacedHeader, replacedHeader, replacedHeader, replacedHeader, header, entry}},
    {"RepeatedHeaderBehindAnother",
     "[S]\na=v1\n[T]\nb=v2\n[S]\nc=v3\n",
     {replacedHeader, replacedHeader, header, entry, header, entry}},
    {"RepeatedKey", "[S]\na=v1\n a =v2\n", {header, replacedKey, entry}},
    {"SameKeyElsewhere", "[S]\na=v1\n[T]\na=v2\n", {header, entry, header, entry}},
    {"CaseMatters", "[S]\na=v1\nA=v2\n[s]\na=v3\n", {header, entry, entry, header, entry}},
    {"HeaderWithSpaceBehind", "[S] \na=v1\n", {header, unreachable}},
    {"HeaderWithoutEnd", "[S\na=v1\n", {header, unreachable}},
    {"OpeningBracketAlone", "[\na=v1\n", {header, unreachable}},
    {"HeaderWithBracketInside", "[a]b]\na=v1\n", {header, entry}},
    {"HeaderWithEquals", "[a=b]\na=v1\n", {header, entry}},
    {"IndentedHeader", "[S]\n [T]\na=v1\n", {header, noEquals, entry}},
    {"EmptyName", "[]\na=v1\n", {header, entry}},
    {"EmptyKey", "[S]\n=v1\n", {header, entry}},
    {"NotAscii", "[节]\n键=v1值\n", {header, entry}},
    {"ByteOrderMark", "\xef\xbb\xbf[S]\na=v1\n", {header, entry}},
};

QStringList linesOf(const char* text)
{
    return QString::fromUtf8(text).remove(QChar::ByteOrderMark).remove(u'\r').split(u'\n');
}

std::vector<LineReading> readingsOf(const char* text)
{
    const QString plain = linesOf(text).join(u'\n');
    return NarrowLines(plain).readings();
}

class NarrowLinesTest : public ProfileManagerTest, public testing::WithParamInterface<Row>
{
protected:
    void SetUp() override { write(GetParam().text); }

    QString read(const QString& section, const QString& key)
    {
        return QString::fromStdString(readNarrow(section.toUtf8(), key.toUtf8()));
    }

    // Everything that the service answers for any name that a line of the file could mean.
    QSet<QString> answers()
    {
        QSet<QString> found;
        const QStringList lines = linesOf(GetParam().text);
        for (const QString& sectionLine : lines) {
            for (const QString& line : lines) {
                for (const QString& section :
                     {sectionLine.mid(1),
                      sectionLine.mid(1).chopped(sectionLine.size() > 1 ? 1 : 0)})
                    found.insert(read(section, line.section(u'=', 0, 0).trimmed()));
            }
        }
        found.remove(QString());
        return found;
    }
};

TEST_P(NarrowLinesTest, TellsWhatBecomesOfEachLine)
{
    States states;
    for (const LineReading& reading : readingsOf(GetParam().text))
        states.push_back(reading.state);
    EXPECT_EQ(states, GetParam().states);
}

TEST_P(NarrowLinesTest, AgreesWithWhatTheServiceReads)
{
    const QStringList lines = linesOf(GetParam().text);
    QSet<QString> kept;
    int number = 0;
    for (const LineReading& reading : readingsOf(GetParam().text)) {
        const QString value = lines.at(number++).section(u'=', 1).trimmed();
        if (reading.state != LineState::Entry)
            continue;
        EXPECT_EQ(read(reading.section, reading.key), value);
        kept.insert(value);
    }
    EXPECT_EQ(answers(), kept);
}

// A kept value stands in the file after a write, a lost one does not.
TEST_P(NarrowLinesTest, AgreesWithWhatAWriteLeaves)
{
    ASSERT_EQ(writeNarrow("Another", "key", "value"), 1);
    const QString after = QString::fromUtf8(content());
    const QStringList lines = linesOf(GetParam().text);
    int number = 0;
    for (const LineReading& reading : readingsOf(GetParam().text)) {
        const QString& line = lines.at(number++);
        const QString value = line.section(u'=', -1).trimmed();
        if (reading.state != LineState::Header && reading.state != LineState::ReplacedHeader &&
            reading.state != LineState::Blank) {
            EXPECT_EQ(after.contains(value), !isLost(reading.state)) << line.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, NarrowLinesTest, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
