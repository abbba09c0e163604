#pragma once

#include <QByteArray>

#include <string_view>
#include <vector>

/// The lines of a file as bytes, each with its line end: nothing is decoded and nothing is lost.
class ByteLines
{
public:
    /// What the bytes begin with tells how wide a unit of the text is.
    enum class Unit
    {
        Byte,
        LittleEndianPair, ///< UTF-16 with the mark FF FE
        BigEndianPair     ///< UTF-16 with the mark FE FF
    };

    /// A line ends with a line feed; what follows the last one is a line unless it is empty. The
    /// byte order mark belongs to the first line.
    explicit ByteLines(const QByteArray& bytes);

    const QByteArray& bytes() const { return m_bytes; }
    Unit unit() const { return m_unit; }
    /// Bytes of the byte order mark that the first line begins with.
    int markSize() const;
    int count() const { return static_cast<int>(m_starts.size()) - 1; }
    /// A line, counted from 0. Valid as long as this.
    std::string_view at(int line) const;

private:
    int endOfLine(int start) const;
    int endOfPairs(int start) const;

    QByteArray m_bytes;
    Unit m_unit;
    std::vector<int> m_starts; ///< of each line, and where the last one ends
};
