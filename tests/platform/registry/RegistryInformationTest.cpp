#include "tests/platform/registry/RegistryFixture.h"

#include "platform/PlatformServicesImp.h"

namespace {

static_assert(sizeof(PlatformRegisterManagerImp) == 2 * sizeof(void*),
              "the interface and the store, nothing else");

class RegistryInformation : public RegistryFixture
{
protected:
    struct Answer
    {
        unsigned int subKeys = 1111;
        unsigned int longestSubKey = 1111;
        unsigned int values = 1111;
        unsigned int longestValueName = 1111;
        unsigned int longestValueData = 1111;

        bool operator==(const Answer& other) const
        {
            return subKeys == other.subKeys && longestSubKey == other.longestSubKey &&
                   values == other.values && longestValueName == other.longestValueName &&
                   longestValueData == other.longestValueData;
        }
    };

    unsigned int ask(HKEY key, Answer& answer)
    {
        return manager->RegQueryInfoKeyW(
            key, nullptr, nullptr, nullptr, &answer.subKeys, &answer.longestSubKey, nullptr,
            &answer.values, &answer.longestValueName, &answer.longestValueData, nullptr, nullptr);
    }

    Answer of(const wchar_t* subKey)
    {
        const Key key(*this, HKEY_CURRENT_USER, subKey);
        Answer answer;
        EXPECT_EQ(0U, ask(key, answer));
        return answer;
    }
};

TEST_F(RegistryInformation, CountsAndMeasures)
{
    store.setValue("Key/a", "1$1");
    store.setValue("Key/long", "5$text");
    store.setValue("Key/Sub/x", "1$1");
    store.setValue("Key/Sub/y", "1$1");
    store.setValue("Key/LongSub/x", "1$1");
    EXPECT_EQ((Answer{2, 7, 2, 4, 0}), of(L"Key"));
}

TEST_F(RegistryInformation, ACreatedKeyCountsAsAValue)
{
    store.setValue("Key/a", "1$1");
    store.setValue("Key/Sub/x", "1$1");
    EXPECT_EQ((Answer{1, 3, 1, 1, 4}), of(L"Key"));
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    HKEY* result = nullptr;
    EXPECT_EQ(0U, manager->RegCreateKeyW(key, L"Created", result));
    EXPECT_EQ((Answer{1, 3, 2, 7, 0}), of(L"Key"));
}

TEST_F(RegistryInformation, OfAnEmptyStoreIsAllZero)
{
    Answer answer;
    EXPECT_EQ(0U, ask(HKEY_CURRENT_USER, answer));
    EXPECT_EQ((Answer{0, 0, 0, 0, 0}), answer);
}

TEST_F(RegistryInformation, OfARootIsThatOfTheTopOfTheStore)
{
    store.setValue("top", "1$1");
    store.setValue("Key/x", "1$1");
    Answer answer;
    EXPECT_EQ(0U, ask(HKEY_LOCAL_MACHINE, answer));
    EXPECT_EQ((Answer{1, 3, 1, 3, 4}), answer);
}

TEST_F(RegistryInformation, TheDataMeasuredIsThatOfTheFirstOfTheLongestNames)
{
    store.setValue("Text/aa", "5$text");
    store.setValue("Text/bb", "1$1");
    store.setValue("Text/c", "1$1");
    store.setValue("Number/aa", "1$1");
    store.setValue("Number/bb", "5$text");
    EXPECT_EQ(0U, of(L"Text").longestValueData);
    EXPECT_EQ(4U, of(L"Number").longestValueData);
}

TEST_F(RegistryInformation, OnlyADwordHasADataLength)
{
    const std::pair<const char*, unsigned int> rows[] = {
        {"0$1", 4}, {"1$1", 4},    {"2$1", 0}, {"4$010203", 0},
        {"4$", 0},  {"5$text", 0}, {"5$", 0},  {"foreign", 0}};
    for (const auto& [text, length] : rows) {
        store.setValue("Key/value", text);
        EXPECT_EQ(length, of(L"Key").longestValueData) << text;
    }
}

TEST_F(RegistryInformation, AValueNamedBackslashHasAnEmptyName)
{
    store.setValue("Key/x", "5$text");
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, setDword(key, L"\\", 7));
    store.remove("Key/x");
    EXPECT_EQ((Answer{0, 0, 1, 0, 4}), of(L"Key"));
}

TEST_F(RegistryInformation, LengthsCountCharactersNotUtf16Units)
{
    store.setValue(QString::fromUtf8("Key/😀😀"), "1$1");
    store.setValue("Key/abc", "5$x");
    store.setValue(QString::fromUtf8("Key/😀/x"), "1$1");
    EXPECT_EQ((Answer{1, 1, 2, 3, 0}), of(L"Key"));
}

