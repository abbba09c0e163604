#include "inspection/registry/KeysAlongJob.h"

#include "tests/inspection/registry/RegistryTest.h"

#include <algorithm>

namespace {

class KeysAlongJobTest : public RegistryTest
{
protected:
    std::string keys(std::vector<RegistryValueName> values)
    {
        KeysAlongJob job(std::move(values));
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
}

TEST_F(KeysAlongJobTest, FindsThemAll)
{
    std::vector<RegistryValueName> values;
    for (int i = 0; i < 300; ++i) {
        values.push_back({"A", QString::number(i)});
        store("A/" + values.back().name + "/inside", "1$1");
    }
    const std::string found = keys(values);
    EXPECT_EQ(std::count(found.begin(), found.end(), '|'), 299);
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
