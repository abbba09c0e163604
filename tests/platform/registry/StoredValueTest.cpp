#include "platform/registry/StoredValue.h"

#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <ostream>

namespace {

using Remark = StoredValue::Remark;

struct Row
{
    QVariant entry;
    Remark remark;
    const char* explanation;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.entry.toString().toStdString();
}

class StoredEntry : public testing::TestWithParam<Row>
{
protected:
    static bool isReadByTheService(QVariant entry)
    {
        return QVarToRegValue(entry, nullptr, nullptr, nullptr);
    }
};

class RefusedEntry : public StoredEntry
{
};

TEST_P(RefusedEntry, SaysWhyTheServiceRefusesIt)
{
    const StoredValue value(GetParam().entry);
    EXPECT_FALSE(isReadByTheService(GetParam().entry));
    EXPECT_FALSE(value.isReadable());
    EXPECT_EQ(value.remark(), GetParam().remark);
    EXPECT_EQ(value.explanation().toStdString(), GetParam().explanation);
}

INSTANTIATE_TEST_SUITE_P(
    StoredValue, RefusedEntry,
    testing::Values(Row{{}, Remark::NoValue, "No value: the mark of a key that was created here"},
                    Row{"", Remark::NoTag, "No type tag before a \"$\""},
                    Row{"no tag", Remark::NoTag, "No type tag before a \"$\""},
                    Row{"$5", Remark::NoTag, "No type tag before a \"$\""},
                    Row{QStringList({"5$a", "b"}), Remark::List,
                        "A list: the file has a comma without quotes"},
                    Row{"x$1", Remark::TagIsNoNumber,
                        "Tag \"x\" is refused: it is no number, or too large a one"},
                    Row{"1x$5", Remark::TagIsNoNumber,
                        "Tag \"1x\" is refused: it is no number, or too large a one"},
                    Row{"4294967297$7", Remark::TagIsNoNumber,
                        "Tag \"4294967297\" is refused: it is no number, or too large a one"},
                    Row{"3$1", Remark::UnknownTag, "Tag 3 is refused"},
                    Row{"6$1", Remark::UnknownTag, "Tag 6 is refused"},
                    Row{"-1$1", Remark::UnknownTag, "Tag -1 is refused"}));

class ReadEntry : public StoredEntry
{
};

TEST_P(ReadEntry, SaysWhatIsReadOtherThanItStandsThere)
{
    const StoredValue value(GetParam().entry);
    EXPECT_TRUE(isReadByTheService(GetParam().entry));
    EXPECT_TRUE(value.isReadable());
    EXPECT_EQ(value.remark(), GetParam().remark);
    EXPECT_EQ(value.explanation().toStdString(), GetParam().explanation);
}

const char badDigits[] = "Bad digits: what is not hexadecimal is skipped";

INSTANTIATE_TEST_SUITE_P(
    StoredValue, ReadEntry,
    testing::Values(
        Row{"1$0", Remark::None, ""}, Row{"0$-1", Remark::None, ""},
        Row{"1$2147483647", Remark::None, ""}, Row{"5$anything", Remark::None, ""},
        Row{"5$", Remark::None, ""}, Row{"2$9223372036854775807", Remark::None, ""},
        Row{"4$00ff", Remark::None, ""}, Row{"4$00FF", Remark::None, ""},
        Row{"4$", Remark::None, ""}, Row{QStringList("5$a"), Remark::None, ""},
        Row{"1$2147483648", Remark::BadNumber, "Bad number: \"2147483648\" is read as 0"},
        Row{"1$", Remark::BadNumber, "Bad number: \"\" is read as 0"},
        Row{"1$12x", Remark::BadNumber, "Bad number: \"12x\" is read as 0"},
        Row{"2$9223372036854775808", Remark::BadNumber,
            "Bad number: \"9223372036854775808\" is read as 0"},
        Row{"4$0ff", Remark::MissingDigit, "An odd number of hexadecimal digits"},
        Row{"4$0g", Remark::BadDigits, badDigits}, Row{"4$0g1", Remark::BadDigits, badDigits},
        Row{QString("4$") + QChar(0x0663) + QChar(0x0664), Remark::BadDigits, badDigits}));

TEST(StoredValue, HoldsTypeAndDataOfEveryTag)
{
    const struct
    {
        const char* entry;
        unsigned int type;
        const char* hex;
    } rows[] = {{"0$258", REG_DWORD, "02010000"},
                {"1$-2", REG_DWORD, "feffffff"},
                {"2$258", REG_QWORD, "0201000000000000"},
                {"4$0aff", REG_BINARY, "0aff"},
                {"5$aé", REG_SZ, "61000000e9000000"}};
    for (const auto& row : rows) {
        const StoredValue value(QString::fromUtf8(row.entry));
        EXPECT_EQ(value.type(), row.type) << row.entry;
        EXPECT_EQ(value.data().toHex().toStdString(), row.hex) << row.entry;
    }
}

} // namespace
