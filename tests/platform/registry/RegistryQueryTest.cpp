#include "tests/platform/registry/RegistryFixture.h"
#include "tests/support/CanaryBuffer.h"

namespace {

const HKEY roots[] = {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_USERS};

const unsigned char* bytesOf(const wchar_t* text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

class RegistryQuery : public RegistryFixture
{
protected:
    RegistryQuery() { store.setValue("Key/number", "1$7"); }

    // Expects a failure that leaves every result alone.
    void expectFailure(HKEY key, const wchar_t* name, unsigned int size = 64)
    {
        CanaryBuffer<unsigned char> data(size);
        unsigned int type = 1111;
        unsigned int byteCount = size;
        EXPECT_EQ(1U,
                  manager->RegQueryValueExW(key, name, nullptr, &type, data.data(), &byteCount));
        EXPECT_EQ(1111U, type);
        EXPECT_EQ(size, byteCount);
        data.expectUntouched();
    }
};

TEST_F(RegistryQuery, WhatWasWrittenIsReadBack)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, setDword(key, L"value", 0x12345678));
    EXPECT_EQ("1$305419896", stored("Key/value"));
    CanaryBuffer<unsigned char> data(8);
    unsigned int reserved = 2222;
    unsigned int type = 1111;
    unsigned int size = data.size();
    EXPECT_EQ(0U, manager->RegQueryValueExW(key, L"value", &reserved, &type, data.data(), &size));
    EXPECT_EQ(REG_DWORD, type);
    EXPECT_EQ(4U, size);
    EXPECT_EQ(2222U, reserved);
    data.expect(std::vector<unsigned char>{0x78, 0x56, 0x34, 0x12});
}

TEST_F(RegistryQuery, ADwordBeyondTheSignedRangeComesBackAsZero)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, setDword(key, L"value", 0xFFFFFFFF));
    EXPECT_EQ("1$4294967295", stored("Key/value"));
    EXPECT_EQ(0U, dword(key, L"value"));
}

TEST_F(RegistryQuery, ATextNeedsRoomForATerminatorThatIsNotWritten)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, manager->RegSetValueExW(key, L"text", 0, REG_SZ, bytesOf(L"abc"), 0));
    expectFailure(key, L"text", 12);
    CanaryBuffer<unsigned char> data(13);
    unsigned int size = data.size();
    EXPECT_EQ(0U, manager->RegQueryValueExW(key, L"text", nullptr, nullptr, data.data(), &size));
    EXPECT_EQ(12U, size);
    data.expect(std::vector<unsigned char>{'a', 0, 0, 0, 'b', 0, 0, 0, 'c', 0, 0, 0});
}

TEST_F(RegistryQuery, HowMuchOfTheDataIsKeptDependsOnTheByteCount)
{
    struct Row
    {
        unsigned int type;
        std::vector<unsigned char> data;
        unsigned int size;
        QString text;
        std::vector<unsigned char> readBack;
    };
    const Row rows[] = {
        {REG_DWORD, {0x78, 0x56, 0x34, 0x12}, 4, "1$305419896", {0x78, 0x56, 0x34, 0x12}},
        {REG_DWORD, {0x78, 0x56, 0x34, 0x12}, 2, "1$120", {0x78, 0, 0, 0}},
        {REG_QWORD, {0xFF, 1, 0, 0, 0, 0, 0, 0}, 8, "2$255", {0xFF, 0, 0, 0, 0, 0, 0, 0}},
        {REG_BINARY, {0, 0xFF, 0x1A, 0x2B}, 3, "4$00ff1a", {0, 0xFF, 0x1A}},
    };
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    for (const Row& row : rows) {
        EXPECT_EQ(0U, manager->RegSetValueExW(key, L"x", 0, row.type, row.data.data(), row.size));
        EXPECT_EQ(row.text, stored("Key/x"));
        CanaryBuffer<unsigned char> data(16);
        unsigned int type = 1111;
        unsigned int size = data.size();
        EXPECT_EQ(0U, manager->RegQueryValueExW(key, L"x", nullptr, &type, data.data(), &size));
        EXPECT_EQ(row.type, type);
        EXPECT_EQ(row.readBack.size(), size);
        data.expect(row.readBack);
    }
}

