#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The published tables of Rijndael, computed from their definitions at compile time.
namespace rijndael {

using Byte = std::uint8_t;
using Word = std::uint32_t;
using ByteTable = std::array<Byte, 256>;
using WordTable = std::array<Word, 256>;

/// Multiplication by x in GF(2^8) modulo x^8 + x^4 + x^3 + x + 1.
constexpr Byte timesX(Byte value)
{
    return static_cast<Byte>((value << 1) ^ ((value & 0x80) != 0 ? 0x1b : 0));
}

constexpr Byte multiply(Byte a, Byte b)
{
    Byte product = 0;
    for (; b != 0; b = static_cast<Byte>(b >> 1), a = timesX(a)) {
        if ((b & 1) != 0)
            product = static_cast<Byte>(product ^ a);
    }
    return product;
}

constexpr Byte rotateLeft(Byte value, int bits)
{
    return static_cast<Byte>((value << bits) | (value >> (8 - bits)));
}

constexpr Byte affine(Byte value)
{
    return static_cast<Byte>(value ^ rotateLeft(value, 1) ^ rotateLeft(value, 2) ^
                             rotateLeft(value, 3) ^ rotateLeft(value, 4) ^ 0x63);
}

/// Walks the powers of the generator 3 and, beside them, those of its inverse 0xf6: at each step
/// the one is the multiplicative inverse of the other.
constexpr ByteTable makeSBox()
{
    ByteTable table{};
    table[0] = affine(0);
    Byte power = 1;
    Byte inverse = 1;
    for (int i = 0; i < 255; ++i) {
        table[power] = affine(inverse);
        power = multiply(power, 3);
        inverse = multiply(inverse, 0xf6);
    }
    return table;
}

constexpr ByteTable invert(const ByteTable& table)
{
    ByteTable inverse{};
    for (std::size_t i = 0; i < table.size(); ++i)
        inverse[table[i]] = static_cast<Byte>(i);
    return inverse;
}

/// One column of a mixing matrix, first row in the most significant byte.
struct Column
{
    Byte first, second, third, fourth;
};

inline constexpr Column mixColumn{2, 1, 1, 3};
inline constexpr Column invMixColumn{14, 9, 13, 11};
inline constexpr Column firstRow{1, 0, 0, 0};

constexpr Word timesColumn(Byte value, const Column& column)
{
    return Word{multiply(value, column.first)} << 24 | Word{multiply(value, column.second)} << 16 |
           Word{multiply(value, column.third)} << 8 | Word{multiply(value, column.fourth)};
}

constexpr Word rotateRight(Word value, int bits)
{
    return bits == 0 ? value : value >> bits | value << (32 - bits);
}

/// The product of each element of `bytes` with `column`, rotated for the state's `row`.
constexpr WordTable makeProducts(const ByteTable& bytes, const Column& column, int row)
{
    WordTable table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = rotateRight(timesColumn(bytes[i], column), 8 * row);
    return table;
}

using RowTables = std::array<WordTable, 4>;

/// The words for each row of the state.
constexpr RowTables makeRows(const ByteTable& bytes, const Column& column)
{
    return {makeProducts(bytes, column, 0), makeProducts(bytes, column, 1),
            makeProducts(bytes, column, 2), makeProducts(bytes, column, 3)};
}

constexpr ByteTable makeIdentity()
{
    ByteTable table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<Byte>(i);
    return table;
}

/// Enough for the longest schedule: a 16-byte key with 32-byte blocks uses 29 of them.
constexpr std::array<Byte, 30> makeRoundConstants()
{
    std::array<Byte, 30> constants{};
    Byte value = 1;
    for (Byte& constant : constants) {
        constant = value;
        value = timesX(value);
    }
    return constants;
}

inline constexpr ByteTable sBox = makeSBox();
inline constexpr ByteTable inverseSBox = invert(sBox);

/// SubBytes and MixColumns in one look-up.
inline constexpr RowTables encryption = makeRows(sBox, mixColumn);

/// Their inverses in one look-up.
inline constexpr RowTables decryption = makeRows(inverseSBox, invMixColumn);

/// SubBytes and its inverse alone for the last round, already in their rows.
inline constexpr RowTables lastEncryption = makeRows(sBox, firstRow);
inline constexpr RowTables lastDecryption = makeRows(inverseSBox, firstRow);

/// InvMixColumns alone, for the decryption key schedule.
inline constexpr RowTables invMixColumnsTables = makeRows(makeIdentity(), invMixColumn);

inline constexpr auto roundConstants = makeRoundConstants();

} // namespace rijndael
