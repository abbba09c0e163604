#pragma once

#include "app/CStdStr.h"
#include "platform/WindowsTypes.h"

/// The interfaces through which host libraries reach the Windows-style services.
///
/// Host libraries call these classes through their virtual tables, so the order of the virtual
/// operations, and the place of each destructor (first, last or none), is a binary contract: never
/// reorder, insert or remove one. All wide strings are NUL-terminated UTF-32. Everything is called
/// on the GUI thread.

/// Key states and the search for top-level windows. A window is a `QWidget*`.
/// Has no virtual destructor: host libraries never destroy it.
class IPlatformUserInputManager
{
public:
    /// As `getKeyState`, and through it: a press since the last call is not told.
    virtual int getAsyncKeyState(int virtualKey) = 0;

    /// -32768 (the high bit of a short, sign-extended) when the key of this VK_ code is down, else
    /// 0, also for keys that are not known. The toggle bit is never set.
    virtual int getKeyState(int virtualKey) = 0;

    /// Remembers whether the key of this `Qt::Key` is down. Any code is kept; only those of Return
    /// and Space are ever asked for.
    virtual void setKeyPressed(int qtKey, bool pressed) = 0;

    /// The first top-level widget whose meta-object has the class name; only when `className` is
    /// null, the first whose title is `windowName`; when both are null, the first of all. Names are
    /// compared exactly, and an empty title is never found. Returns null where there is none; the
    /// widget remains its owner's.
    virtual HWND FindWindowW(const wchar_t* className, const wchar_t* windowName) = 0;

protected:
    ~IPlatformUserInputManager() = default;
};

/// Directory searches, file attributes and path arithmetic on the Linux file system. Lengths count
/// 4-byte characters. The separator is "/"; a backslash is an ordinary character except to
/// `AddBackslash`. Relative paths start at the working directory.
/// Has no virtual destructor: host libraries never destroy it.
class IPlatformDirectoryManager
{
public:
    /// Starts a search for `pattern`: a directory up to the last "/", then a name that may hold
    /// wildcards and matches without regard to case. Links count as what they point to; broken
    /// links, "." and ".." are never found, hidden entries are. The order is by name ignoring case.
    /// Returns a search handle, positioned on the first entry, that the caller gives back to
    /// `findClose`; INVALID_HANDLE_VALUE if nothing is found, for a pattern without "/" and for
    /// null arguments.
    /// Of `data`, the name and the attributes are written: the first 260 characters of the name,
    /// padded with zeros (a name of 260 or more, as one with a search path of Qt's in front may be,
    /// gets no terminator); 16 for a directory, else 128; and, only for a regular file, the size in
    /// bytes and the three times, which are seconds since 1970-01-01 UTC in the low word (all ones
    /// where they do not fit), not 100 nanoseconds since 1601.
    virtual void* findFirstFile(const wchar_t* pattern, _WIN32_FIND_DATAW* data) = 0;

    /// Goes on to the next entry and writes its name and attributes, and nothing else, to `data`.
    /// Returns 1, or 0 after the last entry, for null, and for the handle of no search still going.
    virtual int findNextFile(void* search, _WIN32_FIND_DATAW* data) = 0;

    /// Ends a search and frees its handle. Returns 1; 0 for a null or invalid handle.
    virtual int findClose(void* search) = 0;

