#pragma once

#include "platform/WindowsTypes.h"

#include <qnamespace.h>

#include <array>

/// A virtual key with its Windows name.
struct VirtualKey
{
    int code;
    const char* name;
    /// The mouse button, modifier or key of Qt whose state it has; 0 where the key-state service
    /// does not know the key.
    int qtCode = 0;
};

/// The keys that the key-state service knows; all others always read as up. Intended: Qt does not
/// tell the left modifier keys from the right ones, so neither does the service.
inline constexpr std::array<VirtualKey, 14> knownKeys{{
    {VK_SHIFT, "VK_SHIFT", Qt::ShiftModifier},
    {VK_LSHIFT, "VK_LSHIFT", Qt::ShiftModifier},
    {VK_RSHIFT, "VK_RSHIFT", Qt::ShiftModifier},
    {VK_CONTROL, "VK_CONTROL", Qt::ControlModifier},
    {VK_LCONTROL, "VK_LCONTROL", Qt::ControlModifier},
    {VK_RCONTROL, "VK_RCONTROL", Qt::ControlModifier},
    {VK_MENU, "VK_MENU", Qt::AltModifier},
    {VK_LMENU, "VK_LMENU", Qt::AltModifier},
    {VK_RMENU, "VK_RMENU", Qt::AltModifier},
    {VK_LBUTTON, "VK_LBUTTON", Qt::LeftButton},
    {VK_MBUTTON, "VK_MBUTTON", Qt::MiddleButton},
    {VK_RBUTTON, "VK_RBUTTON", Qt::RightButton},
    {VK_RETURN, "VK_RETURN", Qt::Key_Return},
    {VK_SPACE, "VK_SPACE", Qt::Key_Space},
}};

/// Whether the key-state service knows this code; a key that it knows may still be up.
constexpr bool isKnownKey(int code)
{
    for (const VirtualKey& key : knownKeys) {
        if (key.code == code)
            return true;
    }
    return false;
}
