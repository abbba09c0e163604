#include "regfile/RegFileReader.h"

#include "platform/WindowsTypes.h"
#include "regfile/RegFileText.h"

#include <QBuffer>
#include <QTextCodec>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace {

using Action = RegFileEntry::Action;
using Step = RegFileReader::Step;

const QByteArray header = "Windows Registry Editor Version 5.00\r\n\r\n";

std::vector<RegFileEntry> entriesOf(RegFileReader& reader)
{
    std::vector<RegFileEntry> entries;
    RegFileEntry entry;
    Step step = reader.next(entry);
    for (; step != Step::End; step = reader.next(entry)) {
        if (step == Step::Statement)
            entries.push_back(entry);
    }
    return entries;
}

std::vector<RegFileEntry> entriesOf(const QByteArray& file)
{
    RegFileReader reader(file);
    const auto entries = entriesOf(reader);
    EXPECT_EQ(reader.error().toStdString(), "");
    return entries;
}

// The one value of a key.
RegFileEntry valueOf(const QByteArray& line)
{
    const auto entries = entriesOf(header + "[HKEY_CURRENT_USER\\K]\r\n" + line + "\r\n");
    EXPECT_EQ(entries.size(), 2U) << line.toStdString();
    return entries.empty() ? RegFileEntry() : entries.back();
}

struct DataRow
{
    QByteArray line;
    unsigned int type;
    QByteArray bytes;
};

std::ostream& operator<<(std::ostream& out, const DataRow& row)
{
    return out << row.line.toStdString();
}

class DataOfAValue : public testing::TestWithParam<DataRow>
{
};

