#pragma once

#include "platform/GraphicsObjectTable.h"
#include "platform/IPlatformServices.h"

#include <map>

class QImage;

/// Graphics objects by handle, string resources of a module, the size of the desktop and monitors.
///
/// A handle is a small integer in a pointer: (type << 16) | n, n from 1 to 0xFFFF, the lowest that
/// is free. Images (type 0) belong to the manager, cursor images (type 2) to whoever entered them;
/// a brush (type 4) is its colour. A monitor is a `QScreen*`. Null arguments get the failure value.
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

    /// Copies the text that the module's function "loadstring" has for `id` into `buffer` of `size`
    /// characters and returns the length of what then stands there, in characters without the
    /// terminator. A text of `size` characters or more fills the buffer without a terminator, and
    /// the length is counted past its end: readable memory up to a terminator must follow.
    /// With size 0 the text's own address goes into the first pointer-sized word of `buffer`, which
    /// must have room for it; the text stays the module's, to be read only.
    /// A module without that function has empty texts. A text that the function does not know
    /// (null), a null buffer or a negative size gives 0 and nothing is written.
    int loadString(HINSTANCE module, unsigned int id, wchar_t* buffer, int size) override;

    /// Nothing can be loaded: always null.
    void* loadImage(HINSTANCE module, const wchar_t* name, unsigned int type, int width, int height,
                    unsigned int flags) override;

    /// A new image (premultiplied ARGB, 32 bits, not initialised) of `width` times `height` pixels;
    /// where no such image can be made, a null image. Returns null when `kind` is not 0 or all
    /// numbers are taken.
    void* createImage(unsigned int kind, int width, int height) override;

    /// A new brush of this colour, or null when all numbers are taken. Allocates no object.
    void* createBrush(unsigned int color) override;

    /// The object (for a brush the colour itself) under `handle`, still owned by the table; null
    /// when the handle is unknown or not of `type`.
    void* fromHandle(void* handle, IPlatformResourceManager::ObjType type) override;

    /// As `removeObject`. Always returns 0; the result says nothing.
    int deleteObject(void* handle) override;

    /// The size of the primary screen in pixels for SM_CXFULLSCREEN and SM_CYFULLSCREEN, else 0.
    int GetSystemMetrics(int index) override;

    /// Describes an image; 1, or 0 with nothing written. `bmType` is the `QImage::Format`,
    /// `bmPlanes` the number of colour bits in a pixel, and `bmBits` the image's own memory.
    int GetBitmap(BITMAP* bitmap, void* handle) override;

    /// Copies an image's pixels. `count` must be exactly their number of bytes, and is returned;
    /// otherwise 0 and nothing is written.
    int GetBitmapBits(unsigned int count, void* buffer, void* handle) override;

    /// Copies all bytes of a cursor image, as it is stored, and returns their number; 0 unless
    /// `bitsPerPixel` is 8. `buffer` must hold the stored image, whatever width and height say.
    int GetCursorBits(void* handle, int width, int height, void* buffer, int bitsPerPixel) override;

    /// There are no printers: always 0, nothing is written.
    int EnumPrintersW(unsigned int flags, wchar_t* name, unsigned int level, unsigned char* buffer,
                      unsigned int size, unsigned int* needed, unsigned int* returned) override;

    /// The screen that holds the point; failing that, what `flags` (MONITOR_DEFAULTTO...) names, or
    /// null.
    HMONITOR MonitorFromPoint(tagPOINT point, unsigned int flags) override;

    /// Describes a screen; 1, or 0 with nothing written. `right` and `bottom` are the last pixel
    /// inside. `cbSize` is neither read nor written.
    int GetMonitorInfoW(HMONITOR monitor, tagMONITORINFO* info) override;

private:
    const QImage* image(void* handle) const;

    GraphicsObjectTable m_objects;
    std::map<int, const wchar_t*> m_strings; // part of the state; no operation fills it
};
