#include "platform/PlatformResourceManagerImp.h"

#include "host/HostLibraries.h"
#include "platform/graphics/GraphicsObjectTable.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QImage>
#include <QScreen>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <memory>

namespace {

// The module's text for `id`; null when its function does not know it.
const wchar_t* moduleText(HINSTANCE module, unsigned int id)
{
    const auto load = reinterpret_cast<LoadStringFunction>(GetProcAddress(module, "loadstring"));
    return load ? load(id) : L"";
}

QRect desktopGeometry()
{
    // The size asked for is that of this deprecated call's default screen.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::desktop()->screenGeometry();
    QT_WARNING_POP
}

int copyPixels(const QImage& image, void* buffer)
{
    const auto count = static_cast<std::size_t>(image.sizeInBytes());
    if (count != 0)
        std::memcpy(buffer, image.constBits(), count);
    return static_cast<int>(count);
}

// Intended: the distance to the nearest of the four edge lines, not to the rectangle. In 64 bits,
// because the differences of extreme coordinates do not fit into 32.
qint64 edgeDistance(const QRect& rect, const tagPOINT& point)
{
    const auto distance = [](qint64 a, qint64 b) { return std::abs(a - b); };
    return std::min({distance(rect.top(), point.y), distance(rect.bottom(), point.y),
                     distance(rect.right(), point.x), distance(rect.left(), point.x)});
}

QScreen* nearestScreen(const tagPOINT& point)
{
    QScreen* nearest = nullptr;
    qint64 best = 0x7FFFFFFF;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        if (!screen)
            continue;
        const qint64 distance = edgeDistance(screen->geometry(), point);
        if (distance < best) {
            best = distance;
            nearest = screen;
        }
    }
    return nearest;
}

// Intended: right and bottom are the last pixel inside, one less than Windows has it.
RECT toRect(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

// Asks the table directly: only GetCursorBits honours an override of fromHandle.
const QImage* image(const GraphicsObjectTable& objects, void* handle)
{
    return static_cast<const QImage*>(objects.find(handle, IPlatformResourceManager::ObjImage));
}

} // namespace

PlatformResourceManagerImp::PlatformResourceManagerImp()
    : m_objects(std::make_unique<GraphicsObjectTable>())
{
}

PlatformResourceManagerImp::~PlatformResourceManagerImp() = default;

void* PlatformResourceManagerImp::addObject(ObjType type, void* object)
{
    return m_objects->insert(type, object);
}

void PlatformResourceManagerImp::removeObject(void* handle)
{
    m_objects->remove(handle);
}

std::vector<GraphicsObject> PlatformResourceManagerImp::objects() const
{
    std::vector<GraphicsObject> list;
    m_objects->forEach([&list](void* handle, void* object) {
        const auto type = reinterpret_cast<std::intptr_t>(handle) >> 16;
        list.push_back({handle, static_cast<ObjType>(type), object});
    });
    return list;
}

int PlatformResourceManagerImp::loadString(HINSTANCE module, unsigned int id, wchar_t* buffer,
                                           int size)
{
    if (!buffer || size < 0)
        return 0;
    const wchar_t* text = moduleText(module, id);
    if (!text)
        return 0;
    const std::size_t length = std::wcslen(text);
    if (size == 0) {
        std::memcpy(buffer, &text, sizeof text);
        return static_cast<int>(length);
    }
    // Intended: a text that is too long fills the buffer without a terminator, and the length that
    // is returned then runs past it.
    std::wcsncpy(buffer, text, std::min(length, static_cast<std::size_t>(size) - 1) + 1);
    return static_cast<int>(std::wcslen(buffer));
}

void* PlatformResourceManagerImp::loadImage(HINSTANCE /*module*/, const wchar_t* /*name*/,
                                            unsigned int /*type*/, int /*width*/, int /*height*/,
                                            unsigned int /*flags*/)
{
    return nullptr;
}

