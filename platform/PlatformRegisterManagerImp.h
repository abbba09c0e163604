#pragma once

#include "platform/IPlatformServices.h"

#include <QString>

class QSettings;
class QVariant;

/// The Windows registry calls, answered from the host library's settings store.
///
/// Keys are groups of the store, levels separated by "/", and values are entries whose text is a
/// type tag, "$" and a payload. The four predefined roots all mean the root of the one store. Any
/// other key handle is a heap `QString` with the key's path: `RegOpenKeyExW` allocates it, its
/// caller owns it, and `RegCloseKey` frees it.
///
/// Wide strings are NUL-terminated UTF-32; null reads as empty. Lengths of names are counted in
/// 4-byte characters, lengths of data in bytes, and neither ever counts a terminator. "\" in a
/// sub-key or a value name stands for "/". Indexes are unsigned: any at or past the end fails.
///
/// Every operation returns 0 for success and 1 for any failure: no store, a null handle or result,
/// an empty name, nothing found, an index past the end, a buffer that is too small, an entry that
/// holds no registry value. Only `RegOpenKeyExW` (2) and `RegOpenKeyW` (87) have other failures. A
/// failure leaves every result alone, unless an operation says otherwise. Pointers for results may
/// be null, which asks for nothing; arguments that are not mentioned are ignored, and results that
/// are not mentioned are never written.
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

    /// Reads a value. `byteCount` says how large `data` is and becomes the length of the data; see
    /// `QVarToRegValue` for the sizes each type demands. Directly under a root, the value X is the
    /// entry X/X, as `RegSetValueExW` writes it.
    unsigned int RegQueryValueExW(HKEY key, const wchar_t* valueName, unsigned int* reserved,
                                  unsigned int* type, unsigned char* data,
                                  unsigned int* byteCount) override;

    /// Makes a key exist: at first as an entry of its parent, not yet as a sub-key that is listed.
    /// Never delivers a handle: `result` itself is left pointing at nothing and the caller's HKEY
    /// stays as it was. Open the key to get one.
    unsigned int RegCreateKeyExW(HKEY key, const wchar_t* subKey, unsigned int reserved,
                                 wchar_t* keyClass, unsigned int options, unsigned int access,
                                 _SECURITY_ATTRIBUTES* attributes, HKEY*& result,
                                 unsigned int* disposition) override;

    /// Opens a key that is an entry, or a group with anything in it; the caller owns the new
    /// handle. Otherwise the result becomes null and 2 is returned. Whether the key exists is asked
    /// before "\" becomes "/", so that a path of several levels has to be written with "/". Null
    /// result: 1.
    unsigned int RegOpenKeyExW(HKEY key, const wchar_t* subKey, unsigned int options,
                               unsigned int access, HKEY* result) override;

    /// Like `RegOpenKeyExW`, but a null or empty sub-key hands back `key` itself, not a copy: close
    /// only one of the two. Null result: 87.
    unsigned int RegOpenKeyW(HKEY key, const wchar_t* subKey, HKEY* result) override;

    /// Writes a value; see `RegValueToQVar` for the types and for how much of the data is kept. A
    /// name of "\" alone makes one that is listed with an empty name.
    unsigned int RegSetValueExW(HKEY key, const wchar_t* valueName, unsigned int reserved,
                                unsigned int type, const unsigned char* data,
                                unsigned int byteCount) override;

    /// Frees a key handle. Null is accepted. Never pass a root: it is not a key string.
    unsigned int RegCloseKey(HKEY key) override;

    /// Counts sub-keys and values and measures their longest names. The longest value data is that
    /// of the value with the longest name: 4 for a DWORD, else 0.
    unsigned int RegQueryInfoKeyW(HKEY key, wchar_t* keyClass, unsigned int* classLength,
                                  unsigned int* reserved, unsigned int* subKeys,
                                  unsigned int* longestSubKey, unsigned int* longestClass,
                                  unsigned int* values, unsigned int* longestValueName,
                                  unsigned int* longestValueData, unsigned int* securityDescriptor,
                                  _FILETIME* lastWriteTime) override;

    /// Copies the name of a sub-key, without a terminator and whatever the capacity.
    unsigned int RegEnumKeyW(HKEY key, unsigned int index, wchar_t* name,
                             unsigned int capacity) override;

    /// Removes a key with everything below it; 0 whether or not it existed. A sub-key of "\" alone
    /// removes `key` with everything below it.
    unsigned int RegDeleteKeyW(HKEY key, const wchar_t* subKey) override;

    /// Removes a value, and a sub-key of the same name with everything below it; 0 whether or not
    /// there was one. A name of "\" alone removes `key` with everything below it.
    unsigned int RegDeleteValueW(HKEY key, const wchar_t* valueName) override;

    /// Like `RegEnumKeyW`; `nameLength` is only written, never taken as a capacity.
    unsigned int RegEnumKeyExW(HKEY key, unsigned int index, wchar_t* name,
                               unsigned int* nameLength, unsigned int* reserved, wchar_t* keyClass,
                               unsigned int* classLength, _FILETIME* lastWriteTime) override;

    /// Copies the name of a value like `RegEnumKeyExW`, then reads the value. The name and its
    /// length are written even when the value cannot be read and 1 is returned.
    unsigned int RegEnumValueW(HKEY key, unsigned int index, wchar_t* name,
                               unsigned int* nameLength, unsigned int* reserved, unsigned int* type,
                               unsigned char* data, unsigned int* byteCount) override;

    /// Reads the value of this name, not the default value of a sub-key. Directly under a root it
    /// is the entry of that name at the top of the store.
    unsigned int RegQueryValueW(HKEY key, const wchar_t* valueName, wchar_t* data,
                                int* byteCount) override;

    /// The same as `RegDeleteKeyW`.
    unsigned int RegDeleteKeyExW(HKEY key, const wchar_t* subKey, unsigned int access,
                                 unsigned int reserved) override;

    /// The same as `RegCreateKeyExW`.
    unsigned int RegCreateKeyW(HKEY key, const wchar_t* subKey, HKEY*& result) override;

    /// Removes what lies at `path` below the store's current group. Unlike everything above,
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
