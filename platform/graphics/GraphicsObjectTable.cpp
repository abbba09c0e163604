#include "platform/graphics/GraphicsObjectTable.h"

#include <QImage>

#include <limits>
#include <optional>

namespace {

constexpr std::uint16_t imageType = 0;

// The handle's value, or 0 (no handle at all) where it lies outside 1..0x7FFFFFFF.
unsigned int value(void* handle)
{
    const auto number = reinterpret_cast<std::intptr_t>(handle);
    if (number < 1 || number > std::numeric_limits<std::int32_t>::max())
        return 0;
    return static_cast<unsigned int>(number);
}

std::uint16_t typeOf(unsigned int value)
{
    return static_cast<std::uint16_t>(value >> 16);
}

unsigned int numberOf(unsigned int value)
{
    return value & 0xFFFFU;
}

void destroyImage(void* object)
{
    delete static_cast<QImage*>(object);
}

} // namespace

GraphicsObjectTable::~GraphicsObjectTable()
{
    const auto images = m_ranges.find(imageType);
    if (images == m_ranges.end())
        return;
    for (const std::optional<void*>& object : images->second.objects())
        destroyImage(object.value_or(nullptr));
}

void* GraphicsObjectTable::insert(int type, void* object)
{
    const auto rangeType = static_cast<std::uint16_t>(type);
    const unsigned int number = m_ranges[rangeType].insert(object);
    if (number == 0)
        return nullptr;
    return handleOf(rangeType, number);
}

void GraphicsObjectTable::remove(void* handle)
{
    const auto range = m_ranges.find(typeOf(value(handle)));
    if (range == m_ranges.end())
        return;
    const std::optional<void*> object = range->second.take(numberOf(value(handle)));
    if (range->first == imageType)
        destroyImage(object.value_or(nullptr));
}

void* GraphicsObjectTable::find(void* handle, int type) const
{
    const auto range = m_ranges.find(typeOf(value(handle)));
    if (range == m_ranges.end() || range->first != type)
        return nullptr;
    return range->second.find(numberOf(value(handle))).value_or(nullptr);
}

void* GraphicsObjectTable::handleOf(std::uint16_t type, unsigned int number)
{
    const auto handle = static_cast<std::int32_t>((static_cast<unsigned int>(type) << 16) | number);
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(handle));
}
