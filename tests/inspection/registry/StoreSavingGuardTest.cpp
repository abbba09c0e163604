#include "inspection/registry/StoreSavingGuard.h"

#include "tests/inspection/registry/StoreFileFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr rlim_t nearlyFull = 1024;

class StoreSavingGuardTest : public RegistryTest
{
protected:
    StoreSavingGuardTest()
    {
        for (int i = 0; i < 100; ++i)
            store(QStringLiteral("A/value%1").arg(i), QStringLiteral("5$the text of %1").arg(i));
        g_globalSettings->sync();
        m_former = StoreFile::bytes();
        m_guard = StoreSavingGuard::ofStore();
        QObject::connect(
            m_guard.get(), &StoreSavingGuard::ended, m_guard.get(),
            [this](const StoreSavingGuard::Outcome& outcome) { m_outcomes.push_back(outcome); });
    }

    // The store saves itself.
    void turn() const
    {
        QCoreApplication::processEvents();
        m_guard->settle();
    }

    // Names beside the store's file.
    static QStringList leftOver()
    {
        const QFileInfo file(StoreFile::path());
        return file.dir().entryList({file.fileName() + ".*"}, QDir::Files);
    }

    std::vector<StoreSavingGuard::Outcome> m_outcomes;
    QByteArray m_former;
    std::shared_ptr<StoreSavingGuard> m_guard; // tells of a saving as it ends
};

TEST_F(StoreSavingGuardTest, LeavesAWholeSavingAlone)
{
    store("A/new", "1$7");
    turn();
    ASSERT_EQ(m_outcomes.size(), 1U);
    EXPECT_TRUE(m_outcomes.front().hasWritten);
    EXPECT_FALSE(m_outcomes.front().isCut);
    EXPECT_TRUE(StoreFile::bytes().contains("new=1$7"));
    EXPECT_EQ(leftOver().join(' ').toStdString(), "");
}

TEST_F(StoreSavingGuardTest, PutsTheFormerFileBack)
{
    const FullDisk full(nearlyFull);
    store("A/new", "1$7");
    turn();
    ASSERT_EQ(m_outcomes.size(), 1U);
    EXPECT_TRUE(m_outcomes.front().isCut);
    EXPECT_FALSE(m_outcomes.front().isRepeated);
    EXPECT_EQ(StoreFile::bytes().toStdString(), m_former.toStdString());
    EXPECT_EQ(leftOver().join(' ').toStdString(), "");
}

TEST_F(StoreSavingGuardTest, KeepsInTheStoreWhatCouldNotBeSaved)
{
    const FullDisk full(nearlyFull);
    store("A/new", "1$7");
    store("A/value1", "1$8");
    g_globalSettings->remove("A/value2");
    turn();
    EXPECT_EQ(stored("A/new").toStdString(), "1$7");
    EXPECT_EQ(stored("A/value1").toStdString(), "1$8");
    EXPECT_FALSE(holds("A/value2"));
    EXPECT_EQ(stored("A/value3").toStdString(), "5$the text of 3");
}

TEST_F(StoreSavingGuardTest, SavesEverythingOnceThereIsRoom)
{
    {
        const FullDisk full(nearlyFull);
        store("A/new", "1$7");
        g_globalSettings->remove("A/value2");
        turn();
        store("A/later", "1$9");
        turn();
    }
    ASSERT_TRUE(waitFor([] { return StoreFile::bytes().contains("later=1$9"); }));
    turn();
    EXPECT_TRUE(StoreFile::bytes().contains("new=1$7"));
    EXPECT_TRUE(StoreFile::bytes().contains("value99="));
    EXPECT_FALSE(StoreFile::bytes().contains("value2="));
    EXPECT_FALSE(m_outcomes.back().isCut);
}

// As a group of the same name goes with the entry, it must come back.
TEST_F(StoreSavingGuardTest, KeepsTheGroupOfARemovedEntry)
{
    store("A/value2/below", "1$1");
    g_globalSettings->sync();
    g_globalSettings->setValue("A/value2/below", "1$2");
    {
        const FullDisk full(nearlyFull);
        g_globalSettings->remove("A/value2");
        store("A/value2/below", "1$2");
        turn();
    }
    EXPECT_FALSE(holds("A/value2"));
    EXPECT_EQ(stored("A/value2/below").toStdString(), "1$2");
    ASSERT_TRUE(waitFor([] { return StoreFile::bytes().contains("below=1$2"); }));
    EXPECT_FALSE(StoreFile::bytes().contains("value2="));
}

TEST_F(StoreSavingGuardTest, TellsATrialThatHasNothingNewToSave)
{
    const FullDisk full(nearlyFull);
    store("A/new", "1$7");
    ASSERT_TRUE(waitFor([this] { return m_outcomes.size() == 2; }));
    EXPECT_TRUE(m_outcomes.back().isCut);
    EXPECT_TRUE(m_outcomes.back().isRepeated);
    store("A/newer", "1$7");
    ASSERT_TRUE(waitFor([this] { return m_outcomes.size() == 3; }));
    EXPECT_TRUE(m_outcomes.back().isCut);
    EXPECT_FALSE(m_outcomes.back().isRepeated);
    EXPECT_EQ(StoreFile::bytes().toStdString(), m_former.toStdString());
}

TEST_F(StoreSavingGuardTest, RemovesHalfAFileWhereThereWasNone)
{
    const FullDisk full(nearlyFull);
    StoreFile::remove();
    g_globalSettings->sync();
    for (int i = 0; i < 100; ++i)
        store(QStringLiteral("A/value%1").arg(i), QStringLiteral("5$the text of %1").arg(i));
    turn();
    ASSERT_FALSE(m_outcomes.empty());
    EXPECT_TRUE(m_outcomes.back().isCut);
    EXPECT_FALSE(QFile::exists(StoreFile::path()));
    EXPECT_EQ(stored("A/value99").toStdString(), "5$the text of 99");
}

// The store would save what is still to be saved when it ends, too.
TEST_F(StoreSavingGuardTest, LeavesNoHalfAFileAtTheEnd)
{
    const FullDisk full(nearlyFull);
    const QString path = StoreFile::path() + ".own";
    ASSERT_TRUE(QFile::rename(StoreFile::path(), path));
    QSettings* hosts = g_globalSettings;
    {
        QSettings own(path, QSettings::IniFormat);
        g_globalSettings = &own;
        const auto guard = StoreSavingGuard::ofStore();
        own.setValue("A/new", "1$7");
        QCoreApplication::processEvents();
        guard->settle();
    }
    g_globalSettings = hosts;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), m_former.toStdString());
    EXPECT_TRUE(file.remove());
}

TEST_F(StoreSavingGuardTest, IsSharedByAllThatWatchTheStore)
{
    EXPECT_EQ(StoreSavingGuard::ofStore(), m_guard);
    QSettings* hosts = std::exchange(g_globalSettings, nullptr);
    EXPECT_EQ(StoreSavingGuard::ofStore(), nullptr);
    g_globalSettings = hosts;
}

} // namespace
