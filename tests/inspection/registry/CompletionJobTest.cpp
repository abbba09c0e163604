#include "inspection/registry/CompletionJob.h"

#include "tests/inspection/registry/RegistryTest.h"

namespace {

constexpr int many = 100;

class CompletionJobTest : public RegistryTest
{
protected:
    std::string completed(const QString& typed, int most = many)
    {
        CompletionJob job(RegistryIndex::read(), typed, most);
        m_steps = 0;
        while (job.step())
            ++m_steps;
        return job.completions().join('|').toStdString();
    }

    int m_steps = 0;
};

TEST_F(CompletionJobTest, OffersKeysOfBothKindsInAnyCaseButNoValues)
{
    store("A/Product/v", "1$1");
    store("A/product old/v", "1$1");
    store("A/Printer", QVariant());
    store("A/Price", "1$1");
    store("A/Other/v", "1$1");
    EXPECT_EQ(completed("HKLM\\A\\pr"), "HKLM\\A\\Printer|HKLM\\A\\Product|HKLM\\A\\product old");
    EXPECT_EQ(completed("A/Product"), "A/Product|A/product old");
}

TEST_F(CompletionJobTest, OffersRootsBeforeTheFirstSeparator)
{
    store("Hardware/v", "1$1");
    EXPECT_EQ(completed("h"), "HKEY_CURRENT_USER|HKEY_LOCAL_MACHINE|HKEY_CLASSES_ROOT|HKEY_USERS|"
                              "Hardware");
}

TEST_F(CompletionJobTest, EndsWhenItHasFoundEnough)
{
    for (int i = 0; i < 4 * SubKeyScan::names; ++i)
        store(QString("A/k%1/v").arg(i), "1$1");
    EXPECT_EQ(QString::fromStdString(completed("A\\", 3)).count('|'), 2);
    EXPECT_LE(m_steps, 2);
}

TEST_F(CompletionJobTest, LooksAtAFewNamesAStep)
{
    for (int i = 0; i < 20 * SubKeyScan::names; ++i)
        store(QString("A/value %1").arg(i), "1$1");
    EXPECT_EQ(completed("A\\v"), "");
    EXPECT_GE(m_steps, 20);
}

} // namespace
