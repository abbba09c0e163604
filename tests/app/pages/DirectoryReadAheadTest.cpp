#include "app/pages/files/DirectoryReadAhead.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

int stepsOf(DirectoryReadAhead& reading)
{
    int steps = 1;
    while (reading.step())
        ++steps;
    return steps;
}

TEST(DirectoryReadAhead, ReadsAllEntriesInSmallSteps)
{
    constexpr int files = 1200;
    const QTemporaryDir folder;
    for (int i = 0; i < files; ++i) {
        QFile file(folder.filePath(QString::number(i)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    DirectoryReadAhead reading(folder.filePath(QStringLiteral("*.none")));
    EXPECT_EQ(stepsOf(reading), 3);
    EXPECT_EQ(reading.entries(), files + 2); // "." and ".."
    EXPECT_FALSE(reading.step());
}

TEST(DirectoryReadAhead, HasNothingToReadWithoutADirectory)
{
    const QTemporaryDir folder;
    for (const QString& pattern : {folder.filePath(QStringLiteral("missing/*")),
                                   QStringLiteral("*"), QStringLiteral(":/images/*"), QString()}) {
        DirectoryReadAhead reading(pattern);
        EXPECT_FALSE(reading.step());
        EXPECT_EQ(reading.entries(), 0);
    }
}

} // namespace
