#pragma once

#include "platform/IPlatformServices.h"

#include <QString>

class QSettings;
class QVariant;

/// Implements `IPlatformRegisterManager` on the host library's settings store.
///
/// Keys are groups of the store, levels separated by "/", and values are entries whose text is a
/// type tag, "$" and a payload. A key handle is a heap `QString` with the key's path.
///
/// The limits of `QSettings` are those of the registry. A group named "General" is "[%General]" in
/// an INI file, and what stands under "[General]" lies at the top of the store. Where somebody else
/// wrote into the file, an unquoted comma makes a list, which is no text, and an unquoted semicolon
/// ends the text. With an INI codec set on the store, characters beyond the BMP are dropped on
/// writing. While another process holds the store's lock file, saving waits for up to half a
/// minute; a save that failed is tried again with the next one.
class PlatformRegisterManagerImp : public IPlatformRegisterManager
{
public:
    /// Takes the host library's store as it is now; without one, every operation fails for good.
    PlatformRegisterManagerImp();

    unsigned int RegQueryValueExW(HKEY key, const wchar_t* valueName, unsigned int* reserved,
                                  unsigned int* type, unsigned char* data,
                                  unsigned int* byteCount) override;
    unsigned int RegCreateKeyExW(HKEY key, const wchar_t* subKey, unsigned int reserved,
                                 wchar_t* keyClass, unsigned int options, unsigned int access,
                                 _SECURITY_ATTRIBUTES* attributes, HKEY*& result,
                                 unsigned int* disposition) override;
    unsigned int RegOpenKeyExW(HKEY key, const wchar_t* subKey, unsigned int options,
                               unsigned int access, HKEY* result) override;
    unsigned int RegOpenKeyW(HKEY key, const wchar_t* subKey, HKEY* result) override;
    unsigned int RegSetValueExW(HKEY key, const wchar_t* valueName, unsigned int reserved,
                                unsigned int type, const unsigned char* data,
                                unsigned int byteCount) override;
    unsigned int RegCloseKey(HKEY key) override;
    unsigned int RegQueryInfoKeyW(HKEY key, wchar_t* keyClass, unsigned int* classLength,
                                  unsigned int* reserved, unsigned int* subKeys,
                                  unsigned int* longestSubKey, unsigned int* longestClass,
                                  unsigned int* values, unsigned int* longestValueName,
                                  unsigned int* longestValueData, unsigned int* securityDescriptor,
                                  _FILETIME* lastWriteTime) override;
    unsigned int RegEnumKeyW(HKEY key, unsigned int index, wchar_t* name,
                             unsigned int capacity) override;
    unsigned int RegDeleteKeyW(HKEY key, const wchar_t* subKey) override;
    unsigned int RegDeleteValueW(HKEY key, const wchar_t* valueName) override;
    unsigned int RegEnumKeyExW(HKEY key, unsigned int index, wchar_t* name,
                               unsigned int* nameLength, unsigned int* reserved, wchar_t* keyClass,
                               unsigned int* classLength, _FILETIME* lastWriteTime) override;
    unsigned int RegEnumValueW(HKEY key, unsigned int index, wchar_t* name,
                               unsigned int* nameLength, unsigned int* reserved, unsigned int* type,
                               unsigned char* data, unsigned int* byteCount) override;
    unsigned int RegQueryValueW(HKEY key, const wchar_t* valueName, wchar_t* data,
                                int* byteCount) override;
    unsigned int RegDeleteKeyExW(HKEY key, const wchar_t* subKey, unsigned int access,
                                 unsigned int reserved) override;
    unsigned int RegCreateKeyW(HKEY key, const wchar_t* subKey, HKEY*& result) override;

    /// Removes what lies at `path` below the store's current group. Unlike the registry calls,
    /// returns 1 when done and 0 for an empty path or without a store.
    unsigned int RegDeleteKeyAndAllSubkeys(const QString& path);

private:
    // The name as given; empty without a store or a key, where nothing can be asked for either.
    QString nameToAsk(HKEY key, const wchar_t* name) const;

    unsigned int createKey(HKEY parent, const wchar_t* subKey, HKEY*& result);
    unsigned int deleteKey(HKEY parent, const wchar_t* subKey);
    unsigned int enumerateKey(HKEY key, unsigned int index, wchar_t* name,
                              unsigned int* nameLength);

    QSettings* m_store; // the host library's; may be null
};

/// Encodes a value for the store: REG_DWORD and REG_NONE (as a DWORD), REG_SZ, REG_BINARY and
/// REG_QWORD. `size` is in bytes. Of a DWORD whose size is not 4, and of every QWORD, only the
/// first byte is kept; a text is read up to its NUL, whatever the size. Returns false, and leaves
/// `out` alone, for null data, any other type and binary data of size 0.
bool RegValueToQVar(QVariant& out, unsigned int type, const unsigned char* data, unsigned int size);

/// Decodes an entry of the store. `size` is the size of `data` in bytes and becomes the length of
/// the value; each of the three pointers may be null. A too small buffer gets nothing, and false is
/// returned, but the type is set by then:
///
/// - REG_DWORD: 4 bytes, asked of `size` only when there is a `data`. What does not fit a signed
///   32-bit number reads as 0.
/// - REG_QWORD: 8 bytes, asked of `size` even without a `data`.
/// - REG_BINARY: as many bytes as there are, likewise.
/// - REG_SZ: UTF-32 without a terminator, though `size` has to be larger than the text, likewise.
///
/// Returns false and writes nothing for a null value and for text that no tag stands before.
bool QVarToRegValue(QVariant& value, unsigned int* type, unsigned char* data, unsigned int* size);
