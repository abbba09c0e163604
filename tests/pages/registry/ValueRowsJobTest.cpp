#include "pages/registry/ValueRowsJob.h"

#include "tests/inspection/registry/RegistryTest.h"

namespace {

class ValueRowsJobTest : public RegistryTest
{
protected:
    static std::vector<ListedValue> values()
    {
        return ListedValue::ofKey(QStringLiteral("A"), *RegistryIndex::read());
    }

    // How many steps it takes.
    static int run(ValueRowsJob& job)
    {
        int steps = 1;
        while (job.step())
            ++steps;
        return steps;
    }
};

TEST_F(ValueRowsJobTest, WritesALineForEachValue)
{
    store("A/n", "1$7");
    store("A/t", "5$a text");
    ValueRowsJob job(values());
    run(job);
    EXPECT_EQ(job.text().toStdString(), "n\tREG_DWORD\t7 (0x00000007)\nt\tREG_SZ\ta text");
}

TEST_F(ValueRowsJobTest, LeavesManyValuesToFurtherSteps)
{
    constexpr int count = 50000;
    for (int i = 0; i < count; ++i)
        store(QStringLiteral("A/value%1").arg(i), QStringLiteral("1$1"));
    ValueRowsJob job(values());
    EXPECT_GT(run(job), 2);
    EXPECT_EQ(job.text().count('\n'), count - 1);
}

} // namespace
