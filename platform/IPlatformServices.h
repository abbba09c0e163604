#pragma once

#include "app/CStdStr.h"
#include "platform/WindowsTypes.h"

/// The interfaces through which host libraries reach the Windows-style services.
///
/// Host libraries call these classes through their virtual tables, so the order of the virtual
/// operations, and the place of each destructor (first, last or none), is a binary contract: never
/// reorder, insert or remove one. All wide strings are NUL-terminated UTF-32. Everything is called
/// on the GUI thread.

/// Key states and the search for top-level windows.
/// Has no virtual destructor: host libraries never destroy it.
class IPlatformUserInputManager
{
public:
    virtual int getAsyncKeyState(int virtualKey) = 0;
    virtual int getKeyState(int virtualKey) = 0;
    virtual void setKeyPressed(int qtKey, bool pressed) = 0;
    virtual HWND FindWindowW(const wchar_t* className, const wchar_t* windowName) = 0;

protected:
    ~IPlatformUserInputManager() = default;
};

/// Directory searches, file attributes and path arithmetic.
/// Has no virtual destructor: host libraries never destroy it.
class IPlatformDirectoryManager
{
public:
    virtual void* findFirstFile(const wchar_t* pattern, _WIN32_FIND_DATAW* data) = 0;
    virtual int findNextFile(void* search, _WIN32_FIND_DATAW* data) = 0;
    virtual int findClose(void* search) = 0;
    virtual int isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath) = 0;
    virtual int isURL(const wchar_t* text) = 0;
    virtual wchar_t* AddBackslash(wchar_t* path) = 0;
    virtual int SHGetFolderPath(HWND owner, int folder, void* token, unsigned int flags,
                                wchar_t* path) = 0;
    virtual int PathRelativePathToW(wchar_t* relative, const wchar_t* from,
                                    unsigned int fromAttributes, const wchar_t* to,
                                    unsigned int toAttributes) = 0;
    virtual unsigned int GetTempPathW(unsigned int length, wchar_t* buffer) = 0;
    virtual unsigned int GetFileAttributesW(const wchar_t* path) = 0;
    virtual int SetFileAttributesW(const wchar_t* path, unsigned int attributes) = 0;
    virtual int IsPathRelative(const wchar_t* path) = 0;
    virtual wchar_t* PathFindExtensionW(const wchar_t* path) = 0;

protected:
    ~IPlatformDirectoryManager() = default;
};

/// Cursor position and shape.
class IPlatformCursorManager
{
public:
    virtual ~IPlatformCursorManager() = default;
    virtual int GetCursorPos(tagPOINT* point) = 0;
    virtual HCURSOR LoadCursorW(HINSTANCE module, const wchar_t* name) = 0;
    virtual int ScreenToClient(HWND window, tagPOINT* point) = 0;
    virtual HCURSOR GetCursor() = 0;
    virtual HCURSOR SetCursor(HICON cursor) = 0;
};

/// The font catalogue that the caller fills and enumerates.
class IPlatformFontManager
{
public:
    using EnumProcedure = int (*)(const tagLOGFONTW*, const tagTEXTMETRICW*, unsigned int, long);

    virtual ~IPlatformFontManager() = default;
    virtual int enumFontFamiliesEx(HDC dc, tagLOGFONTW* filter, EnumProcedure procedure,
                                   long callerValue, unsigned int flags) = 0;
    virtual void addLogFont(CStdStr<wchar_t> globalName, ENUMLOGFONTEXW* record) = 0;
    virtual CStdStr<wchar_t> getGlobalNameByLocalName(CStdStr<wchar_t> localName) = 0;
    virtual int IsValidCodePage(unsigned int codePage) = 0;
};

/// Graphics objects by handle, string resources, system metrics and monitors.
class IPlatformResourceManager
{
public:
    /// The upper 16 bits of a handle.
    enum ObjType : int
    {
        ObjImage = 0,
        ObjCursor = 2,
        ObjBrush = 4
    };

    virtual ~IPlatformResourceManager() = default;
    virtual int loadString(HINSTANCE module, unsigned int id, wchar_t* buffer, int size) = 0;
    virtual void* loadImage(HINSTANCE module, const wchar_t* name, unsigned int type, int width,
                            int height, unsigned int flags) = 0;
    virtual void* createImage(unsigned int kind, int width, int height) = 0;
    virtual void* createBrush(unsigned int color) = 0;
    virtual void* fromHandle(void* handle, IPlatformResourceManager::ObjType type) = 0;
    virtual int deleteObject(void* handle) = 0;
    virtual int GetSystemMetrics(int index) = 0;
    virtual int GetBitmap(BITMAP* bitmap, void* handle) = 0;
    virtual int GetBitmapBits(unsigned int count, void* buffer, void* handle) = 0;
    virtual int GetCursorBits(void* handle, int width, int height, void* buffer,
                              int bitsPerPixel) = 0;
    virtual int EnumPrintersW(unsigned int flags, wchar_t* name, unsigned int level,
                              unsigned char* buffer, unsigned int size, unsigned int* needed,
                              unsigned int* returned) = 0;
    virtual HMONITOR MonitorFromPoint(tagPOINT point, unsigned int flags) = 0;
    virtual int GetMonitorInfoW(HMONITOR monitor, tagMONITORINFO* info) = 0;
};

