#include "trace/replay/DeltaDebugging.h"

#include <algorithm>
#include <utility>

namespace replay {

DeltaDebugging::DeltaDebugging(Test test) : m_test(std::move(test)) {}

DeltaDebugging::Items DeltaDebugging::shrink(Items items)
{
    m_items = std::move(items);
    m_pieces = 2;
    if (m_items.empty() || m_test({}))
        return {};
    while (m_items.size() > 1) {
        if (takePiece() || leavePieceOut())
            continue;
        if (m_pieces == m_items.size())
            break;
        m_pieces = std::min(m_pieces * 2, m_items.size());
    }
    return m_items;
}

// A piece that passes by itself becomes the list.
bool DeltaDebugging::takePiece()
{
    for (std::size_t place = 0; place < m_pieces; ++place) {
        Items tried = piece(place);
        if (!m_test(tried))
            continue;
        m_items = std::move(tried);
        m_pieces = 2;
        return true;
    }
    return false;
}

// Of two pieces the other one has been tried already.
bool DeltaDebugging::leavePieceOut()
{
    for (std::size_t place = 0; place < m_pieces && m_pieces > 2; ++place) {
        Items tried = without(place);
        if (!m_test(tried))
            continue;
        m_items = std::move(tried);
        m_pieces = std::max<std::size_t>(m_pieces - 1, 2);
        return true;
    }
    return false;
}

DeltaDebugging::Items DeltaDebugging::piece(std::size_t place) const
{
    const auto at = [this](std::size_t i) {
        return m_items.begin() + static_cast<std::ptrdiff_t>(m_items.size() * i / m_pieces);
    };
    return {at(place), at(place + 1)};
}

DeltaDebugging::Items DeltaDebugging::without(std::size_t place) const
{
    Items rest;
    for (std::size_t other = 0; other < m_pieces; ++other) {
        const Items kept = other == place ? Items() : piece(other);
        rest.insert(rest.end(), kept.begin(), kept.end());
    }
    return rest;
}

} // namespace replay
