#pragma once

#include <cstddef>
#include <cstdint>

/// The Windows types, records and constants that cross the platform interfaces.
///
/// `wchar_t` is 32 bits wide here, so every character array counts 4-byte UTF-32 characters and the
/// records that hold text are larger than on Windows. Everything else keeps the published layout.

using BYTE = unsigned char;
using WORD = unsigned short;
using DWORD = unsigned int;
using UINT = unsigned int;
using BOOL = int;
using LONG = int;
using WCHAR = wchar_t;
using WPARAM = unsigned long;
using LPARAM = long;
using LRESULT = long;

/// Opaque handles. They are plain pointers so that callers can hand in what they have: a `QWidget*`
/// as HWND, a `QScreen*` as HMONITOR, a `QCursor*` as HICON.
using HANDLE = void*;
using HKEY = void*;
using HWND = void*;
using HINSTANCE = void*;
using HDC = void*;
using HICON = void*;
using HCURSOR = HICON;
using HMONITOR = void*;

static_assert(sizeof(WCHAR) == 4, "wide strings at the interfaces are UTF-32");
static_assert(sizeof(WPARAM) == 8 && sizeof(LPARAM) == 8, "message parameters are 64 bits wide");

/// Text lengths, in characters.
constexpr int MAX_PATH = 260;
constexpr int LF_FACESIZE = 32;
constexpr int LF_FULLFACESIZE = 64;

struct tagPOINT
{
    LONG x;
    LONG y;
};
using POINT = tagPOINT;

/// Unlike on Windows, `right` and `bottom` may name the last pixel inside: the filling call says
/// so.
struct tagRECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using RECT = tagRECT;

struct tagBITMAP
{
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    void* bmBits;
};
using BITMAP = tagBITMAP;

struct tagMONITORINFO
{
    DWORD cbSize;
    RECT rcMonitor;
    RECT rcWork;
    DWORD dwFlags;
};
using MONITORINFO = tagMONITORINFO;

struct _FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using FILETIME = _FILETIME;

struct _WIN32_FIND_DATAW
{
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    WCHAR cFileName[MAX_PATH];
    WCHAR cAlternateFileName[14];
};
using WIN32_FIND_DATAW = _WIN32_FIND_DATAW;

struct tagLOGFONTW
{
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    WCHAR lfFaceName[LF_FACESIZE];
};
using LOGFONTW = tagLOGFONTW;

struct tagTEXTMETRICW
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    WCHAR tmFirstChar;
    WCHAR tmLastChar;
    WCHAR tmDefaultChar;
    WCHAR tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRICW = tagTEXTMETRICW;

struct tagENUMLOGFONTEXW
{
    LOGFONTW elfLogFont;
    WCHAR elfFullName[LF_FULLFACESIZE];
    WCHAR elfStyle[LF_FACESIZE];
    WCHAR elfScript[LF_FACESIZE];
};
using ENUMLOGFONTEXW = tagENUMLOGFONTEXW;

