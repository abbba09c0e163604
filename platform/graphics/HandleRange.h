#pragma once

#include <functional>
#include <optional>
#include <queue>
#include <vector>

/// The objects of one type, each under a number from 1 to 0xFFFF; the lowest free number is always
/// the next. Entering and taking are O(log n), finding is O(1): free numbers are either those given
/// back or those that were never used, so none has to be searched for.
class HandleRange
{
public:
    static constexpr unsigned int lastNumber = 0xFFFF;

    /// Enters `object`, which may be null. Returns its number, or 0 when all numbers are taken.
    unsigned int insert(void* object);

    /// The object under `number`, or nothing when there is none.
    std::optional<void*> find(unsigned int number) const;

    /// As `find`, and frees the number.
    std::optional<void*> take(unsigned int number);

    /// The objects of number 1, 2 ... up to the highest number ever given.
    const std::vector<std::optional<void*>>& objects() const { return m_objects; }

private:
    std::vector<std::optional<void*>> m_objects;
    std::priority_queue<unsigned int, std::vector<unsigned int>, std::greater<>> m_freed;
};
