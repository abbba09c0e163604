#include "inspection/registry/ListedValue.h"

#include "host/HostLibraries.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QSettings>

namespace {

using Place = ListedValue::Place;

class ListedValueTest : public RegistryTest
{
protected:
    static std::vector<ListedValue> of(const QString& path)
    {
        return ListedValue::ofKey(path, *RegistryIndex::read());
    }
};

TEST_F(ListedValueTest, IsReadWhenItIsAskedForFirst)
{
    store("A/v", "5$old");
    const std::vector<ListedValue> values = of("A");
    ASSERT_EQ(values.size(), 1U);
    store("A/v", "5$new");
    EXPECT_EQ(values[0].dataText().toStdString(), "new");
    store("A/v", "5$newer");
    EXPECT_EQ(values[0].dataText().toStdString(), "new");
}

TEST_F(ListedValueTest, IsReadAnewOnceItIsForgotten)
{
    store("A/v", "5$old");
    std::vector<ListedValue> values = of("A");
    ASSERT_EQ(values.size(), 1U);
    EXPECT_EQ(values[0].raw().toStdString(), "5$old");
    store("A/v", "1$7");
    values[0].forget();
    EXPECT_EQ(values[0].raw().toStdString(), "1$7");
    EXPECT_EQ(values[0].typeText().toStdString(), "REG_DWORD");
}

TEST_F(ListedValueTest, OfTheRootIsDeletedWhereItIsKept)
{
    store("X/X", "5$kept");
    store("X/other", "5$not listed");
    store("loose", "5$listed");
    const std::vector<ListedValue> values = of("");
    ASSERT_EQ(values.size(), 2U);
    EXPECT_EQ(values[0].place(), Place::UnderRoot);
    EXPECT_EQ(values[0].keyToDeleteFrom().toStdString(), "X");
    EXPECT_EQ(values[1].place(), Place::ListedAtRoot);
    EXPECT_EQ(values[1].keyToDeleteFrom().toStdString(), "");
}

TEST_F(ListedValueTest, OfARootThatTheServiceReadsAtAnotherPlaceSaysWhereItIsListed)
{
    store("a\\b", QVariant());
    store("a/b", "1$5");
    const std::vector<ListedValue> values = of("");
    ASSERT_EQ(values.size(), 1U);
    EXPECT_EQ(values[0].name().toStdString(), "a\\b");
    EXPECT_TRUE(values[0].isReadable());
    EXPECT_EQ(values[0].remark().toStdString(),
              "Only listed: asking for it by name looks into the key \"a\\b\"");
}

TEST_F(ListedValueTest, KnowsThatItHasGone)
{
    store("A/u", "1$1");
    store("A/v", "1$1");
    const std::vector<ListedValue> values = of("A");
    ASSERT_EQ(values.size(), 2U);
    store("A/v", QVariant());
    EXPECT_TRUE(values[0].isThere());
    EXPECT_TRUE(values[1].isThere()); // the mark of a key is an entry too
    g_globalSettings->remove("A/v");
    EXPECT_FALSE(values[1].isThere());
    EXPECT_EQ(values[1].remark().toStdString(), "No longer there");
}

TEST_F(ListedValueTest, IsRedirectedByItsNameOrByThatOfItsKey)
{
    store("A/v", "1$1");
    store("A/x\\y", "1$1");
    store("a\\b/own", "1$1");
    store("a/b/theirs", "1$1");
    const std::vector<ListedValue> plain = of("A");
    ASSERT_EQ(plain.size(), 2U);
    EXPECT_EQ(plain[0].redirection().toStdString(), "");
    EXPECT_TRUE(plain[1].redirection().contains("gets the value \"y\""));
    const std::vector<ListedValue> redirected = of("a\\b");
    ASSERT_EQ(redirected.size(), 1U);
    EXPECT_TRUE(redirected[0].redirection().contains("gets the key \"b\""));
}

TEST_F(ListedValueTest, GivesItsWholeDataOrWhyThereIsNone)
{
    const QString text(700, 'x');
    store("A/t", "5$" + text);
    store("A/u", "3$1");
    const std::vector<ListedValue> values = of("A");
    ASSERT_EQ(values.size(), 2U);
    EXPECT_EQ(values[0].wholeData(), text);
    EXPECT_LT(values[0].dataText().size(), text.size());
    EXPECT_EQ(values[1].typeText().toStdString(), "unreadable");
    EXPECT_EQ(values[1].wholeData(), values[1].remark());
    EXPECT_FALSE(values[1].remark().isEmpty());
}

} // namespace
