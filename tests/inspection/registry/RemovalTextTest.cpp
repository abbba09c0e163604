#include "inspection/registry/RemovalText.h"

#include "tests/inspection/registry/RegistryTest.h"

namespace {

class RemovalTextTest : public RegistryTest
{
protected:
    static std::string ofKey(const QString& path)
    {
        RegistryCountJob count(path);
        while (count.step()) {
        }
        return RemovalText::ofKey(path, count).toStdString();
    }
};

TEST_F(RemovalTextTest, NamesTheFirstTenValues)
{
    std::vector<RegistryValueName> values;
    for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"})
        values.push_back({"A", name});
    EXPECT_EQ(RemovalText::ofValues(values, {}).toStdString(), "a\nb\nc\nd\ne\nf\ng\nh\ni\nj");
    values.push_back({"A", "k"});
    values.push_back({"A", "l"});
    EXPECT_EQ(RemovalText::ofValues(values, {}).toStdString(),
              "a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nand 2 more");
}

TEST_F(RemovalTextTest, TellsOfKeysThatAreNamedLikeTheValues)
{
    EXPECT_EQ(RemovalText::ofValues({{"A", "twin"}, {"A", "v"}}, {"A/twin"}).toStdString(),
              "twin\nv\n\nKeys of the same name go with everything in them:\n"
              "HKEY_CURRENT_USER\\A\\twin");
}

TEST_F(RemovalTextTest, NamesTheFirstTenKeysThatAreNamedLikeTheValues)
{
    QStringList keys;
    std::string named = "a\n\nKeys of the same name go with everything in them:";
    for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}) {
        keys.append(name);
        named += std::string("\nHKEY_CURRENT_USER\\") + name;
    }
    EXPECT_EQ(RemovalText::ofValues({{"", "a"}}, keys).toStdString(), named);
    keys += {"k", "l"};
    EXPECT_EQ(RemovalText::ofValues({{"", "a"}}, keys).toStdString(), named + "\nand 2 more");
}

TEST_F(RemovalTextTest, CountsWhatIsBelowAKey)
{
    store("A/B/v", "1$1");
    store("A/B/C/w", "1$1");
    store("A/other", "1$1");
    EXPECT_EQ(ofKey("A/B"), "Keys below it that go with it: 1. Values: 2.");
}

TEST_F(RemovalTextTest, TellsOfTheValueThatIsNamedLikeTheKey)
{
    store("A/twin", "1$1");
    store("A/twin/inside", "1$1");
    EXPECT_EQ(ofKey("A/twin"), "Keys below it that go with it: 0. Values: 1.\n"
                               "The value \"twin\" of HKEY_CURRENT_USER\\A goes with it.");
}

} // namespace
