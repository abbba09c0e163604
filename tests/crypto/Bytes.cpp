#include "tests/crypto/Bytes.h"

#include <algorithm>
#include <charconv>

std::string fromHex(std::string_view hex)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        unsigned int byte = 0;
        std::from_chars(hex.data() + i, hex.data() + i + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string toHex(std::string_view bytes)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes) {
        hex += digits[static_cast<unsigned char>(byte) >> 4];
        hex += digits[static_cast<unsigned char>(byte) & 15];
    }
    return hex;
}

std::vector<unsigned char> toVector(std::string_view bytes)
{
    return {bytes.begin(), bytes.end()};
}

std::string toString(const std::vector<unsigned char>& bytes)
{
    return {bytes.begin(), bytes.end()};
}

std::string RandomBytes::operator()(std::size_t count)
{
    std::string bytes(count, '\0');
    std::generate(bytes.begin(), bytes.end(),
                  [this] { return static_cast<char>(m_engine() & 0xffU); });
    return bytes;
}

GuardedBuffer::GuardedBuffer(std::size_t size) : m_size(size), m_bytes(size + 2 * margin, mark) {}

bool GuardedBuffer::isIntact() const
{
    const auto isMark = [](char byte) { return byte == mark; };
    const auto begin = m_bytes.begin() + margin;
    const auto end = m_bytes.end() - margin;
    return std::all_of(m_bytes.begin(), begin, isMark) && std::all_of(end, m_bytes.end(), isMark);
}

bool GuardedBuffer::isUntouched() const
{
    return m_bytes == std::string(m_bytes.size(), mark);
}