    /// Whether `path` exists, ignoring the case of its last component. `realPath` becomes the
    /// absolute path as it is on disk, or a copy of `path` where the answer is 0; with a null
    /// `path` it is left alone. `path` may point into `realPath`.
    virtual int isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath) = 0;

    /// 1 if the whole `text` is an http, https, ftp or file URL (the scheme in lower case), else 0;
    /// 0 for null.
    virtual int isURL(const wchar_t* text) = 0;

    /// Turns every backslash in `path` into "/" and appends a "/" unless there is one at the end.
    /// Returns `path`; null for null. The buffer holds at least 256 characters, all of which are
    /// overwritten; a longer result is written in full length, but without a terminator.
    virtual wchar_t* AddBackslash(wchar_t* path) = 0;

    /// Not supported: returns 0 and leaves `path` alone.
    virtual int SHGetFolderPath(HWND owner, int folder, void* token, unsigned int flags,
                                wchar_t* path) = 0;

    /// Writes the path from the directory `from` to `to`, with "./" in front where `to` contains
    /// `from` as text, and "./" alone where they are equal: at most 4,096 characters, without a
    /// terminator, so the caller zeroes the buffer. The attributes are ignored. Returns 1; 0 if
    /// `relative`, `from` or `to` is null.
    virtual int PathRelativePathToW(wchar_t* relative, const wchar_t* from,
                                    unsigned int fromAttributes, const wchar_t* to,
                                    unsigned int toAttributes) = 0;

    /// Writes the directory for temporary files, with a "/" at its end, without a terminator: the
    /// caller zeroes the buffer. `length` counts the buffer's characters, one of them for the
    /// terminator. Returns the number of characters written; 0, and nothing written, if they do not
    /// fit or the buffer is null. A length of 0 is taken as unlimited.
    virtual unsigned int GetTempPathW(unsigned int length, wchar_t* buffer) = 0;

    /// FILE_ATTRIBUTE_NORMAL, with FILE_ATTRIBUTE_DIRECTORY for a directory and
    /// FILE_ATTRIBUTE_READONLY for what can be read and not written. FILE_ATTRIBUTE_NORMAL also for
    /// what does not exist; INVALID_FILE_ATTRIBUTES for null.
    virtual unsigned int GetFileAttributesW(const wchar_t* path) = 0;

    /// FILE_ATTRIBUTE_READONLY changes nothing and demands a file, not a directory, that everybody
    /// may read. FILE_ATTRIBUTE_HIDDEN then renames what is there, file or directory, to "."
    /// followed by the whole path, unless that exists. Other attributes are ignored. Returns 1, or
    /// 0 where a step failed and for null.
    virtual int SetFileAttributesW(const wchar_t* path, unsigned int attributes) = 0;

    /// 1 if `path` is relative, else 0; 0 for an empty path and for null.
    virtual int IsPathRelative(const wchar_t* path) = 0;

    /// The text from the last "." of the file name on, in a new array of 1,024 characters that the
    /// caller frees with `delete[]`; an empty text where there is none, null for null. The first
    /// 256 characters are zeroed before the text is written; a longer text has no terminator, and
    /// one that does not fit is cut.
    virtual wchar_t* PathFindExtensionW(const wchar_t* path) = 0;

protected:
    ~IPlatformDirectoryManager() = default;
};

/// Cursor position and shape. A cursor is a `QCursor*`, a window a `QWidget*`.
class IPlatformCursorManager
{
public:
    virtual ~IPlatformCursorManager() = default;

    /// The pointer's position on the virtual desktop, in pixels. Returns 1; 0 for null.
    virtual int GetCursorPos(tagPOINT* point) = 0;

    /// No cursor can be loaded: always null, and callers must cope with that.
    virtual HCURSOR LoadCursorW(HINSTANCE module, const wchar_t* name) = 0;

    /// Turns a point of the virtual desktop into one of the window, in pixels. Returns 1; 0, with
    /// the point left alone, when either is null.
    virtual int ScreenToClient(HWND window, tagPOINT* point) = 0;

    /// Qt's copy of the override cursor on top of its stack, or null when none is set. It remains
    /// Qt's and is good until the stack changes.
    virtual HCURSOR GetCursor() = 0;

    /// Pushes a copy of `cursor` onto Qt's stack of override cursors, unless it is null or what
    /// `GetCursor` returns. Nothing here ever pops it. Returns what `GetCursor` returned before: an
    /// address in Qt's own stack, which the push may have moved, so compare it but never read
    /// through it.
    virtual HCURSOR SetCursor(HICON cursor) = 0;
};

/// The font catalogue that the caller fills and enumerates; no font is looked for anywhere else. A
/// font has a global family name and a local face name, and its records are kept under the latter.
/// Names are compared exactly and ordered by code point.
class IPlatformFontManager
{
public:
    /// Is given the record, null, the font type and the caller's value.
    using EnumProcedure = int (*)(const tagLOGFONTW*, const tagTEXTMETRICW*, unsigned int, long);

    virtual ~IPlatformFontManager() = default;

