#pragma once

#include "trace/operations/Operation.h"

/// The Windows names of flags and choices. A name for several bits stands before those for one, so
/// that it is found first.
namespace trace {

constexpr std::uint32_t allBits = 0xFFFFFFFF;

constexpr BitName flag(const char* name, std::uint32_t bits)
{
    return {name, bits, bits};
}

constexpr BitName choice(const char* name, std::uint32_t value, std::uint32_t mask = allBits)
{
    return {name, mask, value};
}

inline constexpr BitName accessNames[] = {
    flag("KEY_ALL_ACCESS", 0xF003F),     flag("KEY_READ", 0x20019),
    flag("KEY_WRITE", 0x20006),          flag("KEY_QUERY_VALUE", 0x1),
    flag("KEY_SET_VALUE", 0x2),          flag("KEY_CREATE_SUB_KEY", 0x4),
    flag("KEY_ENUMERATE_SUB_KEYS", 0x8), flag("KEY_NOTIFY", 0x10),
    flag("KEY_CREATE_LINK", 0x20),       flag("KEY_WOW64_64KEY", 0x100),
    flag("KEY_WOW64_32KEY", 0x200),      flag("DELETE", 0x10000),
    flag("READ_CONTROL", 0x20000),       flag("WRITE_DAC", 0x40000),
    flag("WRITE_OWNER", 0x80000),        flag("SYNCHRONIZE", 0x100000),
    flag("MAXIMUM_ALLOWED", 0x2000000),
};

inline constexpr BitName optionNames[] = {
    flag("REG_OPTION_VOLATILE", 0x1),
    flag("REG_OPTION_CREATE_LINK", 0x2),
    flag("REG_OPTION_BACKUP_RESTORE", 0x4),
};

inline constexpr BitName valueTypeNames[] = {
    choice("REG_NONE", 0),
    choice("REG_SZ", 1),
    choice("REG_EXPAND_SZ", 2),
    choice("REG_BINARY", 3),
    choice("REG_DWORD", 4),
    choice("REG_DWORD_BIG_ENDIAN", 5),
    choice("REG_LINK", 6),
    choice("REG_MULTI_SZ", 7),
    choice("REG_RESOURCE_LIST", 8),
    choice("REG_FULL_RESOURCE_DESCRIPTOR", 9),
    choice("REG_RESOURCE_REQUIREMENTS_LIST", 10),
    choice("REG_QWORD", 11),
};

inline constexpr BitName statusNames[] = {
    choice("ERROR_SUCCESS", 0),
    choice("ERROR_INVALID_FUNCTION", 1),
    choice("ERROR_FILE_NOT_FOUND", 2),
    choice("ERROR_INVALID_PARAMETER", 87),
};

inline constexpr BitName attributeNames[] = {
    choice("INVALID_FILE_ATTRIBUTES", allBits), flag("FILE_ATTRIBUTE_READONLY", 0x1),
    flag("FILE_ATTRIBUTE_HIDDEN", 0x2),         flag("FILE_ATTRIBUTE_SYSTEM", 0x4),
    flag("FILE_ATTRIBUTE_DIRECTORY", 0x10),     flag("FILE_ATTRIBUTE_ARCHIVE", 0x20),
    flag("FILE_ATTRIBUTE_NORMAL", 0x80),        flag("FILE_ATTRIBUTE_TEMPORARY", 0x100),
    flag("FILE_ATTRIBUTE_OFFLINE", 0x1000),     flag("FILE_ATTRIBUTE_NOT_CONTENT_INDEXED", 0x2000),
};

inline constexpr BitName keyNames[] = {
    choice("VK_LBUTTON", 0x01),  choice("VK_RBUTTON", 0x02),  choice("VK_CANCEL", 0x03),
    choice("VK_MBUTTON", 0x04),  choice("VK_XBUTTON1", 0x05), choice("VK_XBUTTON2", 0x06),
    choice("VK_BACK", 0x08),     choice("VK_TAB", 0x09),      choice("VK_RETURN", 0x0D),
    choice("VK_SHIFT", 0x10),    choice("VK_CONTROL", 0x11),  choice("VK_MENU", 0x12),
    choice("VK_PAUSE", 0x13),    choice("VK_CAPITAL", 0x14),  choice("VK_ESCAPE", 0x1B),
    choice("VK_SPACE", 0x20),    choice("VK_PRIOR", 0x21),    choice("VK_NEXT", 0x22),
    choice("VK_END", 0x23),      choice("VK_HOME", 0x24),     choice("VK_LEFT", 0x25),
    choice("VK_UP", 0x26),       choice("VK_RIGHT", 0x27),    choice("VK_DOWN", 0x28),
    choice("VK_SNAPSHOT", 0x2C), choice("VK_INSERT", 0x2D),   choice("VK_DELETE", 0x2E),
    choice("VK_LWIN", 0x5B),     choice("VK_RWIN", 0x5C),     choice("VK_APPS", 0x5D),
    choice("VK_F1", 0x70),       choice("VK_F2", 0x71),       choice("VK_F3", 0x72),
    choice("VK_F4", 0x73),       choice("VK_F5", 0x74),       choice("VK_F6", 0x75),
    choice("VK_F7", 0x76),       choice("VK_F8", 0x77),       choice("VK_F9", 0x78),
    choice("VK_F10", 0x79),      choice("VK_F11", 0x7A),      choice("VK_F12", 0x7B),
    choice("VK_NUMLOCK", 0x90),  choice("VK_SCROLL", 0x91),   choice("VK_LSHIFT", 0xA0),
    choice("VK_RSHIFT", 0xA1),   choice("VK_LCONTROL", 0xA2), choice("VK_RCONTROL", 0xA3),
    choice("VK_LMENU", 0xA4),    choice("VK_RMENU", 0xA5),
};

inline constexpr BitName metricNames[] = {
    choice("SM_CXSCREEN", 0),
    choice("SM_CYSCREEN", 1),
    choice("SM_CXFULLSCREEN", 16),
    choice("SM_CYFULLSCREEN", 17),
};

inline constexpr BitName monitorNames[] = {
    choice("MONITOR_DEFAULTTONULL", 0),
    choice("MONITOR_DEFAULTTOPRIMARY", 1),
    choice("MONITOR_DEFAULTTONEAREST", 2),
};

inline constexpr BitName monitorFlagNames[] = {flag("MONITORINFOF_PRIMARY", 1)};

inline constexpr BitName objectTypeNames[] = {
    choice("ObjImage", 0),
    choice("ObjCursor", 2),
    choice("ObjBrush", 4),
};

inline constexpr BitName imageTypeNames[] = {
    choice("IMAGE_BITMAP", 0),
    choice("IMAGE_ICON", 1),
    choice("IMAGE_CURSOR", 2),
};

inline constexpr BitName loadNames[] = {
    flag("LR_MONOCHROME", 0x1),          flag("LR_LOADFROMFILE", 0x10),
    flag("LR_LOADTRANSPARENT", 0x20),    flag("LR_DEFAULTSIZE", 0x40),
    flag("LR_VGACOLOR", 0x80),           flag("LR_LOADMAP3DCOLORS", 0x1000),
    flag("LR_CREATEDIBSECTION", 0x2000), flag("LR_SHARED", 0x8000),
};

inline constexpr BitName printerNames[] = {
    flag("PRINTER_ENUM_DEFAULT", 0x1),     flag("PRINTER_ENUM_LOCAL", 0x2),
    flag("PRINTER_ENUM_CONNECTIONS", 0x4), flag("PRINTER_ENUM_NAME", 0x8),
    flag("PRINTER_ENUM_REMOTE", 0x10),     flag("PRINTER_ENUM_SHARED", 0x20),
    flag("PRINTER_ENUM_NETWORK", 0x40),
};

inline constexpr BitName boxNames[] = {
    choice("MB_OK", 0x0, 0xF),
    choice("MB_OKCANCEL", 0x1, 0xF),
    choice("MB_ABORTRETRYIGNORE", 0x2, 0xF),
    choice("MB_YESNOCANCEL", 0x3, 0xF),
    choice("MB_YESNO", 0x4, 0xF),
    choice("MB_RETRYCANCEL", 0x5, 0xF),
    choice("MB_ICONERROR", 0x10, 0xF0),
    choice("MB_ICONQUESTION", 0x20, 0xF0),
    choice("MB_ICONWARNING", 0x30, 0xF0),
    choice("MB_ICONINFORMATION", 0x40, 0xF0),
    choice("MB_DEFBUTTON2", 0x100, 0xF00),
    choice("MB_DEFBUTTON3", 0x200, 0xF00),
    choice("MB_SYSTEMMODAL", 0x1000, 0x3000),
    choice("MB_TASKMODAL", 0x2000, 0x3000),
    flag("MB_SETFOREGROUND", 0x10000),
    flag("MB_TOPMOST", 0x40000),
};

inline constexpr BitName answerNames[] = {
    choice("IDOK", 1),     choice("IDCANCEL", 2), choice("IDABORT", 3), choice("IDRETRY", 4),
    choice("IDIGNORE", 5), choice("IDYES", 6),    choice("IDNO", 7),
};

inline constexpr BitName dialogResultNames[] = {choice("S_OK", 0), choice("S_FALSE", 1)};

inline constexpr BitName fontTypeNames[] = {
    flag("RASTER_FONTTYPE", 1),
    flag("DEVICE_FONTTYPE", 2),
    flag("TRUETYPE_FONTTYPE", 4),
};

inline constexpr BitName charsetNames[] = {
    choice("ANSI_CHARSET", 0),          choice("DEFAULT_CHARSET", 1),
    choice("SYMBOL_CHARSET", 2),        choice("MAC_CHARSET", 77),
    choice("SHIFTJIS_CHARSET", 128),    choice("HANGUL_CHARSET", 129),
    choice("JOHAB_CHARSET", 130),       choice("GB2312_CHARSET", 134),
    choice("CHINESEBIG5_CHARSET", 136), choice("GREEK_CHARSET", 161),
    choice("TURKISH_CHARSET", 162),     choice("VIETNAMESE_CHARSET", 163),
    choice("HEBREW_CHARSET", 177),      choice("ARABIC_CHARSET", 178),
    choice("BALTIC_CHARSET", 186),      choice("RUSSIAN_CHARSET", 204),
    choice("THAI_CHARSET", 222),        choice("EASTEUROPE_CHARSET", 238),
    choice("OEM_CHARSET", 255),
};

} // namespace trace
