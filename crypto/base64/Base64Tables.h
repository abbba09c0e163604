#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The tables of the codec, all from the one alphabet and constant data: the codec can be used by
/// static initialisers that run before any string of the program exists.
namespace base64 {

inline constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

using Pair = std::array<char, 2>;

constexpr std::array<Pair, 4096> makePairs()
{
    std::array<Pair, 4096> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i][0] = alphabet[i / 64];
        table[i][1] = alphabet[i % 64];
    }
    return table;
}

/// What a character outside the alphabet gives in place of its value.
inline constexpr std::uint32_t foreign = 1U << 24;

using ValueTable = std::array<std::uint32_t, 256>;

constexpr ValueTable makeValues(int shift)
{
    ValueTable table{};
    for (std::uint32_t& value : table)
        value = foreign;
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        table[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint32_t>(i) << shift;
    return table;
}

/// The two characters of 12 bits.
inline constexpr auto pairs = makePairs();

/// The value of a character, for each of the four places in a group.
inline constexpr ValueTable values[4] = {makeValues(18), makeValues(12), makeValues(6),
                                         makeValues(0)};

} // namespace base64