    /// Calls `procedure` for the records of the family that `filter` names, by its global or its
    /// local name, or of all families in the order of their local names where `filter` is null or
    /// its name is empty, unless a font was added under the empty global name: then its family is
    /// the one that is named. Of a family, the records of the filter's character set are passed,
    /// all with DEFAULT_CHARSET or without a filter, in the order in which they were added; they
    /// stay the catalogue's. `dc` and `flags` are ignored.
    ///
    /// The procedure receives the record (which continues as an ENUMLOGFONTEXW), null,
    /// TRUETYPE_FONTTYPE and `callerValue`. Intended: where it returns 0 the family's next record
    /// follows; any other result ends the family, but not the families after it. It may add fonts.
    /// Returns the procedure's last result; -1 where it was not called or is null.
    virtual int enumFontFamiliesEx(HDC dc, tagLOGFONTW* filter, EnumProcedure procedure,
                                   long callerValue, unsigned int flags) = 0;

    /// Adds a copy of `record` under its face name, having written the name of its character set's
    /// script to its `elfScript` (left alone for a character set without a name). The first face
    /// name added under a global name remains the one that this stands for. Null adds nothing.
    virtual void addLogFont(CStdStr<wchar_t> globalName, ENUMLOGFONTEXW* record) = 0;

    /// The first global name, in order, that stands for `localName`; empty where there is none.
    virtual CStdStr<wchar_t> getGlobalNameByLocalName(CStdStr<wchar_t> localName) = 0;

    /// Not supported: returns 0 for every code page.
    virtual int IsValidCodePage(unsigned int codePage) = 0;
};

/// Graphics objects by handle, string resources of a module, the size of the desktop and monitors.
///
/// A handle is a small integer in a pointer: (type << 16) | n, n from 1 to 0xFFFF, the lowest that
/// is free. Images (type 0) are `QImage`s and belong to the manager, cursor images (type 2) to
/// whoever entered them; a brush (type 4) is its colour. A monitor is a `QScreen*`. Null arguments
/// get the failure value.
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

    /// Copies the text that the module's "loadstring" (a `LoadStringFunction`) has for `id` into
    /// `buffer` of `size` characters and returns the length of what then stands there, without the
    /// terminator. A text of `size` characters or more fills the buffer without a terminator, and
    /// the length is counted past its end: readable memory up to a terminator must follow.
    /// With size 0 the text's own address goes into the first pointer-sized word of `buffer`, which
    /// must have room for it; the text stays the module's, to be read only.
    /// A module without that function has empty texts. A text that the function does not know
    /// (null), a null buffer or a negative size gives 0 and nothing is written.
    virtual int loadString(HINSTANCE module, unsigned int id, wchar_t* buffer, int size) = 0;

    /// Nothing can be loaded: always null.
    virtual void* loadImage(HINSTANCE module, const wchar_t* name, unsigned int type, int width,
                            int height, unsigned int flags) = 0;

    /// A new image (premultiplied ARGB, 32 bits, not initialised) of `width` times `height` pixels;
    /// where no such image can be made, a null image. Returns null when `kind` is not 0 or all
    /// numbers are taken.
    virtual void* createImage(unsigned int kind, int width, int height) = 0;

    /// A new brush of this colour, or null when all numbers are taken. Allocates no object.
    virtual void* createBrush(unsigned int color) = 0;

    /// The object (for a brush the colour itself) under `handle`, still owned by the table; null
    /// when the handle is unknown or not of `type`.
    virtual void* fromHandle(void* handle, IPlatformResourceManager::ObjType type) = 0;

    /// Takes a handle out; an image is destroyed with it. Unknown handles are ignored. The result
    /// says nothing.
    virtual int deleteObject(void* handle) = 0;

    /// The size of the primary screen in pixels for SM_CXFULLSCREEN and SM_CYFULLSCREEN, else 0.
    virtual int GetSystemMetrics(int index) = 0;

    /// Describes an image; 1, or 0 with nothing written. `bmType` is the `QImage::Format`,
    /// `bmPlanes` the number of colour bits in a pixel, and `bmBits` the image's own memory.
    virtual int GetBitmap(BITMAP* bitmap, void* handle) = 0;

    /// Copies an image's pixels. `count` must be exactly their number of bytes, and is returned;
    /// otherwise 0 and nothing is written.
    virtual int GetBitmapBits(unsigned int count, void* buffer, void* handle) = 0;

    /// Copies all bytes of a cursor image, as it is stored, and returns their number; 0 unless
    /// `bitsPerPixel` is 8. `buffer` must hold the stored image, whatever width and height say.
    virtual int GetCursorBits(void* handle, int width, int height, void* buffer,
                              int bitsPerPixel) = 0;

    /// There are no printers: always 0, nothing is written.
    virtual int EnumPrintersW(unsigned int flags, wchar_t* name, unsigned int level,
                              unsigned char* buffer, unsigned int size, unsigned int* needed,
                              unsigned int* returned) = 0;

    /// The screen that holds the point; failing that, what `flags` (MONITOR_DEFAULTTO...) names, or
    /// null. Nearest is the screen with the nearest edge line, first of equals.
    virtual HMONITOR MonitorFromPoint(tagPOINT point, unsigned int flags) = 0;

    /// Describes a screen; 1, or 0 with nothing written. `right` and `bottom` are the last pixel
    /// inside. `cbSize` is neither read nor written.
    virtual int GetMonitorInfoW(HMONITOR monitor, tagMONITORINFO* info) = 0;
};

