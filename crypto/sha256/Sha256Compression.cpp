#include "crypto/sha256/Sha256Compression.h"

#include "crypto/sha256/Sha256Constants.h"

namespace sha256 {

namespace {

constexpr Word rotateRight(Word value, int bits)
{
    return value >> bits | value << (32 - bits);
}

constexpr Word smallSigma0(Word x)
{
    return rotateRight(x, 7) ^ rotateRight(x, 18) ^ x >> 3;
}

constexpr Word smallSigma1(Word x)
{
    return rotateRight(x, 17) ^ rotateRight(x, 19) ^ x >> 10;
}

constexpr Word bigSigma0(Word x)
{
    return rotateRight(x, 2) ^ rotateRight(x, 13) ^ rotateRight(x, 22);
}

constexpr Word bigSigma1(Word x)
{
    return rotateRight(x, 6) ^ rotateRight(x, 11) ^ rotateRight(x, 25);
}

Word loadWord(const unsigned char* bytes)
{
    return Word{bytes[0]} << 24 | Word{bytes[1]} << 16 | Word{bytes[2]} << 8 | Word{bytes[3]};
}

/// Wt from the sixteen words before it, in a ring of sixteen.
[[gnu::always_inline]] inline Word nextWord(Word (&ring)[16], std::size_t t)
{
    return ring[t % 16] +=
           smallSigma1(ring[(t + 14) % 16]) + ring[(t + 9) % 16] + smallSigma0(ring[(t + 1) % 16]);
}

/// One step. Instead of moving the eight working variables along, the caller renames them.
[[gnu::always_inline]] inline void step(Word a, Word b, Word c, Word& d, Word e, Word f, Word g,
                                        Word& h, Word input)
{
    const Word choice = g ^ (e & (f ^ g));
    const Word majority = (a & b) | (c & (a | b));
    h += bigSigma1(e) + choice + input;
    d += h;
    h += bigSigma0(a) + majority;
}

/// All steps; `input(t)` is Wt + Kt.
template <class Input>
[[gnu::always_inline]] inline void compressBlock(Word* state, Input input)
{
    Word a = state[0], b = state[1], c = state[2], d = state[3];
    Word e = state[4], f = state[5], g = state[6], h = state[7];
    for (std::size_t t = 0; t < 64; t += 8) {
        step(a, b, c, d, e, f, g, h, input(t));
        step(h, a, b, c, d, e, f, g, input(t + 1));
        step(g, h, a, b, c, d, e, f, input(t + 2));
        step(f, g, h, a, b, c, d, e, input(t + 3));
        step(e, f, g, h, a, b, c, d, input(t + 4));
        step(d, e, f, g, h, a, b, c, input(t + 5));
        step(c, d, e, f, g, h, a, b, input(t + 6));
        step(b, c, d, e, f, g, h, a, input(t + 7));
    }
    const Word result[8] = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i)
        state[i] += result[i];
}

} // namespace

void expandSchedule(const unsigned char* block, Word* words)
{
    for (std::size_t t = 0; t < 16; ++t)
        words[t] = loadWord(block + 4 * t);
    for (std::size_t t = 16; t < 64; ++t)
        words[t] =
            smallSigma1(words[t - 2]) + words[t - 7] + smallSigma0(words[t - 15]) + words[t - 16];
}

void compressSchedule(Word* state, const Word* words)
{
    compressBlock(state, [words](std::size_t t) { return words[t] + roundConstants[t]; });
}

void compressPortable(Word* state, const unsigned char* blocks, std::size_t count)
{
    for (; count != 0; --count, blocks += 64) {
        Word ring[16] = {};
        for (std::size_t t = 0; t < 16; ++t)
            ring[t] = loadWord(blocks + 4 * t);
        compressBlock(state, [&ring](std::size_t t) {
            return (t < 16 ? ring[t] : nextWord(ring, t)) + roundConstants[t];
        });
    }
}

#if !defined(__x86_64__) && !defined(__aarch64__)

bool hasHardware()
{
    return false;
}

void compressHardware(Word* state, const unsigned char* blocks, std::size_t count)
{
    compressPortable(state, blocks, count);
}

#endif

void compress(Word* state, const unsigned char* blocks, std::size_t count)
{
    static const auto best = hasHardware() ? compressHardware : compressPortable;
    best(state, blocks, count);
}

} // namespace sha256
