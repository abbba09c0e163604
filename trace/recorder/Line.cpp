#include "trace/recorder/Line.h"

#include "trace/recorder/Utf8.h"

#include <charconv>

namespace recorder {

namespace {

constexpr char digits[] = "0123456789abcdef";
constexpr std::uint32_t replacement = 0xFFFD;
constexpr std::size_t ordinaryCapacity = std::size_t{64} * 1024;

template <typename Number>
void appendNumber(std::string& text, Number value, int base)
{
    char digitsOfIt[24];
    const auto end = std::to_chars(digitsOfIt, digitsOfIt + sizeof digitsOfIt, value, base).ptr;
    text.append(digitsOfIt, end);
}

} // namespace

void Line::shrink()
{
    if (m_text.capacity() > ordinaryCapacity) {
        m_text.clear();
        m_text.shrink_to_fit();
    }
}

void Line::name(std::string_view name)
{
    if (!m_text.empty() && m_text.back() != '{')
        m_text += ',';
    m_text.append(1, '"').append(name).append("\":");
}

void Line::number(std::int64_t value)
{
    appendNumber(m_text, value, 10);
}

void Line::unsignedNumber(std::uint64_t value)
{
    appendNumber(m_text, value, 10);
}

void Line::hex(std::uint64_t value)
{
    m_text += "\"0x";
    appendNumber(m_text, value, 16);
    m_text += '"';
}

void Line::hexObject(std::string_view name, std::uint64_t value)
{
    m_text.append("{\"").append(name).append("\":");
    hex(value);
    m_text += '}';
}

void Line::quoted(std::string_view utf8)
{
    m_text += '"';
    while (!utf8.empty())
        character(utf8::takeFirst(utf8));
    m_text += '"';
}

void Line::quoted(std::wstring_view text)
{
    m_text += '"';
    for (const wchar_t unit : text)
        character(static_cast<std::uint32_t>(unit));
    m_text += '"';
}

void Line::quotedBytes(const unsigned char* bytes, std::size_t count)
{
    m_text += '"';
    for (std::size_t i = 0; i < count; ++i) {
        m_text += digits[bytes[i] >> 4U];
        m_text += digits[bytes[i] & 0xFU];
    }
    m_text += '"';
}

void Line::character(std::uint32_t code)
{
    if (code == '"' || code == '\\') {
        m_text += '\\';
        m_text += static_cast<char>(code);
    } else if (code < ' ' || code == 0x7F || utf8::isSurrogate(code)) {
        escaped(code);
    } else if (code < 0x80) {
        m_text += static_cast<char>(code);
    } else {
        utf8::append(m_text, code <= utf8::lastCode ? code : replacement);
    }
}

void Line::escaped(std::uint32_t code)
{
    m_text += "\\u";
    for (unsigned int shift = 16; shift > 0; shift -= 4)
        m_text += digits[(code >> (shift - 4U)) & 0xFU];
}

} // namespace recorder
