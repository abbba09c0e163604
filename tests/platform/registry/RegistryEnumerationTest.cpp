#include "tests/platform/registry/RegistryFixture.h"
#include "tests/support/CanaryBuffer.h"

namespace {

class RegistryEnumeration : public RegistryFixture
{
protected:
    RegistryEnumeration()
    {
        store.setValue("Key/beta", "1$2");
        store.setValue("Key/alpha", "5$abc");
        store.setValue("Key/Sub2/x", "1$1");
        store.setValue("Key/Sub1/Deep/x", "1$1");
        key.emplace(*this, HKEY_CURRENT_USER, L"Key");
    }

    struct Listing
    {
        unsigned int status;
        std::wstring name;
    };

    // Lists the sub-key or, if `values`, the value at an index; checks what was written.
    Listing at(unsigned int index, bool values)
    {
        CanaryBuffer<wchar_t> name(8);
        unsigned int length = 1111;
        const unsigned int status =
            values ? manager->RegEnumValueW(*key, index, name.data(), &length, nullptr, nullptr,
                                            nullptr, nullptr)
                   : manager->RegEnumKeyExW(*key, index, name.data(), &length, nullptr, nullptr,
                                            nullptr, nullptr);
        if (status != 0) {
            EXPECT_EQ(1111U, length);
            name.expectUntouched();
            return {status, {}};
        }
        const std::wstring found(name.data(), length);
        name.expect(found);
        return {status, found};
    }

    QStringList all(bool values)
    {
        QStringList names;
        for (Listing found = at(0, values); found.status == 0;
             found = at(static_cast<unsigned int>(names.size()), values))
            names.append(QString::fromStdWString(found.name));
        return names;
    }

