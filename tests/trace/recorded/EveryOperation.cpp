#include "platform/IPlatformServices.h"
#include "tests/trace/recorded/Caller.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <type_traits>

namespace {

constexpr unsigned char untouched = 0xA5;

// A buffer between bytes that nobody may change; all of it is printed.
template <typename Unit, std::size_t Size>
struct Buffer
{
    Buffer() { std::memset(units, untouched, sizeof units); }
    explicit Buffer(const Unit* text) : Buffer()
    {
        std::size_t length = 0;
        do
            units[1 + length] = text[length];
        while (text[length++] != 0);
    }
    Unit* data() { return units + 1; }
    void print(const char* name) const
    {
        std::printf("  %s=", name);
        const auto* bytes = reinterpret_cast<const unsigned char*>(units);
        std::size_t end = sizeof units;
        while (end > 0 && bytes[end - 1] == untouched)
            --end;
        for (std::size_t i = 0; i < end; ++i)
            std::printf("%02x", bytes[i]);
        std::puts("");
    }

    Unit units[Size + 2];
};

// A file system keeps its own times; of a record the name and the attributes are printed.
void print(const WIN32_FIND_DATAW& data)
{
    std::printf("  attributes=%u name=%ls size=%u\n", data.dwFileAttributes, data.cFileName,
                data.nFileSizeLow);
}

template <typename T>
void print(const char* name, T result)
{
    if constexpr (std::is_pointer_v<T>)
        std::printf("%s=%s\n", name,
                    !result                                                    ? "null"
                    : static_cast<const void*>(result) == INVALID_HANDLE_VALUE ? "invalid"
                                                                               : "set");
    else
        std::printf("%s=%lld\n", name, static_cast<long long>(result));
}

void callServices(IPlatformServices& services)
{
    print("clipBoardManager", services.clipBoardManager());
    print("plotManager", services.plotManager());
    print("localeManager", services.localeManager());
    // The same objects, however often they are asked for.
    std::printf("same=%d\n", services.registerManager() == services.registerManager());
}

void callUserInput(IPlatformUserInputManager& input)
{
    input.setKeyPressed(0x01000004, true);
    print("getAsyncKeyState", input.getAsyncKeyState(0x0D));
    print("getKeyState", input.getKeyState(-5));
    print("FindWindowW", input.FindWindowW(nullptr, L"no \"window\"\n"));
    print("FindWindowW", input.FindWindowW(L"\U0001F600\xD800", nullptr));
}

void searchFiles(IPlatformDirectoryManager& directory)
{
    WIN32_FIND_DATAW data = {};
    void* search = directory.findFirstFile(L"./files/*", &data);
    print("findFirstFile", search);
    print(data);
    print("findNextFile", directory.findNextFile(search, &data));
    print(data);
    print("findNextFile", directory.findNextFile(search, &data));
    print("findClose", directory.findClose(search));
    print("findFirstFile", directory.findFirstFile(L"./files/none", &data));
    print("findFirstFile", directory.findFirstFile(nullptr, nullptr));
    print("findNextFile", directory.findNextFile(nullptr, nullptr));
    print("findClose", directory.findClose(nullptr));
}

void callDirectories(IPlatformDirectoryManager& directory)
{
    Buffer<wchar_t, 300> path(L"a\\b");
    Buffer<wchar_t, 400> longPath;
    std::fill_n(longPath.data(), 299, L'x');
    longPath.data()[299] = L'\0';
    CStdStr<wchar_t> real(L"before");
    print("isFileExist", directory.isFileExist(L"./FILES", real));
    print("isFileExist", directory.isFileExist(nullptr, real));
    print("isURL", directory.isURL(L"http://example.com/"));
    print("isURL", directory.isURL(nullptr));
    print("AddBackslash", directory.AddBackslash(path.data()));
    path.print("path");
    print("AddBackslash", directory.AddBackslash(longPath.data()));
    longPath.print("path");
    print("AddBackslash", directory.AddBackslash(nullptr));
    print("SHGetFolderPath", directory.SHGetFolderPath(nullptr, 5, nullptr, 0, path.data()));
    Buffer<wchar_t, 16> relative;
    print("PathRelativePathToW",
          directory.PathRelativePathToW(relative.data(), L"/a", 0, L"/a/b", 0x10));
    relative.print("relative");
    print("PathRelativePathToW", directory.PathRelativePathToW(nullptr, L"/a", 0, L"/b", 0));
    Buffer<wchar_t, 16> temporary;
    print("GetTempPathW", directory.GetTempPathW(2, temporary.data()));
    temporary.print("buffer");
    print("GetTempPathW", directory.GetTempPathW(100, nullptr));
    print("GetFileAttributesW", directory.GetFileAttributesW(L"./files"));
    print("GetFileAttributesW", directory.GetFileAttributesW(nullptr));
    print("SetFileAttributesW", directory.SetFileAttributesW(L"./files", 1));
    print("SetFileAttributesW", directory.SetFileAttributesW(nullptr, 0x80));
    print("IsPathRelative", directory.IsPathRelative(L"a"));
    const wchar_t* extension = directory.PathFindExtensionW(L"archive.tar.gz");
    std::printf("PathFindExtensionW=%ls\n", extension);
    delete[] extension;
    print("PathFindExtensionW", directory.PathFindExtensionW(nullptr));
}

void callCursor(IPlatformCursorManager& cursor)
{
    POINT point = {3, 4};
    print("GetCursorPos", cursor.GetCursorPos(nullptr));
    print("LoadCursorW", cursor.LoadCursorW(nullptr, reinterpret_cast<const wchar_t*>(32512)));
    print("ScreenToClient", cursor.ScreenToClient(nullptr, &point));
    print("GetCursor", cursor.GetCursor());
    print("SetCursor", cursor.SetCursor(nullptr));
}

int printFont(const LOGFONTW* font, const TEXTMETRICW* metric, unsigned int type, long value)
{
    std::printf("  font=%ls metric=%d type=%u value=%ld\n", font->lfFaceName, metric != nullptr,
                type, value);
    return 7;
}

void callFonts(IPlatformFontManager& fonts)
{
    ENUMLOGFONTEXW record = {};
    std::copy_n(L"Face", 5, record.elfLogFont.lfFaceName);
    record.elfLogFont.lfCharSet = GB2312_CHARSET;
    fonts.addLogFont(L"Global", &record);
    std::printf("script=%ls\n", record.elfScript);
    record.elfLogFont.lfCharSet = OEM_CHARSET;
    fonts.addLogFont(L"Other", &record);
    fonts.addLogFont(L"None", nullptr);
    LOGFONTW filter = {};
    filter.lfCharSet = GB2312_CHARSET;
    print("enumFontFamiliesEx",
          fonts.enumFontFamiliesEx(nullptr, &filter, printFont, 0x123456789AL, 9));
    print("enumFontFamiliesEx", fonts.enumFontFamiliesEx(nullptr, nullptr, nullptr, -1, 0));
    const CStdStr<wchar_t> global = fonts.getGlobalNameByLocalName(L"Face");
    std::printf("getGlobalNameByLocalName=%ls\n", global.c_str());
    print("IsValidCodePage", fonts.IsValidCodePage(936));
}

void callResources(IPlatformResourceManager& resources)
{
    Buffer<wchar_t, 8> text;
    Buffer<unsigned char, 64> bits;
    BITMAP bitmap = {};
    print("loadString", resources.loadString(nullptr, 1, text.data(), 8));
    print("loadString", resources.loadString(nullptr, 1, nullptr, -1));
    text.print("buffer");
    print("loadImage", resources.loadImage(nullptr, nullptr, 1, 2, 3, 0x8010));
    void* image = resources.createImage(0, 2, 2);
    void* brush = resources.createBrush(0xFF8040);
    print("createImage", image);
    print("createImage", resources.createImage(1, 2, 2));
    print("fromHandle", resources.fromHandle(brush, IPlatformResourceManager::ObjBrush));
    print("GetSystemMetrics", resources.GetSystemMetrics(SM_CXSCREEN));
    print("GetBitmap", resources.GetBitmap(&bitmap, image));
    std::printf("  %d %d %d\n", bitmap.bmWidth, bitmap.bmHeight, bitmap.bmBitsPixel);
    print("GetBitmap", resources.GetBitmap(nullptr, nullptr));
    print("GetBitmapBits", resources.GetBitmapBits(15, bits.data(), image));
    print("GetCursorBits", resources.GetCursorBits(image, 2, 2, bits.data(), 8));
    bits.print("bits");
    print("EnumPrintersW", resources.EnumPrintersW(2, nullptr, 1, nullptr, 0, nullptr, nullptr));
    resources.deleteObject(image);
    resources.deleteObject(brush);
    print("MonitorFromPoint", resources.MonitorFromPoint({-5000, -7}, 0));
    print("GetMonitorInfoW", resources.GetMonitorInfoW(nullptr, nullptr));
}

void callWideProfiles(IPlatformProfileManager& profiles)
{
    Buffer<wchar_t, 32> text;
    Buffer<wchar_t, 8> cut;
    constexpr const wchar_t* file = L"./wide.ini";
    print("WriteW", profiles.WritePrivateProfileStringW(L"S", L"k", L"12", file));
    print("WriteW", profiles.WritePrivateProfileStringW(nullptr, L"k", L"12", file));
    print("StringW", profiles.GetPrivateProfileStringW(L"S", L"k", L"", text.data(), 32, file));
    text.print("buffer");
    print("StringW", profiles.GetPrivateProfileStringW(L"S", L"k", nullptr, nullptr, 9, file));
    cut.data()[7] = L'\0';
    print("StringW",
          profiles.GetPrivateProfileStringW(L"S", L"n", L"fallback", cut.data(), 4, file));
    cut.print("buffer");
    print("IntW", profiles.GetPrivateProfileIntW(L"S", L"k", -5, file));
    print("NamesW", profiles.GetPrivateProfileSectionNamesW(text.data(), 32, file));
    print("SectionW", profiles.GetPrivateProfileSectionW(L"S", text.data(), 1, file));
    text.print("buffer");
    print("Open", profiles.OpenPrivateProfile(file));
    print("Query", profiles.QueryPrivateProfileString(L"S", L"k", L"", text.data(), 32));
    print("Close", profiles.ClosePrivateProfile());
    profiles.SetOutQSettings(nullptr);
}

void callNarrowProfiles(IPlatformProfileManager& profiles)
{
    Buffer<char, 32> text;
    constexpr const char* file = "./narrow.ini";
    print("WriteA", profiles.WritePrivateProfileStringA("S", "n", "\xE4\xB8\xAD", file));
    print("StringA", profiles.GetPrivateProfileStringA("S", "n", nullptr, text.data(), 32, file));
    text.print("buffer");
    Buffer<char, 4> cut;
    cut.data()[3] = '\0';
    print("StringA", profiles.GetPrivateProfileStringA("S", "n", "", cut.data(), 3, file));
    cut.print("buffer");
    print("StringA", profiles.GetPrivateProfileStringA("S", "n", "", cut.data(), 0, file));
    print("IntA", profiles.GetPrivateProfileIntA("S", "\xFFn", 5, file));
}

void callMessages(IPlatformMessageManager& messages)
{
    int button = 5;
    print("messageBox", messages.messageBox(nullptr, L"text", nullptr, MB_YESNO | MB_ICONWARNING));
    print("postMessage", messages.postMessage(nullptr, 0x400, ~0UL, -1));
    print("sendMessage", messages.sendMessage(nullptr, 0x10, 1, 2));
    print("TaskDialogIndirect", messages.TaskDialogIndirect(nullptr, &button, nullptr, nullptr));
    print("button", button);
}

HKEY makeKey(IPlatformRegisterManager& registry)
{
    HKEY made = nullptr;
    HKEY* result = &made;
    DWORD disposition = 77;
    print("RegCreateKeyExW", registry.RegCreateKeyExW(HKEY_CURRENT_USER, L"Key", 0, nullptr, 0,
                                                      0xF003F, nullptr, result, &disposition));
    std::printf("  made=%d moved=%d disposition=%u\n", made != nullptr, result != &made,
                disposition);
    print("RegCreateKeyW", registry.RegCreateKeyW(nullptr, L"Key", result));
    HKEY key = nullptr;
    HKEY none = nullptr;
    print("RegOpenKeyExW", registry.RegOpenKeyExW(HKEY_CURRENT_USER, L"Key", 0, 0x20019, &key));
    print("RegOpenKeyExW", registry.RegOpenKeyExW(HKEY_USERS, L"None", 0, 0, &none));
    return key;
}

void callValues(IPlatformRegisterManager& registry, HKEY key)
{
    const DWORD number = 0x12345678;
    const wchar_t text[] = L"\u4E2D\u6587";
    const auto* bytes = reinterpret_cast<const unsigned char*>(&number);
    Buffer<unsigned char, 16> data;
    DWORD type = 77;
    DWORD size = 16;
    print("RegSetValueExW", registry.RegSetValueExW(key, L"N", 0, REG_DWORD, bytes, 4));
    print("RegSetValueExW", registry.RegSetValueExW(key, L"B", 0, REG_BINARY, bytes, 3));
    print("RegSetValueExW",
          registry.RegSetValueExW(key, L"T", 0, REG_SZ,
                                  reinterpret_cast<const unsigned char*>(text), 0));
    print("RegSetValueExW", registry.RegSetValueExW(key, L"Q", 0, REG_QWORD, bytes, 0));
    print("RegSetValueExW", registry.RegSetValueExW(key, nullptr, 0, 1, nullptr, 9));
    print("RegQueryValueExW",
          registry.RegQueryValueExW(key, L"N", nullptr, &type, data.data(), &size));
    std::printf("  type=%u size=%u\n", type, size);
    size = 3;
    print("RegQueryValueExW",
          registry.RegQueryValueExW(key, L"T", nullptr, &type, data.data(), &size));
    print("RegQueryValueExW",
          registry.RegQueryValueExW(key, L"B", nullptr, nullptr, data.data(), nullptr));
    data.print("data");
    int count = 64;
    Buffer<wchar_t, 16> characters;
    print("RegQueryValueW", registry.RegQueryValueW(key, L"T", characters.data(), &count));
    std::printf("  count=%d\n", count);
    characters.print("data");
    print("RegQueryValueW", registry.RegQueryValueW(key, nullptr, nullptr, nullptr));
}

void callEnumeration(IPlatformRegisterManager& registry, HKEY key)
{
    Buffer<wchar_t, 16> name;
    Buffer<unsigned char, 16> data;
    DWORD length = 0;
    DWORD size = 16;
    DWORD type = 77;
    DWORD values = 0;
    print("RegQueryInfoKeyW",
          registry.RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    &values, &length, nullptr, nullptr, nullptr));
    std::printf("  values=%u longest=%u\n", values, length);
    print("RegEnumKeyW", registry.RegEnumKeyW(HKEY_CURRENT_USER, 0, name.data(), 1));
    name.print("name");
    print("RegEnumKeyExW", registry.RegEnumKeyExW(HKEY_CURRENT_USER, 0, name.data(), nullptr,
                                                  nullptr, nullptr, nullptr, nullptr));
    print("RegEnumKeyExW", registry.RegEnumKeyExW(HKEY_CURRENT_USER, 900, name.data(), &length,
                                                  nullptr, nullptr, nullptr, nullptr));
    print("RegEnumValueW",
          registry.RegEnumValueW(key, 0, name.data(), &length, nullptr, &type, data.data(), &size));
    name.print("name");
    data.print("data");
    size = 1;
    print("RegEnumValueW", registry.RegEnumValueW(key, 3, name.data(), nullptr, nullptr, nullptr,
                                                  data.data(), &size));
    name.print("name");
    print("RegEnumValueW", registry.RegEnumValueW(key, 900, name.data(), &length, nullptr, &type,
                                                  data.data(), &size));
}

