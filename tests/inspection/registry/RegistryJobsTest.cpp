#include "host/HostLibraries.h"
#include "inspection/registry/KeyMovePlanJob.h"
#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryCheckJob.h"
#include "inspection/registry/RegistryCountJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistrySearchJob.h"
#include "inspection/registry/ValueRemovalJob.h"
#include "regfile/RegFileText.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QBuffer>
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

TEST_F(RegistryJobs, FindRegularExpressionsInNamesTextsAndBytes)
{
    store("A/name", "5$Some text");
    store("A/other", "4$00ff");
    RegistrySearchJob::Query query{"^s.*t$"};
    query.isPattern = true;
    RegistrySearchJob text(query);
    finish(text);
    ASSERT_EQ(text.hits().size(), 1U);
    EXPECT_EQ(text.hits()[0].name.toStdString(), "name");
    query.mindsCase = true;
    RegistrySearchJob none(query);
    finish(none);
    EXPECT_TRUE(none.hits().empty());
    query.text = "ff$";
    RegistrySearchJob bytes(query);
    finish(bytes);
    EXPECT_EQ(bytes.hits().size(), 1U);
}

TEST_F(RegistryJobs, FindWholeWordsByRegularExpressions)
{
    store("A/v", "5$blueberry blue");
    store("A/w", "5$blueberry");
    RegistrySearchJob::Query query{"b.ue"};
    query.isPattern = true;
    query.wholeWords = true;
    RegistrySearchJob job(query);
    finish(job);
    ASSERT_EQ(job.hits().size(), 1U);
    EXPECT_EQ(job.hits()[0].name.toStdString(), "v");
}

TEST_F(RegistryJobs, FindNoMoreThanTheNumberThatIsGiven)
{
    for (const char* path : {"A/v", "B/v", "C/v"})
        store(path, "5$blue");
    RegistrySearchJob job({"blue"}, {}, 2);
    finish(job);
    EXPECT_EQ(job.hits().size(), 2U);
    EXPECT_TRUE(job.isFull());
}

TEST_F(RegistryJobs, TakeTheKeysOfAFileToBeBelowAPrefix)
{
    auto file = std::make_unique<QBuffer>();
    file->setData(
        "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\A]\r\n[HKEY_CURRENT_USER]\r\n[HKEY_X\\A]\r\n");
    file->open(QIODevice::ReadOnly);
    RegistryImportJob job(std::move(file), {}, "P/Q");
    finish(job);
    const auto& statements = job.plan()->statements();
    ASSERT_EQ(statements.size(), 3U);
    EXPECT_EQ(statements[0].entry.key.toStdString(), "HKEY_CURRENT_USER\\P\\Q\\A");
    EXPECT_EQ(statements[1].entry.key.toStdString(), "HKEY_CURRENT_USER\\P\\Q");
    EXPECT_EQ(statements[2].outcome, ImportPlan::Outcome::Refused);
}

TEST_F(RegistryJobs, PlanACopyThatLeavesTheOriginal)
{
    store("A/v", "1$1");
    KeyMovePlanJob job("A", "B", KeyMovePlanJob::Original::Stays);
    finish(job);
    const StoreChange change = job.takeChange();
    ASSERT_EQ(change.size(), 1U);
    EXPECT_EQ(change[0].path.toStdString(), "B/v");
    EXPECT_EQ(change[0].after->toString().toStdString(), "1$1");
}

TEST_F(RegistryJobs, FindWhatHostLibrariesCannotReadOrReadOtherwise)
{
    store("A/fine", "5$x");
    store("A/number", "1$5000000000");
    store("A/untagged", "text");
    store("A/mark", QVariant());
    RegistryCheckJob job({});
    finish(job);
    ASSERT_EQ(job.findings().size(), 2U);
    EXPECT_EQ(job.findings()[0].name.toStdString(), "number");
    EXPECT_TRUE(job.findings()[0].isReadable);
    EXPECT_FALSE(job.findings()[0].reason.isEmpty());
    EXPECT_EQ(job.findings()[1].raw.toStdString(), "text");
    EXPECT_FALSE(job.findings()[1].isReadable);
    EXPECT_EQ(job.progress().toStdString(), "4");
}

TEST_F(RegistryJobs, FindKeysThatHostLibrariesOpenOthersFor)
{
    store("A\\B/v", "5$x");
    RegistryCheckJob job({});
    finish(job);
    ASSERT_EQ(job.findings().size(), 1U);
    EXPECT_TRUE(job.findings()[0].name.isEmpty());
}

} // namespace
