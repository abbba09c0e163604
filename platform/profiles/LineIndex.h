#pragma once

#include <QByteArray>

#include <vector>

/// Where each line of a file begins. A line ends with a line feed; what follows the last line feed
/// is a line unless it is empty.
class LineIndex
{
public:
    explicit LineIndex(const QByteArray& bytes) : m_bytes(bytes) {}

    /// Looks through a small piece; false when all lines have been found.
    bool step();

    /// The number of lines; this and what follows are known when step() is done.
    std::size_t size() const { return m_starts.size(); }
    /// Where a line begins, in bytes.
    int begin(std::size_t line) const { return m_starts[line]; }
    /// Where it ends, behind its line feed.
    int end(std::size_t line) const;
    /// The line in which this byte lies.
    std::size_t lineOf(int position) const;

private:
    QByteArray m_bytes;
    std::vector<int> m_starts;
    int m_next = 0; ///< where the next line begins
};