TEST_P(DataOfAValue, IsReadWithItsType)
{
    const RegFileEntry entry = valueOf(GetParam().line);
    EXPECT_EQ(entry.action, Action::SetValue) << entry.problem.toStdString();
    EXPECT_EQ(entry.name.toStdString(), "v");
    EXPECT_EQ(entry.type, GetParam().type);
    EXPECT_EQ(entry.data.toHex(' ').toStdString(), GetParam().bytes.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    RegFileReader, DataOfAValue,
    testing::Values(DataRow{"\"v\"=dword:0000002a", REG_DWORD, "2a 00 00 00"},
                    DataRow{"\"v\"=dword:FFFFFFFF", REG_DWORD, "ff ff ff ff"},
                    DataRow{"\"v\"=dword:1", REG_DWORD, "01 00 00 00"},
                    DataRow{"\"v\"=dword:00000001 ; why", REG_DWORD, "01 00 00 00"},
                    DataRow{"\"v\"=hex:00,7f,FF", REG_BINARY, "00 7f ff"},
                    DataRow{"\"v\"=hex:", REG_BINARY, ""},
                    DataRow{"\"v\"=hex(b):ff,01,00,00,00,00,00,00", REG_QWORD,
                            "ff 01 00 00 00 00 00 00"},
                    DataRow{"\"v\"=hex(0):01", REG_NONE, "01"},
                    DataRow{"\"v\"=hex(2):25,00", REG_EXPAND_SZ, "25 00"},
                    DataRow{"\"v\"=hex(7):61,00,00,00", REG_MULTI_SZ, "61 00 00 00"},
                    DataRow{"\"v\"=hex:01,\\\r\n  02,\\\r\n  03", REG_BINARY, "01 02 03"},
                    DataRow{"  \"v\"  =  hex:01, 02", REG_BINARY, "01 02"},
                    DataRow{"\"v\"=hex: \t0 ,1,a ,Fa,9 ; why", REG_BINARY, "00 01 0a fa 09"}));

struct TextRow
{
    QByteArray line;
    QString text;
};

std::ostream& operator<<(std::ostream& out, const TextRow& row)
{
    return out << row.line.toStdString();
}

class TextOfAValue : public testing::TestWithParam<TextRow>
{
};

TEST_P(TextOfAValue, IsReadWithoutItsQuotes)
{
    const RegFileEntry entry = valueOf(GetParam().line);
    EXPECT_EQ(entry.action, Action::SetValue) << entry.problem.toStdString();
    EXPECT_EQ(entry.type, REG_SZ);
    EXPECT_EQ(entry.text.toStdString(), GetParam().text.toStdString());
    EXPECT_TRUE(entry.data.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    RegFileReader, TextOfAValue,
    testing::Values(TextRow{"\"v\"=\"plain\"", "plain"}, TextRow{"\"v\"=\"\"", ""},
                    TextRow{"\"v\"=\"C:\\\\Dir\\\\\"", "C:\\Dir\\"},
                    TextRow{"\"v\"=\"say \\\"yes\\\"\"", "say \"yes\""},
                    TextRow{"\"v\"=\"a=b;c\" ; comment", "a=b;c"},
                    TextRow{"\"v\"=\"one\r\ntwo\"", "one\r\ntwo"},
                    TextRow{"\"v\"=\"one\ntwo\"", "one\ntwo"},
                    TextRow{"\"v\"=\"one  \r\n \t\r\n  two \"", "one  \r\n \t\r\n  two "},
                    TextRow{"\"v\" = \"C:\\\r\n\"  ", "C:\\\r\n"},
                    TextRow{"\"v\"=hex(1):61,00,0d,00,0a,00,62,00,00,00", "a\r\nb"},
                    TextRow{"\"v\"=\"\xE6\xB8\xAF\"", QString(QChar(0x6E2F))}));

class MalformedLine : public testing::TestWithParam<QByteArray>
{
};

TEST_P(MalformedLine, IsReportedWithItsNumberAndReadingGoesOn)
{
    const auto entries = entriesOf(header + "[HKEY_CURRENT_USER\\K]\r\n" + GetParam() +
                                   "\r\n[HKEY_CURRENT_USER\\Next]\r\n");
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[1].action, Action::Malformed);
    EXPECT_EQ(entries[1].line, 4);
    EXPECT_FALSE(entries[1].problem.isEmpty());
    EXPECT_EQ(entries[2].action, Action::CreateKey);
    EXPECT_EQ(entries[2].line, 5);
}

INSTANTIATE_TEST_SUITE_P(RegFileReader, MalformedLine,
                         testing::Values("garbage", "\"v\"", "\"v\" dword:1", "\"v=1",
                                         "\"v\"=dword:", "\"v\"=dword:123456789", "\"v\"=dword:-1",
                                         "\"v\"=dword:xyz", "\"v\"=hex:0g", "\"v\"=hex:001",
                                         "\"v\"=hex:1,,2", "\"v\"=hex:,", "\"v\"=hex:1,",
                                         "\"v\"=hex:0 1", "\"v\"=hex:0x", "\"v\"=hex:+1",
                                         "\"v\"=hex:1,@", "\"v\"=hex:1,G", "\"v\"=hex:/,:",
                                         "\"v\"=hex:\xC2\xA0\xEF\xBC\x91", "\"v\"=hex(zz):00",
                                         "\"v\"=hex 00", "\"v\"=other:1", "\"v\"=\"text\" tail",
                                         "[HKEY_CURRENT_USER\\Open", "[]", "[K] tail"));

struct SwallowingRow
{
    QByteArray value; ///< malformed, and going on in the next line
    int lines;
};

std::ostream& operator<<(std::ostream& out, const SwallowingRow& row)
{
    return out << row.value.toStdString();
}

class AMalformedValueOfSeveralLines : public testing::TestWithParam<SwallowingRow>
{
};

TEST_P(AMalformedValueOfSeveralLines, TakesNoKeyWithIt)
{
    const auto entries =
        entriesOf(header + "[HKEY_CURRENT_USER\\A]\r\n" + GetParam().value +
                  "\r\n[HKEY_CURRENT_USER\\B]\r\n\"v\"=dword:1\r\n\"w\"=dword:2\r\n");
    const auto malformed = static_cast<std::size_t>(GetParam().lines);
    ASSERT_EQ(entries.size(), malformed + 4);
    for (std::size_t i = 1; i <= malformed; ++i) {
        EXPECT_EQ(entries[i].action, Action::Malformed);
        EXPECT_EQ(entries[i].line, static_cast<int>(3 + i));
    }
    const RegFileEntry& key = entries[malformed + 1];
    EXPECT_EQ(key.action, Action::CreateKey);
    EXPECT_EQ(key.key.toStdString(), "HKEY_CURRENT_USER\\B");
    EXPECT_EQ(key.line, GetParam().lines + 4);
    for (std::size_t i = malformed + 2; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].action, Action::SetValue);
        EXPECT_EQ(entries[i].key.toStdString(), "HKEY_CURRENT_USER\\B");
    }
    EXPECT_EQ(entries.back().name.toStdString(), "w");
}

