#include "inspection/registry/ImportPlan.h"

#include "inspection/registry/ImportText.h"
#include "inspection/registry/RegistryImportJob.h"
#include "tests/inspection/registry/RegistryTest.h"

namespace {

// What the preview of an import says of its statements.
class ImportPlanTest : public RegistryTest
{
protected:
    void read(const QByteArray& body)
    {
        RegistryImportJob job("Windows Registry Editor Version 5.00\n" + body);
        while (job.step()) {
        }
        m_plan = job.plan();
    }

    const ImportPlan::Statement& statement(std::size_t at) const
    {
        return m_plan->statements().at(at);
    }
    std::string outcome(std::size_t at) const
    {
        return ImportText::outcome(statement(at)).toStdString();
    }
    std::string before(std::size_t at) const { return statement(at).before.toStdString(); }

    std::shared_ptr<const ImportPlan> m_plan;
};

TEST_F(ImportPlanTest, ShowsTheValueThatIsOverwritten)
{
    store("A/v", "1$1");
    store("A/w", "5$old");
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=dword:2\n\"w\"=\"new\"\n\"x\"=\"new\"\n");
    EXPECT_EQ(outcome(1), "Overwrites the value");
    EXPECT_EQ(before(1), "REG_DWORD 1 (0x00000001)");
    EXPECT_EQ(outcome(2), "Overwrites the value");
    EXPECT_EQ(before(2), "REG_SZ old");
    EXPECT_EQ(outcome(3), "Sets the value");
    EXPECT_TRUE(statement(3).before.isNull());
    EXPECT_EQ(m_plan->overwritten(), 2);
    EXPECT_EQ(ImportText::summary(*m_plan).toStdString(),
              "As written in the file: 4. Altered: 0. Refused: 0. Values that are overwritten: 2.");
}

TEST_F(ImportPlanTest, ShowsWhatIsOverwrittenAlsoWhereNoHostLibraryReadsIt)
{
    store("A/v", "no tag");
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=dword:2\n");
    EXPECT_EQ(before(1), "unreadable: no tag");
    EXPECT_EQ(m_plan->overwritten(), 1);
}

TEST_F(ImportPlanTest, ShowsWhatIsOverwrittenUnderARootAndInASubKey)
{
    store("X/X", "1$1");
    store("A/B/v", "1$2");
    read("[HKEY_CURRENT_USER]\n\"X\"=dword:9\n[HKEY_CURRENT_USER\\A]\n\"B\\\\v\"=dword:9\n");
    EXPECT_EQ(before(1), "REG_DWORD 1 (0x00000001)");
    EXPECT_EQ(before(3), "REG_DWORD 2 (0x00000002)");
}

TEST_F(ImportPlanTest, TellsWhatIsThereAlready)
{
    store("A/v", "1$1");
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=dword:1\n[HKEY_CURRENT_USER\\B]\n");
    EXPECT_EQ(outcome(0), "The key is there already");
    EXPECT_EQ(outcome(1), "The value is there already");
    EXPECT_EQ(outcome(2), "Creates the key");
    EXPECT_EQ(m_plan->overwritten(), 0);
}

TEST_F(ImportPlanTest, OverwritesNothingThatItHasDeletedBefore)
{
    store("A/v", "1$1");
    store("A/B/v", "1$1");
    store("C/v", "1$1");
    read("[-HKEY_CURRENT_USER\\A]\n[HKEY_CURRENT_USER\\A\\B]\n\"v\"=dword:2\n"
         "[HKEY_CURRENT_USER\\C]\n\"v\"=-\n\"v\"=dword:2\n");
    EXPECT_TRUE(statement(2).before.isNull());
    EXPECT_TRUE(statement(5).before.isNull());
    EXPECT_EQ(outcome(1), "Creates the key");
    read("[-HKEY_CURRENT_USER\\A]\n[HKEY_CURRENT_USER\\A]\n");
    EXPECT_EQ(outcome(1), "Creates the key");
}

TEST_F(ImportPlanTest, ShowsTheValueThatIsDeleted)
{
    store("A/v", "1$1");
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=-\n\"none\"=-\n");
    EXPECT_EQ(before(1), "REG_DWORD 1 (0x00000001)");
    EXPECT_TRUE(statement(1).isDeleting());
    EXPECT_FALSE(statement(2).isDeleting());
    EXPECT_EQ(outcome(1), "Deletes the value");
    EXPECT_EQ(m_plan->overwritten(), 0);
}

TEST_F(ImportPlanTest, TellsThatTwoRootsAreOne)
{
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=dword:1\n\"w\"=dword:1\n"
         "[HKEY_LOCAL_MACHINE\\A]\n\"v\"=dword:2\n");
    EXPECT_EQ(outcome(1), "Line 6 comes later and wins: all root keys are one.");
    EXPECT_EQ(outcome(2), "Sets the value");
    EXPECT_EQ(outcome(3),
              "The same key as under HKEY_CURRENT_USER in line 2: all root keys are one.");
    EXPECT_EQ(outcome(4), "The same value as under HKEY_CURRENT_USER in line 3: all root keys are "
                          "one, and the later statement wins.");
    EXPECT_EQ(m_plan->count(ImportPlan::Outcome::Altered), 3);
}

