#pragma once

#include "platform/IPlatformServices.h"
#include "platform/graphics/GraphicsObjectTable.h"

#include <map>

class QImage;

/// Implements `IPlatformResourceManager` on a table of objects, the host libraries' modules and
/// Qt's screens.
class PlatformResourceManagerImp : public IPlatformResourceManager
{
public:
    PlatformResourceManagerImp();
    /// Destroys the images that are still in the table.
    ~PlatformResourceManagerImp() override;

    PlatformResourceManagerImp(const PlatformResourceManagerImp&) = delete;
    PlatformResourceManagerImp& operator=(const PlatformResourceManagerImp&) = delete;

    /// Enters an object, which may be null, and returns its handle; null when all 65,535 numbers of
    /// the type are taken. An image must be a `QImage` from `new`: the manager owns it from then on
    /// (not when null came back).
    void* addObject(ObjType type, void* object);

    /// Takes a handle out; an image is destroyed with it. Unknown handles are ignored.
    void removeObject(void* handle);

    int loadString(HINSTANCE module, unsigned int id, wchar_t* buffer, int size) override;
    void* loadImage(HINSTANCE module, const wchar_t* name, unsigned int type, int width, int height,
                    unsigned int flags) override;
    void* createImage(unsigned int kind, int width, int height) override;
    void* createBrush(unsigned int color) override;
    void* fromHandle(void* handle, IPlatformResourceManager::ObjType type) override;
    int deleteObject(void* handle) override;
    int GetSystemMetrics(int index) override;
    int GetBitmap(BITMAP* bitmap, void* handle) override;
    int GetBitmapBits(unsigned int count, void* buffer, void* handle) override;
    int GetCursorBits(void* handle, int width, int height, void* buffer, int bitsPerPixel) override;
    int EnumPrintersW(unsigned int flags, wchar_t* name, unsigned int level, unsigned char* buffer,
                      unsigned int size, unsigned int* needed, unsigned int* returned) override;
    HMONITOR MonitorFromPoint(tagPOINT point, unsigned int flags) override;
    int GetMonitorInfoW(HMONITOR monitor, tagMONITORINFO* info) override;

private:
    const QImage* image(void* handle) const;

    GraphicsObjectTable m_objects;
    std::map<int, const wchar_t*> m_strings; // part of the state; no operation fills it
};
