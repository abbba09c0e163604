#include "platform/PlatformRegisterManagerImp.h"
#include "tests/support/CanaryBuffer.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <string>

namespace {

using Bytes = std::string;

const unsigned char* bytesOf(const Bytes& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

// With its terminator.
Bytes wide(const std::wstring& text)
{
    return Bytes(reinterpret_cast<const char*>(text.c_str()), (text.size() + 1) * sizeof(wchar_t));
}

Bytes dword(quint32 value)
{
    return Bytes(reinterpret_cast<const char*>(&value), sizeof value);
}

Bytes qword(quint64 value)
{
    return Bytes(reinterpret_cast<const char*>(&value), sizeof value);
}

struct Encoding
{
    unsigned int type;
    Bytes data;
    unsigned int size;
    QString text;
};

void PrintTo(const Encoding& row, std::ostream* out)
{
    *out << "type " << row.type << ", size " << row.size << ": " << row.text.toStdString();
}

class RegistryEncoding : public testing::TestWithParam<Encoding>
{
};

TEST_P(RegistryEncoding, GivesTagAndPayload)
{
    const Encoding& row = GetParam();
    QVariant out;
    EXPECT_TRUE(RegValueToQVar(out, row.type, bytesOf(row.data), row.size));
    EXPECT_EQ(QVariant::String, out.type());
    EXPECT_EQ(row.text, out.toString());
}

const Encoding encodings[] = {
    {REG_DWORD, dword(0x12345678), 4, "1$305419896"},
    {REG_DWORD, dword(0xFFFFFFFF), 4, "1$4294967295"},
    {REG_DWORD, dword(0), 4, "1$0"},
    // Of anything but 4 bytes only the first one counts.
    {REG_DWORD, dword(0x12345678), 0, "1$120"},
    {REG_DWORD, dword(0x12345678), 1, "1$120"},
    {REG_DWORD, dword(0x12345678), 2, "1$120"},
    {REG_DWORD, dword(0x12345678), 3, "1$120"},
    {REG_DWORD, qword(0x12345678), 5, "1$120"},
    {REG_DWORD, qword(0xFF), 8, "1$255"},
    {REG_NONE, dword(0x12345678), 4, "1$305419896"},
    {REG_NONE, dword(0x12345678), 2, "1$120"},
    // Always the first byte alone.
    {REG_QWORD, qword(0x1FF), 8, "2$255"},
    {REG_QWORD, qword(0x1FF), 4, "2$255"},
    {REG_QWORD, qword(0x100), 8, "2$0"},
    {REG_QWORD, qword(7), 0, "2$7"},
    // Up to the terminator, whatever the size.
    {REG_SZ, wide(L"text"), 0, "5$text"},
    {REG_SZ, wide(L"text"), 4, "5$text"},
    {REG_SZ, wide(L"text"), 1000, "5$text"},
    {REG_SZ, wide(L""), 4, "5$"},
    {REG_SZ, wide(L"$%1%2"), 24, "5$$%1%2"},
    {REG_SZ, wide(L"\u00E9\u4E2D\U0001F600"), 16, QString::fromUtf8("5$é中😀")},
    {REG_BINARY, Bytes("\x00\xFF\x1A", 3), 3, "4$00ff1a"},
    {REG_BINARY, Bytes("\x00\xFF\x1A", 3), 1, "4$00"},
};
INSTANTIATE_TEST_SUITE_P(Rows, RegistryEncoding, testing::ValuesIn(encodings));

TEST(RegistryValue, TextNeedsNoAlignment)
{
    const Bytes data = "x" + wide(L"text");
    QVariant out;
    EXPECT_TRUE(RegValueToQVar(out, REG_SZ, bytesOf(data) + 1, 20));
    EXPECT_EQ("5$text", out.toString());
}

TEST(RegistryValue, RefusesWhatCannotBeWritten)
{
    const Bytes data = qword(1) + qword(0);
    for (const unsigned int type : {2U, 5U, 6U, 7U, 8U, 9U, 10U, 12U, 13U, 100U, 0xFFFFFFFFU}) {
        QVariant out("unchanged");
        EXPECT_FALSE(RegValueToQVar(out, type, bytesOf(data), 8)) << type;
        EXPECT_EQ("unchanged", out.toString()) << type;
    }
}

TEST(RegistryValue, RefusesNullDataOfAnyType)
{
    for (const unsigned int type : {REG_NONE, REG_SZ, REG_BINARY, REG_DWORD, REG_QWORD}) {
        QVariant out("unchanged");
        EXPECT_FALSE(RegValueToQVar(out, type, nullptr, 4)) << type;
        EXPECT_EQ("unchanged", out.toString()) << type;
    }
}

TEST(RegistryValue, RefusesEmptyBinaryData)
{
    QVariant out("unchanged");
    EXPECT_FALSE(RegValueToQVar(out, REG_BINARY, bytesOf("x"), 0));
    EXPECT_EQ("unchanged", out.toString());
}

struct Decoding
{
    QString text;
    unsigned int type;
    Bytes data;
};

void PrintTo(const Decoding& row, std::ostream* out)
{
    *out << row.text.toStdString();
}

class RegistryDecoding : public testing::TestWithParam<Decoding>
{
};

TEST_P(RegistryDecoding, GivesTypeDataAndLength)
{
    const Decoding& row = GetParam();
    QVariant value(row.text);
    CanaryBuffer<unsigned char> data(64);
    unsigned int type = 1111;
    unsigned int size = data.size();
    EXPECT_TRUE(QVarToRegValue(value, &type, data.data(), &size));
    EXPECT_EQ(row.type, type);
    EXPECT_EQ(row.data.size(), size);
    data.expect(std::vector<unsigned char>(row.data.begin(), row.data.end()));
}

TEST_P(RegistryDecoding, StoresTheDataWithoutASizeOrAType)
{
    const Decoding& row = GetParam();
    QVariant value(row.text);
    CanaryBuffer<unsigned char> data(64);
    EXPECT_TRUE(QVarToRegValue(value, nullptr, data.data(), nullptr));
    data.expect(std::vector<unsigned char>(row.data.begin(), row.data.end()));
    EXPECT_TRUE(QVarToRegValue(value, nullptr, nullptr, nullptr));
}

// Without its terminator.
Bytes characters(const std::wstring& text)
{
    return wide(text).substr(0, text.size() * sizeof(wchar_t));
}

const Decoding decodings[] = {
    {"1$7", REG_DWORD, dword(7)},
    {"0$7", REG_DWORD, dword(7)},
    {"01$7", REG_DWORD, dword(7)},
    {"1$-5", REG_DWORD, dword(0xFFFFFFFB)},
    {"1$2147483647", REG_DWORD, dword(0x7FFFFFFF)},
    {"1$2147483648", REG_DWORD, dword(0)},
    {"1$4294967295", REG_DWORD, dword(0)},
    {"1$-2147483649", REG_DWORD, dword(0)},
    {"1$0x10", REG_DWORD, dword(0)},
    {"1$", REG_DWORD, dword(0)},
    {"1$7$8", REG_DWORD, dword(0)},
    {"2$255", REG_QWORD, qword(255)},
    {"2$-1", REG_QWORD, qword(~0ULL)},
    {"2$9223372036854775807", REG_QWORD, qword(0x7FFFFFFFFFFFFFFF)},
    {"2$9223372036854775808", REG_QWORD, qword(0)},
    {"2$x", REG_QWORD, qword(0)},
    {"4$00ff1a", REG_BINARY, Bytes("\x00\xFF\x1A", 3)},
    {"4$FF", REG_BINARY, Bytes("\xFF", 1)},
    {"4$", REG_BINARY, Bytes()},
    {"5$text", REG_SZ, characters(L"text")},
    {"5$", REG_SZ, Bytes()},
    {"5$a$b", REG_SZ, characters(L"a$b")},
    {QString::fromUtf8("5$é😀"), REG_SZ, characters(L"\u00E9\U0001F600")},
};
INSTANTIATE_TEST_SUITE_P(Rows, RegistryDecoding, testing::ValuesIn(decodings));

struct Room
{
    const char* text;
    bool hasData;
    unsigned int size;
    bool fits;
    unsigned int sizeAfter;
    unsigned int type;
};

void PrintTo(const Room& row, std::ostream* out)
{
    *out << row.text << (row.hasData ? ", data of " : ", no data, size ") << row.size;
}

class RegistryRoom : public testing::TestWithParam<Room>
{
};

TEST_P(RegistryRoom, IsDemandedOrNot)
{
    const Room& row = GetParam();
    QVariant value{QString(row.text)};
    CanaryBuffer<unsigned char> data(row.size);
    unsigned int type = 1111;
    unsigned int size = row.size;
    EXPECT_EQ(row.fits, QVarToRegValue(value, &type, row.hasData ? data.data() : nullptr, &size));
    EXPECT_EQ(row.sizeAfter, size);
    EXPECT_EQ(row.type, type); // set before the size is looked at
    if (!row.fits || !row.hasData)
        data.expectUntouched();
}

const Room rooms[] = {
    {"1$7", true, 3, false, 3, REG_DWORD},
    {"1$7", true, 4, true, 4, REG_DWORD},
    {"1$7", true, 40, true, 4, REG_DWORD},
    {"1$7", false, 0, true, 4, REG_DWORD},
    {"2$7", true, 7, false, 7, REG_QWORD},
    {"2$7", true, 8, true, 8, REG_QWORD},
    {"2$7", false, 0, false, 0, REG_QWORD},
    {"2$7", false, 7, false, 7, REG_QWORD},
    {"2$7", false, 9, true, 8, REG_QWORD},
    {"4$0102", true, 1, false, 1, REG_BINARY},
    {"4$0102", true, 2, true, 2, REG_BINARY},
    {"4$0102", false, 1, false, 1, REG_BINARY},
    {"4$0102", false, 3, true, 2, REG_BINARY},
    {"4$", true, 0, true, 0, REG_BINARY},
    {"5$abc", true, 12, false, 12, REG_SZ},
    {"5$abc", true, 13, true, 12, REG_SZ},
    {"5$abc", false, 12, false, 12, REG_SZ},
    {"5$abc", false, 13, true, 12, REG_SZ},
    {"5$", true, 0, false, 0, REG_SZ},
    {"5$", true, 1, true, 0, REG_SZ},
    {"5$\xF0\x9F\x98\x80", true, 4, false, 4, REG_SZ},
    {"5$\xF0\x9F\x98\x80", true, 5, true, 4, REG_SZ},
};
INSTANTIATE_TEST_SUITE_P(Rows, RegistryRoom, testing::ValuesIn(rooms));

class RegistryRefusal : public testing::TestWithParam<QVariant>
{
};

TEST_P(RegistryRefusal, WritesNothing)
{
    QVariant value = GetParam();
    CanaryBuffer<unsigned char> data(64);
    unsigned int type = 1111;
    unsigned int size = data.size();
    EXPECT_FALSE(QVarToRegValue(value, &type, data.data(), &size));
    EXPECT_EQ(1111U, type);
    EXPECT_EQ(64U, size);
    data.expectUntouched();
}

INSTANTIATE_TEST_SUITE_P(Rows, RegistryRefusal,
                         testing::Values(QVariant(), QVariant(QString()), QVariant(""),
                                         QVariant("7"), QVariant("$7"), QVariant("text"),
                                         QVariant("x$5"), QVariant("1x$5"), QVariant("3$7"),
                                         QVariant("6$7"), QVariant("-1$7"), QVariant("1.0$7"),
                                         QVariant("4294967297$7"), QVariant(7),
                                         QVariant(QStringList{"1$7", "1$8"})));

} // namespace
