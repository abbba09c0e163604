#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/ForkedCheck.h"
#include "tests/support/RandomBytes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

// A process has one store: each test starts those of processes of its own.
class DamagedStore : public testing::Test
{
protected:
    DamagedStore() { QDir().mkpath(folder.path()); }
    ~DamagedStore() override
    {
        for (const QString& name : folder.entryList(QDir::Files))
            QFile::remove(folder.filePath(name));
    }

    void write(const QByteArray& bytes) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(bytes.size(), file.write(bytes));
    }

    // What lies beside the store.
    QStringList copies() const
    {
        QStringList names = folder.entryList(QDir::Files);
        names.removeAll(QStringLiteral("registry.ini"));
        return names.filter(QStringLiteral("registry.ini.damaged-"));
    }

    QByteArray contentOf(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    // Starts the stand-in, and has its store saved.
    static int saved(const QString& value = QStringLiteral("5$text"))
    {
        return ForkedCheck::statusOf([&value] {
            setPlatformServices(&g_PlatformServices);
            g_globalSettings->setValue("key/value", value);
            g_globalSettings->sync();
            return ForkedCheck::passed;
        });
    }

    const QDir folder{QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)};
    const QString path = folder.filePath("registry.ini");
};

TEST_F(DamagedStore, IsKeptAsideBeforeItIsSaved)
{
    for (const QByteArray& bytes :
         {randomBytes(), QByteArray(4096, '\0'), QByteArray("[key\nvalue=5$text\n"),
          QByteArray("[key]\nvalue=5$te\x01xt\n")}) {
        write(bytes);
        EXPECT_EQ(ForkedCheck::passed, saved());
        ASSERT_EQ(1, copies().size()) << bytes.left(20).toStdString();
        EXPECT_EQ(bytes, contentOf(copies().first()));
        EXPECT_NE(bytes, contentOf("registry.ini"));
        QFile::remove(folder.filePath(copies().first()));
    }
}

TEST_F(DamagedStore, IsKeptAsideOnce)
{
    for (int start = 0; start < 2; ++start) {
        write(randomBytes());
        EXPECT_EQ(ForkedCheck::passed, saved());
    }
    EXPECT_EQ(1, copies().size());
}

TEST_F(DamagedStore, IsKeptAsideBesideAnEarlierOne)
{
    for (const QByteArray& bytes : {randomBytes(), QByteArray(100, '\0')}) {
        write(bytes);
        EXPECT_EQ(ForkedCheck::passed, saved());
    }
    EXPECT_EQ(2, copies().size());
}

TEST_F(DamagedStore, HasACopyForThoseWhoMayReadTheStore)
{
    write(randomBytes());
    EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(ForkedCheck::passed, saved());
    ASSERT_EQ(1, copies().size());
    EXPECT_FALSE(QFile::permissions(folder.filePath(copies().first())) &
                 (QFile::ReadGroup | QFile::ReadOther));
}

TEST_F(DamagedStore, IsNoneThatTheStoreHasWritten)
{
    EXPECT_EQ(ForkedCheck::passed, saved());
    EXPECT_EQ(ForkedCheck::passed,
              saved(QString::fromUcs4(U"5$\x01\x7f\t\r\n\u00e4\U0001F600, \"quoted\"")));
    EXPECT_EQ(ForkedCheck::passed, saved());
    EXPECT_EQ(QStringList(), copies());
}

TEST_F(DamagedStore, IsNoneThatIsMissingOrEmpty)
{
    EXPECT_EQ(ForkedCheck::passed, saved());
    write(QByteArray());
    EXPECT_EQ(ForkedCheck::passed, saved());
    EXPECT_EQ(QStringList(), copies());
}

} // namespace
