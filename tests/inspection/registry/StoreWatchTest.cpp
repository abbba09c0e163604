#include "inspection/registry/StoreWatch.h"

#include "tests/inspection/registry/StoreFileFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

using State = StoreWatch::State;

class StoreWatchTest : public RegistryTest
{
protected:
    StoreWatchTest()
    {
        store("A/v", "1$1");
        store("B/w", "5$text");
        QCoreApplication::processEvents();
        m_watch = std::make_unique<StoreWatch>();
    }

    // The state, once a comparison has been made where one is needed.
    State settled()
    {
        if (m_watch->state() != State::Unknown)
            return m_watch->state();
        StoreComparisonJob comparison;
        while (comparison.step()) {
        }
        m_watch->settle(comparison);
        return m_watch->state();
    }

    // True when a change has been noticed since the last call.
    bool hasGrown() { return std::exchange(m_revision, m_watch->revision()) != m_revision; }

    std::unique_ptr<StoreWatch> m_watch;
    int m_revision = 0;
};

TEST_F(StoreWatchTest, NoticesEachChangeOfTheStoreInThisProcess)
{
    hasGrown();
    EXPECT_FALSE(hasGrown());
    store("A/v", "1$2");
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasGrown());
    EXPECT_EQ(m_watch->state(), State::InStep);
    g_globalSettings->remove("A");
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasGrown());
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, TakesAStoreThatTheHostLibrarySavesForInStep)
{
    store("A/v", "1$2");
    g_globalSettings->sync();
    EXPECT_EQ(m_watch->state(), State::Unknown);
    EXPECT_EQ(settled(), State::InStep);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, KnowsAFileThatHasGone)
{
    StoreFile::remove();
    EXPECT_EQ(settled(), State::Vanished);
    EXPECT_TRUE(m_watch->text().contains("is gone")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, KnowsAFileThatHasGoneBeforeItLooked)
{
    StoreFile::remove();
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::Vanished);
}

TEST_F(StoreWatchTest, TakesAStoreThatWasNeverSavedForInStep)
{
    StoreFile::remove();
    g_globalSettings->clear();
    g_globalSettings->sync();
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::InStep);
    store("A/v", "1$1");
    m_watch = std::make_unique<StoreWatch>();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, KnowsAFileThatAnotherProgramHasReplaced)
{
    StoreFile::replace("[A]\nv=1$7\n");
    EXPECT_EQ(settled(), State::Replaced);
    EXPECT_TRUE(m_watch->text().contains("has replaced")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, KnowsAFileThatAnotherProgramHasWrittenTo)
{
    StoreFile::append("[C]\nx=1$7\n");
    EXPECT_EQ(settled(), State::Changed);
    EXPECT_TRUE(m_watch->text().contains("has changed")) << m_watch->text().toStdString();
}

TEST_F(StoreWatchTest, TakesAFileThatSaysTheSameForInStep)
{
    StoreFile::replace(StoreFile::bytes());
    EXPECT_EQ(m_watch->state(), State::Unknown);
    EXPECT_EQ(settled(), State::InStep);
}

TEST_F(StoreWatchTest, NoticesThatTheStoreHasReadTheFile)
{
    for (const char* text : {"[A]\nv=1$7\n", "[C]\nx=1$1\n", "[A]\nv=1$1\n\n[B]\nw=1$3\n"}) {
        StoreFile::replace(text);
        EXPECT_EQ(settled(), State::Replaced) << text;
        hasGrown();
        g_globalSettings->sync();
        EXPECT_EQ(settled(), State::InStep) << text;
        EXPECT_TRUE(hasGrown()) << text;
    }
    StoreFile::remove();
    EXPECT_EQ(settled(), State::Vanished);
    g_globalSettings->sync();
    EXPECT_EQ(settled(), State::InStep);
}

TEST_F(StoreWatchTest, IsInStepAgainWhenTheStoreHasSavedItself)
{
    StoreFile::replace("[A]\nv=1$7\n");
    EXPECT_EQ(settled(), State::Replaced);
    store("A/new", "1$1");
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
    EXPECT_EQ(stored("A/v").toStdString(), "1$7");
}

TEST_F(StoreWatchTest, DropsAComparisonWithAFileThatHasChangedMeanwhile)
{
    StoreFile::replace("[A]\nv=1$7\n");
    StoreComparisonJob comparison;
    while (comparison.step()) {
    }
    StoreFile::replace("[A]\nv=1$8\n");
    m_watch->settle(comparison);
    EXPECT_EQ(m_watch->state(), State::Unknown);
}

TEST_F(StoreWatchTest, LeavesTheStoreAsItIs)
{
    StoreFile::replace("[A]\nv=1$7\n");
    const QByteArray before = StoreFile::bytes();
    EXPECT_EQ(settled(), State::Replaced);
    EXPECT_EQ(stored("A/v").toStdString(), "1$1");
    EXPECT_EQ(StoreFile::bytes().toStdString(), before.toStdString());
}

TEST_F(StoreWatchTest, ComesToAnEndWhereverTheFirstDifferenceIs)
{
    // As long as it is open, its inode is given to none of the files that replace it.
    QFile saved(StoreFile::path());
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    for (const char* text : {"[A]\na=1$1\nv=1$1\n[B]\nw=5$text\n", "[B]\nw=5$text\n",
                             "[A]\nv=1$1\n", "[A]\nv=1$1\n[B]\nw=5$text\nz=1$1\n"}) {
        StoreFile::replace(text);
        EXPECT_EQ(settled(), State::Replaced) << text;
        EXPECT_EQ(m_watch->state(), State::Replaced) << text;
    }
}

// A store of an organisation and an application answers from the organisation's file, too.
TEST_F(StoreWatchTest, ComparesNothingButTheStoresOwnFile)
{
    QSettings shared(QSettings::IniFormat, QSettings::UserScope, "maker");
    shared.setValue("shared", "5$from elsewhere");
    shared.sync();
    QSettings own(QSettings::IniFormat, QSettings::UserScope, "maker", "program");
    own.setValue("A/v", "1$1");
    own.sync();
    QSettings* hosts = std::exchange(g_globalSettings, &own);
    EXPECT_EQ(stored("shared").toStdString(), "5$from elsewhere");
    StoreComparisonJob comparison;
    while (comparison.step()) {
    }
    EXPECT_FALSE(comparison.difference());
    EXPECT_TRUE(own.fallbacksEnabled());
    EXPECT_EQ(stored("shared").toStdString(), "5$from elsewhere");
    g_globalSettings = hosts;
}

TEST_F(StoreWatchTest, BeginsWithWhatAnEarlierOneHasSeen)
{
    StoreFile::append("[C]\nx=1$7\n");
    const auto earlier = std::exchange(m_watch, std::make_unique<StoreWatch>());
    EXPECT_EQ(settled(), State::Changed);
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::Changed);
    StoreFile::replace("[A]\nv=1$9\n");
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(settled(), State::Replaced);
}

