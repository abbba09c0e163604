#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// The bytes that pairs of hexadecimal digits stand for.
std::string fromHex(std::string_view hex);

/// Two lower-case hexadecimal digits a byte.
std::string toHex(std::string_view bytes);

std::vector<unsigned char> toVector(std::string_view bytes);
std::string toString(const std::vector<unsigned char>& bytes);

/// Bytes of any value, from a generator with a fixed seed.
class RandomBytes
{
public:
    explicit RandomBytes(unsigned int seed) : m_engine(seed) {}

    std::string operator()(std::size_t count);

private:
    std::mt19937 m_engine;
};

/// A buffer for output with marked bytes on both sides and inside.
class GuardedBuffer
{
public:
    static constexpr char mark = '\x5a';

    explicit GuardedBuffer(std::size_t size);

    char* data() { return m_bytes.data() + margin; }
    std::string content() const { return m_bytes.substr(margin, m_size); }

    /// Whether nothing was written outside the buffer.
    bool isIntact() const;

    /// Whether nothing was written at all.
    bool isUntouched() const;

private:
    static constexpr std::size_t margin = 64;

    std::size_t m_size;
    std::string m_bytes;
};
