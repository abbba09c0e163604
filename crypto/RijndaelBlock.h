#pragma once

#include "crypto/RijndaelTables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

/// One block through the cipher. The number of columns and of rounds are template arguments and the
/// columns are expanded by fold expressions, so that the compiler keeps the state in registers.
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
    static constexpr const WordTable (&tables)[4] = encryption;
    static constexpr const ByteTable& lastTable = substitution;

    static constexpr std::size_t source(std::size_t columns, std::size_t column, std::size_t row)
    {
        return (column + shiftOffset(columns, row)) % columns;
    }
};

/// The decrypting direction: from the columns to the left.
struct Backward
{
    static constexpr const WordTable (&tables)[4] = decryption;
    static constexpr const ByteTable& lastTable = inverseSubstitution;

    static constexpr std::size_t source(std::size_t columns, std::size_t column, std::size_t row)
    {
        return (column + columns - shiftOffset(columns, row)) % columns;
    }
};

template <class Direction, std::size_t Columns>
class BlockCipher
{
public:
    using Block = State<Columns>;

    explicit BlockCipher(const KeyRow* keys) : m_keys(keys) {}

    [[gnu::always_inline]] static Block load(const char* bytes) { return load(bytes, Indices()); }

    [[gnu::always_inline]] static void store(char* bytes, const Block& block)
    {
        store(bytes, block, Indices());
    }

    [[gnu::always_inline]] static Block add(const Block& a, const Word* b)
    {
        return add(a, b, Indices());
    }

    [[gnu::always_inline]] Block firstKey(const Block& block) const
    {
        return add(block, m_keys[0]);
    }

    /// A round by tables, with the round key of row `row`.
    [[gnu::always_inline]] Block tableRound(const Block& block, std::size_t row) const
    {
        return tableRound(block, m_keys[row], Indices());
    }

    /// The last round, which does not mix columns.
    [[gnu::always_inline]] Block lastRound(const Block& block, std::size_t row) const
    {
        return lastRound(block, m_keys[row], Indices());
    }

private:
    using Indices = std::make_index_sequence<Columns>;

    template <std::size_t... Column>
    [[gnu::always_inline]] static Block load(const char* bytes, std::index_sequence<Column...>)
    {
        return {loadWord(bytes + 4 * Column)...};
    }

    template <std::size_t... Column>
    [[gnu::always_inline]] static void store(char* bytes, const Block& block,
                                             std::index_sequence<Column...>)
    {
        (storeWord(bytes + 4 * Column, block[Column]), ...);
    }

    template <std::size_t... Column>
    [[gnu::always_inline]] static Block add(const Block& a, const Word* b,
                                            std::index_sequence<Column...>)
    {
        return {(a[Column] ^ b[Column])...};
    }

    template <std::size_t Column, int Row>
    [[gnu::always_inline]] static Byte shifted(const Block& block)
    {
        return byteOf<Row>(block[Direction::source(Columns, Column, Row)]);
    }

    template <std::size_t Column>
    [[gnu::always_inline]] static Word mixed(const Block& block)
    {
        return Direction::tables[0][shifted<Column, 0>(block)] ^
               Direction::tables[1][shifted<Column, 1>(block)] ^
               Direction::tables[2][shifted<Column, 2>(block)] ^
               Direction::tables[3][shifted<Column, 3>(block)];
    }

    template <std::size_t Column>
    [[gnu::always_inline]] static Word substituted(const Block& block)
    {
        return Word{Direction::lastTable[shifted<Column, 0>(block)]} << 24 |
               Word{Direction::lastTable[shifted<Column, 1>(block)]} << 16 |
               Word{Direction::lastTable[shifted<Column, 2>(block)]} << 8 |
               Word{Direction::lastTable[shifted<Column, 3>(block)]};
    }

    template <std::size_t... Column>
    [[gnu::always_inline]] static Block tableRound(const Block& block, const Word* key,
                                                   std::index_sequence<Column...>)
    {
        return {(mixed<Column>(block) ^ key[Column])...};
    }

    template <std::size_t... Column>
    [[gnu::always_inline]] static Block lastRound(const Block& block, const Word* key,
                                                  std::index_sequence<Column...>)
    {
        return {(substituted<Column>(block) ^ key[Column])...};
    }

    const KeyRow* m_keys;
};

} // namespace rijndael
