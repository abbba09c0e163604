#include "inspection/registry/ImportCheck.h"

#include "host/HostLibraries.h"
#include "platform/WindowsTypes.h"
#include "tests/inspection/registry/RegistryTest.h"

#include <QSettings>

#include <ostream>

namespace {

using Action = RegFileEntry::Action;
using Outcome = ImportCheck::Outcome;

struct Row
{
    RegFileEntry entry;
    Outcome outcome;
    const char* words; ///< a part of the remark
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.entry.key.toStdString() << " " << row.entry.name.toStdString() << " "
               << row.entry.type;
}

RegFileEntry statement(Action action, const char* key, const char* name = "")
{
    RegFileEntry entry;
    entry.action = action;
    entry.key = key;
    entry.name = name;
    return entry;
}

RegFileEntry value(unsigned int type, const char* hex, const char* name = "v",
                   const char* key = "HKEY_CURRENT_USER\\K")
{
    RegFileEntry entry = statement(Action::SetValue, key, name);
    entry.type = type;
    entry.data = QByteArray::fromHex(hex);
    return entry;
}

class Statement : public testing::TestWithParam<Row>
{
};

TEST_P(Statement, IsCheckedBeforeItIsCarriedOut)
{
    const ImportCheck check(GetParam().entry);
    EXPECT_EQ(check.outcome(), GetParam().outcome) << check.remark().toStdString();
    EXPECT_EQ(check.remark().isEmpty(), GetParam().outcome == Outcome::Done);
    EXPECT_TRUE(check.remark().contains(QLatin1String(GetParam().words)))
        << check.remark().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    OfAKey, Statement,
    testing::Values(
        Row{statement(Action::CreateKey, "HKEY_USERS\\general"), Outcome::Altered,
            "After a restart the key \"general\" is called \"General\""},
        Row{value(REG_DWORD, "01000000", "v", "HKEY_USERS\\GENERAL\\A"), Outcome::Altered,
            "is called \"General\""},
        Row{statement(Action::CreateKey, "HKEY_USERS\\A\\general"), Outcome::Done, ""},
        Row{statement(Action::CreateKey, "HKEY_CURRENT_USER\\K"), Outcome::Done, ""},
        Row{statement(Action::CreateKey, "hkey_users\\K"), Outcome::Done, ""},
        Row{statement(Action::CreateKey, "HKEY_CURRENT_CONFIG\\K"), Outcome::Refused, "root keys"},
        Row{statement(Action::CreateKey, "Software\\K"), Outcome::Refused, "root keys"},
        Row{statement(Action::CreateKey, "HKEY_CURRENT_USER\\a/b"), Outcome::Altered, "separates"},
        Row{statement(Action::DeleteKey, "HKEY_CURRENT_USER\\K"), Outcome::Altered, "Deletes"},
        Row{statement(Action::DeleteKey, "HKEY_CURRENT_USER"), Outcome::Refused, "root key"}));

INSTANTIATE_TEST_SUITE_P(
    OfAName, Statement,
    testing::Values(
        Row{value(REG_DWORD, "01000000", ""), Outcome::Refused, "default value"},
        Row{value(REG_DWORD, "01000000", "a\\b"), Outcome::Altered, "sub-key"},
        Row{value(REG_DWORD, "01000000", "v", "HKEY_CURRENT_USER"), Outcome::Altered, "own name"},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER", "v"), Outcome::Altered,
            "everything in it"},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER\\K", ""), Outcome::Refused,
            "default value"},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER\\K", "v"), Outcome::Done, ""},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER\\K", "a\\b"), Outcome::Altered,
            "lead to a value of a sub-key"},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER\\K", "\\"), Outcome::Refused,
            "separators alone"},
        Row{statement(Action::DeleteValue, "HKEY_CURRENT_USER", "/\\"), Outcome::Refused,
            "separators alone"},
        Row{value(REG_DWORD, "01000000", "\\"), Outcome::Refused, "separators alone"}));

