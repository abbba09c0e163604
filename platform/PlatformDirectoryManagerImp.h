#pragma once

#include "platform/IPlatformServices.h"

/// Implements `IPlatformDirectoryManager` on Qt's file system classes. There is no state: what
/// a search needs lies behind its handle, which any manager takes. Like its interface it has no
/// virtual destructor.
class PlatformDirectoryManagerImp : public IPlatformDirectoryManager
{
public:
    void* findFirstFile(const wchar_t* pattern, _WIN32_FIND_DATAW* data) override;
    int findNextFile(void* search, _WIN32_FIND_DATAW* data) override;
    int findClose(void* search) override;
    int isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath) override;
    int isURL(const wchar_t* text) override;
    wchar_t* AddBackslash(wchar_t* path) override;
    int SHGetFolderPath(HWND owner, int folder, void* token, unsigned int flags,
                        wchar_t* path) override;
    int PathRelativePathToW(wchar_t* relative, const wchar_t* from, unsigned int fromAttributes,
                            const wchar_t* to, unsigned int toAttributes) override;
    unsigned int GetTempPathW(unsigned int length, wchar_t* buffer) override;
    unsigned int GetFileAttributesW(const wchar_t* path) override;
    int SetFileAttributesW(const wchar_t* path, unsigned int attributes) override;
    int IsPathRelative(const wchar_t* path) override;
    wchar_t* PathFindExtensionW(const wchar_t* path) override;
};
