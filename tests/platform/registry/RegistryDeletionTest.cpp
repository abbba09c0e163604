#include "tests/platform/registry/RegistryFixture.h"

namespace {

class RegistryDeletion : public RegistryFixture
{
protected:
    RegistryDeletion()
    {
        for (const char* path : {"A/B/C/one", "A/B/two", "A/B", "A/three", "A/BC/four", "five"})
            store.setValue(path, "1$1");
    }
};

class RegistryKeyDeletion : public RegistryDeletion, public testing::WithParamInterface<bool>
{
protected:
    unsigned int remove(HKEY parent, const wchar_t* subKey)
    {
        return GetParam() ? manager->RegDeleteKeyExW(parent, subKey, 0, 0)
                          : manager->RegDeleteKeyW(parent, subKey);
    }
};

TEST_P(RegistryKeyDeletion, TakesTheSubtreeAndTheEntryOfThatNameAlong)
{
    const Key a(*this, HKEY_CURRENT_USER, L"A");
    EXPECT_EQ(0U, remove(a, L"B"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
}

TEST_P(RegistryKeyDeletion, ReachesSeveralLevelsDown)
{
    EXPECT_EQ(0U, remove(HKEY_LOCAL_MACHINE, L"A\\B\\C"));
    EXPECT_EQ((QStringList{"A/B", "A/B/two", "A/BC/four", "A/three", "five"}), store.allKeys());
    EXPECT_EQ(0U, remove(HKEY_LOCAL_MACHINE, L"A/B"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
}

TEST_P(RegistryKeyDeletion, SucceedsOnWhatDoesNotExist)
{
    const QStringList before = store.allKeys();
    EXPECT_EQ(0U, remove(HKEY_CURRENT_USER, L"Other"));
    EXPECT_EQ(before, store.allKeys());
}

TEST_P(RegistryKeyDeletion, OfABackslashAloneRemovesTheParent)
{
    const Key b(*this, HKEY_CURRENT_USER, L"A/B");
    EXPECT_EQ(0U, remove(b, L"\\"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
    EXPECT_EQ(0U, remove(HKEY_CURRENT_USER, L"\\"));
    EXPECT_TRUE(store.allKeys().isEmpty());
}

TEST_P(RegistryKeyDeletion, WithoutANameOrAHandleFails)
{
    const QStringList before = store.allKeys();
    EXPECT_EQ(1U, remove(HKEY_CURRENT_USER, L""));
    EXPECT_EQ(1U, remove(HKEY_CURRENT_USER, nullptr));
    EXPECT_EQ(1U, remove(nullptr, L"A"));
    EXPECT_EQ(before, store.allKeys());
}

TEST_P(RegistryKeyDeletion, LeavesTheStoreInNoGroup)
{
    EXPECT_EQ(0U, remove(HKEY_CURRENT_USER, L"A"));
    EXPECT_TRUE(store.group().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Both, RegistryKeyDeletion, testing::Bool());

TEST_F(RegistryDeletion, OfASubtreeAnswersOneWhenDone)
{
    EXPECT_EQ(1U, manager->RegDeleteKeyAndAllSubkeys("A/B"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
    EXPECT_EQ(1U, manager->RegDeleteKeyAndAllSubkeys("Other"));
    EXPECT_EQ(0U, manager->RegDeleteKeyAndAllSubkeys(QString()));
    EXPECT_EQ(0U, manager->RegDeleteKeyAndAllSubkeys(""));
    EXPECT_EQ(3, store.allKeys().size());
}

TEST_F(RegistryDeletion, OfASubtreeStartsAtTheCurrentGroup)
{
    store.beginGroup("A");
    EXPECT_EQ(1U, manager->RegDeleteKeyAndAllSubkeys("B"));
    EXPECT_EQ("A", store.group());
    store.endGroup();
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
}

TEST_F(RegistryDeletion, OfAValueRemovesIt)
{
    const Key a(*this, HKEY_CURRENT_USER, L"A");
    EXPECT_EQ(0U, manager->RegDeleteValueW(a, L"three"));
    EXPECT_FALSE(store.contains("A/three"));
    EXPECT_EQ(5, store.allKeys().size());
}

TEST_F(RegistryDeletion, OfAMissingValueSucceeds)
{
    const Key a(*this, HKEY_CURRENT_USER, L"A");
    EXPECT_EQ(0U, manager->RegDeleteValueW(a, L"other"));
    EXPECT_EQ(6, store.allKeys().size());
}

TEST_F(RegistryDeletion, OfAValueTakesTheSubKeyOfThatNameAlong)
{
    const Key a(*this, HKEY_CURRENT_USER, L"A");
    EXPECT_EQ(0U, manager->RegDeleteValueW(a, L"B"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
}

TEST_F(RegistryDeletion, OfAValueTurnsBackslashesIntoLevels)
{
    EXPECT_EQ(0U, manager->RegDeleteValueW(HKEY_USERS, L"A\\B\\two"));
    EXPECT_FALSE(store.contains("A/B/two"));
    EXPECT_EQ(5, store.allKeys().size());
}

TEST_F(RegistryDeletion, OfAValueUnderARootRemovesTheEntryOfThatName)
{
    EXPECT_EQ(0U, manager->RegDeleteValueW(HKEY_USERS, L"five"));
    EXPECT_FALSE(store.contains("five"));
}

TEST_F(RegistryDeletion, OfAValueNamedBackslashRemovesTheKey)
{
    const Key b(*this, HKEY_CURRENT_USER, L"A/B");
    EXPECT_EQ(0U, manager->RegDeleteValueW(b, L"\\"));
    EXPECT_EQ((QStringList{"A/BC/four", "A/three", "five"}), store.allKeys());
}

TEST_F(RegistryDeletion, OfAValueWithoutANameOrAHandleFails)
{
    EXPECT_EQ(1U, manager->RegDeleteValueW(HKEY_CURRENT_USER, L""));
    EXPECT_EQ(1U, manager->RegDeleteValueW(HKEY_CURRENT_USER, nullptr));
    EXPECT_EQ(1U, manager->RegDeleteValueW(nullptr, L"five"));
    EXPECT_EQ(6, store.allKeys().size());
}

} // namespace
