// The records as the Windows headers lay them out, with 4-byte characters.

#include "platform/WindowsTypes.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

namespace {

template <typename Record>
constexpr bool hasLayout(std::size_t size, std::size_t alignment)
{
    return sizeof(Record) == size && alignof(Record) == alignment;
}

static_assert(sizeof(LONG) == 4 && sizeof(BOOL) == 4 && sizeof(DWORD) == 4 && sizeof(UINT) == 4);
static_assert(sizeof(WORD) == 2 && sizeof(BYTE) == 1 && sizeof(WCHAR) == 4);
static_assert(sizeof(HKEY) == 8 && sizeof(HWND) == 8 && sizeof(HMONITOR) == 8);

static_assert(hasLayout<tagPOINT>(8, 4));
static_assert(offsetof(tagPOINT, x) == 0 && offsetof(tagPOINT, y) == 4);

static_assert(hasLayout<tagRECT>(16, 4));
static_assert(offsetof(tagRECT, left) == 0 && offsetof(tagRECT, top) == 4);
static_assert(offsetof(tagRECT, right) == 8 && offsetof(tagRECT, bottom) == 12);

static_assert(hasLayout<BITMAP>(32, 8));
static_assert(offsetof(BITMAP, bmType) == 0 && offsetof(BITMAP, bmWidth) == 4);
static_assert(offsetof(BITMAP, bmHeight) == 8 && offsetof(BITMAP, bmWidthBytes) == 12);
static_assert(offsetof(BITMAP, bmPlanes) == 16 && offsetof(BITMAP, bmBitsPixel) == 18);
static_assert(offsetof(BITMAP, bmBits) == 24);

static_assert(hasLayout<tagMONITORINFO>(40, 4));
static_assert(offsetof(tagMONITORINFO, cbSize) == 0 && offsetof(tagMONITORINFO, rcMonitor) == 4);
static_assert(offsetof(tagMONITORINFO, rcWork) == 20 && offsetof(tagMONITORINFO, dwFlags) == 36);

static_assert(hasLayout<_FILETIME>(8, 4));
static_assert(offsetof(_FILETIME, dwLowDateTime) == 0 && offsetof(_FILETIME, dwHighDateTime) == 4);

static_assert(hasLayout<_WIN32_FIND_DATAW>(44 + 4 * 260 + 4 * 14, 4));
static_assert(offsetof(_WIN32_FIND_DATAW, dwFileAttributes) == 0);
static_assert(offsetof(_WIN32_FIND_DATAW, ftCreationTime) == 4);
static_assert(offsetof(_WIN32_FIND_DATAW, ftLastAccessTime) == 12);
static_assert(offsetof(_WIN32_FIND_DATAW, ftLastWriteTime) == 20);
static_assert(offsetof(_WIN32_FIND_DATAW, nFileSizeHigh) == 28);
static_assert(offsetof(_WIN32_FIND_DATAW, nFileSizeLow) == 32);
static_assert(offsetof(_WIN32_FIND_DATAW, dwReserved0) == 36);
static_assert(offsetof(_WIN32_FIND_DATAW, dwReserved1) == 40);
static_assert(offsetof(_WIN32_FIND_DATAW, cFileName) == 44);
static_assert(offsetof(_WIN32_FIND_DATAW, cAlternateFileName) == 44 + 4 * 260);

static_assert(hasLayout<tagLOGFONTW>(156, 4));
static_assert(offsetof(tagLOGFONTW, lfHeight) == 0 && offsetof(tagLOGFONTW, lfWidth) == 4);
static_assert(offsetof(tagLOGFONTW, lfEscapement) == 8 &&
              offsetof(tagLOGFONTW, lfOrientation) == 12);
static_assert(offsetof(tagLOGFONTW, lfWeight) == 16 && offsetof(tagLOGFONTW, lfItalic) == 20);
static_assert(offsetof(tagLOGFONTW, lfUnderline) == 21 && offsetof(tagLOGFONTW, lfStrikeOut) == 22);
static_assert(offsetof(tagLOGFONTW, lfCharSet) == 23 &&
              offsetof(tagLOGFONTW, lfOutPrecision) == 24);
static_assert(offsetof(tagLOGFONTW, lfClipPrecision) == 25 &&
              offsetof(tagLOGFONTW, lfQuality) == 26);
static_assert(offsetof(tagLOGFONTW, lfPitchAndFamily) == 27);
static_assert(offsetof(tagLOGFONTW, lfFaceName) == 28);

static_assert(hasLayout<tagTEXTMETRICW>(68, 4));
static_assert(offsetof(tagTEXTMETRICW, tmHeight) == 0 && offsetof(tagTEXTMETRICW, tmAscent) == 4);
static_assert(offsetof(tagTEXTMETRICW, tmDescent) == 8);
static_assert(offsetof(tagTEXTMETRICW, tmInternalLeading) == 12);
static_assert(offsetof(tagTEXTMETRICW, tmExternalLeading) == 16);
static_assert(offsetof(tagTEXTMETRICW, tmAveCharWidth) == 20);
static_assert(offsetof(tagTEXTMETRICW, tmMaxCharWidth) == 24);
static_assert(offsetof(tagTEXTMETRICW, tmWeight) == 28 &&
              offsetof(tagTEXTMETRICW, tmOverhang) == 32);
static_assert(offsetof(tagTEXTMETRICW, tmDigitizedAspectX) == 36);
static_assert(offsetof(tagTEXTMETRICW, tmDigitizedAspectY) == 40);
static_assert(offsetof(tagTEXTMETRICW, tmFirstChar) == 44 &&
              offsetof(tagTEXTMETRICW, tmLastChar) == 48);
static_assert(offsetof(tagTEXTMETRICW, tmDefaultChar) == 52);
static_assert(offsetof(tagTEXTMETRICW, tmBreakChar) == 56 &&
              offsetof(tagTEXTMETRICW, tmItalic) == 60);
static_assert(offsetof(tagTEXTMETRICW, tmUnderlined) == 61);
static_assert(offsetof(tagTEXTMETRICW, tmStruckOut) == 62);
static_assert(offsetof(tagTEXTMETRICW, tmPitchAndFamily) == 63);
static_assert(offsetof(tagTEXTMETRICW, tmCharSet) == 64);

static_assert(hasLayout<ENUMLOGFONTEXW>(156 + 256 + 128 + 128, 4));
static_assert(offsetof(ENUMLOGFONTEXW, elfLogFont) == 0);
static_assert(offsetof(ENUMLOGFONTEXW, elfFullName) == 156);
static_assert(offsetof(ENUMLOGFONTEXW, elfStyle) == 412);
static_assert(offsetof(ENUMLOGFONTEXW, elfScript) == 540);

static_assert(hasLayout<_SECURITY_ATTRIBUTES>(24, 8));
static_assert(offsetof(_SECURITY_ATTRIBUTES, nLength) == 0);
static_assert(offsetof(_SECURITY_ATTRIBUTES, lpSecurityDescriptor) == 8);
static_assert(offsetof(_SECURITY_ATTRIBUTES, bInheritHandle) == 16);

static_assert(hasLayout<_TASKDIALOG_BUTTON>(12, 1));
static_assert(offsetof(_TASKDIALOG_BUTTON, pszButtonText) == 4);

static_assert(hasLayout<_TASKDIALOGCONFIG>(160, 1));
static_assert(offsetof(_TASKDIALOGCONFIG, cbSize) == 0);
static_assert(offsetof(_TASKDIALOGCONFIG, hwndParent) == 4);
static_assert(offsetof(_TASKDIALOGCONFIG, hInstance) == 12);
static_assert(offsetof(_TASKDIALOGCONFIG, dwFlags) == 20);
static_assert(offsetof(_TASKDIALOGCONFIG, dwCommonButtons) == 24);
static_assert(offsetof(_TASKDIALOGCONFIG, pszWindowTitle) == 28);
static_assert(offsetof(_TASKDIALOGCONFIG, hMainIcon) == 36);
static_assert(offsetof(_TASKDIALOGCONFIG, pszMainIcon) == 36);
static_assert(offsetof(_TASKDIALOGCONFIG, pszMainInstruction) == 44);
static_assert(offsetof(_TASKDIALOGCONFIG, pszContent) == 52);
static_assert(offsetof(_TASKDIALOGCONFIG, cButtons) == 60);
static_assert(offsetof(_TASKDIALOGCONFIG, pButtons) == 64);
static_assert(offsetof(_TASKDIALOGCONFIG, nDefaultButton) == 72);
static_assert(offsetof(_TASKDIALOGCONFIG, cRadioButtons) == 76);
static_assert(offsetof(_TASKDIALOGCONFIG, pRadioButtons) == 80);
static_assert(offsetof(_TASKDIALOGCONFIG, nDefaultRadioButton) == 88);
static_assert(offsetof(_TASKDIALOGCONFIG, pszVerificationText) == 92);
static_assert(offsetof(_TASKDIALOGCONFIG, pszExpandedInformation) == 100);
static_assert(offsetof(_TASKDIALOGCONFIG, pszExpandedControlText) == 108);
static_assert(offsetof(_TASKDIALOGCONFIG, pszCollapsedControlText) == 116);
static_assert(offsetof(_TASKDIALOGCONFIG, hFooterIcon) == 124);
static_assert(offsetof(_TASKDIALOGCONFIG, pszFooterIcon) == 124);
static_assert(offsetof(_TASKDIALOGCONFIG, pszFooter) == 132);
static_assert(offsetof(_TASKDIALOGCONFIG, pfCallback) == 140);
static_assert(offsetof(_TASKDIALOGCONFIG, lpCallbackData) == 148);
static_assert(offsetof(_TASKDIALOGCONFIG, cxWidth) == 156);

TEST(WindowsTypes, PredefinedRootsAreSignExtended)
{
    EXPECT_EQ(0xFFFFFFFF80000000U, reinterpret_cast<std::uintptr_t>(HKEY_CLASSES_ROOT));
    EXPECT_EQ(0xFFFFFFFF80000001U, reinterpret_cast<std::uintptr_t>(HKEY_CURRENT_USER));
    EXPECT_EQ(0xFFFFFFFF80000002U, reinterpret_cast<std::uintptr_t>(HKEY_LOCAL_MACHINE));
    EXPECT_EQ(0xFFFFFFFF80000003U, reinterpret_cast<std::uintptr_t>(HKEY_USERS));
}

TEST(WindowsTypes, InvalidSearchHandleIsAllOnes)
{
    EXPECT_EQ(UINTPTR_MAX, reinterpret_cast<std::uintptr_t>(INVALID_HANDLE_VALUE));
}

} // namespace
