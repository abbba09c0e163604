#include "inspection/log/LogParser.h"

#include <gtest/gtest.h>

namespace {

using Level = LogEntry::Level;

TEST(LogParser, ParsesLines)
{
    const auto entries =
        LogParser()
            .parse("2026-03-07 09:05:01 : === Start logging ===\n"
                   "[DEBUG] 2026-03-07 09:05:02 : a : b\n[INFO] 2026-03-07 09:05:03 : \n"
                   "[WARNING] 2026-03-07 09:05:04 : w\n[ERROR] 2026-03-07 09:05:05 : e\n"
                   "2026-03-07 09:05:06 : === End logging ===\r\n")
            .entries;
    ASSERT_EQ(entries.size(), 6U);
    const Level levels[] = {Level::None,    Level::Debug, Level::Info,
                            Level::Warning, Level::Error, Level::None};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(entries[i].level, levels[i]);
    EXPECT_EQ(entries[1].time.toStdString(), "2026-03-07 09:05:02");
    EXPECT_EQ(entries[1].text.toStdString(), "a : b");
    EXPECT_EQ(entries[1].line.toStdString(), "[DEBUG] 2026-03-07 09:05:02 : a : b");
    EXPECT_EQ(entries[2].text.toStdString(), "");
    EXPECT_EQ(entries[5].text.toStdString(), "=== End logging ===");
}

TEST(LogParser, PutsFurtherLinesToTheirEntry)
{
    const LogPiece piece =
        LogParser().parse("stray\n[INFO] 2026-03-07 09:05:03 : one\ntwo\n[INFO] no time\n");
    ASSERT_EQ(piece.entries.size(), 2U);
    EXPECT_EQ(piece.entries[0].text.toStdString(), "stray");
    EXPECT_EQ(piece.entries[1].text.toStdString(), "one\ntwo\n[INFO] no time");
    EXPECT_EQ(piece.continuation, QString());
}

TEST(LogParser, TellsOfFurtherLinesOfAnEntryThatItHasGivenBefore)
{
    LogParser parser;
    LogEntry entry = parser.parse("[INFO] 2026-03-07 09:05:03 : one\n").entries.front();
    const LogPiece piece = parser.parse("two\nthree\n[ERROR] 2026-03-07 09:05:04 : next\nfour\n");
    EXPECT_EQ(piece.continuation.toStdString(), "\ntwo\nthree");
    ASSERT_EQ(piece.entries.size(), 1U);
    EXPECT_EQ(piece.entries[0].text.toStdString(), "next\nfour");
    entry.append(piece.continuation);
    EXPECT_EQ(entry.text.toStdString(), "one\ntwo\nthree");
    EXPECT_EQ(entry.line.toStdString(), "[INFO] 2026-03-07 09:05:03 : one\ntwo\nthree");
}

TEST(LogParser, WaitsForTheEndOfALine)
{
    LogParser parser;
    EXPECT_TRUE(parser.parse("[INFO] 2026-03-07 09:0").entries.empty());
    EXPECT_TRUE(parser.parse("5:03 : \xE6\xB8").entries.empty());
    const LogPiece piece = parser.parse("\xAF\n");
    ASSERT_EQ(piece.entries.size(), 1U);
    EXPECT_EQ(piece.entries[0].text, QString(QChar(0x6E2F)));
}

} // namespace
