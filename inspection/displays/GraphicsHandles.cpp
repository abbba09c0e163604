#include "inspection/displays/GraphicsHandles.h"

#include "inspection/displays/MonitorList.h"
#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// The services object makes its managers itself, so that this one is of the very class that lists.
const PlatformResourceManagerImp& manager()
{
    return static_cast<const PlatformResourceManagerImp&>(*g_PlatformServices.resourceManager());
}

QString typeName(int type)
{
    switch (type) {
    case IPlatformResourceManager::ObjImage:
        return QCoreApplication::translate("GraphicsHandles", "image");
    case IPlatformResourceManager::ObjCursor:
        return QCoreApplication::translate("GraphicsHandles", "cursor image");
    case IPlatformResourceManager::ObjBrush:
        return QCoreApplication::translate("GraphicsHandles", "brush");
    default: return QCoreApplication::translate("GraphicsHandles", "other");
    }
}

} // namespace

std::vector<GraphicsObject> graphicsHandles()
{
    std::vector<GraphicsObject> list = manager().objects();
    const auto isRefused = [](const GraphicsObject& handle) { return handle.type < 0; };
    list.erase(std::remove_if(list.begin(), list.end(), isRefused), list.end());
    return list;
}

QString typeText(const GraphicsObject& handle)
{
    return QStringLiteral("%1 (%2)").arg(handle.type).arg(typeName(handle.type));
}

QString objectText(const GraphicsObject& handle)
{
    if (handle.type == IPlatformResourceManager::ObjBrush)
        return QCoreApplication::translate("GraphicsHandles", "colour 0x%1")
            .arg(reinterpret_cast<quintptr>(handle.object), 8, 16, QLatin1Char('0'));
    BITMAP bitmap{};
    if (g_PlatformServices.resourceManager()->GetBitmap(&bitmap, handle.handle) == 0)
        return QCoreApplication::translate("GraphicsHandles", "at %1")
            .arg(handleText(handle.object));
    return QCoreApplication::translate("GraphicsHandles",
                                       "%1 \u00d7 %2, %3 bits a pixel, format %4")
        .arg(bitmap.bmWidth)
        .arg(bitmap.bmHeight)
        .arg(bitmap.bmBitsPixel)
        .arg(bitmap.bmType);
}
