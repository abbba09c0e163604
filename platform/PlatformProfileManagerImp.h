#pragma once

#include "platform/IPlatformServices.h"

/// Implements `IPlatformProfileManager`: the wide calls on `QSettings`, which opens the file as an
/// INI file in UTF-8 with case-sensitive names, the narrow ones on `NarrowProfile`. Nothing is kept
/// between calls but for the last time stamp given.
///
/// Neither family waits or throws: a pipe, a device that has no end, and what the memory does not
/// hold read as a file without entries, and a write to them answers 0 and leaves them as they are.
/// The narrow read keeps no more of a file than the value; the narrow write needs a file of up to
/// 1,000 MiB, the wide calls one below 2 GiB.
///
/// The limits of `QSettings` are those of the wide calls. The section "General" is "[%General]" in
/// the file; what stands under "[General]" is out of their reach. A value with an unquoted comma is
/// a list and reads as empty text; an unquoted semicolon ends a value. Characters beyond the BMP
/// are dropped on writing. While another process holds the file's lock file, a write waits for up
/// to half a minute; one that failed is tried again by the next wide write to the same file. A file
/// that this process has already read through `QSettings` with another INI codec keeps the sections
/// read so far as they are.
class PlatformProfileManagerImp : public IPlatformProfileManager
{
public:
    unsigned int GetPrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                          const wchar_t* fallback, wchar_t* buffer,
                                          unsigned int size, const wchar_t* file) override;
    unsigned int GetPrivateProfileStringA(const char* section, const char* key,
                                          const char* fallback, char* buffer, unsigned int size,
                                          const char* file) override;
    unsigned int GetPrivateProfileIntW(const wchar_t* section, const wchar_t* key, int fallback,
                                       const wchar_t* file) override;
    unsigned int GetPrivateProfileIntA(const char* section, const char* key, int fallback,
                                       const char* file) override;
    unsigned int GetPrivateProfileSectionNamesW(wchar_t* buffer, unsigned int size,
                                                const wchar_t* file) override;
    unsigned int GetPrivateProfileSectionW(const wchar_t* section, wchar_t* buffer,
                                           unsigned int size, const wchar_t* file) override;
    int WritePrivateProfileStringW(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                                   const wchar_t* file) override;
    int WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                   const char* file) override;
    int OpenPrivateProfile(const wchar_t* file) override;
    unsigned int QueryPrivateProfileString(const wchar_t* section, const wchar_t* key,
                                           const wchar_t* fallback, wchar_t* buffer,
                                           unsigned int size) override;
    int ClosePrivateProfile() override;
    void SetOutQSettings(void* settings) override;
};
