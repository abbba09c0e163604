#include "inspection/registry/RawStore.h"

#include "host/HostLibraries.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/StoreFault.h"
#include "inspection/registry/StoreSaveBlocker.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <memory>
#include <utility>

namespace {

class RawStoreTest : public RegistryTest
{
};

TEST_F(RawStoreTest, ShowsAGroupAsItStands)
{
    store("A/v", "3$refused");
    store("A/B/w", "1$1");
    store("A/mark", QVariant());
    const RawStore group("A");
    EXPECT_EQ(group.entries(), QStringList({"mark", "v"}));
    EXPECT_EQ(group.allEntries(), QStringList({"B/w", "mark", "v"}));
    EXPECT_EQ(group.value("v").toString().toStdString(), "3$refused");
    EXPECT_TRUE(group.contains("mark"));
    EXPECT_TRUE(group.value("mark").isNull());
    EXPECT_FALSE(group.contains("B"));
    EXPECT_FALSE(group.isEmpty());
}

TEST_F(RawStoreTest, LeavesTheGroupAtItsEnd)
{
    store("A/v", "1$1");
    {
        const RawStore outer("A");
        EXPECT_TRUE(RawStore("B").isEmpty());
        EXPECT_TRUE(outer.contains("v"));
    }
    EXPECT_EQ(g_globalSettings->group().toStdString(), "");
}

TEST_F(RawStoreTest, IsEmptyWithoutAStore)
{
    QSettings* hosts = std::exchange(g_globalSettings, nullptr);
    EXPECT_FALSE(RawStore::exists());
    EXPECT_FALSE(RawStore::isWritable());
    EXPECT_EQ(RawStore::fileName().toStdString(), "");
    EXPECT_EQ(RawStore::receiver(), nullptr);
    const RawStore group("A");
    EXPECT_TRUE(group.isEmpty());
    EXPECT_TRUE(group.entries().isEmpty());
    EXPECT_TRUE(group.allEntries().isEmpty());
    EXPECT_FALSE(group.contains("v"));
    EXPECT_TRUE(group.value("v").isNull());
    EXPECT_EQ(storeFault().toStdString(), "");
    EXPECT_EQ(registryKeysFrom("A"), QStringList("A"));
    g_globalSettings = hosts;
}

TEST_F(RawStoreTest, MayGoBeforeTheBlockerOfItsSaving)
{
    auto own =
        std::make_unique<QSettings>(g_globalSettings->fileName() + ".other", QSettings::IniFormat);
    QSettings* hosts = std::exchange(g_globalSettings, own.get());
    {
        const StoreSaveBlocker blocker;
        own.reset();
    }
    g_globalSettings = hosts;
}

} // namespace