TEST_F(ImportPlanTest, TellsThatAKeyOfAnotherRootIsDeleted)
{
    read("[HKEY_CURRENT_USER\\A\\B]\n[-HKEY_CURRENT_USER\\A\\B]\n[-HKEY_LOCAL_MACHINE\\A]\n");
    EXPECT_EQ(outcome(1), "Deletes the key with everything below it.");
    EXPECT_EQ(outcome(2), "Deletes the key with everything below it. Deletes what line 2 puts "
                          "under HKEY_CURRENT_USER: all root keys are one.");
}

TEST_F(ImportPlanTest, TellsThatItIsDeletedAlsoBesideAKeyOfASimilarName)
{
    read("[HKEY_CURRENT_USER\\Soft\\Maker]\n[HKEY_CURRENT_USER\\Soft-Old]\n"
         "[-HKEY_LOCAL_MACHINE\\Soft]\n[-HKEY_LOCAL_MACHINE\\Sof]\n");
    EXPECT_EQ(outcome(2), "Deletes the key with everything below it. Deletes what line 2 puts "
                          "under HKEY_CURRENT_USER: all root keys are one.");
    EXPECT_EQ(outcome(3), "Deletes the key with everything below it.");
}

TEST_F(ImportPlanTest, SaysNothingOfOneRootAlone)
{
    read("[HKEY_CURRENT_USER\\A]\n\"v\"=dword:1\n[HKEY_CURRENT_USER\\A]\n\"v\"=dword:2\n"
         "[hkey_current_user\\A]\n\"v\"=dword:3\n");
    EXPECT_EQ(m_plan->count(ImportPlan::Outcome::Altered), 0);
}

TEST_F(ImportPlanTest, TellsOfKeysThatDifferInCaseOnly)
{
    store("Software/Maker/v", "1$1");
    read("[HKEY_CURRENT_USER\\software\\Maker]\n[HKEY_CURRENT_USER\\Software\\MAKER]\n"
         "[HKEY_CURRENT_USER\\software\\maker]\n[HKEY_CURRENT_USER\\Software\\Other]\n");
    EXPECT_EQ(outcome(0), "HKEY_CURRENT_USER\\software differs from \"Software\" in case only: two "
                          "keys here, one on Windows.");
    EXPECT_EQ(outcome(1), "HKEY_CURRENT_USER\\Software\\MAKER differs from \"Maker\" in case only: "
                          "two keys here, one on Windows.");
    EXPECT_EQ(outcome(2), "HKEY_CURRENT_USER\\software\\maker differs from \"Maker\" in case only: "
                          "two keys here, one on Windows.");
    EXPECT_EQ(outcome(3), "Creates the key");
}

TEST_F(ImportPlanTest, TellsOfValuesThatDifferInCaseOnly)
{
    store("A/Port", "1$1");
    read("[HKEY_CURRENT_USER\\A]\n\"port\"=dword:1\n\"Port\"=dword:1\n\"Other\"=dword:1\n");
    EXPECT_EQ(outcome(1), "\"port\" differs from \"Port\" in case only: two values here, one on "
                          "Windows.");
    EXPECT_EQ(outcome(3), "Sets the value");
}

TEST_F(ImportPlanTest, ReadsTheNamesOfALargeKeyAFewAStep)
{
    for (int i = 0; i < 5000; ++i)
        store(QString("A/value %1").arg(i), "1$1");
    RegistryImportJob job("Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\A]\n"
                          "\"VALUE 77\"=dword:1\n");
    int steps = 0;
    while (job.step())
        ++steps;
    EXPECT_GE(steps, 20);
    const auto& statements = job.plan()->statements();
    ASSERT_EQ(statements.size(), 2U);
    EXPECT_TRUE(statements[1].remark.contains("differs from \"value 77\" in case only"))
        << statements[1].remark.toStdString();
}

TEST_F(ImportPlanTest, TellsOfTheFirstOfTheKeysThatGoWithADeletion)
{
    read("[HKEY_USERS\\A\\Z]\n[HKEY_LOCAL_MACHINE\\A\\B]\n[HKEY_CURRENT_USER\\A\\A]\n"
         "[-HKEY_CURRENT_USER\\A]\n");
    EXPECT_TRUE(statement(3).remark.contains("Deletes what line 3 puts under HKEY_LOCAL_MACHINE"))
        << statement(3).remark.toStdString();
}

TEST_F(ImportPlanTest, TakesAValueWithoutTypeAndDataAsWindowsWritesIt)
{
    read("[HKEY_CURRENT_USER\\A]\n\"n\"=hex(0):\n\"b\"=hex:\n");
    EXPECT_EQ(outcome(1), "REG_NONE becomes REG_DWORD. It has no data and becomes the number 0.");
    EXPECT_EQ(statement(2).outcome, ImportPlan::Outcome::Refused);
}

} // namespace