struct _SECURITY_ATTRIBUTES
{
    DWORD nLength;
    void* lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using SECURITY_ATTRIBUTES = _SECURITY_ATTRIBUTES;

/// The task-dialog records are packed to one byte in the Windows headers, and so here.
#pragma pack(push, 1)
struct _TASKDIALOG_BUTTON
{
    int nButtonID;
    const WCHAR* pszButtonText;
};
using TASKDIALOG_BUTTON = _TASKDIALOG_BUTTON;

using PFTASKDIALOGCALLBACK = int (*)(HWND, UINT, WPARAM, LPARAM, long);

struct _TASKDIALOGCONFIG
{
    UINT cbSize;
    HWND hwndParent;
    HINSTANCE hInstance;
    int dwFlags;
    int dwCommonButtons;
    const WCHAR* pszWindowTitle;
    union
    {
        HICON hMainIcon;
        const WCHAR* pszMainIcon;
    };
    const WCHAR* pszMainInstruction;
    const WCHAR* pszContent;
    UINT cButtons;
    const TASKDIALOG_BUTTON* pButtons;
    int nDefaultButton;
    UINT cRadioButtons;
    const TASKDIALOG_BUTTON* pRadioButtons;
    int nDefaultRadioButton;
    const WCHAR* pszVerificationText;
    const WCHAR* pszExpandedInformation;
    const WCHAR* pszExpandedControlText;
    const WCHAR* pszCollapsedControlText;
    union
    {
        HICON hFooterIcon;
        const WCHAR* pszFooterIcon;
    };
    const WCHAR* pszFooter;
    PFTASKDIALOGCALLBACK pfCallback;
    long lpCallbackData;
    UINT cxWidth;
};
using TASKDIALOGCONFIG = _TASKDIALOGCONFIG;
#pragma pack(pop)

/// Status values of the registry calls.
constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD ERROR_INVALID_FUNCTION = 1;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_MORE_DATA = 234;
constexpr DWORD ERROR_NO_MORE_ITEMS = 259;

/// Registry value types.
constexpr DWORD REG_NONE = 0;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;
constexpr DWORD REG_BINARY = 3;
constexpr DWORD REG_DWORD = 4;
constexpr DWORD REG_DWORD_LITTLE_ENDIAN = 4;
constexpr DWORD REG_DWORD_BIG_ENDIAN = 5;
constexpr DWORD REG_LINK = 6;
constexpr DWORD REG_MULTI_SZ = 7;
constexpr DWORD REG_RESOURCE_LIST = 8;
constexpr DWORD REG_FULL_RESOURCE_DESCRIPTOR = 9;
constexpr DWORD REG_RESOURCE_REQUIREMENTS_LIST = 10;
constexpr DWORD REG_QWORD = 11;
constexpr DWORD REG_QWORD_LITTLE_ENDIAN = 11;

constexpr DWORD MAXIMUM_ALLOWED = 0x2000000;

/// The predefined root keys: 32-bit values, sign-extended to the width of a handle.
inline const HKEY HKEY_CLASSES_ROOT = reinterpret_cast<HKEY>(0xFFFFFFFF80000000UL);
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(0xFFFFFFFF80000001UL);
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(0xFFFFFFFF80000002UL);
inline const HKEY HKEY_USERS = reinterpret_cast<HKEY>(0xFFFFFFFF80000003UL);

/// The search handle that says "no search": all bits set.
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(~0UL);

constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x1;
constexpr DWORD FILE_ATTRIBUTE_HIDDEN = 0x2;
constexpr DWORD FILE_ATTRIBUTE_SYSTEM = 0x4;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 0x20;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;

constexpr DWORD MONITOR_DEFAULTTONULL = 0;
constexpr DWORD MONITOR_DEFAULTTOPRIMARY = 1;
constexpr DWORD MONITOR_DEFAULTTONEAREST = 2;
constexpr DWORD MONITORINFOF_PRIMARY = 1;

constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXFULLSCREEN = 16;
constexpr int SM_CYFULLSCREEN = 17;

/// Character sets of a font record.
constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE SYMBOL_CHARSET = 2;
constexpr BYTE MAC_CHARSET = 77;
constexpr BYTE SHIFTJIS_CHARSET = 128;
constexpr BYTE HANGUL_CHARSET = 129;
constexpr BYTE JOHAB_CHARSET = 130;
constexpr BYTE GB2312_CHARSET = 134;
constexpr BYTE CHINESEBIG5_CHARSET = 136;
constexpr BYTE GREEK_CHARSET = 161;
constexpr BYTE TURKISH_CHARSET = 162;
constexpr BYTE VIETNAMESE_CHARSET = 163;
constexpr BYTE HEBREW_CHARSET = 177;
constexpr BYTE ARABIC_CHARSET = 178;
constexpr BYTE BALTIC_CHARSET = 186;
constexpr BYTE RUSSIAN_CHARSET = 204;
constexpr BYTE THAI_CHARSET = 222;
constexpr BYTE EASTEUROPE_CHARSET = 238;
constexpr BYTE OEM_CHARSET = 255;

constexpr UINT RASTER_FONTTYPE = 1;
constexpr UINT DEVICE_FONTTYPE = 2;
constexpr UINT TRUETYPE_FONTTYPE = 4;

/// Message boxes: styles and answers.
constexpr UINT MB_OK = 0x0;
constexpr UINT MB_OKCANCEL = 0x1;
constexpr UINT MB_ABORTRETRYIGNORE = 0x2;
constexpr UINT MB_YESNOCANCEL = 0x3;
constexpr UINT MB_YESNO = 0x4;
constexpr UINT MB_RETRYCANCEL = 0x5;
constexpr UINT MB_ICONERROR = 0x10;
constexpr UINT MB_ICONQUESTION = 0x20;
constexpr UINT MB_ICONWARNING = 0x30;
constexpr UINT MB_ICONINFORMATION = 0x40;
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
constexpr int S_OK = 0;
constexpr int S_FALSE = 1;

/// Virtual keys.
constexpr int VK_LBUTTON = 0x01;
constexpr int VK_RBUTTON = 0x02;
constexpr int VK_CANCEL = 0x03;
constexpr int VK_MBUTTON = 0x04;
constexpr int VK_XBUTTON1 = 0x05;
constexpr int VK_XBUTTON2 = 0x06;
constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_PAUSE = 0x13;
constexpr int VK_CAPITAL = 0x14;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_SNAPSHOT = 0x2C;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;
constexpr int VK_LWIN = 0x5B;
constexpr int VK_RWIN = 0x5C;
constexpr int VK_APPS = 0x5D;
constexpr int VK_F1 = 0x70;
constexpr int VK_F12 = 0x7B;
constexpr int VK_NUMLOCK = 0x90;
constexpr int VK_SCROLL = 0x91;
constexpr int VK_LSHIFT = 0xA0;
constexpr int VK_RSHIFT = 0xA1;
constexpr int VK_LCONTROL = 0xA2;
constexpr int VK_RCONTROL = 0xA3;
constexpr int VK_LMENU = 0xA4;
constexpr int VK_RMENU = 0xA5;
