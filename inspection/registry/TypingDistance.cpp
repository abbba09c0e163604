#include "inspection/registry/TypingDistance.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int shortestForOne = 3; // characters
constexpr int shortestForTwo = 6;

int mostIn(const QString& typed)
{
    if (typed.size() < shortestForOne)
        return 0;
    return typed.size() < shortestForTwo ? 1 : 2;
}

} // namespace

TypingDistance::TypingDistance(const QString& typed)
    : m_typed(typed.toCaseFolded()), m_most(mostIn(typed))
{
}

int TypingDistance::to(const QString& name)
{
    const int far = m_most + 1;
    if (std::abs(name.size() - m_typed.size()) > m_most)
        return far;
    const QString folded = name.toCaseFolded();
    const auto width = static_cast<std::size_t>(folded.size()) + 1;
    m_beforeLast.assign(width, far);
    m_last.assign(width, far);
    m_row.assign(width, far);
    for (int row = 0; row <= m_typed.size(); ++row) {
        std::swap(m_beforeLast, m_last);
        std::swap(m_last, m_row);
        if (bestOfRow(row, folded) > m_most)
            return far;
    }
    return m_row.back();
}

// Farther from the diagonal than the mistakes allow there is nothing to look at.
int TypingDistance::bestOfRow(int row, const QString& name)
{
    const int far = m_most + 1;
    std::fill(m_row.begin(), m_row.end(), far);
    int best = far;
    const int end = std::min(name.size(), row + m_most);
    for (int column = std::max(0, row - m_most); column <= end; ++column) {
        const int distance = std::min(far, at(row, column, name));
        m_row[static_cast<std::size_t>(column)] = distance;
        best = std::min(best, distance);
    }
    return best;
}

int TypingDistance::at(int row, int column, const QString& name) const
{
    if (row == 0 || column == 0)
        return row + column;
    const auto here = static_cast<std::size_t>(column);
    const QChar typed = m_typed.at(row - 1);
    const QChar other = name.at(column - 1);
    int best = std::min(m_last[here], m_row[here - 1]) + 1;
    best = std::min(best, m_last[here - 1] + (typed == other ? 0 : 1));
    if (row > 1 && column > 1 && typed == name.at(column - 2) && m_typed.at(row - 2) == other)
        best = std::min(best, m_beforeLast[here - 2] + 1);
    return best;
}
