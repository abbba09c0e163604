#include "inspection/registry/KeyNode.h"

#include <gtest/gtest.h>

namespace {

class KeyNodeTest : public testing::Test
{
protected:
    KeyNodeTest()
    {
        RegistryListing listing;
        listing.keys = QStringList{"a", "c", "e"};
        listing.createdKeys = QStringList{"d"};
        m_root.setListing(listing);
    }

    std::string children() const
    {
        QStringList names;
        for (int row = 0; row < m_root.count(); ++row) {
            EXPECT_EQ(m_root.child(row).row(), row);
            names.append(m_root.child(row).name());
        }
        return names.join(',').toStdString();
    }

    KeyNode m_root;
};

TEST_F(KeyNodeTest, ListsBothKindsOfKeysSorted)
{
    EXPECT_EQ(m_root.names(), QStringList({"a", "c", "d", "e"}));
    EXPECT_TRUE(m_root.isListed());
    EXPECT_EQ(m_root.count(), 0);
}

TEST_F(KeyNodeTest, KnowsWhichKeysAreCreatedAndEmpty)
{
    m_root.insert(0, 3, m_root.names());
    EXPECT_FALSE(m_root.child(1).isCreated());
    EXPECT_TRUE(m_root.child(2).isCreated());
    EXPECT_FALSE(m_root.isCreated());
}

TEST_F(KeyNodeTest, HasThePathOfItsKey)
{
    m_root.insert(0, 0, m_root.names());
    KeyNode& key = m_root.child(0);
    key.insert(0, 0, {"below"});
    EXPECT_EQ(m_root.path().toStdString(), "");
    EXPECT_EQ(key.child(0).path().toStdString(), "a/below");
    EXPECT_EQ(key.child(0).parent(), &key);
}

TEST_F(KeyNodeTest, NumbersItsChildrenAnewWhenSomeComeOrGo)
{
    m_root.insert(0, 3, m_root.names());
    m_root.remove(1, 2);
    EXPECT_EQ(children(), "a,e");
    m_root.insert(1, 2, {"a", "b", "c", "e"});
    EXPECT_EQ(children(), "a,b,c,e");
    EXPECT_TRUE(m_root.hasChild(2, "c"));
    EXPECT_FALSE(m_root.hasChild(4, "e"));
}

TEST_F(KeyNodeTest, WantsAllNamesWhereAllHadChildren)
{
    m_root.insert(0, 3, m_root.names());
    EXPECT_EQ(m_root.wantedCount({"a", "c", "d", "e", "f", "g"}), 6);
}

TEST_F(KeyNodeTest, WantsNamesUpToTheLastChildWhereOthersWait)
{
    m_root.insert(0, 1, m_root.names()); // a and c
    EXPECT_EQ(m_root.wantedCount({"a", "b", "c", "d", "e"}), 3);
}

} // namespace
