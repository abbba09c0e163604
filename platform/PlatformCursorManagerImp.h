#pragma once

#include "platform/IPlatformServices.h"

/// Cursor position and shape, answered from Qt. A cursor is a `QCursor*`, a window a `QWidget*`.
class PlatformCursorManagerImp : public IPlatformCursorManager
{
public:
    /// The pointer's position on the virtual desktop, in pixels. Returns 1; 0 for null.
    int GetCursorPos(tagPOINT* point) override;

    /// No cursor can be loaded: always null, and callers must cope with that.
    HCURSOR LoadCursorW(HINSTANCE module, const wchar_t* name) override;

    /// Turns a point of the virtual desktop into one of the window, in pixels. Returns 1; 0, with
    /// the point left alone, when either is null.
    int ScreenToClient(HWND window, tagPOINT* point) override;

    /// Qt's copy of the override cursor on top of its stack, or null when none is set. It remains
    /// Qt's and is good until the stack changes.
    HCURSOR GetCursor() override;

    /// Pushes a copy of `cursor` onto Qt's stack of override cursors, unless it is null or what
    /// `GetCursor` returns. Nothing here ever pops it. Returns what `GetCursor` returned before: an
    /// address in Qt's own stack, which the push may have moved, so compare it but never read
    /// through it.
    HCURSOR SetCursor(HICON cursor) override;
};
