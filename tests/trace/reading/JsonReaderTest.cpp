#include "trace/reading/JsonReader.h"

#include <gtest/gtest.h>

namespace trace {
namespace {

RecordedValue valueOf(const char* text)
{
    JsonReader reader(text);
    const RecordedValue value = reader.value();
    return reader.isDone() ? value : RecordedValue();
}

TEST(JsonReader, KeepsTheOrderOfMembers)
{
    const RecordedValue value = valueOf(R"({"b":1,"a":{"z":[true,null],"y":"t"}})");
    ASSERT_EQ(value.members.size(), 2U);
    EXPECT_EQ(value.members[0].name, "b");
    EXPECT_EQ(value.member("a").members[0].name, "z");
    EXPECT_EQ(value.member("a").member("z").members.size(), 2U);
}

TEST(JsonReader, KeepsAllDigitsOfNumbers)
{
    EXPECT_EQ(valueOf("18446744073709551615").toInteger(), -1);
    EXPECT_EQ(valueOf("-9223372036854775808").toInteger(), std::numeric_limits<qint64>::min());
    EXPECT_EQ(valueOf("9007199254740993").toInteger(), 9007199254740993);
}

TEST(JsonReader, ReadsEscapesAndLoneSurrogates)
{
    const QString text = valueOf(R"("\"\\\/\b\f\n\r\tA\u4e2d\ud83d\ude00\ud800.")").text;
    EXPECT_EQ(text.left(9), QStringLiteral("\"\\/\b\f\n\r\tA"));
    EXPECT_EQ(text.mid(9, 3), QString::fromUtf8("中😀"));
    EXPECT_EQ(text.mid(12), QString(QChar(0xd800)) + '.');
}

TEST(JsonReader, ReplacesBytesThatAreNoUtf8)
{
    EXPECT_EQ(valueOf("\"a\xff\"").text, QStringLiteral("a") + QChar(0xfffd));
}

TEST(JsonReader, RefusesWhatIsNoJson)
{
    for (const char* text :
         {"", "{", "{\"a\"}", "{\"a\":}", "{\"a\":1,}", "[1,]", "[1 2]", "nul", "\"a", "\"a\\",
          "\"\\u12", "1x", "-", "{\"a\":1}}", "{a:1}", "\"\x01\"", "[1}", "+", "{,}"})
        EXPECT_TRUE(valueOf(text).isAbsent()) << text;
}

TEST(JsonReader, RefusesNestingWithoutEnd)
{
    const std::string deep(100000, '[');
    JsonReader reader(deep);
    EXPECT_FALSE(reader.value().isAbsent());
    EXPECT_FALSE(reader.isDone());
}

TEST(JsonReader, PassesOverWhatIsNotWanted)
{
    JsonReader reader(R"({"a":{"x":["}","\"]",{}]},"b":7})");
    std::string_view name;
    ASSERT_TRUE(reader.enterObject());
    ASSERT_TRUE(reader.nextMember(name));
    EXPECT_EQ(reader.skip(), R"({"x":["}","\"]",{}]})");
    ASSERT_TRUE(reader.nextMember(name));
    EXPECT_EQ(name, "b");
    EXPECT_EQ(reader.integer(), 7);
    EXPECT_FALSE(reader.nextMember(name));
    EXPECT_TRUE(reader.isDone());
}

TEST(JsonReader, RefusesIntegersThatAreTooLarge)
{
    JsonReader reader("99999999999999999999");
    reader.integer();
    EXPECT_FALSE(reader.isGood());
}

} // namespace
} // namespace trace
