#include "inspection/profiles/FileLines.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <unistd.h>

namespace {

constexpr int bytesAStep = 256 * 1024;
constexpr qint64 blockSize = 65536;

} // namespace

FileLines::FileLines(const QString& path)
    : m_file(path), m_loaded(std::numeric_limits<std::size_t>::max())
{
    m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool FileLines::step()
{
    passHole();
    m_block.resize(bytesAStep);
    m_file.seek(m_position);
    const qint64 size = std::max(qint64{0}, m_file.read(m_block.data(), m_block.size()));
    const auto piece = QByteArray::fromRawData(m_block.constData(), static_cast<int>(size));
    for (int at = 0; at < piece.size() && m_count < mostLines;) {
        if (!m_isLineOpen)
            addLine(m_position + at);
        const int lineFeed = piece.indexOf('\n', at);
        m_isLineOpen = lineFeed < 0;
        at = m_isLineOpen ? piece.size() : lineFeed + 1;
    }
    m_position += piece.size();
    return !piece.isEmpty() && m_count < mostLines;
}

// A hole in the file has no line feeds, and may be larger than all that lies there.
void FileLines::passHole()
{
    const off_t data = lseek(m_file.handle(), m_position, SEEK_DATA);
    const bool isAllHole = data < 0 && errno == ENXIO;
    const qint64 end = isAllHole ? m_file.size() : data;
    if (end <= m_position || m_count == mostLines)
        return;
    if (!m_isLineOpen)
        addLine(m_position);
    m_isLineOpen = true;
    m_position = end;
}

void FileLines::addLine(qint64 offset)
{
    if (m_marks.empty() || offset - m_marks.back().offset >= blockSize)
        m_marks.push_back({m_count, offset});
    ++m_count;
}

QByteArray FileLines::line(int line) const
{
    const auto behind =
        std::upper_bound(m_marks.begin(), m_marks.end(), line,
                         [](int wanted, const Mark& mark) { return wanted < mark.line; });
    if (behind == m_marks.begin())
        return {};
    const auto mark = static_cast<std::size_t>(behind - m_marks.begin()) - 1;
    if (mark != m_loaded)
        load(mark);
    const auto place = static_cast<std::size_t>(line - m_marks[mark].line);
    if (place + 1 >= m_starts.size())
        return {};
    return m_block.mid(m_starts[place], m_starts[place + 1] - m_starts[place]);
}

// The last line of a block begins in its 64 KiB, wherever it ends.
void FileLines::load(std::size_t mark) const
{
    const qint64 offset = m_marks[mark].offset;
    const qint64 end = mark + 1 < m_marks.size() ? m_marks[mark + 1].offset : m_file.size();
    m_loaded = mark;
    m_file.seek(offset);
    m_block = m_file.read(std::clamp(end - offset, qint64{0}, blockSize + longestLine));
    m_starts.assign(1, 0);
    while (m_starts.back() < m_block.size()) {
        const int lineFeed = m_block.indexOf('\n', m_starts.back());
        m_starts.push_back(lineFeed < 0 ? m_block.size() : lineFeed + 1);
    }
}
