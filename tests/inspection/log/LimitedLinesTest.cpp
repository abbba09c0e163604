#include "inspection/log/LimitedLines.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

class LimitedLinesTest : public testing::Test
{
protected:
    void add(LimitedLines& lines, int count)
    {
        for (int i = 0; i < count; ++i) {
            lines.add([this] {
                ++m_made;
                return QStringLiteral("line");
            });
        }
    }

    QStringList m_logged;
    int m_made = 0;
    const LimitedLines::Log m_log = [this](const QString& line) { m_logged.append(line); };
};

TEST_F(LimitedLinesTest, PassesOnAsManyAsThereMayBe)
{
    LimitedLines lines(m_log);
    add(lines, LimitedLines::most);
    lines.end();
    EXPECT_EQ(m_logged.size(), LimitedLines::most);
    EXPECT_EQ(m_logged.last().toStdString(), "line");
}

TEST_F(LimitedLinesTest, CountsTheRestWithoutMakingItsLines)
{
    LimitedLines lines(m_log);
    add(lines, LimitedLines::most + 7);
    EXPECT_EQ(m_made, LimitedLines::most);
    EXPECT_EQ(m_logged.size(), LimitedLines::most);
    lines.end();
    lines.end();
    EXPECT_EQ(m_logged.size(), LimitedLines::most + 1);
    EXPECT_EQ(m_logged.last().toStdString(), "and 7 more entries");
}

TEST_F(LimitedLinesTest, TellTheRestWhenTheyGo)
{
    {
        LimitedLines lines(m_log);
        add(lines, LimitedLines::most + 1);
    }
    EXPECT_EQ(m_logged.last().toStdString(), "and 1 more entries");
}

TEST_F(LimitedLinesTest, LogNothingWithoutALog)
{
    LimitedLines lines({});
    add(lines, LimitedLines::most + 1);
    EXPECT_EQ(m_made, 0);
}

} // namespace
