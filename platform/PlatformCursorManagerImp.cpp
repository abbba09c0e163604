#include "platform/PlatformCursorManagerImp.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWidget>

int PlatformCursorManagerImp::GetCursorPos(tagPOINT* point)
{
    if (!point)
        return 0;
    const QPoint position = QCursor::pos();
    *point = {position.x(), position.y()};
    return 1;
}

HCURSOR PlatformCursorManagerImp::LoadCursorW(HINSTANCE /*module*/, const wchar_t* /*name*/)
{
    return nullptr;
}

int PlatformCursorManagerImp::ScreenToClient(HWND window, tagPOINT* point)
{
    if (!window || !point)
        return 0;
    const QPoint mapped = static_cast<const QWidget*>(window)->mapFromGlobal({point->x, point->y});
    *point = {mapped.x(), mapped.y()};
    return 1;
}

HCURSOR PlatformCursorManagerImp::GetCursor()
{
    return QGuiApplication::overrideCursor();
}

HCURSOR PlatformCursorManagerImp::SetCursor(HICON cursor)
{
    const HCURSOR previous = QGuiApplication::overrideCursor();
    // Intended: every change adds a level to Qt's stack, and none is ever taken off again.
    if (cursor && cursor != previous)
        QGuiApplication::setOverrideCursor(*static_cast<const QCursor*>(cursor));
    return previous;
}
