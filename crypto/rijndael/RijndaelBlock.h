#pragma once

#include "crypto/rijndael/RijndaelTables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

/// The parts of one block's way through the cipher. The number of columns is a template argument
/// and the columns are expanded by fold expressions, so that the compiler keeps the state in
/// registers.
namespace rijndael {

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "words are swapped into place");

/// Round keys: one row a round, one word a column.
using KeyRow = Word[8];

template <std::size_t Columns>
using State = std::array<Word, Columns>;

inline Word loadWord(const char* bytes)
{
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return __builtin_bswap32(word);
}

inline void storeWord(char* bytes, Word word)
{
    word = __builtin_bswap32(word);
    std::memcpy(bytes, &word, sizeof word);
}

/// The byte of `word` in `row` of its column.
template <int Row>
constexpr Byte byteOf(Word word)
{
    return static_cast<Byte>(word >> (24 - 8 * Row));
}

/// How far ShiftRows moves `row`: 32-byte blocks have offsets of their own.
constexpr std::size_t shiftOffset(std::size_t columns, std::size_t row)
{
    return columns == 8 && row >= 2 ? row + 1 : row;
}

/// The encrypting direction: ShiftRows takes its bytes from the columns to the right.
struct Forward
{
    template <int Row>
    static constexpr Word extract(Word word)
    {
        return byteOf<Row>(word);
    }

    static constexpr const RowTables& tables = encryption;
    static constexpr const RowTables& lastTables = lastEncryption;

    static constexpr std::size_t source(std::size_t columns, std::size_t column, std::size_t row)
    {
        return (column + shiftOffset(columns, row)) % columns;
    }
};

/// The decrypting direction: from the columns to the left.
struct Backward
{
    template <int Row>
    static constexpr Word extract(Word word)
    {
        return byteOf<Row>(word);
    }

    static constexpr const RowTables& tables = decryption;
    static constexpr const RowTables& lastTables = lastDecryption;

    static constexpr std::size_t source(std::size_t columns, std::size_t column, std::size_t row)
    {
        return (column + columns - shiftOffset(columns, row)) % columns;
    }
};

template <std::size_t... Column>
[[gnu::always_inline]] inline State<sizeof...(Column)> load(const char* bytes,
                                                            std::index_sequence<Column...>)
{
    return {loadWord(bytes + 4 * Column)...};
}

template <std::size_t Columns>
[[gnu::always_inline]] inline State<Columns> load(const char* bytes)
{
    return load(bytes, std::make_index_sequence<Columns>());
}

template <std::size_t Columns, std::size_t... Column>
[[gnu::always_inline]] inline void store(char* bytes, const State<Columns>& block,
                                         std::index_sequence<Column...>)
{
    (storeWord(bytes + 4 * Column, block[Column]), ...);
}

template <std::size_t Columns>
[[gnu::always_inline]] inline void store(char* bytes, const State<Columns>& block)
{
    store(bytes, block, std::make_index_sequence<Columns>());
}

template <std::size_t Columns, std::size_t... Column>
[[gnu::always_inline]] inline State<Columns> exclusiveOr(const State<Columns>& a, const Word* b,
                                                         std::index_sequence<Column...>)
{
    return {(a[Column] ^ b[Column])...};
}

/// Two blocks XORed, or a block and a round key: AddRoundKey.
template <std::size_t Columns>
[[gnu::always_inline]] inline State<Columns> exclusiveOr(const State<Columns>& a, const Word* b)
{
    return exclusiveOr(a, b, std::make_index_sequence<Columns>());
}

template <std::size_t Columns>
[[gnu::always_inline]] inline State<Columns> exclusiveOr(const State<Columns>& a,
                                                         const State<Columns>& b)
{
    return exclusiveOr(a, b.data());
}

/// What the byte in `Row` that ShiftRows moves into `Column` becomes by SubBytes and MixColumns: a
/// word that is XORed into the column.
template <class Direction, std::size_t Column, std::size_t Row, std::size_t Columns>
[[gnu::always_inline]] inline Word lookUp(const RowTables& tables, const State<Columns>& block)
{
    constexpr std::size_t source = Direction::source(Columns, Column, Row);
    return tables[Row][Direction::template extract<Row>(block[source])];
}

/// One column of the state after SubBytes, ShiftRows, MixColumns and AddRoundKey. The second row's
/// byte takes longest to extract, so its word comes in late.
template <class Direction, std::size_t Column, std::size_t Columns>
[[gnu::always_inline]] inline Word roundColumn(const RowTables& tables, const State<Columns>& block,
                                               Word key)
{
    const Word early = key ^ lookUp<Direction, Column, 3>(tables, block) ^
                       lookUp<Direction, Column, 0>(tables, block);
    const Word late =
        lookUp<Direction, Column, 2>(tables, block) ^ lookUp<Direction, Column, 1>(tables, block);
    return early ^ late;
}

template <class Direction, std::size_t Columns, std::size_t... Column>
[[gnu::always_inline]] inline State<Columns> round(const RowTables& tables,
                                                   const State<Columns>& block, const Word* key,
                                                   std::index_sequence<Column...>)
{
    return {roundColumn<Direction, Column>(tables, block, key[Column])...};
}

/// A round, by tables of the direction.
template <class Direction, std::size_t Columns>
[[gnu::always_inline]] inline State<Columns> round(const State<Columns>& block, const Word* key)
{
    return round<Direction>(Direction::tables, block, key, std::make_index_sequence<Columns>());
}

/// The last round, which has no MixColumns. Anything that is to be XORed with its result can be
/// XORed with the key beforehand.
template <class Direction, std::size_t Columns>
[[gnu::always_inline]] inline State<Columns> lastRound(const State<Columns>& block,
                                                       const State<Columns>& key)
{
    return round<Direction>(Direction::lastTables, block, key.data(),
                            std::make_index_sequence<Columns>());
}

} // namespace rijndael
