#pragma once

#include "platform/graphics/HandleRange.h"

#include <cstdint>
#include <map>

/// The table of graphics objects. A handle is a 32-bit signed number, passed as a pointer:
/// (type << 16) | n, with the lowest n from 1 to 0xFFFF that is free in that type. Handles below 1
/// and pointers wider than 32 bits are in no table.
///
/// Objects of type 0 are `QImage`s that the table owns. All others are merely kept; what they are
/// is the caller's business.
class GraphicsObjectTable
{
public:
    GraphicsObjectTable() = default;
    /// Destroys the images that are still in the table.
    ~GraphicsObjectTable();

    GraphicsObjectTable(const GraphicsObjectTable&) = delete;
    GraphicsObjectTable& operator=(const GraphicsObjectTable&) = delete;

    /// Enters `object`, which may be null. Returns its handle, or null when all numbers of the type
    /// are taken: then an image remains the caller's. Of `type` only the low 16 bits count, as in
    /// the handle; with bit 15 set, the handle is negative and the entry stays for good.
    void* insert(int type, void* object);

    /// Takes the entry out and destroys its object if it is an image. Other handles are ignored.
    void remove(void* handle);

    /// The object under `handle`; null when the handle is unknown or not of `type`.
    void* find(void* handle, int type) const;

    /// Calls `visit(handle, object)` for every entry, also for those that hold null: type by type
    /// in the order of the handles, those with negative handles last. `visit` must not alter the
    /// table.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const auto& [type, range] : m_ranges) {
            unsigned int number = 0;
            for (const std::optional<void*>& object : range.objects()) {
                ++number;
                if (object)
                    visit(handleOf(type, number), *object);
            }
        }
    }

private:
    static void* handleOf(std::uint16_t type, unsigned int number);

    std::map<std::uint16_t, HandleRange> m_ranges;
};
