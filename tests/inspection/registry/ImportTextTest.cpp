#include "inspection/registry/ImportText.h"

#include "inspection/registry/RegistryImportJob.h"
#include "tests/inspection/registry/RegistryTest.h"

namespace {

class ImportTextTest : public RegistryTest
{
protected:
    ImportTextTest()
    {
        RegistryImportJob job("Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\A]\n"
                              "\"text\"=\"some\"\n\"number\"=dword:0000002a\n"
                              "\"large\"=hex(b):00,01,00,00,00,00,00,00\n"
                              "\"multi\"=hex(7):00,00\n\"gone\"=-\n");
        while (job.step()) {
        }
        m_plan = job.plan();
        m_complete = m_plan->statements().size() == 6;
    }

    std::string outcome(std::size_t at) const
    {
        return m_complete ? ImportText::outcome(m_plan->statements()[at]).toStdString() : "";
    }
    std::string data(std::size_t at) const
    {
        return m_complete ? ImportText::data(m_plan->statements()[at].entry).toStdString() : "";
    }

    std::shared_ptr<const ImportPlan> m_plan;
    bool m_complete = false;
};

TEST_F(ImportTextTest, SaysWhatBecomesOfAStatement)
{
    EXPECT_EQ(outcome(0), "Creates the key");
    EXPECT_EQ(outcome(1), "Sets the value");
    EXPECT_EQ(outcome(3), m_plan->statements()[3].remark.toStdString());
    EXPECT_FALSE(outcome(3).empty());
    EXPECT_EQ(outcome(4), "Refused: REG_MULTI_SZ cannot be stored.");
    EXPECT_EQ(outcome(5), "Deletes the value");
}

TEST_F(ImportTextTest, ShowsTypeAndDataOfWhatIsSet)
{
    EXPECT_EQ(data(0), "");
    EXPECT_EQ(data(1), "REG_SZ some");
    EXPECT_EQ(data(2), "REG_DWORD 42 (0x0000002a)");
    EXPECT_EQ(data(5), "");
}

TEST_F(ImportTextTest, CountsTheOutcomes)
{
    EXPECT_EQ(ImportText::summary(*m_plan).toStdString(),
              "As written in the file: 4. Altered: 1. Refused: 1.");
}

} // namespace
