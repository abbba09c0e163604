#include "inspection/log/LogLines.h"

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

// False for a line that no logger has begun.
bool parse(const QByteArray& line, LogEntry& entry)
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

void LogLines::add(const QByteArray& bytes)
{
    m_rest += bytes;
    int start = 0;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', start)) {
        addLine(m_rest.mid(start, end - start));
        start = end + 1;
    }
    m_rest.remove(0, start);
}

void LogLines::clear()
{
    m_rest.clear();
    m_entries.clear();
}

// The line that ends a run has a carriage return before its line end.
void LogLines::addLine(const QByteArray& line)
{
    QByteArray text = line;
    if (text.endsWith('\r'))
        text.chop(1);
    LogEntry entry;
    const bool begins = parse(text, entry);
    entry.line = QString::fromUtf8(text);
    if (begins || m_entries.empty()) {
        if (!begins)
            entry.text = entry.line;
        m_entries.push_back(entry);
        return;
    }
    m_entries.back().text += QLatin1Char('\n') + entry.line;
    m_entries.back().line += QLatin1Char('\n') + entry.line;
}