TEST_F(StoreWatchTest, TakesWhatTheStoreSavedUnderAnEarlierOneForInStep)
{
    const auto earlier = std::exchange(m_watch, nullptr);
    store("A/v", "1$2");
    m_watch = std::make_unique<StoreWatch>();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
    store("A/v", "1$3");
    QCoreApplication::processEvents();
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreWatchTest, AsksNobodyToCompareWhatHasNotChanged)
{
    EXPECT_EQ(m_watch->state(), State::InStep);
    m_watch = std::make_unique<StoreWatch>();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

// What is written through memory is stamped once, with the first byte.
TEST_F(StoreWatchTest, KnowsAWriteThatTheStampDoesNotTell)
{
    QFile file(StoreFile::path());
    uchar* bytes = nullptr;
    store("A/v", "1$2");
    const auto touch = [&] { // right behind the saving
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        bytes = file.map(0, file.size());
        ASSERT_NE(bytes, nullptr);
        bytes[0] = '[';
    };
    QMetaObject::invokeMethod(m_watch.get(), touch, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    ASSERT_NE(bytes, nullptr);
    ASSERT_EQ(m_watch->state(), State::InStep);
    const FileStamp saved = FileStamp::of(StoreFile::path());
    bytes[StoreFile::bytes().indexOf("1$2") + 2] = '3';
    ASSERT_EQ(FileStamp::of(StoreFile::path()), saved);
    ASSERT_TRUE(waitFor([] { return FileStamp::of(StoreFile::path()).isSure(); }));
    ASSERT_TRUE(waitFor([] { return FileStamp::of(StoreFile::path()).isSure(); }));
    EXPECT_EQ(m_watch->state(), State::Unknown);
}

TEST_F(StoreWatchTest, ComparesWithoutRoomForACopy)
{
    const FullDisk full;
    StoreComparisonJob comparison;
    while (comparison.step()) {
    }
    EXPECT_FALSE(comparison.difference());
}

TEST_F(StoreWatchTest, FollowsTheHostLibraryToAnotherStore)
{
    QTemporaryDir folder;
    QSettings own(folder.filePath("own.ini"), QSettings::IniFormat);
    QSettings* hosts = std::exchange(g_globalSettings, &own);
    hasGrown();
    ASSERT_TRUE(waitFor([this] { return hasGrown(); }));
    own.setValue("A/v", "1$1");
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasGrown());
    g_globalSettings = hosts;
}

TEST_F(StoreWatchTest, IsInStepWithoutAStore)
{
    QSettings* hosts = std::exchange(g_globalSettings, nullptr);
    EXPECT_EQ(m_watch->state(), State::InStep);
    EXPECT_EQ(m_watch->text().toStdString(), "");
    g_globalSettings = hosts;
    EXPECT_EQ(m_watch->state(), State::InStep);
}

// A store never forgets a failure, so these have one of their own.
class StoreInTroubleTest : public StoreWatchTest
{
protected:
    StoreInTroubleTest() { m_watch.reset(); }
    ~StoreInTroubleTest() override { g_globalSettings = m_hosts; }

    void open(const QByteArray& text)
    {
        const QString path = m_folder.filePath("store.ini");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        m_own = std::make_unique<QSettings>(path, QSettings::IniFormat);
        g_globalSettings = m_own.get();
        m_watch = std::make_unique<StoreWatch>();
    }

    QTemporaryDir m_folder;
    QSettings* m_hosts = g_globalSettings;
    std::unique_ptr<QSettings> m_own;
};

TEST_F(StoreInTroubleTest, KnowsADamagedFileOnceItHasBeenParsed)
{
    for (const QByteArray& text : {QByteArray("[A]\nv=1$1\nnonsense\n"), QByteArray(4096, '\0')}) {
        open(text);
        EXPECT_EQ(m_watch->state(), State::InStep);
        g_globalSettings->allKeys();
        EXPECT_EQ(settled(), State::Damaged);
        EXPECT_TRUE(m_watch->text().contains("is damaged")) << m_watch->text().toStdString();
        EXPECT_EQ(StoreFile::bytes().toStdString(), text.toStdString());
        store("A/w", "1$2");
        QCoreApplication::processEvents();
        EXPECT_EQ(settled(), State::InStep);
    }
}

TEST_F(StoreInTroubleTest, TakesNoSoundFileForADamagedOne)
{
    open("[A]\n; a remark\n\nv=1$1\n");
    g_globalSettings->allKeys();
    EXPECT_EQ(m_watch->state(), State::InStep);
}

TEST_F(StoreInTroubleTest, KnowsThatASavingHasFailed)
{
    open("[A]\nv=1$1\nx=1$1\n");
    for (int failures = 1; failures <= 2; ++failures) {
        const FullDisk full;
        store("A/w", QString::number(failures));
        QCoreApplication::processEvents();
        EXPECT_EQ(m_watch->state(), State::Unknown);
        EXPECT_EQ(m_watch->state(), State::Unknown);
    }
    EXPECT_EQ(settled(), State::Unsaved);
    EXPECT_EQ(m_watch->failedSavings(), 1);
    EXPECT_TRUE(m_watch->text().contains("could not be saved")) << m_watch->text().toStdString();
    store("A/w", "1$3");
    QCoreApplication::processEvents();
    EXPECT_EQ(m_watch->state(), State::InStep);
    EXPECT_TRUE(StoreFile::bytes().contains("w=1$3"));
}

TEST_F(StoreInTroubleTest, KnowsThatASavingWasCutShort)
{
    open("[A]\nv=1$1\n" + QByteArray("w=").append(QByteArray(2000, 'w')) + '\n');
    const QByteArray former = StoreFile::bytes();
    {
        const FullDisk nearlyFull(1024);
        store("A/x", "1$1");
        QCoreApplication::processEvents();
        EXPECT_EQ(settled(), State::Unsaved);
        EXPECT_TRUE(m_watch->text().contains("could not be saved"));
        EXPECT_EQ(StoreFile::bytes().toStdString(), former.toStdString());
        int trials = 0;
        const auto guard = StoreSavingGuard::ofStore();
        QObject::connect(guard.get(), &StoreSavingGuard::ended, guard.get(), [&] { ++trials; });
        ASSERT_TRUE(waitFor([&] { return trials == 2; }));
        EXPECT_EQ(m_watch->state(), State::Unsaved);
        EXPECT_EQ(m_watch->failedSavings(), 1); // they had nothing new to save
        guard->disconnect();
    }
    m_watch = std::make_unique<StoreWatch>();
    ASSERT_TRUE(waitFor([] { return StoreFile::bytes().contains("x=1$1"); }));
    EXPECT_EQ(settled(), State::InStep);
}

TEST_F(StoreInTroubleTest, TellsTheDamageOfAFileThatAnotherProgramHasReplaced)
{
    open("[A]\nv=1$1\n");
    StoreFile::replace("[A]\nv=1$2\nnonsense\n");
    EXPECT_EQ(settled(), State::Replaced);
    EXPECT_TRUE(m_watch->text().contains("has replaced")) << m_watch->text().toStdString();
    EXPECT_TRUE(m_watch->text().contains("damaged, too")) << m_watch->text().toStdString();
    StoreFile::replace("[A]\nv=1$2\n");
    EXPECT_NE(settled(), State::InStep);
    EXPECT_FALSE(m_watch->text().contains("damaged")) << m_watch->text().toStdString();
}

TEST_F(StoreInTroubleTest, TakesASavingOfNothingForInStepAfterAFailure)
{
    open("[A]\nv=1$1\n");
    {
        const FullDisk full;
        store("A/w", "1$2");
        QCoreApplication::processEvents();
    }
    g_globalSettings->sync();
    EXPECT_EQ(settled(), State::InStep);
    g_globalSettings->remove("absent");
    QCoreApplication::processEvents();
    EXPECT_EQ(settled(), State::InStep);
}

} // namespace
