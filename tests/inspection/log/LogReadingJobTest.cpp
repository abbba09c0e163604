#include "inspection/log/LogReadingJob.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <utility>

namespace {

const QByteArray info = "[INFO] 2026-03-07 09:05:03 : text\n";
const QByteArray error = "[ERROR] 2026-03-07 09:05:03 : fault\n";

class LogReadingJobTest : public testing::Test
{
protected:
    void write(const QByteArray& lines, QIODevice::OpenMode mode = QIODevice::Append) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(mode));
        file.write(lines);
    }

    // How many steps it takes to the file's present end.
    int read()
    {
        LogReadingJob job(m_reader);
        int steps = 1;
        for (; job.step(); ++steps) {
        }
        return steps;
    }

    void add(LogPiece piece)
    {
        if (piece.startsAnew)
            m_entries.clear();
        if (!piece.continuation.isEmpty())
            m_entries.back().append(piece.continuation);
        std::move(piece.entries.begin(), piece.entries.end(), std::back_inserter(m_entries));
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("x.log");
    std::vector<LogEntry> m_entries;
    LogReader m_reader{m_path, [this](LogPiece piece) { add(std::move(piece)); }};
};

TEST_F(LogReadingJobTest, FindsNothingToReadWhereThereIsNoFile)
{
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(m_reader.entries(), 0);
}

TEST_F(LogReadingJobTest, GoesOnWhereTheLastOneHasEnded)
{
    write(info);
    read();
    EXPECT_EQ(m_entries.size(), 1U);
    write("more\n" + error);
    read();
    ASSERT_EQ(m_entries.size(), 2U);
    EXPECT_EQ(m_entries[0].text, "text\nmore");
    EXPECT_EQ(m_entries[1].text, "fault");
}

TEST_F(LogReadingJobTest, ReadsALargeFileInSmallSteps)
{
    constexpr int entries = 10000;
    write(info.repeated(entries));
    EXPECT_EQ(read(), 7); // 340,000 bytes are 6 pieces, behind which there is nothing
    EXPECT_EQ(m_entries.size(), static_cast<std::size_t>(entries));
}

TEST_F(LogReadingJobTest, TellsTheNumberOfEntries)
{
    write(info.repeated(1234));
    read();
    EXPECT_EQ(LogReadingJob(m_reader).progress(), "1,234");
}

TEST_F(LogReadingJobTest, StartsAnewWithAFileThatBecameShorter)
{
    write(info + info + error + "[INFO] 2026-03-07 09:05");
    read();
    write(error, QIODevice::WriteOnly);
    read();
    ASSERT_EQ(m_entries.size(), 1U);
    EXPECT_EQ(m_entries[0].text, "fault");
    EXPECT_EQ(m_reader.entries(), 1);
    write("", QIODevice::WriteOnly);
    read();
    EXPECT_TRUE(m_entries.empty());
    EXPECT_EQ(m_reader.entries(), 0);
}

} // namespace
