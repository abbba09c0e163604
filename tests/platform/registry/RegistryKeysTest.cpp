#include "tests/platform/registry/RegistryFixture.h"

namespace {

HKEY const unchanged = reinterpret_cast<HKEY>(0x1111);
const HKEY roots[] = {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_USERS};

class RegistryKeys : public RegistryFixture
{
protected:
    // The path that opening gives; null when the key was not found.
    QString opened(HKEY parent, const wchar_t* subKey)
    {
        HKEY handle = unchanged;
        const unsigned int status = manager->RegOpenKeyExW(parent, subKey, 0, 0, &handle);
        EXPECT_EQ(handle ? 0U : 2U, status);
        const QString path = handle ? *static_cast<QString*>(handle) : QString();
        EXPECT_EQ(0U, manager->RegCloseKey(handle));
        return path;
    }
};

TEST_F(RegistryKeys, EveryRootIsTheRootOfTheStore)
{
    store.setValue("Key/value", "1$1");
    for (HKEY root : roots)
        EXPECT_EQ("Key", opened(root, L"Key"));
}

TEST_F(RegistryKeys, AnEntryAGroupWithEntriesAndAGroupWithGroupsCanBeOpened)
{
    store.setValue("entry", "1$1");
    store.setValue("Group/value", "1$1");
    store.setValue("Outer/Inner/value", "1$1");
    EXPECT_EQ("entry", opened(HKEY_CURRENT_USER, L"entry"));
    EXPECT_EQ("Group", opened(HKEY_CURRENT_USER, L"Group"));
    EXPECT_EQ("Outer", opened(HKEY_CURRENT_USER, L"Outer"));
    EXPECT_EQ("Outer/Inner", opened(HKEY_CURRENT_USER, L"Outer/Inner"));
}

TEST_F(RegistryKeys, AMissingKeyGivesTwoAndANullResult)
{
    store.setValue("Group/value", "1$1");
    for (const wchar_t* subKey : {L"Other", L"Grou", L"group", L"Group/other"}) {
        HKEY handle = unchanged;
        EXPECT_EQ(2U, manager->RegOpenKeyExW(HKEY_CURRENT_USER, subKey, 0, 0, &handle));
        EXPECT_EQ(nullptr, handle);
    }
}

TEST_F(RegistryKeys, AnEmptySubKeyOfARootIsTheTopOfTheStore)
{
    store.setValue("Group/value", "1$1");
    const Key top(*this, HKEY_CURRENT_USER, L"");
    EXPECT_TRUE(top.path().isEmpty());
    EXPECT_EQ("/Group", opened(top, L"Group"));
}

TEST_F(RegistryKeys, AnEmptyStoreHasNoRootToOpen)
{
    EXPECT_TRUE(opened(HKEY_CURRENT_USER, L"").isNull());
    EXPECT_TRUE(opened(HKEY_CURRENT_USER, nullptr).isNull());
}

TEST_F(RegistryKeys, AnEmptiedGroupIsNotFound)
{
    store.setValue("Group/value", "1$1");
    EXPECT_EQ("Group", opened(HKEY_CURRENT_USER, L"Group"));
    store.remove("Group/value");
    EXPECT_TRUE(opened(HKEY_CURRENT_USER, L"Group").isNull());
}

TEST_F(RegistryKeys, SubKeysOfAKeyAreFoundBelowItsPath)
{
    store.setValue("A/B/C/value", "1$1");
    const Key a(*this, HKEY_USERS, L"A");
    EXPECT_EQ("A/B", opened(a, L"B"));
    EXPECT_EQ("A/B/C", opened(a, L"B/C"));
    EXPECT_TRUE(opened(a, L"C").isNull());
    EXPECT_EQ("A/", opened(a, L""));
    EXPECT_EQ("A/", opened(a, nullptr));
}

TEST_F(RegistryKeys, AskedBeforeBackslashesTurnAPathOfSeveralLevelsIsNotFound)
{
    store.setValue("A/B/value", "1$1");
    EXPECT_TRUE(opened(HKEY_CURRENT_USER, L"A\\B").isNull());
}

TEST_F(RegistryKeys, ALiteralBackslashIsFoundAndTurnedAfterwards)
{
    store.setValue("A\\B/value", "1$1");
    store.setValue("C\\D", "1$1");
    EXPECT_EQ("A/B", opened(HKEY_CURRENT_USER, L"A\\B"));
    EXPECT_EQ("C/D", opened(HKEY_CURRENT_USER, L"C\\D"));
}

TEST_F(RegistryKeys, CharactersBeyondTheBmpNameAKey)
{
    store.setValue(QString::fromUtf8("K😀/value"), "1$1");
    EXPECT_EQ(QString::fromUtf8("K😀"), opened(HKEY_CURRENT_USER, L"K\U0001F600"));
}

TEST_F(RegistryKeys, OpeningWithoutAResultOrAHandleFails)
{
    store.setValue("Key/value", "1$1");
    EXPECT_EQ(1U, manager->RegOpenKeyExW(HKEY_CURRENT_USER, L"Key", 0, 0, nullptr));
    HKEY handle = unchanged;
    EXPECT_EQ(1U, manager->RegOpenKeyExW(nullptr, L"Key", 0, 0, &handle));
    EXPECT_EQ(unchanged, handle);
}

TEST_F(RegistryKeys, TheShortOpenDemandsAResult)
{
    EXPECT_EQ(87U, manager->RegOpenKeyW(HKEY_CURRENT_USER, L"Key", nullptr));
    EXPECT_EQ(87U, manager->RegOpenKeyW(nullptr, nullptr, nullptr));
}

TEST_F(RegistryKeys, TheShortOpenHandsBackTheParentItself)
{
    store.setValue("Key/value", "1$1");
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    for (HKEY parent : {static_cast<HKEY>(key), HKEY_USERS}) {
        for (const wchar_t* subKey : {static_cast<const wchar_t*>(nullptr), L""}) {
            HKEY handle = unchanged;
            EXPECT_EQ(0U, manager->RegOpenKeyW(parent, subKey, &handle));
            EXPECT_EQ(parent, handle);
        }
    }
}

TEST_F(RegistryKeys, TheShortOpenOfNoHandleHandsItBackOrFails)
{
    for (const wchar_t* subKey : {static_cast<const wchar_t*>(nullptr), L""}) {
        HKEY handle = unchanged;
        EXPECT_EQ(0U, manager->RegOpenKeyW(nullptr, subKey, &handle));
        EXPECT_EQ(nullptr, handle);
    }
    HKEY handle = unchanged;
    EXPECT_EQ(1U, manager->RegOpenKeyW(nullptr, L"x", &handle));
    EXPECT_EQ(unchanged, handle);
}

TEST_F(RegistryKeys, TheShortOpenOpensASubKey)
{
    store.setValue("Key/value", "1$1");
    HKEY handle = unchanged;
    EXPECT_EQ(0U, manager->RegOpenKeyW(HKEY_CURRENT_USER, L"Key", &handle));
    EXPECT_EQ("Key", *static_cast<QString*>(handle));
    manager->RegCloseKey(handle);
    EXPECT_EQ(2U, manager->RegOpenKeyW(HKEY_CURRENT_USER, L"Other", &handle));
    EXPECT_EQ(nullptr, handle);
}

TEST_F(RegistryKeys, TheShortOpenAsksTheLongOneForTheMaximumAllowed)
{
    class Recording : public PlatformRegisterManagerImp
    {
    public:
        unsigned int RegOpenKeyExW(HKEY /*key*/, const wchar_t* /*subKey*/, unsigned int options,
                                   unsigned int access, HKEY* /*result*/) override
        {
            return options == 0 && access == 0x2000000 ? 4711 : 1;
        }
    };
    Recording recording;
    HKEY handle = unchanged;
    EXPECT_EQ(4711U, recording.RegOpenKeyW(HKEY_CURRENT_USER, L"Key", &handle));
}

TEST_F(RegistryKeys, EveryOpenGivesAHandleOfItsOwn)
{
    store.setValue("Key/value", "1$1");
    const Key first(*this, HKEY_CURRENT_USER, L"Key");
    const Key second(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_NE(static_cast<HKEY>(first), static_cast<HKEY>(second));
    EXPECT_EQ(first.path(), second.path());
}

TEST_F(RegistryKeys, ANullHandleCanBeClosed)
{
    EXPECT_EQ(0U, manager->RegCloseKey(nullptr));
}

class RegistryCreation : public RegistryKeys, public testing::WithParamInterface<bool>
{
protected:
    unsigned int create(HKEY parent, const wchar_t* subKey, HKEY*& result)
    {
        if (GetParam())
            return manager->RegCreateKeyW(parent, subKey, result);
        wchar_t keyClass[] = L"class";
        _SECURITY_ATTRIBUTES attributes{};
        unsigned int disposition = 2222;
        const unsigned int status = manager->RegCreateKeyExW(parent, subKey, 0, keyClass, 0, 0,
                                                             &attributes, result, &disposition);
        EXPECT_EQ(2222U, disposition);
        return status;
    }

    unsigned int create(HKEY parent, const wchar_t* subKey)
    {
        HKEY* result = nullptr;
        return create(parent, subKey, result);
    }
};

TEST_P(RegistryCreation, MakesTheKeyAnEntryOfItsParent)
{
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"Key"));
    EXPECT_TRUE(store.contains("Key"));
    EXPECT_FALSE(store.value("Key").isValid());
    EXPECT_EQ(QStringList("Key"), store.childKeys());
    EXPECT_TRUE(store.childGroups().isEmpty());
    EXPECT_EQ("Key", opened(HKEY_CURRENT_USER, L"Key"));
}

