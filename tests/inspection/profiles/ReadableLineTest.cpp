#include "inspection/profiles/ReadableLine.h"
#include "inspection/profiles/ProfileForm.h"

#include <gtest/gtest.h>

namespace {

using End = ReadableLine::End;

struct Line
{
    const char* name;
    QByteArray bytes;
    const char* text;
    bool isText;
    End end;
};

class ReadableLineTest : public testing::TestWithParam<Line>
{
};

TEST_P(ReadableLineTest, HidesNothing)
{
    const ByteLines lines(GetParam().bytes);
    const ReadableLine line(lines, 0);
    EXPECT_EQ(line.text().toStdString(), GetParam().text);
    EXPECT_EQ(line.isText(), GetParam().isText);
    EXPECT_EQ(line.end(), GetParam().end);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ReadableLineTest,
    testing::Values(Line{"Ascii", "a=1\n", "a=1", true, End::LineFeed},
                    Line{"Open", "a=1", "a=1", true, End::None},
                    Line{"Returns", "a=1\r\n", "a=1", true, End::CarriageReturnLineFeed},
                    Line{"ReturnInside", "a\rb\n", "a\\x0Db", true, End::LineFeed},
                    Line{"Utf8", "\xe8\x8a\x82=\xf0\x9f\x98\x80\n", "\xe8\x8a\x82=\xf0\x9f\x98\x80",
                         true, End::LineFeed},
                    Line{"Latin1", "caf\xe9=1\n", "caf\\xE9=1", false, End::LineFeed},
                    Line{"Gbk", "\xbd\xda=1\n", "\\xBD\\xDA=1", false, End::LineFeed},
                    Line{"CutSequence", "a\xe8\x8a\n", "a\\xE8\\x8A", false, End::LineFeed},
                    Line{"Overlong", "\xc0\xaf\n", "\\xC0\\xAF", false, End::LineFeed},
                    Line{"Surrogate", "\xed\xa0\x80\n", "\\xED\\xA0\\x80", false, End::LineFeed},
                    Line{"BeyondUnicode", "\xf4\x90\x80\x80\n", "\\xF4\\x90\\x80\\x80", false,
                         End::LineFeed},
                    Line{"Mark", "\xef\xbb\xbf[S]\n", "\\xEF\\xBB\\xBF[S]", true, End::LineFeed},
                    Line{"Little",
                         QByteArray("\xff\xfe"
                                    "a\0\r\0\n\0",
                                    8),
                         "\\xFF\\xFE"
                         "a",
                         true, End::CarriageReturnLineFeed},
                    Line{"Big", QByteArray("\xfe\xff\0a\0\n", 6),
                         "\\xFE\\xFF"
                         "a",
                         true, End::LineFeed}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ByteLines, SplitsUtf16AtItsOwnLineFeeds)
{
    // U+0A41 and U+410A hold the byte of a line feed.
    const ByteLines lines(QByteArray("\xff\xfe\x41\x0a\x0a\x41\n\0b\0", 10));
    ASSERT_EQ(lines.count(), 2);
    EXPECT_EQ(ReadableLine(lines, 1).text(), QStringLiteral("b"));
}

struct Form
{
    const char* name;
    QByteArray before;
    QByteArray after;
    const char* sentences;
};

class ProfileFormTest : public testing::TestWithParam<Form>
{
};

TEST_P(ProfileFormTest, TellsWhatHasChanged)
{
    const ByteLines before(GetParam().before);
    const ByteLines after(GetParam().after);
    EXPECT_EQ(ProfileForm::of(before).changesTo(ProfileForm::of(after)).join(' ').toStdString(),
              GetParam().sentences);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ProfileFormTest,
    testing::Values(Form{"None", "a\n", "b\nc\n", ""}, Form{"NewFile", "", "a\n", ""},
                    Form{"Encoding", "\xe4\n", "\xc3\xa4\n",
                         "The encoding changes: not UTF-8 (lines: 1, the first is 1), then UTF-8."},
                    Form{"Mark",
                         "\xef\xbb\xbf"
                         "a\n",
                         "a\n", "The byte order mark goes."},
                    Form{"Ends", "a\r\nb\r\nc\n", "a\nb\nc\n",
                         "The line ends change: mixed, LF 1, CRLF 2, then LF 3."},
                    Form{"OpenEnd", "a\nb", "a\nb\n", "The last line gets a line end."},
                    Form{"Utf16",
                         QByteArray("\xff\xfe"
                                    "a\0\n\0",
                                    6),
                         "a\n",
                         "The encoding changes: UTF-16LE, then UTF-8. The byte order mark goes."}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