/// Private profile (INI) files: a wide family, which reads and writes them as `QSettings` does, and
/// a narrow one with a line parser of its own, independent of each other. What one writes, the next
/// call of the other sees.
///
/// Narrow strings are UTF-8. Sizes are counted in the buffer's own characters: 4 bytes in the wide
/// family, 1 in the narrow one. A null section, key, file or buffer gets the failure value, and
/// nothing is written. A file that cannot be read reads as empty.
class IPlatformProfileManager
{
public:
    virtual ~IPlatformProfileManager() = default;

    /// Copies a value, or the fallback (null: empty), and returns the length of the NUL-terminated
    /// text then in the buffer. A text of `size` - 1 characters or more is cut there and gets no
    /// terminator: the last character stays as the caller had it. Size 0 gets 0.
    virtual unsigned int GetPrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                                  const wchar_t* fallback, wchar_t* buffer,
                                                  unsigned int size, const wchar_t* file) = 0;

    /// The same, narrow. A missing value reads as empty: the fallback is ignored. A cut may fall
    /// inside a UTF-8 sequence.
    virtual unsigned int GetPrivateProfileStringA(const char* section, const char* key,
                                                  const char* fallback, char* buffer,
                                                  unsigned int size, const char* file) = 0;

    /// Returns a value as a number: the fallback when it is missing or an argument is null, 0 when
    /// it is not a decimal number.
    virtual unsigned int GetPrivateProfileIntW(const wchar_t* section, const wchar_t* key,
                                               int fallback, const wchar_t* file) = 0;

    /// Not supported: always 0.
    virtual unsigned int GetPrivateProfileIntA(const char* section, const char* key, int fallback,
                                               const char* file) = 0;

    /// Not supported: always 0, and the buffer is left alone.
    virtual unsigned int GetPrivateProfileSectionNamesW(wchar_t* buffer, unsigned int size,
                                                        const wchar_t* file) = 0;

    /// Writes "key=value" and a NUL for each key of a section, then another NUL, whatever the size:
    /// the buffer must be large enough. Returns the characters written, NULs included. A key with a
    /// "/" in its name ("\" in the file) is listed too; so is "T/key" in S for what was written as
    /// "key" in "S/T".
    virtual unsigned int GetPrivateProfileSectionW(const wchar_t* section, wchar_t* buffer,
                                                   unsigned int size, const wchar_t* file) = 0;

    /// Writes a value; null is written as an empty one, nothing is ever deleted. Returns 1 even
    /// when the file cannot be saved, 0 for a null section, key or file.
    virtual int WritePrivateProfileStringW(const wchar_t* section, const wchar_t* key,
                                           const wchar_t* value, const wchar_t* file) = 0;

    /// The same, narrow; returns 0 also when the file cannot be opened for writing. Rewrites the
    /// file in place, sorted, and without anything that is not an entry.
    virtual int WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                           const char* file) = 0;

    /// Not supported: always 1.
    virtual int OpenPrivateProfile(const wchar_t* file) = 0;

    /// Not supported: always 0, and the buffer is left alone.
    virtual unsigned int QueryPrivateProfileString(const wchar_t* section, const wchar_t* key,
                                                   const wchar_t* fallback, wchar_t* buffer,
                                                   unsigned int size) = 0;

    /// Not supported: always 1.
    virtual int ClosePrivateProfile() = 0;

    /// Not supported: does nothing.
    virtual void SetOutQSettings(void* settings) = 0;
};

/// Message boxes and window messages, none of which is ever shown or sent: a host library cannot
/// stop the application with a modal box. The destructor stands last.
class IPlatformMessageManager
{
public:
    /// Answers every question with IDNO, whatever the style.
    virtual int messageBox(HWND owner, const wchar_t* text, const wchar_t* caption,
                           unsigned int style) = 0;