TEST_F(RegistryQuery, ASizeOfZeroMeasuresADwordOnly)
{
    store.setValue("Key/quad", "2$7");
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    unsigned int size = 0;
    EXPECT_EQ(1U, manager->RegQueryValueExW(key, L"quad", nullptr, nullptr, nullptr, &size));
    EXPECT_EQ(0U, size);
    EXPECT_EQ(0U, manager->RegQueryValueExW(key, L"number", nullptr, nullptr, nullptr, &size));
    EXPECT_EQ(4U, size);
}

TEST_F(RegistryQuery, EveryResultMayBeNull)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, manager->RegQueryValueExW(key, L"number", nullptr, nullptr, nullptr, nullptr));
}

TEST_F(RegistryQuery, ABufferThatIsTooSmallLeavesEvenTheTypeAlone)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    expectFailure(key, L"number", 3);
}

TEST_F(RegistryQuery, AMissingValueAnInvalidOneAndForeignTextFail)
{
    store.setValue("Key/invalid", QVariant());
    store.setValue("Key/foreign", "text");
    store.setValue("Key/tag", "3$7");
    store.setValue("Key/list", QStringList{"1$7", "1$8"});
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    for (const wchar_t* name : {L"missing", L"Number", L"invalid", L"foreign", L"tag", L"list"})
        expectFailure(key, name);
}

TEST_F(RegistryQuery, WithoutANameOrAHandleFails)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    expectFailure(key, nullptr);
    expectFailure(key, L"");
    expectFailure(nullptr, L"number");
}

TEST_F(RegistryQuery, UnderARootAValueLiesInAGroupOfItsOwnName)
{
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"X", 7));
    EXPECT_EQ("1$7", stored("X/X"));
    EXPECT_FALSE(store.contains("X"));
    for (HKEY root : roots)
        EXPECT_EQ(7U, dword(root, L"X"));
}

TEST_F(RegistryQuery, UnderARootOnlyTheEntrysOwnBackslashesBecomeLevels)
{
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"A\\B", 7));
    EXPECT_TRUE(store.contains("A\\B/A/B"));
    EXPECT_EQ(7U, dword(HKEY_USERS, L"A\\B"));
}

TEST_F(RegistryQuery, BackslashesInAValueNameBecomeLevels)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, setDword(key, L"A\\B", 7));
    EXPECT_EQ("1$7", stored("Key/A/B"));
    EXPECT_EQ(7U, dword(key, L"A\\B"));
    EXPECT_EQ(7U, dword(key, L"A/B"));
}

TEST_F(RegistryQuery, AValueNamedBackslashIsReadBack)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, setDword(key, L"\\", 7));
    EXPECT_EQ(7U, dword(key, L"\\"));
}

TEST_F(RegistryQuery, WritingReplacesWhateverTypeThereWas)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, manager->RegSetValueExW(key, L"number", 0, REG_SZ, bytesOf(L"x"), 8));
    EXPECT_EQ("5$x", stored("Key/number"));
}

TEST_F(RegistryQuery, WhatCannotBeEncodedIsNotWritten)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    const wchar_t* data = L"xx";
    EXPECT_EQ(1U, manager->RegSetValueExW(key, L"number", 0, REG_MULTI_SZ, bytesOf(data), 8));
    EXPECT_EQ(1U, manager->RegSetValueExW(key, L"number", 0, REG_SZ, nullptr, 8));
    EXPECT_EQ(1U, manager->RegSetValueExW(key, L"number", 0, REG_BINARY, bytesOf(data), 0));
    EXPECT_EQ("1$7", stored("Key/number"));
}

TEST_F(RegistryQuery, WritingWithoutANameOrAHandleFails)
{
    const QStringList before = store.allKeys();
    EXPECT_EQ(1U, setDword(HKEY_CURRENT_USER, nullptr, 7));
    EXPECT_EQ(1U, setDword(HKEY_CURRENT_USER, L"", 7));
    EXPECT_EQ(1U, setDword(nullptr, L"value", 7));
    EXPECT_EQ(before, store.allKeys());
}

TEST_F(RegistryQuery, WhatTheHostLibraryWritesDirectlyIsRead)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(7U, dword(key, L"number"));
    store.setValue("Key/number", "1$8");
    EXPECT_EQ(8U, dword(key, L"number"));
}

