// The mirror of the slot order. It is written by hand and shares nothing with the headers, so that
// a change of the order there is seen here.

#include "tests/host/library/Slots.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

// An object whose first word is the address of its table of functions.
class Table
{
public:
    Table(const char* name, void* object) : m_name(name), m_object(object) {}

    template <typename Result, typename... Arguments>
    Result call(int slot, Arguments... arguments) const
    {
        using Function = Result (*)(void*, Arguments...);
        void* const* slots = *static_cast<void* const* const*>(m_object);
        return reinterpret_cast<Function>(slots[slot])(m_object, arguments...);
    }

    template <typename Result, typename... Arguments>
    void print(const char* operation, int slot, Arguments... arguments) const
    {
        const Result result = call<Result>(slot, arguments...);
        std::printf("%s.%s=%lld\n", m_name, operation, static_cast<long long>(result));
    }

    template <typename... Arguments>
    void printPointer(const char* operation, int slot, Arguments... arguments) const
    {
        const void* result = call<void*>(slot, arguments...);
        const char* kind = !result                                   ? "null"
                           : result == reinterpret_cast<void*>(~0UL) ? "-1"
                                                                     : "set";
        std::printf("%s.%s=%s\n", m_name, operation, kind);
    }

private:
    const char* m_name;
    void* m_object;
};

// The wide string of the interfaces, passed and returned the way the binary interface of C++ passes
// a class with a copy constructor of its own.
struct WideString : std::wstring
{
};

struct Point
{
    int x;
    int y;
};

void callMessages(const Table& message)
{
    message.print<int>("messageBox", 0, nullptr, L"text", L"caption", 0U);
    message.print<int>("postMessage", 1, nullptr, 0U, 0UL, 0L);
    message.print<long>("sendMessage", 2, nullptr, 0U, 0UL, 0L);
    message.print<int>("TaskDialogIndirect", 3, nullptr, nullptr, nullptr, nullptr);
}

void callUserInput(const Table& input)
{
    input.call<void>(2, 0x01000004, true);
    input.print<int>("getAsyncKeyState", 0, 0x0D);
    input.print<int>("getKeyState", 1, 0x41);
    input.printPointer("FindWindowW", 3, L"MainWindow", nullptr);
}

void callCursor(const Table& cursor, void* window)
{
    Point point{};
    cursor.print<int>("GetCursorPos", 2, &point);
    cursor.printPointer("LoadCursorW", 3, nullptr, L"name");
    cursor.print<int>("ScreenToClient", 4, window, &point);
    cursor.printPointer("GetCursor", 5);
    cursor.printPointer("SetCursor", 6, nullptr);
}

void callDirectories(const Table& directory)
{
    wchar_t buffer[1024] = L"a\\b";
    wchar_t relative[64] = L"";
    unsigned char data[1140] = {};
    std::wstring real;
    void* search = directory.call<void*>(0, L"/*", &data);
    std::printf("directory.findFirstFile=%d\n", search != reinterpret_cast<void*>(~0UL));
    directory.print<int>("findNextFile", 1, search, &data);
    directory.print<int>("findClose", 2, search);
    directory.print<int>("isFileExist", 3, L"/", &real);
    directory.print<int>("isURL", 4, L"http://example.com/");
    directory.printPointer("AddBackslash", 5, buffer);
    std::printf("directory.path=%ls\n", buffer);
    directory.print<int>("SHGetFolderPath", 6, nullptr, 0, nullptr, 0U, buffer);
    directory.print<int>("PathRelativePathToW", 7, relative, L"/a", 0U, L"/a/b", 0U);
    std::printf("directory.relative=%ls\n", relative);
    std::memset(buffer, 0, sizeof buffer);
    directory.call<unsigned int>(8, 1024U, buffer);
    std::printf("directory.GetTempPathW=%d\n", buffer[0] == L'/');
    directory.print<unsigned int>("GetFileAttributesW", 9, L"/");
    directory.print<int>("SetFileAttributesW", 10, nullptr, 0U);
    directory.print<int>("IsPathRelative", 11, L"a/b");
    wchar_t* extension = directory.call<wchar_t*>(12, L"archive.tar.gz");
    std::printf("directory.PathFindExtensionW=%ls\n", extension);
    delete[] extension;
}

int countFont(const void* /*font*/, const void* /*metric*/, unsigned int type, long value)
{
    return static_cast<int>(type) + static_cast<int>(value);
}

void callFonts(const Table& font)
{
    // The record: face name at 28, character set at 23, script at 540.
    alignas(4) unsigned char record[668] = {};
    std::memcpy(record + 28, L"Face", 5 * sizeof(wchar_t));
    font.call<void>(3, WideString{L"Global"}, static_cast<void*>(record));
    font.print<int>("enumFontFamiliesEx", 2, nullptr, nullptr, &countFont, 38L, 0U);
    const WideString global = font.call<WideString>(4, WideString{L"Face"});
    std::printf("font.getGlobalNameByLocalName=%ls\n", global.c_str());
    font.print<int>("IsValidCodePage", 5, 936U);
}

