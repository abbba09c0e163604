#include "Sample.h"

#include "platform/IPlatformServices.h"

#include <algorithm>
#include <vector>

// The pixels are premultiplied ARGB in the image's own memory, which starts with what was there.
std::string sample::useBitmap(IPlatformServices& services)
{
    constexpr int width = 16;
    constexpr int height = 8;
    constexpr DWORD opaqueRed = 0xFFFF0000;
    IPlatformResourceManager& resources = *services.resourceManager();
    void* handle = resources.createImage(0, width, height);
    BITMAP bitmap{};
    if (!resources.GetBitmap(&bitmap, handle))
        return "bitmap: none";
    auto* pixels = static_cast<DWORD*>(bitmap.bmBits);
    std::fill(pixels, pixels + width * height, opaqueRed);
    std::vector<DWORD> copy(width * height);
    const auto size = static_cast<unsigned int>(copy.size() * sizeof(DWORD));
    const int copied = resources.GetBitmapBits(size, copy.data(), handle);
    const auto red = std::count(copy.begin(), copy.end(), opaqueRed);
    resources.deleteObject(handle);
    return "bitmap: " + std::to_string(copied) + " bytes, " + std::to_string(red) + " red pixels";
}
