#include "app/TextTime.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

time_t localTime(int year, int month, int day, int hour, int minute, int second)
{
    std::tm fields{};
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = -1;
    return std::mktime(&fields);
}

TEST(FormatTime, ReadsALocalTime)
{
    EXPECT_EQ(localTime(2024, 1, 15, 8, 9, 10), FormatTime(L"2024-01-15 08:09:10"));
    // The zone of the tests is an hour ahead of UTC in winter.
    EXPECT_EQ(1705302550, FormatTime(L"2024-01-15 08:09:10"));
}

TEST(FormatTime, LetsTheSystemDecideOnDaylightSaving)
{
    EXPECT_EQ(1720980000, FormatTime(L"2024-07-14 20:00:00"));
}

TEST(FormatTime, CarriesADayThatTheMonthDoesNotHave)
{
    EXPECT_EQ(localTime(2024, 3, 1, 10, 0, 0), FormatTime(L"2024-02-30 10:00:00"));
    EXPECT_EQ(localTime(2023, 5, 1, 0, 0, 0), FormatTime(L"2023-04-31 00:00:00"));
}

TEST(FormatTime, TakesMissingFieldsAsZero)
{
    EXPECT_EQ(localTime(2024, 5, 6, 0, 0, 0), FormatTime(L"2024-05-06"));
    EXPECT_EQ(localTime(0, 0, 0, 0, 0, 0), FormatTime(L"text"));
    EXPECT_EQ(localTime(0, 0, 0, 0, 0, 0), FormatTime(L""));
}

TEST(FormatTime, BlankMatchesAnyWhiteSpaceOrNone)
{
    const time_t expected = localTime(2024, 5, 6, 7, 8, 9);
    for (const wchar_t* text :
         {L"2024-05-0607:08:09", L"2024-05-06\t 07:08:09", L"2024-05-06\n07:08:09"})
        EXPECT_EQ(expected, FormatTime(text));
}

TEST(FormatTime, StopsAtAForeignSeparator)
{
    EXPECT_EQ(localTime(2024, 0, 0, 0, 0, 0), FormatTime(L"2024/05/06 07:08:09"));
}

TEST(FormatTime, ReadsNoMoreDigitsThanAFieldHas)
{
    // A fifth digit of the year stands where "-" must stand.
    EXPECT_EQ(localTime(2024, 0, 0, 0, 0, 0), FormatTime(L"20245-01-01 00:00:00"));
}

TEST(FormatTime, AnswersNullWithFailure)
{
    EXPECT_EQ(-1, FormatTime(nullptr));
}

struct Split
{
    const char* text;
    int length;
    QVector<QString> pieces;
};

class SplitString : public testing::TestWithParam<Split>
{
};

TEST_P(SplitString, CutsIntoPieces)
{
    EXPECT_EQ(GetParam().pieces,
              splitString(QString::fromUtf8(GetParam().text), GetParam().length));
}

INSTANTIATE_TEST_SUITE_P(Rows, SplitString,
                         testing::Values(Split{"0123456789", 4, {"0123", "4567", "89"}},
                                         Split{"0123456789", 5, {"01234", "56789"}},
                                         Split{"0123456789", 10, {"0123456789"}},
                                         Split{"0123456789", 11, {"0123456789"}},
                                         Split{"abc", 1, {"a", "b", "c"}}, Split{"", 4, {}},
                                         Split{"abc", 0, {}}, Split{"abc", -1, {}},
                                         Split{"abc", INT_MIN, {}},
                                         Split{"abc", INT_MAX, {"abc"}}));

TEST(SplitStringSize, StaysLinear)
{
    const QString text(400 * 1000, QLatin1Char('x'));
    const QVector<QString> pieces = splitString(text, 3);
    EXPECT_EQ(133334, pieces.size());
    EXPECT_EQ(QStringLiteral("x"), pieces.last());
}

} // namespace
