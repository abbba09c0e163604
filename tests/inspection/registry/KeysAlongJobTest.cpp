#include "inspection/registry/KeysAlongJob.h"

#include "tests/inspection/registry/RegistryTest.h"

namespace {

class KeysAlongJobTest : public RegistryTest
{
protected:
    std::string keys(std::vector<RegistryValueName> values, int most = 10)
    {
        KeysAlongJob job(std::move(values), most);
        m_steps = 0;
        while (job.step())
            ++m_steps;
        return job.keys().join('|').toStdString();
    }

    int m_steps = 0;
};

TEST_F(KeysAlongJobTest, FindsKeysThatAreNamedLikeTheValues)
{
    store("A/twin", "1$1");
    store("A/twin/inside", "1$1");
    store("A/v", "1$1");
    store("A/mark", QVariant());
    EXPECT_EQ(keys({{"A", "twin"}, {"A", "v"}, {"A", "mark"}}), "A/twin|A/mark");
    EXPECT_EQ(keys({{"A", "twin"}, {"A", "v"}, {"A", "mark"}}, 1), "A/twin");
}

TEST_F(KeysAlongJobTest, LooksAtAFewValuesAStep)
{
    std::vector<RegistryValueName> values;
    for (int i = 0; i < 5000; ++i)
        values.push_back({"A", QString::number(i)});
    EXPECT_EQ(keys(values), "");
    EXPECT_GE(m_steps, 20);
}

} // namespace
