#pragma once

#include <QByteArray>
#include <QFile>

#include <vector>

/// The lines of a file that is too large to be kept in memory: where a line begins is kept for
/// every 64 KiB or so, and the bytes are read again when a line is asked for.
class FileLines
{
public:
    /// So many lines are shown of a file: a table has no room for more.
    static constexpr int mostLines = 50000000;
    /// So many bytes are shown of a line, at least.
    static constexpr int longestLine = 65536;

    explicit FileLines(const QString& path);

    /// Looks through a small piece; false when all lines have been found.
    bool step();

    /// This is known when step() is done.
    int count() const { return m_count; }
    /// A line with its end, or the beginning of a very long one; empty where it can no longer be
    /// read.
    QByteArray line(int line) const;

private:
    /// A line from which on lines are looked for.
    struct Mark
    {
        int line = 0;
        qint64 offset = 0;
    };

    void passHole();
    void addLine(qint64 offset);
    void load(std::size_t mark) const;

    mutable QFile m_file;
    std::vector<Mark> m_marks;
    int m_count = 0;
    qint64 m_position = 0;
    bool m_isLineOpen = false;
    // The lines behind the mark that was asked for last; until all are found, what was read last.
    mutable std::size_t m_loaded;
    mutable QByteArray m_block;
    mutable std::vector<int> m_starts;
};
