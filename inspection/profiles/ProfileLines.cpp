#include "inspection/profiles/ProfileLines.h"

#include <QTextCodec>

#include <algorithm>
#include <iterator>

namespace {

constexpr int chunksAStep = 16;
constexpr int linesAStep = 2048;
constexpr char utf8Mark[] = "\xef\xbb\xbf";

// A byte order mark within a file is a character as any other, which fromUtf8() would take away.
QString decoded(const QByteArray& bytes, bool isFirst)
{
    QString text = !isFirst && bytes.startsWith(utf8Mark) ? QString::fromUtf8(' ' + bytes).mid(1)
                                                          : QString::fromUtf8(bytes);
    return text.remove(QLatin1Char('\r'));
}

} // namespace

ProfileLines::ProfileLines(const QByteArray& bytes)
    : m_bytes(bytes), m_form(bytes.left(NarrowText::chunkSize)), m_wide(bytes)
{
    if (m_form.isUtf8())
        m_shown = m_bytes;
    else
        m_decoder.reset(m_form.codec()->makeDecoder());
}

ProfileLines ProfileLines::ofLargeFile(const QString& path)
{
    ProfileLines lines;
    lines.m_file = std::make_unique<FileLines>(path);
    return lines;
}

bool ProfileLines::step()
{
    if (m_file)
        return m_file->step();
    const auto stage = [this] {
        switch (m_stage) {
        case 0: return decode();
        case 1: return decodeNarrow();
        case 2: return readNarrow();
        case 3: return m_wide.step();
        case 4: return survey();
        default: return false;
        }
    };
    if (m_stage > 4)
        return false;
    if (stage())
        return true;
    m_position = 0;
    ++m_stage;
    return true;
}

// Makes UTF-8 of a file in another encoding.
bool ProfileLines::decode()
{
    if (!m_decoder)
        return false;
    const QByteArray chunk = m_bytes.mid(m_position, NarrowText::chunkSize * chunksAStep);
    m_shown += m_decoder->toUnicode(chunk).toUtf8();
    m_position += chunk.size();
    if (!chunk.isEmpty())
        return true;
    m_ownIndex.emplace(m_shown);
    while (m_ownIndex->step())
        ;
    return false;
}

bool ProfileLines::decodeNarrow()
{
    if (!m_narrowing) {
        m_narrowing = std::make_unique<Narrowing>();
        m_narrowing->decoder.reserve(m_bytes.size());
    }
    for (int i = 0; i < chunksAStep; ++i) {
        const QByteArray chunk = m_bytes.mid(m_position, NarrowText::chunkSize);
        m_position += chunk.size();
        if (chunk.isEmpty())
            return false;
        m_narrowing->decoder.append(chunk);
    }
    return true;
}

bool ProfileLines::readNarrow()
{
    if (!m_narrowing->lines) {
        m_narrowing->text = m_narrowing->decoder.take();
        m_narrowing->lines.emplace(m_narrowing->text);
    }
    if (m_narrowing->lines->step())
        return true;
    m_narrow = std::move(m_narrowing->lines->marks());
    m_narrowHeaders = m_narrowing->lines->headerLines();
    m_narrowing.reset();
    return false;
}

bool ProfileLines::survey()
{
    const int end = std::min(count(), m_position + linesAStep);
    for (; m_position < end; ++m_position)
        m_form.addLine(shown(m_position));
    return m_position < count();
}

QByteArray ProfileLines::shown(int line) const
{
    if (m_file)
        return m_file->line(line);
    const auto number = static_cast<std::size_t>(line);
    const int begin = index().begin(number);
    return QByteArray::fromRawData(m_shown.constData() + begin, index().end(number) - begin);
}

QString ProfileLines::text(int line, const QTextCodec* codec, int mostBytes) const
{
    QByteArray bytes = shown(line);
    const int size = bytes.size() - (bytes.endsWith('\n') ? 1 : 0);
    bytes = m_file ? bytes.left(std::min(size, mostBytes))
                   : QByteArray::fromRawData(bytes.constData(), std::min(size, mostBytes));
    if (codec && !m_form.isUtf8(line))
        return codec->toUnicode(bytes).remove(QLatin1Char('\r'));
    return decoded(bytes, line == 0);
}

QByteArray ProfileLines::utf8(int line) const
{
    const QByteArray bytes = shown(line);
    return line == 0 && bytes.startsWith(utf8Mark) ? bytes.mid(sizeof utf8Mark - 1) : bytes;
}

LineMark ProfileLines::narrowMark(int line) const
{
    if (m_file)
        return LineMark(LineState::Untold);
    const auto number = static_cast<std::size_t>(line);
    return number < m_narrow.size() ? m_narrow[number] : LineMark();
}

// The wide family knows no other encoding: where the file has one, it reads bytes, of which a line
// is not always a line of the text.
LineMark ProfileLines::wideMark(int line) const
{
    if (m_file)
        return LineMark(LineState::Untold);
    const auto number = static_cast<std::size_t>(line);
    return number < m_wide.lines().size() ? m_wide.mark(number) : LineMark();
}

int ProfileLines::narrowHeader(int line) const
{
    const auto behind = std::upper_bound(m_narrowHeaders.begin(), m_narrowHeaders.end(), line);
    return *std::prev(behind);
}

LineReading ProfileLines::narrow(int line) const
{
    LineReading reading = readingOf(narrowMark(line));
    if (reading.state != LineState::Entry)
        return reading;
    const QString section = text(narrowHeader(line)) + QLatin1Char('\n') + text(line);
    NarrowScanner scanner(section);
    scanner.next();
    scanner.next();
    reading.section = narrowSection(scanner.header());
    reading.key = scanner.key().toString();
    return reading;
}

LineReading ProfileLines::wide(int line) const
{
    const auto number = static_cast<std::size_t>(line);
    return number < m_wide.lines().size() ? m_wide.reading(number) : readingOf(wideMark(line));
}