    /// Returns 0: nothing was posted.
    virtual int postMessage(HWND window, unsigned int message, unsigned long wParam,
                            long lParam) = 0;

    /// Returns 0.
    virtual long sendMessage(HWND window, unsigned int message, unsigned long wParam,
                             long lParam) = 0;

    /// Returns S_FALSE and leaves the three results alone.
    virtual int TaskDialogIndirect(const _TASKDIALOGCONFIG* config, int* button, int* radioButton,
                                   int* verificationChecked) = 0;

    virtual ~IPlatformMessageManager() = default;
};

/// The registry, kept in the host library's settings store. The destructor stands last.
///
/// A key is one of the four predefined roots, which all mean the root of the one store, or a handle
/// that `RegOpenKeyExW` or `RegOpenKeyW` made: the caller owns it, and `RegCloseKey` frees it.
///
/// Null reads as an empty text. Lengths of names are counted in 4-byte characters, lengths of data
/// in bytes, and neither ever counts a terminator. "\" in a sub-key or a value name stands for "/".
/// Indexes count from 0: any at or past the end fails.
///
/// Every operation returns 0 for success and 1 for any failure: no store, a null handle or result,
/// an empty name, nothing found, an index past the end, a buffer that is too small, an entry that
/// holds no registry value. Only `RegOpenKeyExW` (2) and `RegOpenKeyW` (87) have other failures. A
/// failure leaves every result alone, unless an operation says otherwise. Pointers for results may
/// be null, which asks for nothing; arguments that are not mentioned are ignored, and results that
/// are not mentioned are never written.
class IPlatformRegisterManager
{
public:
    /// Reads a value. `byteCount` says how large `data` is and becomes the length of the data: 4
    /// for a REG_DWORD (not asked for where `data` is null), 8 for a REG_QWORD, as many bytes as
    /// there are for REG_BINARY; a REG_SZ is UTF-32 without a terminator, though `byteCount` has to
    /// be larger than the text. Where that is too small nothing is written, `type` neither.
    /// Directly under a root, the value X is the entry X/X, as `RegSetValueExW` writes it.
    virtual unsigned int RegQueryValueExW(HKEY key, const wchar_t* valueName,
                                          unsigned int* reserved, unsigned int* type,
                                          unsigned char* data, unsigned int* byteCount) = 0;

    /// Makes a key exist: at first as an entry of its parent, not yet as a sub-key that is listed.
    /// Never delivers a handle: `result` becomes an invalid address that is not null; never test or
    /// read it, but open the key. U+FEFF at the start of a name is left out. Directly under a root,
    /// "general" in any case is "General" after a restart, once the key has values or keys.
    virtual unsigned int RegCreateKeyExW(HKEY key, const wchar_t* subKey, unsigned int reserved,
                                         wchar_t* keyClass, unsigned int options,
                                         unsigned int access, _SECURITY_ATTRIBUTES* attributes,
                                         HKEY*& result, unsigned int* disposition) = 0;

    /// Opens a key that is an entry, or a group with anything in it; the caller owns the new
    /// handle. Otherwise the result becomes null and 2 is returned. Whether the key exists is asked
    /// before "\" becomes "/", so that a path of several levels has to be written with "/".
    virtual unsigned int RegOpenKeyExW(HKEY key, const wchar_t* subKey, unsigned int options,
                                       unsigned int access, HKEY* result) = 0;

    /// Like `RegOpenKeyExW`, but a null or empty sub-key hands back `key` itself, not a copy: close
    /// only one of the two. Null result: 87.
    virtual unsigned int RegOpenKeyW(HKEY key, const wchar_t* subKey, HKEY* result) = 0;

    /// Writes a value of type REG_DWORD, REG_NONE (as a DWORD), REG_SZ, REG_BINARY or REG_QWORD. Of
    /// a DWORD whose size is not 4, and of every QWORD, only the first byte is kept; a text is read
    /// up to its NUL, whatever the size. Null data, any other type and binary data of size 0 fail.
    /// A name of "\" alone makes a value without a name, gone after a restart except from a key
    /// directly under a root. U+FEFF and "general", this at once, are as `RegCreateKeyExW` says.
    virtual unsigned int RegSetValueExW(HKEY key, const wchar_t* valueName, unsigned int reserved,
                                        unsigned int type, const unsigned char* data,
                                        unsigned int byteCount) = 0;

