#include "platform/registry/ValueChange.h"

#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <ostream>

namespace {

using Outcome = ValueChange::Outcome;

struct Row
{
    unsigned int type;
    const char* hex;
    Outcome outcome;
    const char* remarks;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.type << " " << row.hex;
}

class ValueThatIsSet : public testing::TestWithParam<Row>
{
};

TEST_P(ValueThatIsSet, IsToldBeforeItIsWritten)
{
    const ValueChange change(GetParam().type, QByteArray::fromHex(GetParam().hex));
    EXPECT_EQ(change.outcome(), GetParam().outcome);
    EXPECT_EQ(change.remarks().join(QLatin1Char(' ')).toStdString(), GetParam().remarks);
}

const char noByte[] = "Data without a byte cannot be stored.";
const char firstOfFour[] = "The number does not have 4 bytes: its first byte alone is kept.";

INSTANTIATE_TEST_SUITE_P(
    Numbers, ValueThatIsSet,
    testing::Values(
        Row{REG_DWORD, "ffffff7f", Outcome::Kept, ""},
        Row{REG_DWORD, "00000080", Outcome::Altered,
            "2147483648 will be read as 0: it does not fit a signed number."},
        Row{REG_DWORD, "0102", Outcome::Altered, firstOfFour},
        Row{REG_DWORD, "0100000000000000", Outcome::Altered, firstOfFour},
        Row{REG_DWORD, "", Outcome::Refused, noByte},
        Row{REG_NONE, "01000000", Outcome::Altered, "REG_NONE becomes REG_DWORD."},
        Row{REG_NONE, "ffffffff", Outcome::Altered,
            "REG_NONE becomes REG_DWORD. 4294967295 will be read as 0: it does not fit a signed "
            "number."},
        Row{REG_QWORD, "ff00000000000000", Outcome::Kept, ""},
        Row{REG_QWORD, "0001000000000000", Outcome::Altered,
            "Only the lowest byte of a QWORD is kept: 256 will be read as 0."},
        Row{REG_QWORD, "ff", Outcome::Altered,
            "The number does not have 8 bytes: its first byte alone is kept."}));

INSTANTIATE_TEST_SUITE_P(
    Others, ValueThatIsSet,
    testing::Values(Row{REG_BINARY, "00", Outcome::Kept, ""},
                    Row{REG_BINARY, "", Outcome::Refused, noByte},
                    Row{REG_SZ, "00000000", Outcome::Kept, ""},
                    Row{REG_SZ, "6100000000000000", Outcome::Kept, ""},
                    Row{REG_SZ, "61000000000000006200000000000000", Outcome::Altered,
                        "The text is kept up to its first NUL character."},
                    Row{REG_SZ, "0000110000000000", Outcome::Altered,
                        "Some of the text's characters will be read as others."},
                    Row{REG_EXPAND_SZ, "00000000", Outcome::Refused,
                        "REG_EXPAND_SZ cannot be stored."},
                    Row{REG_MULTI_SZ, "", Outcome::Refused, "REG_MULTI_SZ cannot be stored."},
                    Row{12, "00", Outcome::Refused, "12 cannot be stored."}));

// What the two conversions make of a value, one after the other.
Outcome outcomeOfTheService(unsigned int type, const QByteArray& data)
{
    QVariant stored;
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.constData());
    if (!RegValueToQVar(stored, type, bytes, static_cast<unsigned int>(data.size())))
        return Outcome::Refused;
    unsigned int readType = 0;
    unsigned char read[64] = {};
    unsigned int size = sizeof read;
    if (!QVarToRegValue(stored, &readType, read, &size))
        return Outcome::Refused;
    const QByteArray back(reinterpret_cast<const char*>(read), static_cast<int>(size));
    return readType == type && back == data ? Outcome::Kept : Outcome::Altered;
}

TEST(ValueChange, AgreesWithTheServiceForEveryTypeAndSize)
{
    for (unsigned int type = 0; type < 14; ++type) {
        for (int size = 1; type != REG_SZ && size <= 9; ++size) {
            for (const char byte : {'\0', '\x01', '\x7f', '\x80', '\xff'}) {
                const QByteArray first = QByteArray(size, '\0').replace(0, 1, &byte, 1);
                const QByteArray all(size, byte);
                const QByteArray last = QByteArray(size, '\0').replace(size - 1, 1, &byte, 1);
                for (const QByteArray& data : {first, all, last})
                    EXPECT_EQ(ValueChange(type, data).outcome(), outcomeOfTheService(type, data))
                        << type << " " << data.toHex().toStdString();
            }
        }
    }
}

} // namespace
