#include "inspection/profiles/ReadableLine.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t mostBytes = 8000; // of a line that is made readable; even

unsigned char byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

// The lead bytes of a sequence, how many bytes follow, and what the first of those may be: the
// table of RFC 3629.
struct Sequence
{
    unsigned char first;
    unsigned char last;
    std::size_t following;
    unsigned char lowest;
    unsigned char highest;
};
constexpr std::array<Sequence, 8> sequences = {{{0xc2, 0xdf, 1, 0x80, 0xbf},
                                                {0xe0, 0xe0, 2, 0xa0, 0xbf},
                                                {0xe1, 0xec, 2, 0x80, 0xbf},
                                                {0xed, 0xed, 2, 0x80, 0x9f},
                                                {0xee, 0xef, 2, 0x80, 0xbf},
                                                {0xf0, 0xf0, 3, 0x90, 0xbf},
                                                {0xf1, 0xf3, 3, 0x80, 0xbf},
                                                {0xf4, 0xf4, 3, 0x80, 0x8f}}};

// The length of the UTF-8 sequence that the bytes begin with; 0 where they do not.
std::size_t sequenceLength(std::string_view bytes)
{
    const unsigned char lead = byteAt(bytes, 0);
    if (lead < 0x80)
        return 1;
    const auto found =
        std::find_if(sequences.begin(), sequences.end(), [lead](const Sequence& each) {
            return lead >= each.first && lead <= each.last;
        });
    if (found == sequences.end() || bytes.size() <= found->following)
        return 0;
    for (std::size_t i = 1; i <= found->following; ++i) {
        const unsigned char next = byteAt(bytes, i);
        if (next < (i == 1 ? found->lowest : 0x80) || next > (i == 1 ? found->highest : 0xbf))
            return 0;
    }
    return found->following + 1;
}

QString escaped(std::string_view bytes)
{
    QString text;
    for (const char byte : bytes)
        text += QStringLiteral("\\x%1").arg(
            QString::number(static_cast<unsigned char>(byte), 16).toUpper(), 2, QLatin1Char('0'));
    return text;
}

// Tabs are made visible by whoever shows the text.
bool isVisible(const QString& character)
{
    if (character.isEmpty()) // Qt takes a byte order mark away
        return false;
    const QChar first = character.at(0);
    return first == QLatin1Char('\t') ||
           (first.category() != QChar::Other_Control && first.category() != QChar::Other_Format);
}

} // namespace

ReadableLine::ReadableLine(const ByteLines& lines, int number)
    : m_content(lines.at(number)), m_unit(lines.unit())
{
    const auto markSize = static_cast<std::size_t>(number == 0 ? lines.markSize() : 0);
    m_mark = m_content.substr(0, markSize);
    m_content.remove_prefix(markSize);
    if (!dropEnd('\n'))
        return;
    m_end = dropEnd('\r') ? End::CarriageReturnLineFeed : End::LineFeed;
}

// Takes the character away from the end; false where the line has another one there.
bool ReadableLine::dropEnd(char character)
{
    std::string_view wanted(&character, 1);
    const std::array<char, 2> littlePair = {character, '\0'};
    const std::array<char, 2> bigPair = {'\0', character};
    if (m_unit != ByteLines::Unit::Byte)
        wanted = {m_unit == ByteLines::Unit::BigEndianPair ? bigPair.data() : littlePair.data(), 2};
    if (m_content.size() < wanted.size() ||
        m_content.substr(m_content.size() - wanted.size()) != wanted)
        return false;
    m_content.remove_suffix(wanted.size());
    return true;
}

QString ReadableLine::text() const
{
    return escaped(m_mark) + textWithoutMark();
}

QString ReadableLine::textWithoutMark() const
{
    return m_unit == ByteLines::Unit::Byte ? utf8() : pairs();
}

QString ReadableLine::pairs() const
{
    QTextCodec* codec = QTextCodec::codecForName(
        m_unit == ByteLines::Unit::LittleEndianPair ? "UTF-16LE" : "UTF-16BE");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const auto size = static_cast<int>(std::min(m_content.size(), mostBytes));
    return codec->toUnicode(m_content.data(), size, &state);
}

QString ReadableLine::utf8() const
{
    QString text;
    for (std::string_view rest = m_content.substr(0, mostBytes); !rest.empty();) {
        const std::size_t length = sequenceLength(rest);
        const std::string_view bytes = rest.substr(0, std::max<std::size_t>(length, 1));
        const QString character = QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
        text += length > 0 && isVisible(character) ? character : escaped(bytes);
        rest.remove_prefix(bytes.size());
    }
    return text;
}

bool ReadableLine::isText() const
{
    if (m_unit != ByteLines::Unit::Byte)
        return m_content.size() % 2 == 0;
    return isUtf8(m_content);
}

bool ReadableLine::isUtf8(std::string_view bytes)
{
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t length = sequenceLength(rest);
        if (length == 0)
            return false;
        rest.remove_prefix(length);
    }
    return true;
}