void callResources(const Table& resource)
{
    wchar_t text[8] = L"";
    unsigned char bits[16] = {};
    unsigned char bitmap[32] = {};
    unsigned char info[40] = {};
    resource.print<int>("loadString", 2, nullptr, 1U, text, 8);
    resource.printPointer("loadImage", 3, nullptr, L"name", 0U, 0, 0, 0U);
    void* image = resource.call<void*>(4, 0U, 2, 2);
    std::printf("resource.createImage=%lld\n", reinterpret_cast<long long>(image));
    void* brush = resource.call<void*>(5, 0xFF8040U);
    std::printf("resource.createBrush=%lld\n", reinterpret_cast<long long>(brush));
    std::printf("resource.fromHandle=%lld\n",
                reinterpret_cast<long long>(resource.call<void*>(6, brush, 4)));
    resource.print<int>("GetSystemMetrics", 8, 0);
    resource.print<int>("GetBitmap", 9, &bitmap, image);
    resource.print<int>("GetBitmapBits", 10, 16U, &bits, image);
    resource.print<int>("GetCursorBits", 11, image, 2, 2, &bits, 8);
    resource.print<int>("EnumPrintersW", 12, 0U, nullptr, 0U, nullptr, 0U, nullptr, nullptr);
    resource.call<int>(7, image);
    std::printf("resource.deleteObject=%d\n", resource.call<void*>(6, image, 0) == nullptr);
    void* monitor = resource.call<void*>(13, Point{-5000, -5000}, 1U);
    std::printf("resource.MonitorFromPoint=%d\n", monitor != nullptr);
    resource.print<int>("GetMonitorInfoW", 14, monitor, &info);
}

void callProfiles(const Table& profile, const std::string& file)
{
    const std::wstring wide(file.begin(), file.end());
    wchar_t buffer[64] = L"";
    char narrow[64] = "";
    profile.print<int>("WritePrivateProfileStringW", 8, L"S", L"k", L"12", wide.c_str());
    profile.print<unsigned int>("GetPrivateProfileStringW", 2, L"S", L"k", L"", buffer, 64U,
                                wide.c_str());
    profile.print<int>("WritePrivateProfileStringA", 9, "S", "n", "345", file.c_str());
    profile.print<unsigned int>("GetPrivateProfileStringA", 3, "S", "n", "", narrow, 64U,
                                file.c_str());
    profile.print<unsigned int>("GetPrivateProfileIntW", 4, L"S", L"k", 5, wide.c_str());
    profile.print<unsigned int>("GetPrivateProfileIntA", 5, "S", "k", 5, file.c_str());
    profile.print<unsigned int>("GetPrivateProfileSectionNamesW", 6, buffer, 64U, wide.c_str());
    profile.print<unsigned int>("GetPrivateProfileSectionW", 7, L"S", buffer, 64U, wide.c_str());
    profile.print<int>("OpenPrivateProfile", 10, wide.c_str());
    profile.print<unsigned int>("QueryPrivateProfileString", 11, L"S", L"k", L"", buffer, 64U);
    profile.print<int>("ClosePrivateProfile", 12);
    profile.call<void>(13, nullptr);
}

void callRegistry(const Table& registry)
{
    void* const root = reinterpret_cast<void*>(0xFFFFFFFF80000001UL);
    const unsigned int number = 0x12345678;
    unsigned int type = 0;
    unsigned int read = 0;
    unsigned int size = sizeof read;
    unsigned int length = 0;
    wchar_t name[64] = L"";
    int bytes = 64;
    void* created = nullptr;
    void** result = &created;
    registry.print<unsigned int>("RegCreateKeyExW", 1, root, L"Key", 0U, nullptr, 0U, 0U, nullptr,
                                 &result, nullptr);
    void* key = nullptr;
    registry.print<unsigned int>("RegOpenKeyExW", 2, root, L"Key", 0U, 0U, &key);
    registry.print<unsigned int>("RegSetValueExW", 4, key, L"Value", 0U, 4U, &number, 4U);
    registry.print<unsigned int>("RegQueryValueExW", 0, key, L"Value", nullptr, &type, &read,
                                 &size);
    std::printf("register.value=%x type=%u size=%u\n", read, type, size);
    registry.print<unsigned int>("RegQueryInfoKeyW", 6, key, nullptr, nullptr, nullptr, nullptr,
                                 nullptr, nullptr, &length, nullptr, nullptr, nullptr, nullptr);
    std::printf("register.values=%u\n", length);
    registry.print<unsigned int>("RegEnumValueW", 11, key, 0U, name, &length, nullptr, &type, &read,
                                 &size);
    std::printf("register.name=%ls length=%u\n", name, length);
    registry.print<unsigned int>("RegEnumKeyW", 7, root, 0U, name, 64U);
    registry.print<unsigned int>("RegEnumKeyExW", 10, root, 0U, name, &length, nullptr, nullptr,
                                 nullptr, nullptr);
    registry.print<unsigned int>("RegQueryValueW", 12, key, L"Value", name, &bytes);
    registry.print<unsigned int>("RegDeleteValueW", 9, key, L"Value");
    registry.print<unsigned int>("RegCloseKey", 5, key);
    registry.print<unsigned int>("RegOpenKeyW", 3, root, nullptr, &key);
    registry.print<unsigned int>("RegDeleteKeyW", 8, root, L"Key");
    registry.print<unsigned int>("RegDeleteKeyExW", 13, root, L"Key", 0U, 0U);
    registry.print<unsigned int>("RegCreateKeyW", 14, root, L"Other", &result);
}

} // namespace

void callEverySlot(void* services)
{
    // Two slots of the destructor, then the accessors.
    const Table table("services", services);
    const auto manager = [&table](const char* name, int slot) {
        return Table(name, table.call<void*>(slot));
    };
    const Table input = manager("userInput", 2);
    table.printPointer("clipBoardManager", 3);
    callDirectories(manager("directory", 4));
    callUserInput(input);
    callCursor(manager("cursor", 5), input.call<void*>(3, L"MainWindow", nullptr));
    callFonts(manager("font", 6));
    callResources(manager("resource", 7));
    callProfiles(manager("profile", 8), "slots.ini");
    callMessages(manager("message", 9));
    callRegistry(manager("register", 10));
    table.printPointer("plotManager", 11);
    table.printPointer("localeManager", 12);
}
