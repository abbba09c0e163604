#include "inspection/registry/SetValueCheck.h"

#include "inspection/registry/RegistryKey.h"
#include "tests/inspection/registry/RegistryTest.h"

namespace {

class SetValueCheckTest : public RegistryTest
{
protected:
    // What is read other than was written.
    static std::optional<QString> readAfter(unsigned int type, const QByteArray& data)
    {
        store("A/keep", "1$1");
        EXPECT_EQ(RegistryKey("A").set("v", type, data), ERROR_SUCCESS);
        return otherReading("A", "v", type, data);
    }
};

TEST_F(SetValueCheckTest, IsSilentAboutWhatIsReadAsItWasWritten)
{
    EXPECT_FALSE(readAfter(REG_SZ, registryTextData("text")));
    EXPECT_FALSE(readAfter(REG_SZ, registryTextData("")));
    EXPECT_FALSE(readAfter(REG_DWORD, QByteArray("\x2a\0\0\0", 4)));
    EXPECT_FALSE(readAfter(REG_BINARY, QByteArray("\0\xff", 2)));
}

TEST_F(SetValueCheckTest, TellsWhatBecameOfANumberThatIsNarrowed)
{
    const auto read = readAfter(REG_QWORD, QByteArray("\xff\1\0\0\0\0\0\0", 8));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toStdString(), "255 (0xff)");
}

TEST_F(SetValueCheckTest, TellsThatNothingIsRead)
{
    const auto read = otherReading("A", "missing", REG_DWORD, QByteArray("\1\0\0\0", 4));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toStdString(), "nothing");
}

} // namespace
