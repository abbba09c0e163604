#include "inspection/displays/HandleScan.h"

#include "platform/PlatformServicesImp.h"

#include <algorithm>

namespace {

constexpr int pieceSize = 8192;
constexpr int numbers = 0xFFFF;
constexpr IPlatformResourceManager::ObjType types[] = {IPlatformResourceManager::ObjImage,
                                                       IPlatformResourceManager::ObjCursor,
                                                       IPlatformResourceManager::ObjBrush};

} // namespace

bool HandleScan::step()
{
    IPlatformResourceManager* manager = g_PlatformServices.resourceManager();
    const int end = std::min(m_asked + pieceSize, total);
    for (; m_asked < end; ++m_asked) {
        const auto type = types[m_asked / numbers];
        const int value = (type << 16) | (m_asked % numbers + 1);
        const auto handle = reinterpret_cast<void*>(static_cast<std::intptr_t>(value));
        if (void* object = manager->fromHandle(handle, type))
            m_found.push_back({value, object});
    }
    return m_asked < total;
}