void callRegistry(IPlatformRegisterManager& registry)
{
    const HKEY key = makeKey(registry);
    callValues(registry, key);
    callEnumeration(registry, key);
    HKEY same = nullptr;
    print("RegOpenKeyW", registry.RegOpenKeyW(key, L"", &same));
    std::printf("  same=%d\n", same == key);
    print("RegOpenKeyW", registry.RegOpenKeyW(key, L"x", nullptr));
    print("RegDeleteValueW", registry.RegDeleteValueW(key, L"N"));
    print("RegDeleteKeyW", registry.RegDeleteKeyW(key, nullptr));
    print("RegDeleteKeyExW", registry.RegDeleteKeyExW(HKEY_CURRENT_USER, L"Key", 0x100, 0));
    print("RegCloseKey", registry.RegCloseKey(key));
    print("RegCloseKey", registry.RegCloseKey(nullptr));
}

} // namespace

void callEverything(IPlatformServices& services)
{
    callServices(services);
    callUserInput(*services.userInputManager());
    searchFiles(*services.directoryManager());
    callDirectories(*services.directoryManager());
    callCursor(*services.cursorManager());
    callFonts(*services.fontManager());
    callResources(*services.resourceManager());
    callWideProfiles(*services.profileManager());
    callNarrowProfiles(*services.profileManager());
    callMessages(*services.messageManager());
    callRegistry(*services.registerManager());
}
