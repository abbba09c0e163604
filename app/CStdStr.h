#pragma once

#include "host/HostLibraries.h"

#include <string>

template <typename CharT>
class CStdStr;

/// The wide string that crosses the platform interfaces: a `std::wstring` (UTF-32) that tells the
/// host libraries about every copy made of it.
///
/// There is deliberately no move constructor: a move is a copy, and a copy is announced. Containers
/// of these strings therefore announce each element that they copy or move in.
///
/// Everything of it is defined here: the application does not export it, so a host library brings
/// what it uses of it.
template <>
class CStdStr<wchar_t> : public std::basic_string<wchar_t>
{
public:
    CStdStr() = default;

    /// Copies a NUL-terminated text; null gives the empty string. Announces nothing.
    /// Implicit, because callers pass wide literals where the interfaces take a string.
    CStdStr(const wchar_t* text) // NOLINT(google-explicit-constructor)
    {
        if (text)
            assign(text);
    }

    /// Copies `other`, then calls `updateCStringManagerData` with the address of the new string.
    CStdStr(const CStdStr<wchar_t>& other) : std::basic_string<wchar_t>(other)
    {
        updateCStringManagerData(this);
    }

    /// Replaces the text; an assignment makes no new string and announces nothing.
    CStdStr<wchar_t>& operator=(const CStdStr<wchar_t>& other) = default;

    ~CStdStr() = default;
};

/// Assigns the NUL-terminated `source` to `destination`; null makes it empty.
/// `source` may point into `destination` itself (its terminator included): the string then becomes
/// its own tail from there, embedded NULs and all.
void ssasn(std::wstring& destination, const wchar_t* source);

/// Compares two NUL-terminated texts ignoring case, by the lower-case mapping of the classic
/// locale. Returns 0 when equal, else the difference of the first two lower-cased characters that
/// differ. Neither may be null.
template <typename CharT>
int ssicmp(const CharT* a, const CharT* b);

template <>
int ssicmp<wchar_t>(const wchar_t* a, const wchar_t* b);
