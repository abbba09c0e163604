#pragma once

#include "platform/IPlatformServices.h"

#include <memory>
#include <vector>

class GraphicsObjectTable;

/// An entry of the resource manager's table.
struct GraphicsObject
{
    /// The type in the upper half and the number in the lower one, as a signed 32-bit number.
    void* handle;
    IPlatformResourceManager::ObjType type;
    /// The address of an image or a cursor image; a brush's colour itself. Still the table's or, of
    /// a cursor image, its maker's.
    void* object;
};

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

    /// All entries, those with null included, in the order of their handles. Those of a type whose
    /// upper bit is set come last: their handles are negative, and no operation accepts them.
    std::vector<GraphicsObject> objects() const;

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
    std::unique_ptr<GraphicsObjectTable> m_objects;
};
