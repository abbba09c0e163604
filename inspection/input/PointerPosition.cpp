#include "inspection/input/PointerPosition.h"

#include "platform/PlatformServicesImp.h"

QPoint pointerPosition()
{
    POINT point{};
    g_PlatformServices.cursorManager()->GetCursorPos(&point);
    return {point.x, point.y};
}

QString pointText(const QPoint& point)
{
    return QStringLiteral("%1, %2").arg(point.x()).arg(point.y());
}
