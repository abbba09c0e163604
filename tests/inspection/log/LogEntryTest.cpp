#include "inspection/log/LogEntry.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using Level = LogEntry::Level;

TEST(LogEntry, NamesItsLevel)
{
    const std::pair<Level, const char*> rows[] = {{Level::None, ""},
                                                  {Level::Debug, "Debug"},
                                                  {Level::Info, "Information"},
                                                  {Level::Warning, "Warning"},
                                                  {Level::Error, "Error"}};
    for (const auto& [level, name] : rows) {
        LogEntry entry;
        entry.level = level;
        EXPECT_EQ(entry.levelName(), name);
    }
}

TEST(LogEntry, ShowsTheBeginningOfALongText)
{
    const QString pair = QString::fromUtf8("\xF0\x9F\x9A\xA2");
    const QString more = QChar(0x2026);
    const std::pair<QString, QString> rows[] = {
        {QString(1000, 'x'), QString(1000, 'x')},
        {QString(1001, 'x'), QString(1000, 'x') + more},
        {QString(998, 'x') + pair, QString(998, 'x') + pair},
        {QString(999, 'x') + pair, QString(999, 'x') + more}, // a pair is not cut in two
    };
    for (const auto& [text, shown] : rows) {
        LogEntry entry;
        entry.text = text;
        EXPECT_EQ(entry.beginning(), shown);
    }
}

TEST(LogEntry, PutsItsLinesIntoOne)
{
    LogEntry entry;
    entry.text = QStringLiteral("one\ntwo\n");
    EXPECT_EQ(entry.beginningInOneLine(), QStringLiteral("one\u21B5two\u21B5"));
    EXPECT_EQ(entry.beginning(), entry.text);
}

} // namespace
