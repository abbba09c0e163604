#include "host/HostLibraries.h"
#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryCountJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistrySearchJob.h"
#include "inspection/registry/ValueRemovalJob.h"
#include "regfile/RegFileText.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>

namespace {

class RegistryJobs : public RegistryTest
{
protected:
    static void finish(Job& job)
    {
        while (job.step()) {
        }
    }
};

TEST_F(RegistryJobs, CountWhatGoesWithAKey)
{
    store("A/v", "1$1");
    store("A/B/w", "1$1");
    store("A/B/x", "1$1");
    store("AB/v", "1$1");
    RegistryCountJob job("A");
    finish(job);
    EXPECT_EQ(job.keys(), QStringList({"A", "A/B"}));
    EXPECT_EQ(job.values(), 3);
    EXPECT_EQ(job.progress().toStdString(), "3");
}

TEST_F(RegistryJobs, DeleteValuesOneByOneAndLeaveTheRest)
{
    for (const char* path : {"A/v", "A/w", "X/X", "A/kept"})
        store(path, "1$1");
    ValueRemovalJob job({{"A", "v"}, {"A", "w"}, {"X", "X"}});
    EXPECT_TRUE(job.step());
    EXPECT_FALSE(holds("A/v"));
    EXPECT_TRUE(holds("A/w"));
    EXPECT_EQ(job.progress().toStdString(), "1");
    finish(job);
    EXPECT_EQ(job.removed(), 3U);
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/kept"));
}

TEST_F(RegistryJobs, TellHowFarASearchHasCome)
{
    store("A/blue", "1$1");
    store("A/red", "1$1");
    RegistrySearchJob job({"blue"});
    finish(job);
    EXPECT_EQ(job.progress().toStdString(), "Values: 2. Found: 1.");
}

TEST_F(RegistryJobs, FindTheStoredTextOfWhatNoHostLibraryReads)
{
    store("A/owner", "Maria Lund");
    store("A/other", "5$Marius");
    store("loose", "Maria too");
    RegistrySearchJob job({"Maria"});
    finish(job);
    ASSERT_EQ(job.hits().size(), 2U);
    EXPECT_EQ(job.hits()[0].name.toStdString(), "loose");
    EXPECT_EQ(job.hits()[1].name.toStdString(), "owner");
    EXPECT_EQ(job.hits()[1].data.toStdString(), "unreadable: Maria Lund");
}

TEST_F(RegistryJobs, TellHowManyStatementsOfAnImportAreReadAndCarriedOut)
{
    RegistryImportJob reading((regFileHeader + "\n[HKEY_USERS\\A]\n\"v\"=dword:1\n").toUtf8());
    finish(reading);
    EXPECT_EQ(reading.progress().toStdString(), "2");
    EXPECT_FALSE(holds("A/v"));
    RegistryApplyJob applying(reading.plan());
    EXPECT_EQ(applying.progress().toStdString(), "0");
    finish(applying);
    EXPECT_EQ(applying.progress().toStdString(), "2");
    EXPECT_EQ(stored("A/v").toStdString(), "1$1");
}

TEST_F(RegistryJobs, SaveNothingBeforeTheyAreDestroyed)
{
    for (int i = 0; i < 3; ++i)
        store(QString("A/v%1").arg(i), "1$1");
    g_globalSettings->sync();
    const auto savedValues = [] {
        QCoreApplication::processEvents();
        QFile file(g_globalSettings->fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll().count("=1$1") : -1;
    };
    {
        ValueRemovalJob job({{"A", "v0"}, {"A", "v1"}});
        finish(job);
        EXPECT_EQ(g_globalSettings->allKeys().size(), 1);
        EXPECT_EQ(savedValues(), 3);
    }
    EXPECT_EQ(savedValues(), 1);
}

} // namespace
