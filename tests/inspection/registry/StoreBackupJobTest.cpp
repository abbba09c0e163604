#include "inspection/registry/StoreBackupJob.h"

#include "tests/inspection/registry/StoreFileFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

class StoreBackupJobTest : public RegistryTest
{
protected:
    StoreBackupJobTest()
    {
        store("A/v", "1$1");
        store("A/unreadable", "no tag");
        QCoreApplication::processEvents();
        clean();
    }
    ~StoreBackupJobTest() override { clean(); }

    static QDir folder() { return QFileInfo(StoreFile::path()).dir(); }
    static QStringList backups()
    {
        return folder().entryList({QStringLiteral("*backup-*")}, QDir::AllEntries, QDir::Name);
    }
    static void clean()
    {
        for (const QString& file : backups())
            folder().remove(file);
    }
    static void finish(StoreBackupJob& job)
    {
        while (job.step()) {
        }
    }
    static QByteArray bytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(StoreBackupJobTest, CopiesTheFileByteForByteAndForTheSameEyes)
{
    QFile(StoreFile::path()).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    StoreBackupJob job;
    finish(job);
    EXPECT_EQ(job.error().toStdString(), "");
    EXPECT_EQ(bytesOf(job.file()).toStdString(), StoreFile::bytes().toStdString());
    EXPECT_TRUE(bytesOf(job.file()).contains("no tag"));
    EXPECT_EQ(QFileInfo(job.file()).permissions(), QFileInfo(StoreFile::path()).permissions());
    EXPECT_EQ(QFileInfo(job.file()).dir(), folder());
}

TEST_F(StoreBackupJobTest, NeverTakesTheNameOfAnother)
{
    const QString stem = QFileInfo(StoreFile::path()).completeBaseName();
    for (const char* number : {"1", "2"}) {
        StoreBackupJob job;
        EXPECT_EQ(job.file(), folder().filePath(stem + ".backup-" + number + ".ini"));
        finish(job);
    }
    QFile later(folder().filePath(stem + ".backup-41.ini"));
    ASSERT_TRUE(later.open(QIODevice::WriteOnly));
    EXPECT_EQ(StoreBackupJob::nextFile(), folder().filePath(stem + ".backup-42.ini"));
    EXPECT_EQ(backups().size(), 3);
}

TEST_F(StoreBackupJobTest, LeavesNoHalfCopy)
{
    {
        const StoreBackupJob job;
        EXPECT_EQ(backups().size(), 1);
    }
    EXPECT_EQ(backups().size(), 0);
}

TEST_F(StoreBackupJobTest, HasNothingToCopyWithoutAFile)
{
    StoreFile::remove();
    EXPECT_EQ(StoreBackupJob::nextFile().toStdString(), "");
    StoreBackupJob job;
    EXPECT_FALSE(job.step());
    EXPECT_NE(job.error().toStdString(), "");
    EXPECT_EQ(backups().size(), 0);
}

} // namespace