    std::optional<Key> key;
};

TEST_F(RegistryEnumeration, ListsSubKeysInOrder)
{
    EXPECT_EQ((QStringList{"Sub1", "Sub2"}), all(false));
}

TEST_F(RegistryEnumeration, ListsValuesInOrder)
{
    EXPECT_EQ((QStringList{"alpha", "beta"}), all(true));
}

TEST_F(RegistryEnumeration, AnIndexAtOrPastTheEndFails)
{
    for (const unsigned int index : {2U, 3U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(1U, at(index, false).status) << index;
        EXPECT_EQ(1U, at(index, true).status) << index;
        CanaryBuffer<wchar_t> name(8);
        EXPECT_EQ(1U, manager->RegEnumKeyW(*key, index, name.data(), 8)) << index;
        name.expectUntouched();
    }
}

TEST_F(RegistryEnumeration, WhatIsWrittenToTheStoreBetweenTwoCallsShows)
{
    EXPECT_EQ(L"alpha", at(0, true).name);
    store.setValue("Key/aaaa", "1$1");
    store.setValue("Key/Sub0/x", "1$1");
    EXPECT_EQ((QStringList{"aaaa", "alpha", "beta"}), all(true));
    EXPECT_EQ((QStringList{"Sub0", "Sub1", "Sub2"}), all(false));
    store.remove("Key/alpha");
    EXPECT_EQ((QStringList{"aaaa", "beta"}), all(true));
    QSettings other(store.fileName(), QSettings::IniFormat);
    other.setValue("Key/b", "1$1");
    EXPECT_EQ((QStringList{"aaaa", "b", "beta"}), all(true));
}

TEST_F(RegistryEnumeration, ACreatedKeyIsAValueUntilSomethingLiesBelowIt)
{
    HKEY* result = nullptr;
    EXPECT_EQ(0U, manager->RegCreateKeyW(*key, L"New", result));
    EXPECT_EQ((QStringList{"Sub1", "Sub2"}), all(false));
    const Key created(*this, *key, L"New");
    EXPECT_EQ(0U, setDword(created, L"value", 1));
    EXPECT_EQ((QStringList{"New", "Sub1", "Sub2"}), all(false));
}

TEST_F(RegistryEnumeration, ACreatedKeyIsAValueThatCannotBeRead)
{
    HKEY* result = nullptr;
    EXPECT_EQ(0U, manager->RegCreateKeyW(*key, L"New", result));
    CanaryBuffer<wchar_t> name(8);
    CanaryBuffer<unsigned char> data(8);
    unsigned int length = 1111;
    unsigned int type = 2222;
    unsigned int size = data.size();
    EXPECT_EQ(1U, manager->RegEnumValueW(*key, 0, name.data(), &length, nullptr, &type, data.data(),
                                         &size));
    name.expect(std::wstring(L"New"));
    EXPECT_EQ(3U, length);
    EXPECT_EQ(2222U, type);
    EXPECT_EQ(8U, size);
    data.expectUntouched();
}

TEST_F(RegistryEnumeration, ARootListsTheTopOfTheStore)
{
    store.setValue("top", "1$1");
    CanaryBuffer<wchar_t> name(8);
    EXPECT_EQ(0U, manager->RegEnumKeyW(HKEY_USERS, 0, name.data(), 8));
    name.expect(std::wstring(L"Key"));
    EXPECT_EQ(1U, manager->RegEnumKeyW(HKEY_USERS, 1, name.data(), 8));
    EXPECT_EQ(0U, manager->RegEnumValueW(HKEY_USERS, 0, name.data(), nullptr, nullptr, nullptr,
                                         nullptr, nullptr));
    name.expect(std::wstring(L"top"));
}

TEST_F(RegistryEnumeration, ANamesCapacityIsIgnored)
{
    CanaryBuffer<wchar_t> name(4);
    EXPECT_EQ(0U, manager->RegEnumKeyW(*key, 1, name.data(), 0));
    name.expect(std::wstring(L"Sub2"));
    CanaryBuffer<wchar_t> again(4);
    unsigned int length = 0;
    EXPECT_EQ(0U, manager->RegEnumKeyExW(*key, 1, again.data(), &length, nullptr, nullptr, nullptr,
                                         nullptr));
    EXPECT_EQ(4U, length);
    again.expect(std::wstring(L"Sub2"));
}

TEST_F(RegistryEnumeration, EveryResultMayBeNull)
{
    EXPECT_EQ(0U, manager->RegEnumKeyW(*key, 0, nullptr, 0));
    EXPECT_EQ(
        0U, manager->RegEnumKeyExW(*key, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(
        0U, manager->RegEnumValueW(*key, 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(RegistryEnumeration, GivesALengthWithoutAName)
{
    unsigned int length = 1111;
    EXPECT_EQ(
        0U, manager->RegEnumKeyExW(*key, 0, nullptr, &length, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(4U, length);
    EXPECT_EQ(
        0U, manager->RegEnumValueW(*key, 0, nullptr, &length, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(5U, length);
}

TEST_F(RegistryEnumeration, OfNoHandleFails)
{
    EXPECT_EQ(1U, manager->RegEnumKeyW(nullptr, 0, nullptr, 0));
    EXPECT_EQ(1U, manager->RegEnumKeyExW(nullptr, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                         nullptr));
    EXPECT_EQ(1U, manager->RegEnumValueW(nullptr, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                         nullptr));
}

TEST_F(RegistryEnumeration, LengthsCountCharactersNotUtf16Units)
{
    store.setValue(QString::fromUtf8("Key/😀"), "1$1");
    store.setValue(QString::fromUtf8("Key/😀😀/x"), "1$1");
    EXPECT_EQ(L"\U0001F600", at(2, true).name);
    EXPECT_EQ(L"\U0001F600\U0001F600", at(2, false).name);
}

TEST_F(RegistryEnumeration, NeverWritesClassOrTime)
{
    wchar_t keyClass[] = L"class";
    unsigned int classLength = 1111;
    unsigned int reserved = 2222;
    _FILETIME time{3333, 4444};
    EXPECT_EQ(0U, manager->RegEnumKeyExW(*key, 0, nullptr, nullptr, &reserved, keyClass,
                                         &classLength, &time));
    EXPECT_STREQ(L"class", keyClass);
    EXPECT_EQ(1111U, classLength);
    EXPECT_EQ(2222U, reserved);
    EXPECT_EQ(3333U, time.dwLowDateTime);
    EXPECT_EQ(4444U, time.dwHighDateTime);
}

TEST_F(RegistryEnumeration, GivesTypeAndDataOfAValue)
{
    CanaryBuffer<wchar_t> name(8);
    CanaryBuffer<unsigned char> data(13);
    unsigned int length = 0;
    unsigned int type = 0;
    unsigned int size = data.size();
    unsigned int reserved = 2222;
    EXPECT_EQ(0U, manager->RegEnumValueW(*key, 0, name.data(), &length, &reserved, &type,
                                         data.data(), &size));
    EXPECT_EQ(REG_SZ, type);
    EXPECT_EQ(12U, size);
    EXPECT_EQ(2222U, reserved);
    data.expect(std::vector<unsigned char>{'a', 0, 0, 0, 'b', 0, 0, 0, 'c', 0, 0, 0});
}

TEST_F(RegistryEnumeration, AValueThatCannotBeReadFailsWithItsNameWritten)
{
    store.setValue("Key/aaaa", "foreign");
    const std::pair<unsigned int, std::wstring> rows[] = {{0, L"aaaa"}, {1, L"alpha"}};
    for (const auto& [index, expected] : rows) {
        CanaryBuffer<wchar_t> name(8);
        CanaryBuffer<unsigned char> data(12); // one short of what the text needs
        unsigned int length = 0;
        unsigned int type = 1111;
        unsigned int size = data.size();
        EXPECT_EQ(1U, manager->RegEnumValueW(*key, index, name.data(), &length, nullptr, &type,
                                             data.data(), &size));
        name.expect(expected);
        EXPECT_EQ(expected.size(), length);
        EXPECT_EQ(1111U, type);
        EXPECT_EQ(12U, size);
        data.expectUntouched();
    }
}

TEST_F(RegistryEnumeration, AValueNamedBackslashHasAnEmptyName)
{
    EXPECT_EQ(0U, setDword(*key, L"\\", 7));
    CanaryBuffer<wchar_t> name(8);
    CanaryBuffer<unsigned char> data(8);
    unsigned int length = 1111;
    unsigned int type = 1111;
    unsigned int size = data.size();
    EXPECT_EQ(0U, manager->RegEnumValueW(*key, 0, name.data(), &length, nullptr, &type, data.data(),
                                         &size));
    name.expectUntouched();
    EXPECT_EQ(0U, length);
    EXPECT_EQ(REG_DWORD, type);
    EXPECT_EQ(4U, size);
    data.expect(std::vector<unsigned char>{7, 0, 0, 0});
}

TEST_F(RegistryEnumeration, TheStoreIsLeftInNoGroup)
{
    for (const unsigned int index : {0U, 9U}) {
        at(index, false);
        at(index, true);
    }
    manager->RegQueryInfoKeyW(*key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                              nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(store.group().isEmpty());
}

} // namespace
