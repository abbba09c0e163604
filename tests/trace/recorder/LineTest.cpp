#include "trace/recorder/Line.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string quoted(const std::wstring& text)
{
    recorder::Line line;
    line.quoted(text);
    return line.text();
}

std::string quoted(std::string_view text)
{
    recorder::Line line;
    line.quoted(text);
    return line.text();
}

} // namespace

TEST(LineTest, EscapesWhatEndsATextOrALine)
{
    EXPECT_EQ(quoted(L"a\"b\\c\n\t\x7F"), R"("a\"b\\c\u000a\u0009\u007f")");
}

TEST(LineTest, WritesCharactersAsUtf8)
{
    EXPECT_EQ(quoted(L"\u00E9\u4E2D\U0001F600"), "\"\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80\"");
}

TEST(LineTest, TellsUnitsThatAreNoCharacters)
{
    EXPECT_EQ(quoted(std::wstring{L'a', wchar_t{0xD800}, wchar_t{0xDFFF}}), R"("a\ud800\udfff")");
    EXPECT_EQ(quoted(std::wstring{wchar_t{0x110000}}), "\"\xEF\xBF\xBD\"");
}

TEST(LineTest, TellsBytesThatAreNoCharacters)
{
    EXPECT_EQ(quoted(std::string_view("a\xFF\xC3")), R"("a\udcff\udcc3")");
    EXPECT_EQ(quoted(std::string_view("\xC0\x80")), R"("\udcc0\udc80")");
    EXPECT_EQ(quoted(std::string_view("\xED\xA0\x80")), R"("\udced\udca0\udc80")");
    EXPECT_EQ(quoted(std::string_view("\xE4\xB8\xAD")), "\"\xE4\xB8\xAD\"");
}

TEST(LineTest, SeparatesMembersOfAnObject)
{
    recorder::Line line;
    line.raw("{");
    line.name("a");
    line.number(-1);
    line.name("b");
    line.hexObject("handle", 0xFF);
    line.raw("}");
    EXPECT_EQ(line.text(), R"({"a":-1,"b":{"handle":"0xff"}})");
}
