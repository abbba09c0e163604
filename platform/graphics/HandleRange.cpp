#include "platform/graphics/HandleRange.h"

unsigned int HandleRange::insert(void* object)
{
    if (!m_freed.empty()) {
        const unsigned int number = m_freed.top();
        m_freed.pop();
        m_objects[number - 1] = object;
        return number;
    }
    if (m_objects.size() == lastNumber)
        return 0;
    m_objects.emplace_back(object);
    return static_cast<unsigned int>(m_objects.size());
}

std::optional<void*> HandleRange::find(unsigned int number) const
{
    if (number == 0 || number > m_objects.size())
        return std::nullopt;
    return m_objects[number - 1];
}

std::optional<void*> HandleRange::take(unsigned int number)
{
    const std::optional<void*> object = find(number);
    if (object) {
        m_freed.push(number);
        m_objects[number - 1].reset();
    }
    return object;
}
