#include "inspection/registry/StoreReplacement.h"

#include "host/HostLibraries.h"
#include "inspection/registry/RawStore.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QTemporaryDir>

namespace {

class StoreReplacements : public RegistryTest
{
protected:
    QString file() const { return m_folder.filePath("s.ini"); }

    QTemporaryDir m_folder;
};

TEST_F(StoreReplacements, StandInTheStoresPlaceAsLongAsTheyLive)
{
    QSettings* usual = g_globalSettings;
    {
        const StoreReplacement replacement(file());
        EXPECT_EQ(RawStore::fileName().toStdString(), file().toStdString());
        RawStore().set("A/v", "5$x");
    }
    EXPECT_EQ(g_globalSettings, usual);
    EXPECT_TRUE(QFile::exists(file()));
}

TEST_F(StoreReplacements, AreSavedAtOnceWhenAsked)
{
    const StoreReplacement replacement(file());
    RawStore().set("A/v", "5$x");
    EXPECT_FALSE(QFile::exists(file()));
    EXPECT_TRUE(RawStore::save());
    EXPECT_TRUE(QFile::exists(file()));
}

TEST_F(StoreReplacements, TellWhenTheyCannotBeReadOrSaved)
{
    {
        const StoreReplacement folder(m_folder.path());
        EXPECT_TRUE(RawStore::isInaccessible());
    }
    QFile plain(m_folder.filePath("plain"));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    const StoreReplacement below(m_folder.filePath("plain/s.ini"));
    EXPECT_FALSE(RawStore::isInaccessible());
    RawStore().set("A/v", "5$x");
    EXPECT_FALSE(RawStore::save());
}

} // namespace
