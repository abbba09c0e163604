#pragma once

#include "platform/IPlatformServices.h"

/// Implements `IPlatformCursorManager` on Qt's cursor and its stack of override cursors.
class PlatformCursorManagerImp : public IPlatformCursorManager
{
public:
    int GetCursorPos(tagPOINT* point) override;
    HCURSOR LoadCursorW(HINSTANCE module, const wchar_t* name) override;
    int ScreenToClient(HWND window, tagPOINT* point) override;
    HCURSOR GetCursor() override;
    HCURSOR SetCursor(HICON cursor) override;
};
