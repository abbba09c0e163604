#include "trace/replay/GuardedBuffer.h"

#include <algorithm>

namespace replay {

// A service that looks for the end of a text behind the buffer, as some are meant to, finds one.
GuardedBuffer::GuardedBuffer(std::size_t capacity, Limit limit)
    : m_capacity(capacity + (limit == Limit::Unknown ? unknownRoom : 0)),
      m_bytes(guardSize + m_capacity + guardSize + terminatorSize, untouched)
{
    std::fill(m_bytes.end() - terminatorSize, m_bytes.end(), static_cast<unsigned char>(0));
}

bool GuardedBuffer::isWhole() const
{
    const auto isUntouched = [](unsigned char byte) { return byte == untouched; };
    const auto end = m_bytes.begin() + static_cast<std::ptrdiff_t>(guardSize + m_capacity);
    return std::all_of(m_bytes.begin(), m_bytes.begin() + guardSize, isUntouched) &&
           std::all_of(end, end + guardSize, isUntouched);
}

} // namespace replay