/// Private profile (INI) files: a wide family and a narrow one, independent of each other.
class IPlatformProfileManager
{
public:
    virtual ~IPlatformProfileManager() = default;
    virtual unsigned int GetPrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                                  const wchar_t* fallback, wchar_t* buffer,
                                                  unsigned int size, const wchar_t* file) = 0;
    virtual unsigned int GetPrivateProfileStringA(const char* section, const char* key,
                                                  const char* fallback, char* buffer,
                                                  unsigned int size, const char* file) = 0;
    virtual unsigned int GetPrivateProfileIntW(const wchar_t* section, const wchar_t* key,
                                               int fallback, const wchar_t* file) = 0;
    virtual unsigned int GetPrivateProfileIntA(const char* section, const char* key, int fallback,
                                               const char* file) = 0;
    virtual unsigned int GetPrivateProfileSectionNamesW(wchar_t* buffer, unsigned int size,
                                                        const wchar_t* file) = 0;
    virtual unsigned int GetPrivateProfileSectionW(const wchar_t* section, wchar_t* buffer,
                                                   unsigned int size, const wchar_t* file) = 0;
    virtual int WritePrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                           const wchar_t* value, const wchar_t* file) = 0;
    virtual int WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                           const char* file) = 0;
    virtual int OpenPrivateProfile(const wchar_t* file) = 0;
    virtual unsigned int QueryPrivateProfileString(const wchar_t* section, const wchar_t* key,
                                                   const wchar_t* fallback, wchar_t* buffer,
                                                   unsigned int size) = 0;
    virtual int ClosePrivateProfile() = 0;
    virtual void SetOutQSettings(void* settings) = 0;
};

/// Message boxes and window messages. The destructor stands last.
class IPlatformMessageManager
{
public:
    virtual int messageBox(HWND owner, const wchar_t* text, const wchar_t* caption,
                           unsigned int style) = 0;
    virtual int postMessage(HWND window, unsigned int message, unsigned long wParam,
                            long lParam) = 0;
    virtual long sendMessage(HWND window, unsigned int message, unsigned long wParam,
                             long lParam) = 0;
    virtual int TaskDialogIndirect(const _TASKDIALOGCONFIG* config, int* button, int* radioButton,
                                   int* verificationChecked) = 0;
    virtual ~IPlatformMessageManager() = default;
};

/// The registry, kept in one settings store. The destructor stands last.
/// Every operation returns 0 for success; the implementation lists the failure values.
class IPlatformRegisterManager
{
public:
    virtual unsigned int RegQueryValueExW(HKEY key, const wchar_t* valueName,
                                          unsigned int* reserved, unsigned int* type,
                                          unsigned char* data, unsigned int* byteCount) = 0;
    virtual unsigned int RegCreateKeyExW(HKEY key, const wchar_t* subKey, unsigned int reserved,
                                         wchar_t* keyClass, unsigned int options,
                                         unsigned int access, _SECURITY_ATTRIBUTES* attributes,
                                         HKEY*& result, unsigned int* disposition) = 0;
    virtual unsigned int RegOpenKeyExW(HKEY key, const wchar_t* subKey, unsigned int options,
                                       unsigned int access, HKEY* result) = 0;
    virtual unsigned int RegOpenKeyW(HKEY key, const wchar_t* subKey, HKEY* result) = 0;
    virtual unsigned int RegSetValueExW(HKEY key, const wchar_t* valueName, unsigned int reserved,
                                        unsigned int type, const unsigned char* data,
                                        unsigned int byteCount) = 0;
    virtual unsigned int RegCloseKey(HKEY key) = 0;
    virtual unsigned int RegQueryInfoKeyW(HKEY key, wchar_t* keyClass, unsigned int* classLength,
                                          unsigned int* reserved, unsigned int* subKeys,
                                          unsigned int* longestSubKey, unsigned int* longestClass,
                                          unsigned int* values, unsigned int* longestValueName,
                                          unsigned int* longestValueData,
                                          unsigned int* securityDescriptor,
                                          _FILETIME* lastWriteTime) = 0;
    virtual unsigned int RegEnumKeyW(HKEY key, unsigned int index, wchar_t* name,
                                     unsigned int capacity) = 0;
    virtual unsigned int RegDeleteKeyW(HKEY key, const wchar_t* subKey) = 0;
    virtual unsigned int RegDeleteValueW(HKEY key, const wchar_t* valueName) = 0;
    virtual unsigned int RegEnumKeyExW(HKEY key, unsigned int index, wchar_t* name,
                                       unsigned int* nameLength, unsigned int* reserved,
                                       wchar_t* keyClass, unsigned int* classLength,
                                       _FILETIME* lastWriteTime) = 0;
    virtual unsigned int RegEnumValueW(HKEY key, unsigned int index, wchar_t* name,
                                       unsigned int* nameLength, unsigned int* reserved,
                                       unsigned int* type, unsigned char* data,
                                       unsigned int* byteCount) = 0;
    virtual unsigned int RegQueryValueW(HKEY key, const wchar_t* valueName, wchar_t* data,
                                        int* byteCount) = 0;
    virtual unsigned int RegDeleteKeyExW(HKEY key, const wchar_t* subKey, unsigned int access,
                                         unsigned int reserved) = 0;
    virtual unsigned int RegCreateKeyW(HKEY key, const wchar_t* subKey, HKEY*& result) = 0;
    virtual ~IPlatformRegisterManager() = default;
};

/// The one object that host libraries receive: an accessor for each manager.
class IPlatformServices
{
public:
    virtual ~IPlatformServices() = default;
    virtual IPlatformUserInputManager* userInputManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* clipBoardManager() = 0;
    virtual IPlatformDirectoryManager* directoryManager() = 0;
    virtual IPlatformCursorManager* cursorManager() = 0;
    virtual IPlatformFontManager* fontManager() = 0;
    virtual IPlatformResourceManager* resourceManager() = 0;
    virtual IPlatformProfileManager* profileManager() = 0;
    virtual IPlatformMessageManager* messageManager() = 0;
    virtual IPlatformRegisterManager* registerManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* plotManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* localeManager() = 0;
};