TEST_P(RegistryCreation, TurnsBackslashesIntoLevels)
{
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"A\\B\\C"));
    EXPECT_EQ(QStringList("A/B/C"), store.allKeys());
    const Key a(*this, HKEY_CURRENT_USER, L"A");
    EXPECT_EQ(0U, create(a, L"D"));
    EXPECT_EQ((QStringList{"A/B/C", "A/D"}), store.allKeys());
}

TEST_P(RegistryCreation, LeavesAnExistingEntryAlone)
{
    store.setValue("Key", "1$7");
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"Key"));
    EXPECT_EQ("1$7", stored("Key"));
}

TEST_P(RegistryCreation, PutsAnEntryBesideAnExistingGroup)
{
    store.setValue("Key/value", "1$7");
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"Key"));
    EXPECT_EQ((QStringList{"Key", "Key/value"}), store.allKeys());
}

TEST_P(RegistryCreation, NeverDeliversTheHandle)
{
    HKEY handle = unchanged;
    HKEY* result = &handle;
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"Key", result));
    EXPECT_EQ(unchanged, handle);
    EXPECT_NE(&handle, result);
    EXPECT_NE(nullptr, result);
}

TEST_P(RegistryCreation, WithoutAHandleFailsAndLeavesTheResultAlone)
{
    HKEY handle = unchanged;
    HKEY* result = &handle;
    EXPECT_EQ(1U, create(nullptr, L"Key", result));
    EXPECT_EQ(&handle, result);
    EXPECT_EQ(unchanged, handle);
    EXPECT_TRUE(store.allKeys().isEmpty());
}