INSTANTIATE_TEST_SUITE_P(RegFileReader, AMalformedValueOfSeveralLines,
                         testing::Values(SwallowingRow{"\"h\"=hex:00,01,\\", 1},
                                         SwallowingRow{"\"h\"=hex:00,01\\", 1},
                                         SwallowingRow{"\"h\"=hex:00,zz,\\\r\n  01", 2},
                                         SwallowingRow{"\"a\"=\"C:\\\\dir\\\"", 1},
                                         SwallowingRow{"\"a\"=\"open", 1},
                                         SwallowingRow{"@=\"open\r\nmore", 2},
                                         SwallowingRow{"@=\"one\r\ntwo\" tail", 2}));

TEST(RegFileReader, ReadsOnBehindATextThatNeverCloses)
{
    const auto entries = entriesOf(
        header + "[HKEY_CURRENT_USER\\K]\r\n@=\"open\r\n[HKEY_CURRENT_USER\\K2]\r\n@=dword:1\r\n");
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[1].action, Action::Malformed);
    EXPECT_EQ(entries[1].line, 4);
    EXPECT_EQ(entries[2].action, Action::CreateKey);
    EXPECT_EQ(entries[3].key.toStdString(), "HKEY_CURRENT_USER\\K2");
    EXPECT_EQ(entries[3].line, 6);
}

// Each line is tried on its own after the first, yet the time it takes grows only with the file.
TEST(RegFileReader, ReadsManyUnfinishedValuesInTheirOrder)
{
    constexpr int many = 20000;
    const QByteArray unfinished = QByteArray("\"v\"=hex:00,\\\r\n").repeated(many) +
                                  QByteArray("@=\"open\r\n").repeated(many);
    const auto entries = entriesOf(header + "[HKEY_CURRENT_USER\\K]\r\n" + unfinished);
    ASSERT_EQ(entries.size(), 2U * many + 1);
    EXPECT_EQ(entries.back().line, 2 * many + 3);
    EXPECT_EQ(entries.back().action, Action::Malformed);
}

TEST(RegFileReader, ReadsKeysAndDeletions)
{
    const auto entries = entriesOf(header + "[HKEY_LOCAL_MACHINE\\A\\B]\n\"gone\"=-\n@=\"d\"\n"
                                            "; comment\n\n[-HKEY_CURRENT_USER\\C]\n");
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[0].action, Action::CreateKey);
    EXPECT_EQ(entries[0].key.toStdString(), "HKEY_LOCAL_MACHINE\\A\\B");
    EXPECT_EQ(entries[1].action, Action::DeleteValue);
    EXPECT_EQ(entries[1].name.toStdString(), "gone");
    EXPECT_EQ(entries[1].key.toStdString(), "HKEY_LOCAL_MACHINE\\A\\B");
    EXPECT_EQ(entries[2].action, Action::SetValue);
    EXPECT_EQ(entries[2].name.toStdString(), "");
    EXPECT_EQ(entries[3].action, Action::DeleteKey);
    EXPECT_EQ(entries[3].key.toStdString(), "HKEY_CURRENT_USER\\C");
}

TEST(RegFileReader, RefusesAValueUnderNoKey)
{
    const auto entries = entriesOf(header + "[-HKEY_CURRENT_USER\\C]\r\n\"v\"=dword:1\r\n");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[1].action, Action::Malformed);
}