TEST_F(RegistryInformation, EveryResultMayBeNull)
{
    store.setValue("Key/a", "1$1");
    EXPECT_EQ(0U, manager->RegQueryInfoKeyW(HKEY_USERS, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr, nullptr, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(RegistryInformation, WithoutAHandleFailsAndWritesNothing)
{
    Answer answer;
    EXPECT_EQ(1U, ask(nullptr, answer));
    EXPECT_EQ(Answer(), answer);
}

TEST_F(RegistryInformation, NeverWritesWhatItDoesNotKnow)
{
    wchar_t keyClass[] = L"class";
    unsigned int ignored[] = {1111, 2222, 3333, 4444};
    _FILETIME time{5555, 6666};
    EXPECT_EQ(0U, manager->RegQueryInfoKeyW(HKEY_USERS, keyClass, &ignored[0], &ignored[1], nullptr,
                                            nullptr, &ignored[2], nullptr, nullptr, nullptr,
                                            &ignored[3], &time));
    EXPECT_STREQ(L"class", keyClass);
    EXPECT_EQ(1111U, ignored[0]);
    EXPECT_EQ(2222U, ignored[1]);
    EXPECT_EQ(3333U, ignored[2]);
    EXPECT_EQ(4444U, ignored[3]);
    EXPECT_EQ(5555U, time.dwLowDateTime);
    EXPECT_EQ(6666U, time.dwHighDateTime);
}

class RegistryWithoutStore : public testing::Test
{
protected:
    RegistryWithoutStore() { g_globalSettings = nullptr; }
};

TEST_F(RegistryWithoutStore, EveryOperationFailsAndWritesNothing)
{
    PlatformRegisterManagerImp manager;
    const HKEY root = HKEY_CURRENT_USER;
    HKEY const unchanged = reinterpret_cast<HKEY>(0x1111);
    HKEY handle = unchanged;
    HKEY* result = &handle;
    unsigned int number = 2222;
    int size = 3333;
    wchar_t name[] = L"name";
    auto* data = reinterpret_cast<unsigned char*>(name);
    const unsigned int statuses[] = {
        manager.RegQueryValueExW(root, L"x", nullptr, &number, data, &number),
        manager.RegCreateKeyExW(root, L"x", 0, nullptr, 0, 0, nullptr, result, &number),
        manager.RegOpenKeyExW(root, L"x", 0, 0, &handle),
        manager.RegOpenKeyW(root, L"x", &handle),
        manager.RegSetValueExW(root, L"x", 0, REG_SZ, data, 4),
        manager.RegCloseKey(nullptr), // asked before the handle is looked at
        manager.RegCloseKey(unchanged),
        manager.RegQueryInfoKeyW(root, name, &number, nullptr, &number, &number, &number, &number,
                                 &number, &number, &number, nullptr),
        manager.RegEnumKeyW(root, 0, name, 4),
        manager.RegDeleteKeyW(root, L"x"),
        manager.RegDeleteValueW(root, L"x"),
        manager.RegEnumKeyExW(root, 0, name, &number, nullptr, nullptr, nullptr, nullptr),
        manager.RegEnumValueW(root, 0, name, &number, nullptr, &number, data, &number),
        manager.RegQueryValueW(root, L"x", name, &size),
        manager.RegDeleteKeyExW(root, L"x", 0, 0),
        manager.RegCreateKeyW(root, L"x", result)};
    for (const unsigned int status : statuses)
        EXPECT_EQ(1U, status);
    EXPECT_EQ(unchanged, handle);
    EXPECT_EQ(&handle, result);
    EXPECT_EQ(2222U, number);
    EXPECT_EQ(3333, size);
    EXPECT_STREQ(L"name", name);
    EXPECT_EQ(0U, manager.RegDeleteKeyAndAllSubkeys("x"));
}

TEST_F(RegistryWithoutStore, TheShortOpenAnswersWithoutOneWhenItNeedsNone)
{
    PlatformRegisterManagerImp manager;
    HKEY handle = nullptr;
    EXPECT_EQ(87U, manager.RegOpenKeyW(HKEY_USERS, L"x", nullptr));
    EXPECT_EQ(0U, manager.RegOpenKeyW(HKEY_USERS, nullptr, &handle));
    EXPECT_EQ(HKEY_USERS, handle);
}

TEST_F(RegistryWithoutStore, AStoreThatComesLaterIsNotSeen)
{
    PlatformRegisterManagerImp manager;
    QTemporaryDir folder;
    QSettings store(folder.filePath("registry.ini"), QSettings::IniFormat);
    g_globalSettings = &store;
    EXPECT_EQ(1U, manager.RegDeleteValueW(HKEY_USERS, L"x"));
    g_globalSettings = nullptr;
}

class RegistryServices : public RegistryFixture
{
};

TEST_F(RegistryServices, TheManagerIsMadeOnceAndCapturesTheStoreThen)
{
    PlatformServicesImp services;
    IPlatformRegisterManager* made = services.registerManager();
    ASSERT_NE(nullptr, dynamic_cast<PlatformRegisterManagerImp*>(made));
    g_globalSettings = nullptr;
    EXPECT_EQ(made, services.registerManager());
    EXPECT_EQ(0U, made->RegDeleteValueW(HKEY_USERS, L"x"));
}

TEST_F(RegistryServices, TheManagerDoesNotOwnTheStore)
{
    store.setValue("x", "1$1");
    manager.reset();
    EXPECT_EQ("1$1", stored("x"));
}

} // namespace