TEST_P(RegistryCreation, WithoutANameSucceedsAndStoresNothing)
{
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, nullptr));
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L""));
    EXPECT_TRUE(store.allKeys().isEmpty());
}

TEST_P(RegistryCreation, WithoutANameBelowAKeyMakesThatKeyAnEntry)
{
    for (const wchar_t* subKey : {static_cast<const wchar_t*>(nullptr), L"", L"\\"}) {
        store.clear();
        store.setValue("A/v", "1$7");
        const Key a(*this, HKEY_CURRENT_USER, L"A");
        EXPECT_EQ(0U, create(a, subKey));
        EXPECT_EQ((QStringList{"A", "A/v"}), store.allKeys());
        EXPECT_FALSE(store.value("A").isValid());
    }
}

TEST_P(RegistryCreation, OfABackslashAloneMakesAnEntryWithoutAName)
{
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"\\"));
    EXPECT_EQ(QStringList(""), store.allKeys());
    EXPECT_FALSE(store.value("/").isValid());
}

TEST_P(RegistryCreation, OutlivesTheStoreOnDisk)
{
    EXPECT_EQ(0U, create(HKEY_CURRENT_USER, L"Key"));
    const auto reread = storeOnDisk();
    EXPECT_TRUE(reread->contains("Key"));
    EXPECT_FALSE(reread->value("Key").isValid());
}

INSTANTIATE_TEST_SUITE_P(Both, RegistryCreation, testing::Bool());

} // namespace
