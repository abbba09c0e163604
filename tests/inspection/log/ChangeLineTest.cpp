#include "inspection/log/ChangeLine.h"

#include <gtest/gtest.h>

namespace {

std::string line(const QString& name, const QString& before, const QString& after)
{
    return changeLine("HKEY_CURRENT_USER\\Crane", name, before, after).toStdString();
}

TEST(ChangeLineTest, TellsPlaceNameAndBothValues)
{
    EXPECT_EQ(line("Port", "1$80", "1$81"), R"(HKEY_CURRENT_USER\Crane: "Port": "1$80" -> "1$81")");
}

TEST(ChangeLineTest, AnEntryThatIsNotThereIsAbsentAndAnEmptyOneIsNot)
{
    EXPECT_EQ(line("A", QString(), ""), R"(HKEY_CURRENT_USER\Crane: "A": absent -> "")");
    EXPECT_EQ(line("A", "x", QString()), R"(HKEY_CURRENT_USER\Crane: "A": "x" -> absent)");
}

TEST(ChangeLineTest, APlaceWithoutANameIsTheChangeItself)
{
    EXPECT_EQ(line(QString(), QString(), "3 values"),
              R"(HKEY_CURRENT_USER\Crane: absent -> "3 values")");
}

TEST(ChangeLineTest, TextsOfMoreThan80CharactersAreShortenedWithTheirLength)
{
    const QString whole(80, 'x');
    EXPECT_EQ(line("A", whole, QString()),
              "HKEY_CURRENT_USER\\Crane: \"A\": \"" + std::string(80, 'x') + "\" -> absent");
    EXPECT_EQ(line("A", whole + "y", QString()), "HKEY_CURRENT_USER\\Crane: \"A\": \"" +
                                                     std::string(80, 'x') +
                                                     "...\" (81 characters) -> absent");
}

TEST(ChangeLineTest, QuotesAndControlCharactersAreEscaped)
{
    EXPECT_EQ(line("A", "a\"b\\", "c\nd"),
              R"(HKEY_CURRENT_USER\Crane: "A": "a\"b\\" -> "c\u000ad")");
}

TEST(ChangeLineTest, NeitherValueOfASecretIsTold)
{
    for (const char* name : {"Password", "dbPasswd", "ApiToken", "clientSecret", "PassPhrase"})
        EXPECT_EQ(line(name, "one", QString()), "HKEY_CURRENT_USER\\Crane: \"" + std::string(name) +
                                                    "\": (not logged) -> absent");
}

} // namespace
