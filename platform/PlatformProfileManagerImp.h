#pragma once

#include "platform/IPlatformServices.h"

/// The Windows private-profile (INI file) calls: two families that know nothing of each other.
///
/// The wide calls open the file as `QSettings` does an INI file, in UTF-8; names are
/// case-sensitive, and wide strings are NUL-terminated UTF-32. The narrow calls read and rewrite
/// the file with a line parser of their own (see `NarrowProfile`); narrow strings are UTF-8. What
/// one family writes, the next call of the other sees. Nothing is kept between calls but for the
/// last time stamp given.
///
/// Sizes are counted in the buffer's own characters: 4 bytes in the wide family, 1 in the narrow
/// one. A null section, key, file or buffer gets the failure value, and nothing is written. A file
/// that cannot be read reads as empty.
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
    /// Copies a value, or the fallback (null: empty), and returns the length of the NUL-terminated
    /// text then in the buffer. A text of `size` - 1 characters or more is cut there and gets no
    /// terminator: the last character stays as the caller had it. Size 0 gets 0.
    unsigned int GetPrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                          const wchar_t* fallback, wchar_t* buffer,
                                          unsigned int size, const wchar_t* file) override;

    /// The same, narrow. A missing value reads as empty: the fallback is ignored. A cut may fall
    /// inside a UTF-8 sequence.
    unsigned int GetPrivateProfileStringA(const char* section, const char* key,
                                          const char* fallback, char* buffer, unsigned int size,
                                          const char* file) override;

    /// Returns a value as a number: the fallback when it is missing or an argument is null, 0 when
    /// it is not a decimal number.
    unsigned int GetPrivateProfileIntW(const wchar_t* section, const wchar_t* key, int fallback,
                                       const wchar_t* file) override;

    /// Not supported: always 0.
    unsigned int GetPrivateProfileIntA(const char* section, const char* key, int fallback,
                                       const char* file) override;

    /// Not supported: always 0, and the buffer is left alone.
    unsigned int GetPrivateProfileSectionNamesW(wchar_t* buffer, unsigned int size,
                                                const wchar_t* file) override;

    /// Writes "key=value" and a NUL for each key of a section, then another NUL, whatever the size:
    /// the buffer must be large enough. Returns the characters written, NULs included. A key with a
    /// "/" in its name ("\" in the file) is listed too; so is "T/key" in S for what was written as
    /// "key" in "S/T".
    unsigned int GetPrivateProfileSectionW(const wchar_t* section, wchar_t* buffer,
                                           unsigned int size, const wchar_t* file) override;

    /// Writes a value; null is written as an empty one, nothing is ever deleted. Returns 1 even
    /// when the file cannot be saved, 0 for a null section, key or file.
    int WritePrivateProfileStringW(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                                   const wchar_t* file) override;

    /// The same, narrow; returns 0 also when the file cannot be opened for writing. Rewrites the
    /// file in place, sorted, and without anything that is not an entry.
    int WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                   const char* file) override;

    /// Not supported: always 1.
    int OpenPrivateProfile(const wchar_t* file) override;

    /// Not supported: always 0, and the buffer is left alone.
    unsigned int QueryPrivateProfileString(const wchar_t* section, const wchar_t* key,
                                           const wchar_t* fallback, wchar_t* buffer,
                                           unsigned int size) override;

    /// Not supported: always 1.
    int ClosePrivateProfile() override;

    /// Not supported: does nothing.
    void SetOutQSettings(void* settings) override;
};