INSTANTIATE_TEST_SUITE_P(
    OfAType, Statement,
    testing::Values(Row{value(REG_SZ, ""), Outcome::Done, ""},
                    Row{value(REG_BINARY, "00"), Outcome::Done, ""},
                    Row{value(REG_BINARY, ""), Outcome::Refused, "without a byte"},
                    Row{value(REG_DWORD, "ffffff7f"), Outcome::Done, ""},
                    Row{value(REG_DWORD, "00000080"), Outcome::Altered, "read as 0"},
                    Row{value(REG_DWORD, "0102"), Outcome::Altered, "first byte"},
                    Row{value(REG_DWORD, ""), Outcome::Refused, "without a byte"},
                    Row{value(REG_QWORD, "ff00000000000000"), Outcome::Done, ""},
                    Row{value(REG_QWORD, "ff01000000000000"), Outcome::Altered, "511"},
                    Row{value(REG_NONE, "01000000"), Outcome::Altered, "REG_DWORD"},
                    Row{value(REG_NONE, ""), Outcome::Altered, "the number 0"},
                    Row{value(REG_EXPAND_SZ, "2500"), Outcome::Refused, "REG_EXPAND_SZ"},
                    Row{value(REG_MULTI_SZ, "0000"), Outcome::Refused, "REG_MULTI_SZ"},
                    Row{value(REG_DWORD_BIG_ENDIAN, "00000001"), Outcome::Refused, "BIG_ENDIAN"},
                    Row{value(REG_RESOURCE_LIST, "00"), Outcome::Refused, "REG_RESOURCE_LIST"},
                    Row{value(12, "00"), Outcome::Refused, "12"}));

class StatementOnTwins : public RegistryTest
{
protected:
    static std::string remark(Action action, const char* key, const char* name = "")
    {
        store("A/twin", "1$1");
        store("A/twin/inside", "1$1");
        store("A/key/inside", "1$1");
        return ImportCheck(statement(action, key, name)).remark().toStdString();
    }
};

TEST_F(StatementOnTwins, TellsOfTheValueThatGoesWithAKey)
{
    EXPECT_EQ(remark(Action::DeleteKey, "HKEY_CURRENT_USER\\A\\twin"),
              "Deletes the key with everything below it. The value \"twin\" of "
              "HKEY_CURRENT_USER\\A goes with it.");
    EXPECT_EQ(remark(Action::DeleteKey, "HKEY_CURRENT_USER\\A\\key"),
              "Deletes the key with everything below it.");
}

TEST_F(StatementOnTwins, TellsOfTheKeyThatGoesWithAValue)
{
    EXPECT_EQ(remark(Action::DeleteValue, "HKEY_CURRENT_USER\\A", "twin"),
              "The key HKEY_CURRENT_USER\\A\\twin goes with it, with everything in it.");
    EXPECT_EQ(remark(Action::DeleteValue, "HKEY_CURRENT_USER\\A", "inside"), "");
}

TEST_F(StatementOnTwins, TellsOfTheKeyThatGoesWithAValueOfASubKey)
{
    const std::string leads = "The separators in the name lead to a value of a sub-key.";
    for (const char* name : {"A\\twin", "A/twin", "\\A\\\\twin"}) {
        EXPECT_EQ(remark(Action::DeleteValue, "HKEY_CURRENT_USER\\A", name), leads);
        store("A/A/twin/inside", "1$1");
        EXPECT_EQ(
            remark(Action::DeleteValue, "HKEY_CURRENT_USER\\A", name),
            leads + " The key HKEY_CURRENT_USER\\A\\A\\twin goes with it, with everything in it.");
        g_globalSettings->clear();
    }
    EXPECT_EQ(remark(Action::DeleteValue, "HKEY_CURRENT_USER", "\\A\\key"),
              leads + " Deletes the key \"A\\key\" below the root with everything in it.");
}

TEST(ImportCheck, PassesOnWhatTheReaderFound)
{
    RegFileEntry entry;
    entry.problem = "nonsense";
    const ImportCheck check(entry);
    EXPECT_EQ(check.outcome(), Outcome::Refused);
    EXPECT_EQ(check.remark().toStdString(), "nonsense");
}

} // namespace
