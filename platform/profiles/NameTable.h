#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// Tells where a name has come before, without keeping names: a file of 100 MB has millions of
/// them. Whoever asks knows the name of each place.
class NameTable
{
public:
    static constexpr std::uint32_t none = 0xffffffff;

    /// `expected` names fit without the table growing.
    explicit NameTable(std::size_t expected = 0) : m_slots(sizeFor(expected)) {}

    /// The place that was set for the name before, of those with this hash the one of which
    /// `isSame(place)` is true; `none` where the name is new: then it has to be set. The reference
    /// is good until the next call.
    template <typename IsSame>
    std::uint32_t& place(std::uint32_t hash, IsSame isSame)
    {
        if ((m_used + 1) * 4 > m_slots.size() * 3)
            grow();
        std::size_t at = start(hash);
        while (m_slots[at].place != none &&
               (m_slots[at].hash != hash || !isSame(m_slots[at].place)))
            at = (at + 1) & (m_slots.size() - 1);
        if (m_slots[at].place == none) {
            m_slots[at].hash = hash;
            ++m_used;
        }
        return m_slots[at].place;
    }

private:
    struct Slot
    {
        std::uint32_t hash = 0;
        std::uint32_t place = none;
    };

    // A power of two, of which no more than three quarters are used.
    static std::size_t sizeFor(std::size_t names)
    {
        std::size_t size = 16;
        while (size * 3 < (names + 1) * 4)
            size *= 2;
        return size;
    }

    std::size_t start(std::uint32_t hash) const
    {
        constexpr std::uint32_t mix = 0x9e3779b1; // spreads hashes that differ in high bits alone
        const std::uint32_t mixed = hash * mix;
        return (mixed ^ (mixed >> 15)) & (m_slots.size() - 1);
    }

    void grow()
    {
        std::vector<Slot> former(m_slots.size() * 2);
        std::swap(former, m_slots);
        for (const Slot& slot : former) {
            if (slot.place == none)
                continue;
            std::size_t at = start(slot.hash);
            while (m_slots[at].place != none)
                at = (at + 1) & (m_slots.size() - 1);
            m_slots[at] = slot;
        }
    }

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};
