#include "regfile/RegFileWriter.h"

#include "platform/WindowsTypes.h"
#include "regfile/RegFileReader.h"
#include "regfile/RegFileText.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <functional>

namespace {

using Encoding = RegFileWriter::Encoding;

QByteArray written(Encoding encoding, const std::function<void(RegFileWriter&)>& write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    RegFileWriter writer(buffer, encoding);
    write(writer);
    EXPECT_TRUE(writer.isGood());
    return buffer.data();
}

QByteArray body(const std::function<void(RegFileWriter&)>& write)
{
    const QByteArray header = QString(regFileHeader).toUtf8() + "\r\n";
    const QByteArray file = written(Encoding::Utf8, write);
    EXPECT_TRUE(file.startsWith(header));
    return file.mid(header.size());
}

TEST(RegFileWriter, WritesKeysAfterABlankLine)
{
    const QByteArray text = body([](RegFileWriter& w) { w.key("HKEY_CURRENT_USER\\A\\B"); });
    EXPECT_EQ(text.toStdString(), "\r\n[HKEY_CURRENT_USER\\A\\B]\r\n");
}

TEST(RegFileWriter, EscapesQuotesAndBackslashes)
{
    const QByteArray text = body([](RegFileWriter& w) { w.text("a\"b\\c", "say \"C:\\\""); });
    EXPECT_EQ(text.toStdString(), "\"a\\\"b\\\\c\"=\"say \\\"C:\\\\\\\"\"\r\n");
}

TEST(RegFileWriter, WritesADwordWithEightDigits)
{
    const QByteArray text = body([](RegFileWriter& w) { w.dword("n", 42); });
    EXPECT_EQ(text.toStdString(), "\"n\"=dword:0000002a\r\n");
}

TEST(RegFileWriter, WritesTheDefaultValueWithAnAtSign)
{
    const QByteArray text = body([](RegFileWriter& w) { w.text("", "d"); });
    EXPECT_EQ(text.toStdString(), "@=\"d\"\r\n");
}

TEST(RegFileWriter, NamesTheTypeOfOtherBytes)
{
    const QByteArray text = body([](RegFileWriter& w) {
        w.bytes("b", REG_BINARY, QByteArray::fromHex("00ff"));
        w.bytes("q", REG_QWORD, QByteArray::fromHex("0100000000000000"));
    });
    EXPECT_EQ(text.toStdString(), "\"b\"=hex:00,ff\r\n\"q\"=hex(b):01,00,00,00,00,00,00,00\r\n");
}

TEST(RegFileWriter, BreaksLongListsWithinEightyCharacters)
{
    const QByteArray text =
        body([](RegFileWriter& w) { w.bytes("b", REG_BINARY, QByteArray(100, 'x')); });
    const auto lines = text.split('\n');
    ASSERT_GT(lines.size(), 3);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        EXPECT_LE(line.size(), 80);
        EXPECT_EQ(line.endsWith(",\\"), i + 2 < lines.size()) << line.toStdString();
    }
}

// As a host library reads both: a text ends at its NUL.
TEST(RegFileWriter, EndsATextOfSeveralLinesAtItsNul)
{
    const QByteArray file = written(Encoding::Utf16, [](RegFileWriter& w) {
        w.key("HKEY_CURRENT_USER\\A");
        w.text("lines", QString("a\nb") + QChar::Null + "c");
        w.text("line", QString("a") + QChar::Null + "c");
    });
    RegFileReader reader(file);
    RegFileEntry entry;
    QStringList texts;
    while (reader.next(entry) != RegFileReader::Step::End)
        texts.append(entry.text);
    EXPECT_TRUE(texts.contains("a\nb"));
    EXPECT_TRUE(texts.contains(QString("a") + QChar::Null + "c"));
}

TEST(RegFileWriter, KeepsAByteOrderMarkThatBeginsATextOfSeveralLines)
{
    const QString text = QString(QChar::ByteOrderMark) + "a\nb";
    RegFileReader reader(written(Encoding::Utf8, [&text](RegFileWriter& w) {
        w.key("HKEY_CURRENT_USER\\A");
        w.text("lines", text);
    }));
    RegFileEntry entry;
    QStringList texts;
    while (reader.next(entry) != RegFileReader::Step::End)
        texts.append(entry.text);
    EXPECT_TRUE(texts.contains(text));
}

TEST(RegFileWriter, PutsLineEndsOfACommentIntoOneLine)
{
    const QByteArray text = body([](RegFileWriter& w) { w.comment("one\r\ntwo"); });
    EXPECT_EQ(text.toStdString(), "; one two\r\n");
}

TEST(RegFileWriter, BeginsUtf16WithItsByteOrderMark)
{
    const QByteArray file = written(Encoding::Utf16, [](RegFileWriter&) {});
    EXPECT_EQ(file, "\xFF\xFE" + utf16Of(QString(regFileHeader) + "\r\n"));
}

TEST(RegFileWriter, TellsOfADeviceThatTakesNothing)
{
    QBuffer closed;
    closed.open(QIODevice::ReadOnly);
    RegFileWriter writer(closed, Encoding::Utf8);
    EXPECT_FALSE(writer.isGood());
}

struct RoundTrip
{
    Encoding encoding;
    QString text;
};

class TextBothWays : public testing::TestWithParam<RoundTrip>
{
};

TEST_P(TextBothWays, ComesBackUnchanged)
{
    const QString text = GetParam().text;
    RegFileReader reader(written(GetParam().encoding, [&text](RegFileWriter& w) {
        w.key("HKEY_CURRENT_USER\\K");
        w.text("name", text);
    }));
    RegFileEntry entry;
    RegFileReader::Step step = reader.next(entry);
    for (; step != RegFileReader::Step::End && entry.name.isEmpty(); step = reader.next(entry)) {
    }
    EXPECT_EQ(entry.action, RegFileEntry::Action::SetValue);
    EXPECT_EQ(entry.type, REG_SZ);
    EXPECT_EQ(entry.text, text);
}

const QString texts[] = {"",
                         "plain",
                         "\\",
                         "\"",
                         "a\r\nb\nc\rd",
                         " ; not a comment ",
                         QString::fromUcs4(U"\u6e2f\U0001F600", 2)};

std::vector<RoundTrip> roundTrips()
{
    std::vector<RoundTrip> rows;
    for (const QString& text : texts) {
        rows.push_back({Encoding::Utf8, text});
        rows.push_back({Encoding::Utf16, text});
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(RegFileWriter, TextBothWays, testing::ValuesIn(roundTrips()));

} // namespace
