#include "inspection/registry/NearestKeyJob.h"

#include "inspection/registry/RegistryIndex.h"
#include "inspection/registry/TypedAddress.h"
#include "tests/inspection/registry/RegistryTest.h"

namespace {

using Difference = NearestKeyJob::Difference;

class NearestKeyJobTest : public RegistryTest
{
protected:
    NearestKeyJobTest()
    {
        store("Software/Maker/Product/v", "1$1");
        store("Software/Maker/Printers/v", "1$1");
        store("Software/Made", QVariant());
        store("Software/Makor", "1$1"); // a value
        store("Hardware/v", "1$1");
    }

    // What is found for an address, as "case: path".
    std::string found(const QString& address)
    {
        NearestKeyJob job(RegistryIndex::read(), pathsOfAddress(address));
        m_steps = 0;
        while (job.step())
            ++m_steps;
        switch (job.difference()) {
        case Difference::None: break;
        case Difference::Case: return "case: " + job.path().toStdString();
        case Difference::Typing: return "typing: " + job.path().toStdString();
        }
        return "none" + job.path().toStdString();
    }

    int m_steps = 0;
};

TEST_F(NearestKeyJobTest, FindsAKeyThatDiffersInCaseOnly)
{
    EXPECT_EQ(found("software\\maker\\PRODUCT"), "case: Software/Maker/Product");
    EXPECT_EQ(found("HKLM\\software\\made"), "case: Software/Made");
    store("software/x", "1$1");
    EXPECT_EQ(found("software\\maker"), "case: Software/Maker");
}

TEST_F(NearestKeyJobTest, FindsAKeyThatIsMistyped)
{
    EXPECT_EQ(found("Sofware\\Maker"), "typing: Software/Maker");
    EXPECT_EQ(found("Software\\Mkaer"), "typing: Software/Maker");
    EXPECT_EQ(found("HKEY_CURRENT_USER\\Software\\Maker\\Produkt"),
              "typing: Software/Maker/Product");
    EXPECT_EQ(found("HKLM\\Software\\Maker\\Pritners"), "typing: Software/Maker/Printers");
}

TEST_F(NearestKeyJobTest, TakesTheNearestOfSeveral)
{
    EXPECT_EQ(found("Software\\Mader"), "typing: Software/Made");
    store("Software/Maderr/v", "1$1");
    EXPECT_EQ(found("Software\\Maders"), "typing: Software/Maderr");
}

TEST_F(NearestKeyJobTest, FollowsTheRestOfThePathAsFarAsItLeads)
{
    EXPECT_EQ(found("Sofware\\Maker\\Unknown"), "typing: Software/Maker");
    EXPECT_EQ(found("SOFWARE\\Maker\\Product"), "typing: Software/Maker/Product");
}

TEST_F(NearestKeyJobTest, OffersNothingThatIsFar)
{
    EXPECT_EQ(found("Nothing\\Like\\It"), "none");
    EXPECT_EQ(found("Software\\Mak"), "none");
    EXPECT_EQ(found("S"), "none");
}

TEST_F(NearestKeyJobTest, LooksAtAFewNamesAStep)
{
    for (int i = 0; i < 20 * SubKeyScan::names; ++i)
        store(QString("Software/Many/value %1").arg(i), "1$1");
    store("Software/Many/Deep/v", "1$1");
    EXPECT_EQ(found("Software\\Many\\Deeep"), "typing: Software/Many/Deep");
    EXPECT_GE(m_steps, 2 * 20); // once for the case, once for the mistake
}

} // namespace