    /// Frees a key handle. Null is accepted. Never pass a root: it is not a key string.
    virtual unsigned int RegCloseKey(HKEY key) = 0;

    /// Counts sub-keys and values and measures their longest names. The longest value data is that
    /// of the value with the longest name: 4 for a DWORD, else 0. It lists like `RegEnumKeyW`.
    virtual unsigned int RegQueryInfoKeyW(HKEY key, wchar_t* keyClass, unsigned int* classLength,
                                          unsigned int* reserved, unsigned int* subKeys,
                                          unsigned int* longestSubKey, unsigned int* longestClass,
                                          unsigned int* values, unsigned int* longestValueName,
                                          unsigned int* longestValueData,
                                          unsigned int* securityDescriptor,
                                          _FILETIME* lastWriteTime) = 0;

    /// Copies the name of a sub-key, without a terminator and whatever the capacity: the buffer
    /// must be large enough, and the caller zeroes it. Within one turn of the event loop it may use
    /// the list of an earlier call. That misses what a second settings object on the file writes,
    /// what a `sync()` reads of other programs, and changes while a filter withholds the saving.
    virtual unsigned int RegEnumKeyW(HKEY key, unsigned int index, wchar_t* name,
                                     unsigned int capacity) = 0;

    /// Removes a key with everything below it; 0 whether or not it existed. A sub-key of "\" alone
    /// removes `key` with everything below it.
    virtual unsigned int RegDeleteKeyW(HKEY key, const wchar_t* subKey) = 0;

    /// Removes a value, and a sub-key of the same name with everything below it; 0 whether or not
    /// there was one. A name of "\" alone removes `key` with everything below it.
    virtual unsigned int RegDeleteValueW(HKEY key, const wchar_t* valueName) = 0;

    /// Like `RegEnumKeyW`; `nameLength` is only written, never taken as a capacity.
    virtual unsigned int RegEnumKeyExW(HKEY key, unsigned int index, wchar_t* name,
                                       unsigned int* nameLength, unsigned int* reserved,
                                       wchar_t* keyClass, unsigned int* classLength,
                                       _FILETIME* lastWriteTime) = 0;

    /// Copies the name of a value like `RegEnumKeyExW`, then reads the value. The name and its
    /// length are written even when the value cannot be read and 1 is returned.
    virtual unsigned int RegEnumValueW(HKEY key, unsigned int index, wchar_t* name,
                                       unsigned int* nameLength, unsigned int* reserved,
                                       unsigned int* type, unsigned char* data,
                                       unsigned int* byteCount) = 0;

    /// Reads the value of this name, not the default value of a sub-key. Directly under a root it
    /// is the entry of that name at the top of the store.
    virtual unsigned int RegQueryValueW(HKEY key, const wchar_t* valueName, wchar_t* data,
                                        int* byteCount) = 0;

    /// The same as `RegDeleteKeyW`.
    virtual unsigned int RegDeleteKeyExW(HKEY key, const wchar_t* subKey, unsigned int access,
                                         unsigned int reserved) = 0;

    /// The same as `RegCreateKeyExW`.
    virtual unsigned int RegCreateKeyW(HKEY key, const wchar_t* subKey, HKEY*& result) = 0;

    virtual ~IPlatformRegisterManager() = default;
};

/// The one object that host libraries receive: an accessor for each manager, which creates it on
/// the first request and returns the same one from then on. The managers remain the object's.
class IPlatformServices
{
public:
    virtual ~IPlatformServices() = default;
    /// Key states and windows.
    virtual IPlatformUserInputManager* userInputManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* clipBoardManager() = 0;
    /// Directories, files and paths.
    virtual IPlatformDirectoryManager* directoryManager() = 0;
    /// The mouse cursor.
    virtual IPlatformCursorManager* cursorManager() = 0;
    /// The font catalogue.
    virtual IPlatformFontManager* fontManager() = 0;
    /// Graphics objects, strings and screens.
    virtual IPlatformResourceManager* resourceManager() = 0;
    /// Private profile files.
    virtual IPlatformProfileManager* profileManager() = 0;
    /// Message boxes and window messages.
    virtual IPlatformMessageManager* messageManager() = 0;
    /// The registry. The first call captures the host library's settings store, which must be set
    /// up by then.
    virtual IPlatformRegisterManager* registerManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* plotManager() = 0;
    /// Not provided: always null, and no interface type exists for it.
    virtual void* localeManager() = 0;
};
