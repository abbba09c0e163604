#include "platform/profiles/LineIndex.h"

#include <algorithm>

namespace {

constexpr int linesAStep = 4096;

} // namespace

bool LineIndex::step()
{
    for (int i = 0; i < linesAStep && m_next < m_bytes.size(); ++i) {
        m_starts.push_back(m_next);
        const int lineFeed = m_bytes.indexOf('\n', m_next);
        m_next = lineFeed < 0 ? m_bytes.size() : lineFeed + 1;
    }
    return m_next < m_bytes.size();
}

int LineIndex::end(std::size_t line) const
{
    return line + 1 < m_starts.size() ? m_starts[line + 1] : m_bytes.size();
}

std::size_t LineIndex::lineOf(int position) const
{
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), position);
    return static_cast<std::size_t>(next - m_starts.begin()) - 1;
}