TEST(RegFileReader, TellsBracketsInTheNameOfAKeyFromItsEndAndFromComments)
{
    const struct
    {
        const char* line;
        const char* key;
    } rows[] = {{"[K\\A]B]", "K\\A]B"},       {"[K\\A]]", "K\\A]"},
                {"[K\\A;b]", "K\\A;b"},       {"[K\\A]x;y]", "K\\A]x;y"},
                {"[K\\A] ; see [b]", "K\\A"}, {"[K\\A];[b] ; [c]", "K\\A"},
                {"[K\\A;b] ; [c]", "K\\A;b"}, {"[K\\A ] \t", "K\\A "}};
    for (const auto& row : rows) {
        const auto entries = entriesOf(header + row.line + "\r\n");
        ASSERT_EQ(entries.size(), 1U) << row.line;
        EXPECT_EQ(entries[0].action, Action::CreateKey) << row.line;
        EXPECT_EQ(entries[0].key.toStdString(), row.key) << row.line;
    }
}

class EncodedFile : public testing::TestWithParam<QByteArray>
{
};

TEST_P(EncodedFile, IsUnderstood)
{
    const auto entries = entriesOf(GetParam());
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].key, QString("HKEY_CURRENT_USER\\") + QChar(0x6E2F));
}

QByteArray bigEndian(QByteArray bytes)
{
    for (int i = 0; i + 1 < bytes.size(); i += 2)
        std::swap(bytes.data()[i], bytes.data()[i + 1]);
    return bytes;
}

const QString chinese =
    regFileHeader + QStringLiteral("\r\n[HKEY_CURRENT_USER\\") + QChar(0x6E2F) + "]\r\n";

INSTANTIATE_TEST_SUITE_P(RegFileReader, EncodedFile,
                         testing::Values(chinese.toUtf8(), "\xEF\xBB\xBF" + chinese.toUtf8(),
                                         "\xFF\xFE" + utf16Of(chinese),
                                         "\xFE\xFF" + bigEndian(utf16Of(chinese)),
                                         "\n\n" + chinese.toUtf8()));

// Gives a few bytes at a time, and fails behind the last one when it is told to.
class Trickle : public QBuffer
{
public:
    Trickle(const QByteArray& bytes, qint64 most, bool fails = false) : m_most(most), m_fails(fails)
    {
        setData(bytes);
        open(ReadOnly | Unbuffered);
    }

    static qint64 s_largest; ///< request so far

protected:
    qint64 readData(char* data, qint64 room) override
    {
        s_largest = qMax(s_largest, room);
        const qint64 size = QBuffer::readData(data, qMin(room, m_most));
        if (size > 0 || !m_fails)
            return size;
        setErrorString("broken");
        return -1;
    }

private:
    qint64 m_most;
    bool m_fails;
};

qint64 Trickle::s_largest = 0;

TEST_P(EncodedFile, IsUnderstoodWhereverItIsDivided)
{
    for (qint64 most = 3; most < 8; ++most) {
        RegFileReader reader(std::make_unique<Trickle>(GetParam(), most));
        const auto entries = entriesOf(reader);
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].key, QString("HKEY_CURRENT_USER\\") + QChar(0x6E2F));
    }
}

TEST(RegFileReader, SaysThatTheFileCannotBeReadToItsEnd)
{
    RegFileReader reader(std::make_unique<Trickle>(chinese.toUtf8(), 1000, true));
    EXPECT_TRUE(entriesOf(reader).empty());
    EXPECT_EQ(reader.error().toStdString(), "broken");
}

TEST(RegFileReader, TakesALargeFileInPiecesAndItsLinesOneByOne)
{
    constexpr int lines = 100000;
    const QByteArray file = header + QByteArray("; a comment\n").repeated(lines) + "[K]\n";
    Trickle::s_largest = 0;
    RegFileReader reader(std::make_unique<Trickle>(file, file.size()));
    RegFileEntry entry;
    int steps = 0;
    while (reader.next(entry) == Step::Nothing)
        ++steps;
    EXPECT_EQ(entry.key.toStdString(), "K");
    EXPECT_GT(steps, lines);
    EXPECT_LT(Trickle::s_largest, file.size());
    EXPECT_LE(Trickle::s_largest, 1024 * 1024);
}

