#include "trace/reading/GrowingLines.h"

#include <cstring>

namespace trace {

GrowingLines::Reading GrowingLines::readOn(qint64 size, const Receiver& receiver)
{
    const qint64 available = m_file->size();
    if (available < m_readTo) {
        QFile& file = *m_file;
        *this = GrowingLines(file);
        return Reading::Restarted;
    }
    if (available == m_readTo) {
        m_isAtEnd = true;
        return Reading::End;
    }
    stepBack();
    const int searched = m_pending.size();
    m_file->seek(m_readTo);
    m_pending += m_file->read(size);
    m_readTo += m_pending.size() - searched;
    m_isAtEnd = m_readTo >= available;
    deliver(searched, receiver);
    return m_pending.size() == searched && m_isAtEnd ? Reading::End : Reading::More;
}

// To the last line, where that may have been replaced by a longer one meanwhile.
void GrowingLines::stepBack()
{
    if (!m_isAtEnd || m_lastStart < 0)
        return;
    m_pending.clear();
    m_readTo = m_lastStart;
    m_lineStart = m_lastStart;
    m_lastStart = -1;
    m_isOverlong = false;
    --m_number;
}

void GrowingLines::deliver(int searched, const Receiver& receiver)
{
    const char* const begin = m_pending.constData();
    const char* const end = begin + m_pending.size();
    const qint64 offset = m_readTo - m_pending.size();
    const char* from = begin;
    const char* searchFrom = begin + searched;
    while (const void* found =
               std::memchr(searchFrom, '\n', static_cast<std::size_t>(end - searchFrom))) {
        const char* const lineEnd = static_cast<const char*>(found);
        deliverLine({from, static_cast<std::size_t>(lineEnd - from)}, offset + (lineEnd - begin),
                    receiver);
        from = lineEnd + 1;
        searchFrom = from;
    }
    m_pending.remove(0, static_cast<int>(from - begin));
    dropOverlong();
}

void GrowingLines::deliverLine(std::string_view text, qint64 end, const Receiver& receiver)
{
    const qint64 start = m_lineStart;
    const bool isTooLong = m_isOverlong || text.size() > static_cast<std::size_t>(longestLine);
    const std::string_view whole = isTooLong ? std::string_view() : text;
    const bool isComplete = receiver({whole, start, ++m_number, isTooLong});
    m_lastStart = isComplete ? -1 : start;
    m_lineStart = end + 1;
    m_isOverlong = false;
}

void GrowingLines::dropOverlong()
{
    m_isOverlong = m_isOverlong || m_pending.size() > longestLine;
    if (m_isOverlong)
        m_pending.clear();
}

} // namespace trace
