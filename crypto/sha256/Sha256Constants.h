#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The published constants of SHA-256, computed from their definitions at compile time: the first
/// 32 bits of the fractional parts of the square and cube roots of the first primes.
namespace sha256 {

using Word = std::uint32_t;

namespace detail {

__extension__ using Wide = unsigned __int128;

constexpr bool isPrime(unsigned int number)
{
    for (unsigned int divisor = 2; divisor * divisor <= number; ++divisor) {
        if (number % divisor == 0)
            return false;
    }
    return number > 1;
}

constexpr Wide power(Wide base, int exponent)
{
    Wide result = 1;
    for (int i = 0; i < exponent; ++i)
        result *= base;
    return result;
}

/// floor(2^32 * number^(1/degree)) modulo 2^32, by finding its bits from the highest one on.
constexpr Word rootFraction(unsigned int number, int degree)
{
    const Wide scaled = Wide{number} << (32 * degree);
    Wide root = 0;
    for (Wide bit = Wide{1} << 37; bit != 0; bit >>= 1) {
        if (power(root | bit, degree) <= scaled)
            root |= bit;
    }
    return static_cast<Word>(root);
}

template <std::size_t Count>
constexpr std::array<Word, Count> rootFractions(int degree)
{
    std::array<Word, Count> words{};
    unsigned int prime = 2;
    for (Word& word : words) {
        while (!isPrime(prime))
            ++prime;
        word = rootFraction(prime++, degree);
    }
    return words;
}

} // namespace detail

inline constexpr auto initialHash = detail::rootFractions<8>(2);
inline constexpr auto roundConstants = detail::rootFractions<64>(3);

} // namespace sha256
