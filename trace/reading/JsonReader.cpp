#include "trace/reading/JsonReader.h"

#include <cstring>

namespace trace {

namespace {

using Kind = RecordedValue::Kind;

constexpr int deepest = 64; // objects within objects: far more than a recording has

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isWordPart(char character)
{
    return (character >= 'a' && character <= 'z') || isDigit(character) || character == '-' ||
           character == '+' || character == '.' || character == 'E';
}

QChar escapedCharacter(char letter)
{
    switch (letter) {
    case 'b': return QLatin1Char('\b');
    case 'f': return QLatin1Char('\f');
    case 'n': return QLatin1Char('\n');
    case 'r': return QLatin1Char('\r');
    case 't': return QLatin1Char('\t');
    default: return QLatin1Char(letter);
    }
}

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

// What a backslash begins, and behind it how many characters belong to it. A lone surrogate stays
// one.
QString unescapedPiece(std::string_view behind, std::size_t& size)
{
    size = 1;
    if (behind.empty())
        return {};
    if (behind.front() != 'u')
        return escapedCharacter(behind.front());
    size = qMin<std::size_t>(5, behind.size());
    const auto digits = QByteArray(behind.data() + 1, static_cast<int>(size) - 1);
    return QChar(digits.toUShort(nullptr, 16));
}

QString unescaped(std::string_view raw)
{
    QString text;
    while (true) {
        const std::size_t backslash = raw.find('\\');
        text += fromUtf8(raw.substr(0, backslash));
        if (backslash == std::string_view::npos)
            return text;
        raw.remove_prefix(backslash + 1);
        std::size_t size = 0;
        text += unescapedPiece(raw, size);
        raw.remove_prefix(qMin(size, raw.size()));
    }
}

} // namespace

bool JsonReader::enterObject()
{
    m_isFirst = true;
    return take('{') || fail();
}

bool JsonReader::nextMember(std::string_view& name)
{
    if (!m_isGood || take('}'))
        return false;
    if (!m_isFirst && !take(','))
        return fail();
    m_isFirst = false;
    name = rawText();
    return take(':') || fail();
}

RecordedValue JsonReader::value(int depth)
{
    skipBlanks();
    RecordedValue result;
    switch (current()) {
    case '{': readMembers(result, depth); break;
    case '[': readElements(result, depth); break;
    case '"':
        result.kind = Kind::Text;
        result.text = unescaped(rawText());
        break;
    case 'n': return word("null", Kind::Null);
    case 't': return word("true", Kind::True);
    case 'f': return word("false", Kind::False);
    default: return number();
    }
    m_isFirst = false;
    return result;
}

RecordedValue JsonReader::word(const char* expected, Kind kind)
{
    const char* const begin = m_at;
    skipWord();
    RecordedValue result;
    result.kind = kind;
    if (std::string_view(begin, static_cast<std::size_t>(m_at - begin)) != expected)
        fail();
    return result;
}

RecordedValue JsonReader::number()
{
    const char* const begin = m_at;
    skipWord();
    RecordedValue result;
    result.kind = Kind::Number;
    result.text = QString::fromLatin1(begin, static_cast<int>(m_at - begin));
    bool isNumber = false;
    result.text.toDouble(&isNumber);
    if (!isNumber)
        fail();
    return result;
}

void JsonReader::readMembers(RecordedValue& object, int depth)
{
    object.kind = Kind::Object;
    if (depth == deepest || !enterObject())
        static_cast<void>(fail());
    std::string_view name;
    while (nextMember(name)) {
        const bool isEscaped = name.find('\\') != std::string_view::npos;
        object.members.push_back(
            {isEscaped ? unescaped(name).toStdString() : std::string(name), value(depth + 1)});
    }
}

void JsonReader::readElements(RecordedValue& array, int depth)
{
    array.kind = Kind::Array;
    if (depth == deepest || !take('['))
        static_cast<void>(fail());
    if (take(']'))
        return;
    do
        array.members.push_back({{}, value(depth + 1)});
    while (m_isGood && take(','));
    if (!take(']'))
        fail();
}

std::string_view JsonReader::skip()
{
    skipBlanks();
    const char* const begin = m_at;
    int depth = 0;
    do
        skipPiece(depth);
    while (m_isGood && depth > 0);
    return {begin, static_cast<std::size_t>(m_at - begin)};
}

// A text, a word, or one of the characters between them.
void JsonReader::skipPiece(int& depth)
{
    const char character = current();
    if (character == '"') {
        rawText();
    } else if (isWordPart(character)) {
        skipWord();
    } else if (character == '{' || character == '[') {
        ++depth;
        ++m_at;
    } else if (depth > 0 && character != '\0' && std::strchr("}],: \t", character)) {
        depth -= character == '}' || character == ']' ? 1 : 0;
        ++m_at;
    } else {
        fail();
    }
}

void JsonReader::skipWord()
{
    while (m_at != m_end && isWordPart(*m_at))
        ++m_at;
}

qint64 JsonReader::integer()
{
    skipBlanks();
    const bool isNegative = current() == '-';
    m_at += isNegative ? 1 : 0;
    const char* const begin = m_at;
    qint64 number = 0;
    // With up to 18 digits there is no overflow.
    while (isDigit(current()) && m_at - begin < 18)
        number = number * 10 + (*m_at++ - '0');
    if (m_at == begin || isWordPart(current()))
        fail();
    return isNegative ? -number : number;
}

std::string_view JsonReader::rawText()
{
    if (!take('"')) {
        fail();
        return {};
    }
    const char* const begin = m_at;
    while (m_at != m_end && *m_at != '"' && static_cast<unsigned char>(*m_at) >= ' ')
        m_at += *m_at == '\\' && m_at + 1 != m_end ? 2 : 1;
    const std::string_view text(begin, static_cast<std::size_t>(m_at - begin));
    if (current() != '"')
        fail();
    else
        ++m_at;
    return text;
}

bool JsonReader::isDone()
{
    skipBlanks();
    return m_isGood && m_at == m_end;
}

void JsonReader::skipBlanks()
{
    while (m_at != m_end && (*m_at == ' ' || *m_at == '\t' || *m_at == '\r'))
        ++m_at;
}

bool JsonReader::take(char character)
{
    if (m_isGood)
        skipBlanks();
    if (!m_isGood || current() != character)
        return false;
    ++m_at;
    return true;
}

// Always false.
bool JsonReader::fail()
{
    m_isGood = false;
    m_at = m_end;
    return false;
}

} // namespace trace
