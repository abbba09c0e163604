#include "platform/PlatformResourceManagerImp.h"

#include "tests/platform/graphics/StringModule.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <dlfcn.h>
#include <limits>
#include <string>

namespace {

constexpr wchar_t marker = L'#';

class Module
{
public:
    explicit Module(const char* path, int scope = RTLD_LOCAL)
        : m_handle(dlopen(path, RTLD_NOW | scope))
    {
    }
    ~Module() { dlclose(m_handle); }

    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    HINSTANCE handle() const { return m_handle; }

private:
    void* m_handle;
};

class ResourceStrings : public testing::Test
{
protected:
    static constexpr int before = 4;

    ResourceStrings()
    {
        m_memory.fill(marker);
        m_memory.back() = L'\0';
        EXPECT_NE(nullptr, module.handle()) << dlerror();
    }

    wchar_t* buffer() { return m_memory.data() + before; }

    // What stands in the buffer and around it: the markers in front, `content`, markers to the end.
    void expectContent(const std::wstring& content)
    {
        std::wstring expected(m_memory.size() - 1, marker);
        expected.replace(before, content.size(), content);
        EXPECT_EQ(expected, std::wstring(m_memory.data(), m_memory.size() - 1));
    }

    // From the buffer's start to the only terminator that the test itself has set.
    int lengthToTheEnd() const { return static_cast<int>(m_memory.size()) - 1 - before; }

    PlatformResourceManagerImp manager;
    Module module{QUAYSIDE_STRING_MODULE};
    Module stringless{"libm.so.6"};

private:
    std::array<wchar_t, 40> m_memory{};
};

struct CopyRow
{
    unsigned int length; // of the text
    int size;            // of the buffer
};

class FittingString : public ResourceStrings, public testing::WithParamInterface<CopyRow>
{
};

INSTANTIATE_TEST_SUITE_P(Sizes, FittingString,
                         testing::Values(CopyRow{0, 1}, CopyRow{0, 2}, CopyRow{1, 2}, CopyRow{4, 5},
                                         CopyRow{4, 6}, CopyRow{4, 30}, CopyRow{20, 21},
                                         CopyRow{3, std::numeric_limits<int>::max()}));

TEST_P(FittingString, IsCopiedWithItsTerminatorAndNothingMore)
{
    const std::wstring text = std::wstring(L"abcdefghijklmnopqrst").substr(20 - GetParam().length);
    EXPECT_EQ(static_cast<int>(GetParam().length),
              manager.loadString(module.handle(), GetParam().length, buffer(), GetParam().size));
    expectContent(text + L'\0');
}

class TooLongString : public ResourceStrings, public testing::WithParamInterface<CopyRow>
{
};

INSTANTIATE_TEST_SUITE_P(Sizes, TooLongString,
                         testing::Values(CopyRow{1, 1}, CopyRow{20, 1}, CopyRow{2, 2},
                                         CopyRow{5, 5}, CopyRow{6, 5}, CopyRow{20, 5},
                                         CopyRow{20, 20}));

TEST_P(TooLongString, FillsTheBufferWithoutATerminator)
{
    const auto size = static_cast<std::size_t>(GetParam().size);
    const std::wstring text = std::wstring(L"abcdefghijklmnopqrst").substr(20 - GetParam().length);
    EXPECT_EQ(lengthToTheEnd(),
              manager.loadString(module.handle(), GetParam().length, buffer(), GetParam().size));
    expectContent(text.substr(0, size));
}

TEST_F(ResourceStrings, AreWideBeyondTheBmpAndFoundByTheWholeIdentifier)
{
    EXPECT_EQ(2, manager.loadString(module.handle(), nonBmpText, buffer(), 10));
    expectContent(std::wstring(L"\U0001F600\u4E2D") + L'\0');
}

TEST_F(ResourceStrings, AreHandedOutByAddressForSizeZero)
{
    const auto load = reinterpret_cast<LoadStringFunction>(dlsym(module.handle(), "loadstring"));
    const wchar_t* own = load(20);
    std::wstring address(2, L' '); // room for a pointer
    static_assert(sizeof own == 2 * sizeof(wchar_t));
    std::memcpy(address.data(), &own, sizeof own);
    EXPECT_EQ(20, manager.loadString(module.handle(), 20, buffer(), 0));
    expectContent(address);
}

TEST_F(ResourceStrings, AreHandedOutByAddressIntoAMisalignedWord)
{
    wchar_t* odd = buffer() + (reinterpret_cast<std::uintptr_t>(buffer()) % sizeof(void*) == 0);
    EXPECT_EQ(7, manager.loadString(module.handle(), 7, odd, 0));
    const wchar_t* text = nullptr;
    std::memcpy(&text, odd, sizeof text);
    EXPECT_STREQ(L"nopqrst", text);
}

TEST_F(ResourceStrings, AreEmptyWithoutTheModulesFunction)
{
    EXPECT_EQ(0, manager.loadString(stringless.handle(), 3, buffer(), 10));
    expectContent(std::wstring(1, L'\0'));
}

TEST_F(ResourceStrings, AreEmptyWithoutAModule)
{
    // Null must not stand for all modules whose functions everybody sees.
    const Module visible(QUAYSIDE_STRING_MODULE, RTLD_GLOBAL);
    ASSERT_NE(nullptr, dlsym(RTLD_DEFAULT, "loadstring"));
    EXPECT_EQ(0, manager.loadString(nullptr, 3, buffer(), 10));
    expectContent(std::wstring(1, L'\0'));
}

TEST_F(ResourceStrings, AreEmptyByAddressTooWithoutTheModulesFunction)
{
    EXPECT_EQ(0, manager.loadString(stringless.handle(), 3, buffer(), 0));
    const wchar_t* text = nullptr;
    std::memcpy(&text, buffer(), sizeof text);
    EXPECT_STREQ(L"", text);
}

TEST_F(ResourceStrings, ThatTheModuleDoesNotKnowLeaveTheBufferAlone)
{
    for (const int size : {0, 1, 10})
        EXPECT_EQ(0, manager.loadString(module.handle(), noText, buffer(), size)) << size;
    expectContent(L"");
}

TEST_F(ResourceStrings, DoNotGoIntoANegativeSize)
{
    for (const int size : {-1, -2, std::numeric_limits<int>::min()})
        EXPECT_EQ(0, manager.loadString(module.handle(), 5, buffer(), size)) << size;
    expectContent(L"");
}

TEST_F(ResourceStrings, DoNotGoToNull)
{
    for (const int size : {0, 1, 10})
        EXPECT_EQ(0, manager.loadString(module.handle(), 5, nullptr, size)) << size;
}

} // namespace
