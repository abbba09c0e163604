#include "platform/input/VirtualKeys.h"

#include "platform/WindowsTypes.h"

#include <algorithm>

// The service does not tell which keys it knows, so they are listed here once more.
std::vector<VirtualKey> knownKeys()
{
    return {{VK_SHIFT, "VK_SHIFT"},     {VK_LSHIFT, "VK_LSHIFT"},     {VK_RSHIFT, "VK_RSHIFT"},
            {VK_CONTROL, "VK_CONTROL"}, {VK_LCONTROL, "VK_LCONTROL"}, {VK_RCONTROL, "VK_RCONTROL"},
            {VK_MENU, "VK_MENU"},       {VK_LMENU, "VK_LMENU"},       {VK_RMENU, "VK_RMENU"},
            {VK_LBUTTON, "VK_LBUTTON"}, {VK_MBUTTON, "VK_MBUTTON"},   {VK_RBUTTON, "VK_RBUTTON"},
            {VK_RETURN, "VK_RETURN"},   {VK_SPACE, "VK_SPACE"}};
}

std::vector<VirtualKey> unknownKeys()
{
    return {{VK_XBUTTON1, "VK_XBUTTON1"},
            {VK_XBUTTON2, "VK_XBUTTON2"},
            {VK_BACK, "VK_BACK"},
            {VK_TAB, "VK_TAB"},
            {VK_PAUSE, "VK_PAUSE"},
            {VK_CAPITAL, "VK_CAPITAL"},
            {VK_ESCAPE, "VK_ESCAPE"},
            {VK_PRIOR, "VK_PRIOR"},
            {VK_NEXT, "VK_NEXT"},
            {VK_END, "VK_END"},
            {VK_HOME, "VK_HOME"},
            {VK_LEFT, "VK_LEFT"},
            {VK_UP, "VK_UP"},
            {VK_RIGHT, "VK_RIGHT"},
            {VK_DOWN, "VK_DOWN"},
            {VK_SNAPSHOT, "VK_SNAPSHOT"},
            {VK_INSERT, "VK_INSERT"},
            {VK_DELETE, "VK_DELETE"},
            {VK_LWIN, "VK_LWIN"},
            {VK_RWIN, "VK_RWIN"},
            {VK_APPS, "VK_APPS"},
            {VK_F1, "VK_F1"},
            {VK_F12, "VK_F12"},
            {VK_NUMLOCK, "VK_NUMLOCK"},
            {VK_SCROLL, "VK_SCROLL"}};
}

bool isKnownKey(int code)
{
    const std::vector<VirtualKey> keys = knownKeys();
    return std::any_of(keys.begin(), keys.end(),
                       [code](const VirtualKey& key) { return key.code == code; });
}