// Of version 4; the code page is GBK, where the second byte of a character may be a backslash.
const QByteArray version4 = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\\xB8\xDB]\r\n"
                            "\"\xB8\xDB\"=\"\x81\x5C\\\\\xB8\xDB\"\r\n"
                            "\"h\"=hex(1):b8,db,00\r\n\"b\"=hex:b8,db\r\n";

void expectChinese(RegFileReader& reader)
{
    const QString harbour(QChar(0x6E2F));
    const auto entries = entriesOf(reader);
    ASSERT_EQ(entries.size(), 4U) << reader.error().toStdString();
    EXPECT_EQ(entries[0].key, "HKEY_CURRENT_USER\\" + harbour);
    EXPECT_EQ(entries[1].name, harbour);
    EXPECT_EQ(entries[1].text, QString(QChar(0x4E57)) + '\\' + harbour);
    EXPECT_EQ(entries[2].text, harbour);
    EXPECT_EQ(entries[3].data.toHex().toStdString(), "b8db");
}

TEST(RegFileReader, ReadsVersion4InItsCodePage)
{
    RegFileReader reader(version4, "GBK");
    expectChinese(reader);
    EXPECT_TRUE(reader.isVersion4());
    EXPECT_TRUE(reader.isOfCodePage());
    EXPECT_EQ(reader.codePage().toStdString(),
              QTextCodec::codecForName("GBK")->name().toStdString());
}

TEST(RegFileReader, ReadsVersion4WhereverItIsDivided)
{
    for (qint64 most = 1; most < 8; ++most) {
        RegFileReader reader(std::make_unique<Trickle>("\r\n" + version4, most), "GBK");
        expectChinese(reader);
    }
}

TEST(RegFileReader, TakesTheSystemsCodePageWhereNoneIsNamed)
{
    RegFileReader reader(version4);
    EXPECT_EQ(entriesOf(reader).size(), 4U);
    EXPECT_EQ(reader.codePage().toStdString(), QTextCodec::codecForLocale()->name().toStdString());
    EXPECT_FALSE(reader.isOfCodePage());
    RegFileReader unknown(version4, "no such code page");
    EXPECT_EQ(unknown.codePage(), reader.codePage());
}

TEST(RegFileReader, KnowsThatVersion5NeedsNoCodePage)
{
    RegFileReader reader(chinese.toUtf8(), "GBK");
    const auto entries = entriesOf(reader);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].key, QString("HKEY_CURRENT_USER\\") + QChar(0x6E2F));
    EXPECT_FALSE(reader.isVersion4());
}

QByteArray utf16Marked(const QString& text)
{
    return "\xFF\xFE" + utf16Of(text);
}

class RefusedFile : public testing::TestWithParam<QByteArray>
{
};

TEST_P(RefusedFile, SaysWhyAndHoldsNoEntry)
{
    RegFileReader reader(GetParam());
    EXPECT_TRUE(entriesOf(reader).empty());
    EXPECT_FALSE(reader.error().isEmpty());
    RegFileEntry entry;
    EXPECT_EQ(reader.next(entry), Step::End);
}

INSTANTIATE_TEST_SUITE_P(RegFileReader, RefusedFile,
                         testing::Values("", "REGEDIT4 \xFF more\r\n\r\n[HKEY_CURRENT_USER\\K]\r\n",
                                         utf16Marked("REGEDIT4\r\n[HKEY_CURRENT_USER\\K]\r\n"),
                                         "[HKEY_CURRENT_USER\\K]\r\n",
                                         "Windows Registry Editor Version 6.00\r\n",
                                         header + "[HKEY_CURRENT_USER\\\xFF\xFF]\r\n",
                                         // UTF-16 without its mark
                                         utf16Of(chinese)));

} // namespace
