#include "inspection/log/LogParser.h"

namespace {

struct Prefix
{
    const char* text;
    LogEntry::Level level;
};

constexpr Prefix prefixes[] = {
    {"[DEBUG] ", LogEntry::Level::Debug},
    {"[INFO] ", LogEntry::Level::Info},
    {"[WARNING] ", LogEntry::Level::Warning},
    {"[ERROR] ", LogEntry::Level::Error},
};

constexpr int timeLength = 19; // 2026-03-07 09:05:01
constexpr char separator[] = " : ";

bool isTime(const QByteArray& text)
{
    static constexpr char form[] = "0000-00-00 00:00:00";
    for (int i = 0; i < timeLength; ++i) {
        const bool digit = text.at(i) >= '0' && text.at(i) <= '9';
        if (form[i] == '0' ? !digit : text.at(i) != form[i])
            return false;
    }
    return true;
}

// Returns false for a line that no logger has begun.
bool parseLine(const QByteArray& line, LogEntry& entry)
{
    QByteArray rest = line;
    for (const Prefix& prefix : prefixes) {
        if (line.startsWith(prefix.text)) {
            entry.level = prefix.level;
            rest = line.mid(static_cast<int>(qstrlen(prefix.text)));
        }
    }
    if (rest.mid(timeLength, 3) != separator || !isTime(rest))
        return false;
    entry.time = QString::fromLatin1(rest.left(timeLength));
    entry.text = QString::fromUtf8(rest.mid(timeLength + 3));
    return true;
}

} // namespace

LogPiece LogParser::parse(const QByteArray& bytes)
{
    LogPiece piece;
    m_rest += bytes;
    int start = 0;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', start)) {
        addLine(m_rest.mid(start, end - start), piece);
        start = end + 1;
    }
    m_rest.remove(0, start);
    return piece;
}

// The line that ends a run has a carriage return before its line end.
void LogParser::addLine(const QByteArray& line, LogPiece& piece)
{
    const QByteArray text = line.endsWith('\r') ? line.chopped(1) : line;
    LogEntry entry;
    const bool begins = parseLine(text, entry);
    entry.line = QString::fromUtf8(text);
    if (begins || !m_hasEntry) {
        if (!begins)
            entry.text = entry.line;
        piece.entries.push_back(entry);
        m_hasEntry = true;
    } else if (piece.entries.empty()) {
        piece.continuation += u'\n' + entry.line;
    } else {
        piece.entries.back().append(u'\n' + entry.line);
    }
}