TEST_F(RegistryQuery, ValuesOutliveTheStoreOnDisk)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    const wchar_t* text = L"a,b;c=\"d\" \u4E2D\U0001F600\n%$";
    EXPECT_EQ(0U, manager->RegSetValueExW(key, L"text", 0, REG_SZ, bytesOf(text), 0));
    EXPECT_EQ("5$" + QString::fromWCharArray(text), storeOnDisk()->value("Key/text").toString());
}

TEST_F(RegistryQuery, TheKeyGeneralHasAnotherNameInTheFile)
{
    store.setValue("General/v", "1$7");
    store.setValue("top", "1$8");
    const Key key(*this, HKEY_CURRENT_USER, L"General");
    EXPECT_EQ(0U, setDword(key, L"v", 9));
    EXPECT_EQ("[General]\ntop=1$8\n\n[%General]\nv=1$9\n\n[Key]\nnumber=1$7\n", fileOnDisk());
}

TEST_F(RegistryQuery, CharactersBeyondTheBmpAreDroppedOnWritingWithAnIniCodec)
{
    store.setIniCodec("utf-8");
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, manager->RegSetValueExW(key, L"number", 0, REG_SZ, bytesOf(L"x\U0001F600y"), 0));
    EXPECT_EQ("[Key]\nnumber=5$xy\n", fileOnDisk());
}

TEST_F(RegistryQuery, TheStoreIsLeftInNoGroup)
{
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    setDword(key, L"value", 7);
    dword(key, L"value");
    dword(key, L"missing");
    dword(HKEY_CURRENT_USER, L"missing");
    manager->RegQueryValueW(key, L"missing", nullptr, nullptr);
    EXPECT_TRUE(store.group().isEmpty());
}

TEST_F(RegistryQuery, TheShortQueryReadsTheValueOfThatName)
{
    store.setValue("Key/text", QString::fromUtf8("5$a😀"));
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    CanaryBuffer<wchar_t> data(3);
    int size = static_cast<int>(data.bytes());
    EXPECT_EQ(0U, manager->RegQueryValueW(key, L"text", data.data(), &size));
    EXPECT_EQ(8, size);
    data.expect(std::wstring(L"a\U0001F600"));
}

TEST_F(RegistryQuery, TheShortQueryUnderARootReadsAtTheTopOfTheStore)
{
    store.setValue("top", "1$9");
    store.setValue("X/X", "1$7");
    CanaryBuffer<wchar_t> data(1);
    int size = 4;
    EXPECT_EQ(0U, manager->RegQueryValueW(HKEY_USERS, L"top", data.data(), &size));
    data.expect(std::wstring(1, L'\x9'));
    EXPECT_EQ(1U, manager->RegQueryValueW(HKEY_USERS, L"X", data.data(), &size));
    EXPECT_EQ(0U, manager->RegQueryValueW(HKEY_USERS, L"X\\X", data.data(), &size));
    data.expect(std::wstring(1, L'\x7'));
}

TEST_F(RegistryQuery, TheShortQuerysResultsMayBeNull)
{
    store.setValue("Key/quad", "2$7");
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    EXPECT_EQ(0U, manager->RegQueryValueW(key, L"number", nullptr, nullptr));
    CanaryBuffer<wchar_t> data(1);
    EXPECT_EQ(0U, manager->RegQueryValueW(key, L"number", data.data(), nullptr));
    data.expect(std::wstring(1, L'\x7'));
    int size = 0;
    EXPECT_EQ(1U, manager->RegQueryValueW(key, L"quad", nullptr, &size));
    EXPECT_EQ(0, size);
    EXPECT_EQ(0U, manager->RegQueryValueW(key, L"number", nullptr, &size));
    EXPECT_EQ(4, size);
}

TEST_F(RegistryQuery, TheShortQuerysFailuresLeaveTheResultsAlone)
{
    store.setValue("Key/text", "5$abc");
    store.setValue("Key/invalid", QVariant());
    const Key key(*this, HKEY_CURRENT_USER, L"Key");
    const std::pair<HKEY, const wchar_t*> failures[] = {{nullptr, L"number"}, {key, nullptr},
                                                        {key, L""},           {key, L"missing"},
                                                        {key, L"text"},       {key, L"invalid"}};
    for (const auto& [handle, name] : failures) {
        CanaryBuffer<wchar_t> data(3);
        int size = static_cast<int>(data.bytes());
        EXPECT_EQ(1U, manager->RegQueryValueW(handle, name, data.data(), &size));
        EXPECT_EQ(12, size);
        data.expectUntouched();
    }
}

} // namespace
