#include "platform/profiles/WrittenLine.h"

#include <algorithm>
#include <cstring>

namespace {

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

// QByteArray::trimmed() takes vertical tabs and form feeds for blanks, which QSettings does not.
QByteArray withoutBlanks(const QByteArray& text)
{
    int begin = 0;
    int end = text.size();
    while (begin < end && isBlank(text.at(begin)))
        ++begin;
    while (end > begin && isBlank(text.at(end - 1)))
        --end;
    return text.mid(begin, end - begin);
}

} // namespace

WrittenLine::WrittenLine(const QByteArray& line) : m_text(withoutBlanks(line))
{
    if (m_text.isEmpty())
        return;
    const int equals = m_text.indexOf('=');
    const char first = m_text.at(0);
    if (first == ';' || first == '#') {
        m_kind = Kind::Comment;
    } else if (first == '[') {
        m_kind = Kind::Header;
        const int end = m_text.indexOf(']');
        m_name = withoutBlanks(m_text.mid(1, end < 0 ? -1 : end - 1));
    } else if (equals >= 0) {
        m_kind = Kind::Entry;
        m_name = withoutBlanks(m_text.left(equals));
        m_value = withoutBlanks(m_text.mid(equals + 1));
    } else {
        m_kind = Kind::Other;
    }
}

bool WrittenLine::isPlain() const
{
    return std::all_of(m_text.begin(), m_text.end(), [](char character) {
        return character >= ' ' && character <= '~' && !std::strchr("%\\\";,/@#", character);
    });
}
