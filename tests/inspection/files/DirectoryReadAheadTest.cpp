#include "inspection/files/DirectoryReadAhead.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <utility>

namespace {

int stepsOf(DirectoryReadAhead& reading)
{
    int steps = 0;
    for (; !reading.isDone(); ++steps)
        reading.step();
    return steps;
}

void makeFile(const QTemporaryDir& folder, const QByteArray& name)
{
    const QByteArray path = QFile::encodeName(folder.path()) + '/' + name;
    const std::ofstream made(path.constData());
    ASSERT_TRUE(made.good());
}

TEST(DirectoryReadAhead, ReadsAllEntriesInSmallSteps)
{
    constexpr int files = 1200;
    const QTemporaryDir folder;
    for (int i = 0; i < files; ++i)
        makeFile(folder, QByteArray::number(i));
    DirectoryReadAhead reading(folder.filePath(QStringLiteral("*.none")));
    EXPECT_EQ(stepsOf(reading), 3);
    EXPECT_EQ(reading.entries(), files + 2); // "." and ".."
    EXPECT_EQ(reading.undecodableNames(), 0);
    EXPECT_EQ(reading.error(), QString());
    reading.step();
    EXPECT_EQ(reading.entries(), files + 2);
}

TEST(DirectoryReadAhead, CountsNamesThatAreNoText)
{
    const QTemporaryDir folder;
    for (const char* name : {"good", "bad\xFF\xFE", "\xE6\xB1\x89", "cut\xE6\xB1"})
        makeFile(folder, name);
    DirectoryReadAhead reading(folder.filePath(QStringLiteral("*")));
    stepsOf(reading);
    EXPECT_EQ(reading.undecodableNames(), 2);
    for (const char* name : {"bad\xFF\xFE", "cut\xE6\xB1"}) // which the folder cannot remove itself
        std::remove((QFile::encodeName(folder.path()) + '/' + name).constData());
}

TEST(DirectoryReadAhead, TellsWhyADirectoryCannotBeOpened)
{
    const QTemporaryDir folder;
    makeFile(folder, "file");
    const std::pair<const char*, int> rows[] = {{"missing/*", ENOENT}, {"file/*", ENOTDIR}};
    for (const auto& [pattern, error] : rows) {
        const DirectoryReadAhead reading(folder.filePath(QLatin1String(pattern)));
        EXPECT_TRUE(reading.isDone());
        EXPECT_EQ(reading.entries(), 0);
        EXPECT_EQ(reading.error(), qt_error_string(error));
    }
}

} // namespace