void* PlatformResourceManagerImp::createImage(unsigned int kind, int width, int height)
{
    if (kind != ObjImage)
        return nullptr;
    auto image = std::make_unique<QImage>(width, height, QImage::Format_ARGB32_Premultiplied);
    void* handle = addObject(ObjImage, image.get());
    if (handle)
        image.release(); // NOLINT(bugprone-unused-return-value): the table owns it now
    return handle;
}

void* PlatformResourceManagerImp::createBrush(unsigned int color)
{
    // Intended: the entry is the colour itself, in the place of a pointer.
    return addObject(ObjBrush, reinterpret_cast<void*>(static_cast<std::uintptr_t>(color)));
}

void* PlatformResourceManagerImp::fromHandle(void* handle, IPlatformResourceManager::ObjType type)
{
    return m_objects->find(handle, type);
}

int PlatformResourceManagerImp::deleteObject(void* handle)
{
    removeObject(handle);
    return 0;
}

int PlatformResourceManagerImp::GetSystemMetrics(int index)
{
    switch (index) {
    case SM_CXFULLSCREEN: return desktopGeometry().width();
    case SM_CYFULLSCREEN: return desktopGeometry().height();
    default: return 0;
    }
}

int PlatformResourceManagerImp::GetBitmap(BITMAP* bitmap, void* handle)
{
    const QImage* source = image(*m_objects, handle);
    if (!bitmap || !source)
        return 0;
    bitmap->bmType = source->format(); // Intended: not the 0 of Windows
    bitmap->bmWidth = source->width();
    bitmap->bmHeight = source->height();
    bitmap->bmWidthBytes = source->bytesPerLine();
    bitmap->bmPlanes = static_cast<WORD>(source->bitPlaneCount()); // Intended: 24 or 32, not 1
    bitmap->bmBitsPixel = static_cast<WORD>(source->depth());
    // The record's pointer is not const, but asking for the writable memory could detach the image,
    // and the caller would be given a copy of its pixels.
    bitmap->bmBits = const_cast<uchar*>(source->constBits());
    return 1;
}

int PlatformResourceManagerImp::GetBitmapBits(unsigned int count, void* buffer, void* handle)
{
    const QImage* source = image(*m_objects, handle);
    if (!buffer || count == 0 || !source || !source->constBits() || source->sizeInBytes() != count)
        return 0;
    return copyPixels(*source, buffer);
}

int PlatformResourceManagerImp::GetCursorBits(void* handle, int /*width*/, int /*height*/,
                                              void* buffer, int bitsPerPixel)
{
    const auto* source = static_cast<const QImage*>(fromHandle(handle, ObjCursor));
    if (!buffer || !source || bitsPerPixel != 8)
        return 0;
    // Intended: the image goes out as it is stored, never converted or scaled to width and height.
    return copyPixels(*source, buffer);
}

int PlatformResourceManagerImp::EnumPrintersW(unsigned int /*flags*/, wchar_t* /*name*/,
                                              unsigned int /*level*/, unsigned char* /*buffer*/,
                                              unsigned int /*size*/, unsigned int* /*needed*/,
                                              unsigned int* /*returned*/)
{
    return 0;
}

HMONITOR PlatformResourceManagerImp::MonitorFromPoint(tagPOINT point, unsigned int flags)
{
    QScreen* screen = QGuiApplication::screenAt(QPoint(point.x, point.y));
    if (screen)
        return screen;
    switch (flags) {
    case MONITOR_DEFAULTTOPRIMARY: return QGuiApplication::primaryScreen();
    case MONITOR_DEFAULTTONEAREST: return nearestScreen(point);
    default: return nullptr;
    }
}

int PlatformResourceManagerImp::GetMonitorInfoW(HMONITOR monitor, tagMONITORINFO* info)
{
    if (!monitor || !info)
        return 0;
    const auto* screen = static_cast<const QScreen*>(monitor);
    info->rcMonitor = toRect(screen->geometry());
    info->rcWork = toRect(screen->availableGeometry());
    info->dwFlags = screen == QGuiApplication::primaryScreen() ? MONITORINFOF_PRIMARY : 0;
    return 1;
}
