#include "platform/profiles/WideLines.h"

#include "tests/platform/profiles/ProfileManagerTest.h"

#include <gtest/gtest.h>

namespace {

using States = std::vector<LineState>;

struct Row
{
    const char* name;
    QByteArray text;
    States states;
    /// What the family reads under the names of the entries, in their order.
    std::vector<std::string> values;
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
constexpr LineState replacedKey = LineState::ReplacedKey;
constexpr LineState continuation = LineState::Continuation;
constexpr LineState notFound = LineState::NotFound;

const Row rows[] = {
    {"Empty", "", {}, {}},
    {"Entries", "[S]\na=v1\n  b  =  v2  \n", {header, entry, entry}, {"v1", "v2"}},
    {"CarriageReturns", "[S]\r\na=v1\r\nb=v2", {header, entry, entry}, {"v1", "v2"}},
    {"Blank", "\n[S]\n\n  \na=v1\n", {blank, header, blank, blank, entry}, {"v1"}},
    {"NoEquals", "[S]\nword\na=v1\n", {header, noEquals, entry}, {"v1"}},
    {"TwoEquals", "[S]\na=v1=v2\n", {header, entry}, {"v1=v2"}},
    {"BeforeHeader", "a=v1\n[S]\nb=v2\n", {entry, header, entry}, {"v1", "v2"}},
    {"Comments", "; a=v1\n[S]\n  ; b=v2\n# word\n", {comment, header, comment, comment}, {}},
    {"NumberSignWithEquals", "[S]\n#a=v1\n", {header, entry}, {"v1"}},
    {"CommentsInARow",
     ";a\n;b\n;c\n[S]\na=v1\n",
     {comment, comment, comment, header, entry},
     {"v1"}},
    {"SemicolonBehindAValue", "[S]\na=v1;v2\nb=v3\n", {header, entry, entry}, {"v1", "v3"}},
    {"CommaBehindAValue", "[S]\na=v1,v2\n", {header, entry}, {""}},
    {"Quotes", "[S]\na=\"v1, v2; v3\"\n", {header, entry}, {"v1, v2; v3"}},
    {"QuotesOverTwoLines",
     "[S]\na=\"v1\nv2\"\nb=v3\n",
     {header, entry, continuation, entry},
     {"v1\nv2", "v3"}},
    {"BackslashAtTheEnd",
     "[S]\na=v1\\\nv2\nb=v3\n",
     {header, entry, continuation, entry},
     {"v1v2", "v3"}},
    {"BackslashAtTheEndOfDosLine",
     "[S]\r\na=v1\\\r\nv2\r\nb=v3\r\n",
     {header, entry, continuation, entry},
     {"v1v2", "v3"}},
    {"RepeatedHeader", "[S]\na=v1\n[S]\nb=v2\n", {header, entry, header, entry}, {"v1", "v2"}},
    {"RepeatedKey",
     "[S]\na=v1\n[T]\n[S]\na=v2\n",
     {header, replacedKey, header, header, entry},
     {"v2"}},
    {"HeaderWithTextBehind", "[S] text\na=v1\n", {header, entry}, {"v1"}},
    {"HeaderWithoutEnd", "[S\na=v1\n", {header, entry}, {"v1"}},
    {"HeaderWithSpaces", "[ S ]\na=v1\n", {header, entry}, {"v1"}},
    {"General",
     "[GENERAL]\na=v1\n[%general]\nb=v2\n",
     {header, entry, header, entry},
     {"v1", "v2"}},
    {"EscapedNames",
     "[a%20b]\nc%3Dd=v1\ne\\f=v2\n%U8282=v3\n100%=v4\n%zz=v5\n%4=v6\n",
     {header, entry, entry, entry, entry, entry, entry},
     {"v1", "v2", "v3", "v4", "v5", "v6"}},
    {"NamesAreBytes", "[\xe8\x8a\x82]\n\xe9\x94\xae=v1\n", {header, entry}, {"v1"}},
    {"ByteOrderMark", "\xef\xbb\xbf[S]\na=v1\n", {header, entry}, {"v1"}},
    {"ByteOrderMarkBeforeAKey", "\xef\xbb\xbf a=v1\n", {entry}, {"v1"}},
    {"BackslashBeforeABlankLine",
     "[S]\na=v1\\\n\nb=v2\n",
     {header, entry, continuation, entry},
     {"v1", "v2"}},
    {"NoSectionName", "[]\na=v1\n", {header, notFound}, {}},
    {"NoKey", "=v1\n[S]\n=v2\n", {entry, header, notFound}, {"v1"}},
    {"SlashInAKey", "[S]\nT\\k=v1\n[S\\T]\nk=v2\n", {header, replacedKey, header, entry}, {"v2"}},
    {"SlashInALaterKey",
     "[S\\T]\nk=v1\n[S]\nT\\k=v2\n",
     {header, entry, header, replacedKey},
     {"v1"}},
    {"SpaceBehindAComment",
     "; c\n a=v1\n;d\n  ; e\n [S]\nb=v2\n",
     {comment, entry, comment, comment, header, entry},
     {"v1", "v2"}},
};

std::vector<LineReading> readingsOf(const QByteArray& text)
{
    return WideLines(text).readings();
}

// What becomes of a value that is kept, one line each: list, cut, escaped.
struct ValueRow
{
    const char* name;
    QByteArray line;
    std::string kinds;
    std::string value;
};

void PrintTo(const ValueRow& row, std::ostream* out)
{
    *out << row.name;
}

const ValueRow valueRows[] = {
    {"Plain", "k=a b", "", "a b"},
    {"Comma", "k=alpha, beta", "list", ""},
    {"CommaAtTheEnd", "k=a,", "list", ""},
    {"CommaInQuotes", "k=\"a, b\"", "", "a, b"},
    {"CommaBehindQuotes", "k=\"a\", b", "list", ""},
    {"CommaInTheKey", "a,b=1", "", "1"},
    {"Semicolon", "k=1 ; why", "cut", "1"},
    {"SemicolonAlone", "k=1;", "cut", "1"},
    {"SemicolonInQuotes", "k=\"1;2\"", "", "1;2"},
    {"CommaInTheTail", "k=1 ; a, b\\", "cut", "1"},
    {"CommaAndSemicolon", "k=a,b;c", "list cut", ""},
    {"Backslash", "k=C:\\new\\table", "escape", "C:\new\table"},
    {"TwoBackslashes", "k=C:\\\\dir", "escape", "C:\\dir"},
    {"BackslashInQuotes", "k=\"a\\tb\"", "escape", "a\tb"},
    {"BackslashBeforeAComma", "k=a\\,b", "escape", "ab"},
    {"BackslashAtTheEnd", "k=a\\\nb", "", "ab"},
    {"BackslashAtTheEndOfTheFile", "k=a\\", "escape", "a"},
};

class WideReading : public ProfileManagerTest
{
protected:
    std::string read(const LineReading& reading)
    {
        const std::wstring value = readWide(reading.section.toStdWString().c_str(),
                                            reading.key.toStdWString().c_str(), L"(not found)");
        return QString::fromStdWString(value).toStdString();
    }
};

class WideLinesTest : public WideReading, public testing::WithParamInterface<Row>
{
};

TEST_P(WideLinesTest, TellsWhatBecomesOfEachLine)
{
    States states;
    for (const LineReading& reading : readingsOf(GetParam().text))
        states.push_back(reading.state);
    EXPECT_EQ(states, GetParam().states);
}

TEST_P(WideLinesTest, AgreesWithWhatTheServiceReads)
{
    write(GetParam().text);
    std::vector<std::string> values;
    for (const LineReading& reading : readingsOf(GetParam().text)) {
        if (reading.state == LineState::Entry)
            values.push_back(read(reading));
    }
    EXPECT_EQ(values, GetParam().values);
}

class WideValueTest : public WideReading, public testing::WithParamInterface<ValueRow>
{
};

TEST_P(WideValueTest, TellsWhatBecomesOfTheValue)
{
    const LineReading reading = readingsOf("[S]\n" + GetParam().line + "\n")[1];
    EXPECT_EQ(reading.state, entry);
    QStringList kinds;
    kinds << (reading.isList ? QStringLiteral("list") : QString())
          << (reading.isCut ? QStringLiteral("cut") : QString())
          << (reading.isEscaped ? QStringLiteral("escape") : QString());
    kinds.removeAll(QString());
    EXPECT_EQ(kinds.join(QLatin1Char(' ')).toStdString(), GetParam().kinds);
}

TEST_P(WideValueTest, AgreesWithWhatTheServiceReads)
{
    write("[S]\n" + GetParam().line + "\n");
    EXPECT_EQ(read(readingsOf(content())[1]), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Values, WideValueTest, testing::ValuesIn(valueRows),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(Texts, WideLinesTest, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
