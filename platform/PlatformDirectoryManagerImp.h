#pragma once

#include "platform/IPlatformServices.h"

/// Directory searches, file attributes and path arithmetic on the Linux file system.
///
/// All texts are NUL-terminated UTF-32, all lengths count 4-byte characters. The separator is "/";
/// a backslash is an ordinary character except to `AddBackslash`. Relative paths start at the
/// working directory. There is no state: whatever a search needs lies in its handle.
class PlatformDirectoryManagerImp : public IPlatformDirectoryManager
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
    void* findFirstFile(const wchar_t* pattern, _WIN32_FIND_DATAW* data) override;

    /// Goes on to the next entry and writes its name and attributes, and nothing else, to `data`.
    /// Returns 1, or 0 after the last entry and for a null or invalid argument.
    int findNextFile(void* search, _WIN32_FIND_DATAW* data) override;

    /// Ends a search and frees its handle. Returns 1; 0 for a null or invalid handle.
    int findClose(void* search) override;

    /// Whether `path` exists, ignoring the case of its last component. `realPath` becomes the
    /// absolute path as it is on disk, or a copy of `path` where the answer is 0; with a null
    /// `path` it is left alone. `path` may point into `realPath`.
    int isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath) override;

    /// 1 if the whole `text` is an http, https, ftp or file URL (the scheme in lower case), else 0;
    /// 0 for null.
    int isURL(const wchar_t* text) override;

    /// Turns every backslash in `path` into "/" and appends a "/" unless there is one at the end.
    /// Returns `path`; null for null. The buffer holds at least 256 characters, all of which are
    /// overwritten; a longer result is written in full length, but without a terminator.
    wchar_t* AddBackslash(wchar_t* path) override;

    /// Not supported: returns 0 and leaves `path` alone.
    int SHGetFolderPath(HWND owner, int folder, void* token, unsigned int flags,
                        wchar_t* path) override;

    /// Writes the path from the directory `from` to `to`, at most 4,096 characters, without a
    /// terminator: the caller zeroes the buffer. The attributes are ignored. Returns 1; 0 if
    /// `relative`, `from` or `to` is null.
    int PathRelativePathToW(wchar_t* relative, const wchar_t* from, unsigned int fromAttributes,
                            const wchar_t* to, unsigned int toAttributes) override;

    /// Writes the directory for temporary files, with a "/" at its end, without a terminator: the
    /// caller zeroes the buffer. `length` counts the buffer's characters, one of them for the
    /// terminator. Returns the number of characters written; 0, and nothing written, if they do not
    /// fit or the buffer is null. A length of 0 is taken as unlimited.
    unsigned int GetTempPathW(unsigned int length, wchar_t* buffer) override;

    /// FILE_ATTRIBUTE_NORMAL, with FILE_ATTRIBUTE_DIRECTORY for a directory and
    /// FILE_ATTRIBUTE_READONLY for what can be read and not written. FILE_ATTRIBUTE_NORMAL also for
    /// what does not exist; INVALID_FILE_ATTRIBUTES for null.
    unsigned int GetFileAttributesW(const wchar_t* path) override;

    /// FILE_ATTRIBUTE_READONLY changes nothing and demands a file, not a directory, that everybody
    /// may read. FILE_ATTRIBUTE_HIDDEN then renames the file to "." followed by the whole path.
    /// Other attributes are ignored. Returns 1, or 0 where a step failed and for null.
    int SetFileAttributesW(const wchar_t* path, unsigned int attributes) override;

    /// 1 if `path` is relative, else 0; 0 for an empty path and for null.
    int IsPathRelative(const wchar_t* path) override;

    /// The text from the last "." of the file name on, in a new array of 1,024 characters that the
    /// caller frees with `delete[]`; an empty text where there is none, null for null. The first
    /// 256 characters are zeroed before the text is written; a longer text has no terminator, and
    /// one that does not fit is cut.
    wchar_t* PathFindExtensionW(const wchar_t* path) override;
};
