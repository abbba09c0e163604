#include "trace/bundle/BundleIndex.h"
#include "trace/bundle/DirectoryListing.h"

#include <gtest/gtest.h>

namespace trace {

namespace {

QString faultOf(const QByteArray& json)
{
    QString fault;
    EXPECT_FALSE(BundleIndex::read(json, fault).has_value());
    return fault;
}

TEST(BundleIndexTest, ReadsWhatItHasWritten)
{
    BundleIndex index;
    index.store = BundleIndex::File{"/home/x/App.conf", "store.ini"};
    index.profiles = {{"/x/\u00e4.ini", "profiles/1"}, {"/y.ini", {}}};
    index.directories = {{"/x", "directories/1.json"}};
    index.left = {{"/large", qint64{5} << 40U, "tooLarge"}};
    index.isHidden = true;
    QString fault;
    const auto read = BundleIndex::read(index.toJson(), fault);
    ASSERT_TRUE(read) << fault.toStdString();
    EXPECT_EQ(read->toJson(), index.toJson());
    EXPECT_EQ(read->store->file, "store.ini");
    EXPECT_EQ(read->profile("/x/\u00e4.ini")->file, "profiles/1");
    EXPECT_TRUE(read->profile("/y.ini")->isAbsent());
    EXPECT_EQ(read->profile("/none"), nullptr);
    EXPECT_EQ(read->directory("/x")->file, "directories/1.json");
    EXPECT_EQ(read->left[0].size, qint64{5} << 40U);
    EXPECT_TRUE(read->isHidden);
}

TEST(BundleIndexTest, HasAStoreOnlyWhereOneWasKnown)
{
    QString fault;
    const auto read = BundleIndex::read("{\"quaysideBundle\":1}", fault);
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->store.has_value());
    EXPECT_FALSE(read->isHidden);
}

TEST(BundleIndexTest, TellsWhereItIsWrong)
{
    EXPECT_TRUE(faultOf("{").contains("damaged"));
    EXPECT_TRUE(faultOf("{}").contains("none of a bundle"));
    EXPECT_TRUE(faultOf("{\"quaysideBundle\":2}").contains("not known here: 2"));
    EXPECT_TRUE(faultOf("{\"quaysideBundle\":1,\"profiles\":3}").endsWith("at profiles"));
    EXPECT_TRUE(faultOf("{\"quaysideBundle\":1,\"store\":{\"file\":\"store.ini\"}}")
                    .endsWith("at store.path"));
    EXPECT_TRUE(
        faultOf("{\"quaysideBundle\":1,\"left\":[{\"path\":\"a\",\"size\":1,\"reason\":\"b\"},{}]}")
            .endsWith("at left[1].path"));
}

TEST(BundleIndexTest, RefusesCopiesOutsideOfTheBundle)
{
    for (const char* name : {"../x", "/etc/passwd", "a/../../b", ""}) {
        const QByteArray json =
            QByteArray("{\"quaysideBundle\":1,\"profiles\":[{\"path\":\"/a\",\"file\":\"") + name +
            "\"}]}";
        EXPECT_TRUE(faultOf(json).endsWith("at profiles[0].file")) << name;
    }
}

TEST(BundleIndexTest, TellsReasonsInWords)
{
    EXPECT_EQ(BundleIndex::reasonText("tooLarge"), "over the size limit");
    EXPECT_EQ(BundleIndex::reasonText("else"), "else");
}

TEST(DirectoryListingTest, ReadsWhatItHasWritten)
{
    DirectoryListing listing;
    listing.entries = {{"a.txt", false, 12, 1700000000, true}, {"b\\c", true, 0, 5, false}};
    const auto read = DirectoryListing::read(listing.toJson());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toJson(), listing.toJson());
    EXPECT_EQ(read->entries[0].size, 12);
    EXPECT_TRUE(read->entries[0].isReadOnly);
    EXPECT_TRUE(read->entries[1].isDirectory);
}

TEST(DirectoryListingTest, RefusesNamesThatAreNone)
{
    for (const char* name : {"", ".", "..", "a/b", "/"}) {
        const QByteArray json =
            QByteArray("{\"entries\":[{\"name\":\"") + name + "\",\"size\":0,\"modified\":0}]}";
        EXPECT_FALSE(DirectoryListing::read(json)) << name;
    }
    EXPECT_FALSE(DirectoryListing::read("{}"));
}

} // namespace

} // namespace trace
