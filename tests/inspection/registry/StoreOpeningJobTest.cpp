#include "inspection/registry/StoreOpeningJob.h"

#include "host/HostLibraries.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class StoreOpeningJobTest : public testing::Test
{
protected:
    StoreOpeningJobTest() { g_globalSettings = nullptr; }
    ~StoreOpeningJobTest() override { g_globalSettings = m_hosts; }

    QString path() const { return m_folder.filePath(QStringLiteral("store.ini")); }

    void write(const QStringList& entries) const
    {
        QSettings store(path(), QSettings::IniFormat);
        for (const QString& entry : entries)
            store.setValue(entry, QStringLiteral("5$text"));
    }

    void write(const QByteArray& text) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    // The sections, each step done.
    QStringList open()
    {
        m_store = std::make_unique<QSettings>(path(), QSettings::IniFormat);
        g_globalSettings = m_store.get();
        StoreOpeningJob opening;
        int steps = 0;
        while (opening.step())
            ++steps;
        EXPECT_EQ(opening.sections().size(), steps);
        return opening.sections();
    }

    QTemporaryDir m_folder;
    QSettings* m_hosts = g_globalSettings;
    std::unique_ptr<QSettings> m_store;
};

TEST_F(StoreOpeningJobTest, FindsTheGroupsAsTheStoreListsThem)
{
    write({QStringLiteral("Plain/a"), QStringLiteral("With space/b/c"), QStringLiteral("General/d"),
           QString::fromUtf8("\xC3\xA4/e"), QString::fromUtf8("\xE6\xB1\x89\xE5\xAD\x97/f"),
           QStringLiteral("100%/g"), QStringLiteral("a]b/h")});
    QStringList sections = open();
    sections.sort();
    EXPECT_EQ(sections, m_store->childGroups());
    EXPECT_EQ(sections.size(), 7);
}

TEST_F(StoreOpeningJobTest, FindsWhatStandsInNoGroup)
{
    write({QStringLiteral("top"), QStringLiteral("Group/a")});
    EXPECT_EQ(open(), QStringList({QString(), QStringLiteral("Group")}));
}

TEST_F(StoreOpeningJobTest, LeavesEveryEntryAsItWas)
{
    write({QStringLiteral("top"), QStringLiteral("A/a"), QStringLiteral("B/b/c")});
    open();
    EXPECT_EQ(m_store->allKeys(),
              QStringList({QStringLiteral("A/a"), QStringLiteral("B/b/c"), QStringLiteral("top")}));
    EXPECT_EQ(m_store->value(QStringLiteral("B/b/c")).toString(), QStringLiteral("5$text"));
}

TEST_F(StoreOpeningJobTest, TakesAFileThatSomebodyElseWrote)
{
    write(QByteArray("[general]\r\nx=1\r\n[%Unclosed%2\r\n[%ZZ]\r\ny=2\n[Last"));
    EXPECT_EQ(open(), QStringList({QString(), QStringLiteral("%Unclosed%2"), QStringLiteral("%ZZ"),
                                   QStringLiteral("Last")}));
}

TEST_F(StoreOpeningJobTest, EndsANameWithItsLine)
{
    write(QByteArray("[a\n[b\nx=1]\n[c] ; ]\n["));
    EXPECT_EQ(open(), QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                   QString()}));
}

TEST_F(StoreOpeningJobTest, HasNothingToDoWithoutAStoreOrAFile)
{
    EXPECT_FALSE(StoreOpeningJob().step());
    EXPECT_EQ(open(), QStringList());
}

} // namespace
