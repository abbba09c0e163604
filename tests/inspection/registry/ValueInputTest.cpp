#include "inspection/registry/ValueInput.h"

#include "tests/inspection/registry/RegistryTest.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

enum class Outcome
{
    Kept,
    Warned,
    Refused
};

struct Row
{
    unsigned int type;
    const char* text;
    Outcome outcome;
    const char* bytes; ///< where it is not refused
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.type << " " << row.text;
}

class InputOfAValue : public testing::TestWithParam<Row>
{
};

TEST_P(InputOfAValue, IsCheckedBeforeAnythingIsWritten)
{
    const ValueInput input(GetParam().type, GetParam().text);
    EXPECT_EQ(input.isValid(), GetParam().outcome != Outcome::Refused);
    EXPECT_EQ(input.problem().isEmpty(), input.isValid());
    EXPECT_EQ(!input.warning().isEmpty(), GetParam().outcome == Outcome::Warned);
    if (!input.isValid())
        return;
    EXPECT_EQ(input.data().toHex().toStdString(), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    ValueInput, InputOfAValue,
    testing::Values(
        Row{REG_DWORD, "0", Outcome::Kept, "00000000"},
        Row{REG_DWORD, " 255 ", Outcome::Kept, "ff000000"},
        Row{REG_DWORD, "010", Outcome::Kept, "0a000000"},
        Row{REG_DWORD, "0xFf", Outcome::Kept, "ff000000"},
        Row{REG_DWORD, "2147483647", Outcome::Kept, "ffffff7f"},
        Row{REG_DWORD, "2147483648", Outcome::Warned, "00000080"},
        Row{REG_DWORD, "0xffffffff", Outcome::Warned, "ffffffff"},
        Row{REG_DWORD, "4294967296", Outcome::Refused, ""},
        Row{REG_DWORD, "", Outcome::Refused, ""}, Row{REG_DWORD, "-1", Outcome::Refused, ""},
        Row{REG_DWORD, "1.5", Outcome::Refused, ""}, Row{REG_DWORD, "0x", Outcome::Refused, ""},
        Row{REG_DWORD, "ff", Outcome::Refused, ""},
        Row{REG_QWORD, "255", Outcome::Kept, "ff00000000000000"},
        Row{REG_QWORD, "256", Outcome::Warned, "0001000000000000"},
        Row{REG_QWORD, "18446744073709551615", Outcome::Warned, "ffffffffffffffff"},
        Row{REG_QWORD, "18446744073709551616", Outcome::Refused, ""},
        Row{REG_BINARY, "00 7f,FF\n01", Outcome::Kept, "007fff01"},
        Row{REG_BINARY, "", Outcome::Refused, ""}, Row{REG_BINARY, "0", Outcome::Refused, ""},
        Row{REG_BINARY, "zz", Outcome::Refused, ""}, Row{REG_SZ, "", Outcome::Kept, "00000000"},
        Row{REG_SZ, "ab", Outcome::Kept, "610000006200000000000000"}));

TEST(ValueInput, TellsWhatBecomesOfALargeQword)
{
    EXPECT_EQ(ValueInput(REG_QWORD, "511").warning().toStdString(),
              "Only the lowest byte of a QWORD is kept: 511 will be read as 255.");
}

TEST(ValueInput, RefusesNamesThatWouldLandElsewhere)
{
    for (const char* name : {"", "a\\b", "a/b", "\\"}) {
        EXPECT_FALSE(ValueInput::nameProblem(name).isEmpty()) << name;
        EXPECT_FALSE(ValueInput::keyNameProblem(name).isEmpty()) << name;
    }
    EXPECT_TRUE(ValueInput::nameProblem("a b$c").isEmpty());
    EXPECT_TRUE(ValueInput::keyNameProblem("a b$c").isEmpty());
}

class NewNames : public RegistryTest
{
};

TEST_F(NewNames, AreRefusedWhereTheStoreWouldNotKeepThem)
{
    const QString marked = QChar(QChar::ByteOrderMark) + QStringLiteral("x");
    for (const QString& name : {QStringLiteral("general"), QStringLiteral("GENERAL"), marked}) {
        EXPECT_FALSE(ValueInput::newKeyNameProblem({}, name).isEmpty()) << name.toStdString();
        EXPECT_FALSE(ValueInput::newNameProblem({}, name).isEmpty()) << name.toStdString();
    }
    EXPECT_EQ(ValueInput::newKeyNameProblem({}, "general").toStdString(),
              "After a restart the key \"general\" is called \"General\": the store cannot tell "
              "the two apart.");
    EXPECT_FALSE(ValueInput::newKeyNameProblem("A", marked).isEmpty());
    EXPECT_FALSE(ValueInput::newNameProblem("A", marked).isEmpty());
    EXPECT_FALSE(ValueInput::newNameProblem("general/A", "v").isEmpty());
}

TEST_F(NewNames, AreTakenWhereTheStoreKeepsThem)
{
    EXPECT_EQ(ValueInput::newKeyNameProblem({}, "General").toStdString(), "");
    EXPECT_EQ(ValueInput::newKeyNameProblem("A", "general").toStdString(), "");
    EXPECT_EQ(ValueInput::newNameProblem("A", "general").toStdString(), "");
    EXPECT_EQ(ValueInput::newNameProblem({}, "General").toStdString(), "");
    EXPECT_EQ(
        ValueInput::newNameProblem("A", QString("x") + QChar(QChar::ByteOrderMark)).toStdString(),
        "");
}

TEST(RegistryFormat, ShowsWhatCanBeTypedInAgain)
{
    const struct
    {
        unsigned int type;
        QByteArray data;
    } rows[] = {{REG_DWORD, QByteArray::fromHex("2a000000")},
                {REG_QWORD, QByteArray::fromHex("ff00000000000000")},
                {REG_BINARY, QByteArray::fromHex("00ff10")}};
    for (const auto& row : rows) {
        const ValueInput input(row.type, RegistryFormat::editable(row.type, row.data));
        EXPECT_EQ(input.data(), row.data);
    }
}

TEST(RegistryFormat, ShowsNumbersInBothBases)
{
    EXPECT_EQ(RegistryFormat::data(REG_DWORD, QByteArray::fromHex("2a000000")).toStdString(),
              "42 (0x0000002a)");
    EXPECT_EQ(
        RegistryFormat::data(REG_QWORD, QByteArray::fromHex("ff00000000000000")).toStdString(),
        "255 (0xff)");
}

TEST(RegistryFormat, ShortensLongDataAndShowsLineEnds)
{
    const QString bytes = RegistryFormat::data(REG_BINARY, QByteArray(65, '\x01'));
    EXPECT_EQ(bytes.size(), 64 * 3 + 1);
    EXPECT_TRUE(bytes.endsWith(QChar(0x2026)));
    const QByteArray text = registryTextData(QString(501, 'x'));
    EXPECT_EQ(RegistryFormat::data(REG_SZ, text.chopped(4)).size(), 501);
    const QByteArray lines = registryTextData("a\r\nb");
    EXPECT_EQ(RegistryFormat::data(REG_SZ, lines.chopped(4)), QString("a") + QChar(0x21B5) + "b");
}

} // namespace
