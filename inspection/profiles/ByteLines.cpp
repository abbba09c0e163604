#include "inspection/profiles/ByteLines.h"

namespace {

ByteLines::Unit unitOf(const QByteArray& bytes)
{
    if (bytes.startsWith("\xff\xfe"))
        return ByteLines::Unit::LittleEndianPair;
    return bytes.startsWith("\xfe\xff") ? ByteLines::Unit::BigEndianPair : ByteLines::Unit::Byte;
}

} // namespace

ByteLines::ByteLines(const QByteArray& bytes) : m_bytes(bytes), m_unit(unitOf(bytes))
{
    m_starts.push_back(0);
    while (m_starts.back() < m_bytes.size())
        m_starts.push_back(endOfLine(m_starts.back()));
}

int ByteLines::markSize() const
{
    if (m_unit != Unit::Byte)
        return 2;
    return m_bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
}

std::string_view ByteLines::at(int line) const
{
    const auto index = static_cast<std::size_t>(line);
    const int start = m_starts[index];
    return {m_bytes.constData() + start, static_cast<std::size_t>(m_starts[index + 1] - start)};
}

// Behind the line feed.
int ByteLines::endOfLine(int start) const
{
    if (m_unit != Unit::Byte)
        return endOfPairs(start);
    const int lineFeed = m_bytes.indexOf('\n', start);
    return lineFeed < 0 ? m_bytes.size() : lineFeed + 1;
}

int ByteLines::endOfPairs(int start) const
{
    const bool isLittle = m_unit == Unit::LittleEndianPair;
    for (int at = start; at + 1 < m_bytes.size(); at += 2) {
        const char low = m_bytes.at(isLittle ? at : at + 1);
        const char high = m_bytes.at(isLittle ? at + 1 : at);
        if (low == '\n' && high == '\0')
            return at + 2;
    }
    return m_bytes.size();
}
