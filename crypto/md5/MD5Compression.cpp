#include "crypto/md5/MD5Compression.h"

#include "crypto/md5/MD5Constants.h"

#include <cstring>
#include <utility>

namespace md5 {

namespace {

using Word = std::uint32_t;

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "words are read as they lie");

inline Word loadWord(const unsigned char* bytes)
{
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

inline Word rotateLeft(Word value, int bits)
{
    return value << bits | value >> (32 - bits);
}

/// Which word of the block step `i` takes.
constexpr std::size_t wordOf(std::size_t i)
{
    switch (i / 16) {
    case 0: return i;
    case 1: return (1 + 5 * i) % 16;
    case 2: return (5 + 3 * i) % 16;
    default: return 7 * i % 16;
    }
}

/// `sum` and the function of step group `Group`. Each is written so that `b`, the result of the
/// step before, comes in as late as possible.
template <std::size_t Group>
[[gnu::always_inline]] inline Word addFunction(Word sum, Word b, Word c, Word d)
{
    if constexpr (Group == 0)
        return sum + (d ^ (b & (c ^ d)));
    else if constexpr (Group == 1)
        return sum + (c & ~d) + (b & d); // no bit is in both
    else if constexpr (Group == 2)
        return sum + (b ^ (c ^ d));
    else
        return sum + (c ^ (b | ~d));
}

/// Step `I`. The words are not moved along; their places rotate instead.
template <std::size_t I>
[[gnu::always_inline]] inline void step(State& v, const unsigned char* block)
{
    Word& a = v[(64 - I) % 4];
    const Word b = v[(65 - I) % 4];
    const Word c = v[(66 - I) % 4];
    const Word d = v[(67 - I) % 4];
    const Word sum = a + loadWord(block + 4 * wordOf(I)) + sines[I];
    a = b + rotateLeft(addFunction<I / 16>(sum, b, c, d), rotations[I / 16][I % 4]);
}

template <std::size_t... I>
[[gnu::always_inline]] inline void allSteps(State& v, const unsigned char* block,
                                            std::index_sequence<I...>)
{
    (step<I>(v, block), ...);
}

} // namespace

void compress(State& state, const unsigned char* blocks, std::size_t count)
{
    for (; count != 0; --count, blocks += 64) {
        State v = {state[0], state[1], state[2], state[3]};
        allSteps(v, blocks, std::make_index_sequence<64>());
        for (std::size_t i = 0; i < 4; ++i)
            state[i] += v[i];
    }
}

} // namespace md5
