// SHA-256 by the SHA extensions of x86.

#if defined(__x86_64__)

#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"

#include <cpuid.h>
#include <immintrin.h>

namespace sha256 {

namespace {

/// The state as the instructions want it: words A, B, E, F and C, D, G, H, the highest word first.
struct Halves
{
    __m128i abef;
    __m128i cdgh;
};

[[gnu::target("sha,sse4.1"), gnu::always_inline]] inline Halves loadState(const Word* state)
{
    const __m128i abcd = _mm_loadu_si128(reinterpret_cast<const __m128i*>(state));
    const __m128i efgh = _mm_loadu_si128(reinterpret_cast<const __m128i*>(state + 4));
    const __m128i badc = _mm_shuffle_epi32(abcd, 0xb1);
    const __m128i hgfe = _mm_shuffle_epi32(efgh, 0x1b);
    return {_mm_alignr_epi8(badc, hgfe, 8), _mm_blend_epi16(hgfe, badc, 0xf0)};
}

[[gnu::target("sha,sse4.1"), gnu::always_inline]] inline void storeState(Word* state,
                                                                         const Halves& halves)
{
    const __m128i feba = _mm_shuffle_epi32(halves.abef, 0x1b);
    const __m128i dchg = _mm_shuffle_epi32(halves.cdgh, 0xb1);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(state), _mm_blend_epi16(feba, dchg, 0xf0));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(state + 4), _mm_alignr_epi8(dchg, feba, 8));
}

[[gnu::target("sha,sse4.1"), gnu::always_inline]] inline __m128i
loadWords(const unsigned char* bytes)
{
    const __m128i swapBytes = _mm_set_epi64x(0x0c0d0e0f08090a0b, 0x0405060700010203);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)), swapBytes);
}

/// Four words of the schedule from the sixteen before them, which are in a ring of four vectors.
[[gnu::target("sha,sse4.1"), gnu::always_inline]] inline __m128i nextWords(__m128i (&ring)[4],
                                                                           std::size_t group)
{
    const __m128i last = ring[(group + 3) % 4];
    const __m128i sevenBack = _mm_alignr_epi8(last, ring[(group + 2) % 4], 4);
    const __m128i partial = _mm_sha256msg1_epu32(ring[group % 4], ring[(group + 1) % 4]);
    return _mm_sha256msg2_epu32(_mm_add_epi32(partial, sevenBack), last);
}

/// Four steps.
[[gnu::target("sha,sse4.1"), gnu::always_inline]] inline void steps(Halves& halves, __m128i words,
                                                                    std::size_t group)
{
    const auto* constants = reinterpret_cast<const __m128i*>(&roundConstants[4 * group]);
    const __m128i input = _mm_add_epi32(words, _mm_loadu_si128(constants));
    halves.cdgh = _mm_sha256rnds2_epu32(halves.cdgh, halves.abef, input);
    halves.abef = _mm_sha256rnds2_epu32(halves.abef, halves.cdgh, _mm_shuffle_epi32(input, 0x0e));
}

} // namespace

bool hasHardware()
{
    constexpr unsigned int ssse3AndSse41 = bit_SSSE3 | bit_SSE4_1;
    unsigned int a = 0, b = 0, c = 0, d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & ssse3AndSse41) != ssse3AndSse41)
        return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0 && (b & bit_SHA) != 0;
}

[[gnu::target("sha,sse4.1")]] void compressHardware(Word* state, const unsigned char* blocks,
                                                    std::size_t count)
{
    Halves halves = loadState(state);
    for (; count != 0; --count, blocks += 64) {
        const Halves before = halves;
        __m128i ring[4];
        for (std::size_t group = 0; group < 4; ++group) {
            ring[group] = loadWords(blocks + 16 * group);
            steps(halves, ring[group], group);
        }
        for (std::size_t group = 4; group < 16; ++group) {
            ring[group % 4] = nextWords(ring, group);
            steps(halves, ring[group % 4], group);
        }
        halves.abef = _mm_add_epi32(halves.abef, before.abef);
        halves.cdgh = _mm_add_epi32(halves.cdgh, before.cdgh);
    }
    storeState(state, halves);
}

} // namespace sha256

#endif
