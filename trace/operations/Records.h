#pragma once

#include "platform/WindowsTypes.h"
#include "trace/operations/Names.h"

#include <type_traits>

/// The records of the interfaces, field by field. Where only a part of a record is ever written,
/// only that part has rows.
namespace trace {

/// A field of `Record` that is reached by `offset`.
template <typename T>
constexpr Field field(const char* name, Role role, std::size_t offset, Rows<BitName> names = {})
{
    return {name, role, static_cast<std::uint16_t>(offset), sizeof(T), 1, names};
}

/// Text that stands in the record itself.
constexpr Field text(const char* name, std::size_t offset, std::size_t count)
{
    return {name,
            Role::Text,
            static_cast<std::uint16_t>(offset),
            sizeof(WCHAR),
            static_cast<std::uint16_t>(count),
            {}};
}

inline constexpr Field pointFields[] = {
    field<LONG>("x", Role::Number, offsetof(POINT, x)),
    field<LONG>("y", Role::Number, offsetof(POINT, y)),
};

/// The first two are always written, the others for a regular file alone.
inline constexpr std::size_t entryFieldCount = 2;
inline constexpr Field findFields[] = {
    field<DWORD>("dwFileAttributes", Role::Flags, offsetof(WIN32_FIND_DATAW, dwFileAttributes),
                 attributeNames),
    text("cFileName", offsetof(WIN32_FIND_DATAW, cFileName), MAX_PATH),
    field<DWORD>("ftCreationTime.low", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftCreationTime.dwLowDateTime)),
    field<DWORD>("ftCreationTime.high", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftCreationTime.dwHighDateTime)),
    field<DWORD>("ftLastAccessTime.low", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftLastAccessTime.dwLowDateTime)),
    field<DWORD>("ftLastAccessTime.high", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftLastAccessTime.dwHighDateTime)),
    field<DWORD>("ftLastWriteTime.low", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftLastWriteTime.dwLowDateTime)),
    field<DWORD>("ftLastWriteTime.high", Role::Unsigned,
                 offsetof(WIN32_FIND_DATAW, ftLastWriteTime.dwHighDateTime)),
    field<DWORD>("nFileSizeHigh", Role::Unsigned, offsetof(WIN32_FIND_DATAW, nFileSizeHigh)),
    field<DWORD>("nFileSizeLow", Role::Unsigned, offsetof(WIN32_FIND_DATAW, nFileSizeLow)),
};

inline constexpr Field fontFilterFields[] = {
    field<BYTE>("lfCharSet", Role::Choice, offsetof(LOGFONTW, lfCharSet), charsetNames),
    text("lfFaceName", offsetof(LOGFONTW, lfFaceName), LF_FACESIZE),
};

inline constexpr Field fontFields[] = {
    field<LONG>("lfHeight", Role::Number, offsetof(LOGFONTW, lfHeight)),
    field<LONG>("lfWidth", Role::Number, offsetof(LOGFONTW, lfWidth)),
    field<LONG>("lfEscapement", Role::Number, offsetof(LOGFONTW, lfEscapement)),
    field<LONG>("lfOrientation", Role::Number, offsetof(LOGFONTW, lfOrientation)),
    field<LONG>("lfWeight", Role::Number, offsetof(LOGFONTW, lfWeight)),
    field<BYTE>("lfItalic", Role::Unsigned, offsetof(LOGFONTW, lfItalic)),
    field<BYTE>("lfUnderline", Role::Unsigned, offsetof(LOGFONTW, lfUnderline)),
    field<BYTE>("lfStrikeOut", Role::Unsigned, offsetof(LOGFONTW, lfStrikeOut)),
    field<BYTE>("lfCharSet", Role::Choice, offsetof(LOGFONTW, lfCharSet), charsetNames),
    field<BYTE>("lfOutPrecision", Role::Unsigned, offsetof(LOGFONTW, lfOutPrecision)),
    field<BYTE>("lfClipPrecision", Role::Unsigned, offsetof(LOGFONTW, lfClipPrecision)),
    field<BYTE>("lfQuality", Role::Unsigned, offsetof(LOGFONTW, lfQuality)),
    field<BYTE>("lfPitchAndFamily", Role::Unsigned, offsetof(LOGFONTW, lfPitchAndFamily)),
    text("lfFaceName", offsetof(LOGFONTW, lfFaceName), LF_FACESIZE),
    text("elfFullName", offsetof(ENUMLOGFONTEXW, elfFullName), LF_FULLFACESIZE),
    text("elfStyle", offsetof(ENUMLOGFONTEXW, elfStyle), LF_FACESIZE),
    text("elfScript", offsetof(ENUMLOGFONTEXW, elfScript), LF_FACESIZE),
};

inline constexpr Field bitmapFields[] = {
    field<LONG>("bmType", Role::Number, offsetof(BITMAP, bmType)),
    field<LONG>("bmWidth", Role::Number, offsetof(BITMAP, bmWidth)),
    field<LONG>("bmHeight", Role::Number, offsetof(BITMAP, bmHeight)),
    field<LONG>("bmWidthBytes", Role::Number, offsetof(BITMAP, bmWidthBytes)),
    field<WORD>("bmPlanes", Role::Unsigned, offsetof(BITMAP, bmPlanes)),
    field<WORD>("bmBitsPixel", Role::Unsigned, offsetof(BITMAP, bmBitsPixel)),
    field<void*>("bmBits", Role::Pointer, offsetof(BITMAP, bmBits)),
};

inline constexpr Field monitorFields[] = {
    field<LONG>("rcMonitor.left", Role::Number, offsetof(MONITORINFO, rcMonitor.left)),
    field<LONG>("rcMonitor.top", Role::Number, offsetof(MONITORINFO, rcMonitor.top)),
    field<LONG>("rcMonitor.right", Role::Number, offsetof(MONITORINFO, rcMonitor.right)),
    field<LONG>("rcMonitor.bottom", Role::Number, offsetof(MONITORINFO, rcMonitor.bottom)),
    field<LONG>("rcWork.left", Role::Number, offsetof(MONITORINFO, rcWork.left)),
    field<LONG>("rcWork.top", Role::Number, offsetof(MONITORINFO, rcWork.top)),
    field<LONG>("rcWork.right", Role::Number, offsetof(MONITORINFO, rcWork.right)),
    field<LONG>("rcWork.bottom", Role::Number, offsetof(MONITORINFO, rcWork.bottom)),
    field<DWORD>("dwFlags", Role::Flags, offsetof(MONITORINFO, dwFlags), monitorFlagNames),
};

} // namespace trace
