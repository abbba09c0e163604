#include "platform/profiles/WrittenLine.h"

#include <gtest/gtest.h>

namespace {

using Kind = WrittenLine::Kind;

TEST(WrittenLine, IsWhatItLooksLike)
{
    EXPECT_EQ(WrittenLine(" \t\r\n").kind(), Kind::Blank);
    EXPECT_EQ(WrittenLine(" ;k=v\n").kind(), Kind::Comment);
    EXPECT_EQ(WrittenLine("#k=v\n").kind(), Kind::Comment);
    EXPECT_EQ(WrittenLine(" [s=]\n").kind(), Kind::Header);
    EXPECT_EQ(WrittenLine("k=v").kind(), Kind::Entry);
    EXPECT_EQ(WrittenLine("text\n").kind(), Kind::Other);
}

TEST(WrittenLine, HasNamesAndAValueWithoutBlanksAroundThem)
{
    EXPECT_EQ(WrittenLine(" [ a b ]x]\r\n").name(), "a b");
    EXPECT_EQ(WrittenLine("[open\n").name(), "open");
    const WrittenLine entry("\tk 1 = a=b \r\n");
    EXPECT_EQ(entry.name(), "k 1");
    EXPECT_EQ(entry.value(), "a=b");
    EXPECT_EQ(WrittenLine("k=\vv\n").value(), "\vv");
}

TEST(WrittenLine, TellsReturnsAndZeroBytesWithinIt)
{
    EXPECT_FALSE(WrittenLine("k=v\r\r\n").hasInnerReturn());
    EXPECT_TRUE(WrittenLine("k=v\rw\n").hasInnerReturn());
    EXPECT_TRUE(WrittenLine(QByteArray("k=v\0w", 5)).hasZeroByte());
}

TEST(WrittenLine, IsPlainWithoutCharactersThatHaveAMeaning)
{
    EXPECT_TRUE(WrittenLine("key.1 = some text!\r\n").isPlain());
    for (const char* line : {"k=\xe4\xb8\xad", "%41=v", "a/b=v", "a\\b=v", "k=\"v\"", "k=1,2",
                             "k=1;2", "k=@x", "k=\x01", "k=a\tb"})
        EXPECT_FALSE(WrittenLine(line).isPlain()) << line;
}

} // namespace
