#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The published constants of MD5, computed from their definition at compile time.
namespace md5 {

namespace detail {

/// sin(x) by its series, after taking whole turns off. Far more exact than the 32 bits needed.
constexpr double sine(double x)
{
    constexpr double turn = 6.283185307179586476925;
    while (x > turn / 2)
        x -= turn;
    double term = x;
    double sum = x;
    for (int i = 1; i <= 20; ++i) {
        term *= -x * x / ((2 * i) * (2 * i + 1));
        sum += term;
    }
    return sum;
}

/// floor(2^32 * |sin(i)|) for i from 1 to 64.
constexpr std::array<std::uint32_t, 64> makeSines()
{
    std::array<std::uint32_t, 64> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double value = sine(static_cast<double>(i + 1));
        table[i] = static_cast<std::uint32_t>(4294967296.0 * (value < 0 ? -value : value));
    }
    return table;
}

} // namespace detail

/// Element i is the published T[i + 1].
inline constexpr auto sines = detail::makeSines();

/// The rotations of the four steps that each group repeats.
inline constexpr int rotations[4][4] = {
    {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

} // namespace md5
