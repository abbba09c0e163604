#include "platform/profiles/NarrowSearch.h"

#include "platform/profiles/NarrowScanner.h"

#include <algorithm>
#include <utility>

namespace {

constexpr QChar lineFeed = QLatin1Char('\n');
constexpr int longLine = 16384;

} // namespace

NarrowSearch::NarrowSearch(QString header, QString key)
    : m_header(std::move(header)), m_key(std::move(key)), m_nextLook(longLine)
{
}

void NarrowSearch::add(const QString& piece)
{
    const QStringView text(piece);
    qsizetype begin = 0;
    if (m_isSkipping || !m_rest.isEmpty()) {
        const qsizetype end = text.indexOf(lineFeed);
        addToRest(end < 0 ? text : text.left(end + 1));
        if (end < 0)
            return;
        scan(m_rest);
        m_rest.clear();
        m_isSkipping = false;
        m_nextLook = longLine;
        begin = end + 1;
    }
    const qsizetype end = text.lastIndexOf(lineFeed) + 1;
    if (end > begin)
        scan(text.mid(begin, end - begin));
    addToRest(text.mid(std::max(begin, end)));
}

QString NarrowSearch::finish()
{
    scan(m_rest);
    return m_value;
}

void NarrowSearch::scan(QStringView lines)
{
    NarrowScanner line(lines, m_isInside ? QStringView(m_header) : QStringView());
    while (line.next()) {
        if (line.isHeader()) {
            m_isInside = line.line() == m_header;
            // Intended: of several sections with one header the last one counts.
            if (m_isInside)
                m_value = QString();
        } else if (m_isInside && line.isEntry() && line.key() == m_key) {
            m_value = line.value().toString();
        }
    }
}

// Looks at a line again only when it has doubled: one that is all value is megabytes long.
void NarrowSearch::addToRest(QStringView part)
{
    if (m_isSkipping)
        return;
    m_rest.append(part.data(), static_cast<int>(part.size()));
    if (m_rest.size() < m_nextLook)
        return;
    m_nextLook = m_rest.size() * 2;
    if (!isOfNoUse())
        return;
    if (m_rest.startsWith(QLatin1Char('[')))
        m_isInside = false;
    m_isSkipping = true;
    m_rest = QString();
}

// True where the line, however it goes on, is neither the header nor an entry with the key.
bool NarrowSearch::isOfNoUse() const
{
    NarrowScanner line(m_rest, m_isInside ? QStringView(m_header) : QStringView());
    line.next();
    if (line.isHeader())
        return !m_header.startsWith(line.line());
    if (line.isEntry())
        return line.key() != m_key;
    return !m_isInside || !QStringView(m_key).startsWith(line.line().trimmed());
}
