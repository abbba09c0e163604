#include "platform/profiles/FileRewrite.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr int pageSize = 4096;

} // namespace

FileRewrite::FileRewrite(QFile& file, qint64 size)
    : m_file(file), m_size(size), m_formerSize(file.size())
{
}

// By writing, which every file system knows, and which respects quotas and limits of the file's
// size. An empty file has nothing to lose. Intended: it takes what there is room for.
bool FileRewrite::makeRoom()
{
    if (m_formerSize == 0)
        return true;
    std::array<char, pageSize> blankLines;
    blankLines.fill('\n');
    m_file.seek(m_formerSize);
    for (qint64 missing = m_size - m_formerSize; missing > 0; missing -= pageSize) {
        const qint64 size = std::min<qint64>(missing, pageSize);
        if (m_file.write(blankLines.data(), size) != size) {
            m_file.resize(m_formerSize);
            return false;
        }
    }
    return true;
}

// Pages of a text in one piece are compared with those of the file. A text of several pieces is
// large, and there is no telling that the memory for more than a piece can be had.
void FileRewrite::add(const QByteArray& bytes)
{
    const bool isLast = m_offset + bytes.size() == m_size;
    const QByteArray written = isLast ? withBlankLines(bytes) : bytes;
    write(written, m_offset == 0 && isLast ? changed(written) : Range{0, written.size()});
    m_offset += bytes.size();
}

// Over the end of a longer text, as the program may be killed before it is cut.
QByteArray FileRewrite::withBlankLines(const QByteArray& bytes) const
{
    constexpr qint64 most = qint64{64} * 1024;
    const qint64 surplus = std::min(m_formerSize - m_size, most);
    return surplus > 0 ? bytes + QByteArray(static_cast<int>(surplus), '\n') : bytes;
}

// Whole pages, and at least one of them: a file that is written has a new time stamp.
FileRewrite::Range FileRewrite::changed(const QByteArray& bytes)
{
    m_file.seek(0);
    const QByteArray former = m_file.read(bytes.size());
    const auto isSame = [&](int begin, int end) {
        return former.size() >= end &&
               std::memcmp(former.constData() + begin, bytes.constData() + begin,
                           static_cast<std::size_t>(end - begin)) == 0;
    };
    const auto pageBefore = [](int end) { return (end - 1) / pageSize * pageSize; };
    Range range{0, bytes.size()};
    while (range.begin + pageSize < range.end && isSame(range.begin, range.begin + pageSize))
        range.begin += pageSize;
    while (pageBefore(range.end) > range.begin && isSame(pageBefore(range.end), range.end))
        range.end = pageBefore(range.end);
    return range;
}

void FileRewrite::write(const QByteArray& bytes, const Range& range)
{
    const int size = range.end - range.begin;
    m_file.seek(m_offset + range.begin);
    m_isTaken = m_isTaken && m_file.write(bytes.constData() + range.begin, size) == size;
}

void FileRewrite::finish()
{
    if (m_isTaken)
        m_file.resize(m_size);
}
