// SHA-256 by the cryptography extension of ARMv8.

#if defined(__aarch64__)

#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"

#include <arm_neon.h>
#include <asm/hwcap.h>
#include <sys/auxv.h>

namespace sha256 {

namespace {

struct Halves
{
    uint32x4_t abcd;
    uint32x4_t efgh;
};

[[gnu::target("+crypto"), gnu::always_inline]] inline uint32x4_t
loadWords(const unsigned char* bytes)
{
    return vreinterpretq_u32_u8(vrev32q_u8(vld1q_u8(bytes)));
}

/// Four words of the schedule from the sixteen before them, which are in a ring of four vectors.
[[gnu::target("+crypto"), gnu::always_inline]] inline uint32x4_t
nextWords(const uint32x4_t (&ring)[4], std::size_t group)
{
    const uint32x4_t partial = vsha256su0q_u32(ring[group % 4], ring[(group + 1) % 4]);
    return vsha256su1q_u32(partial, ring[(group + 2) % 4], ring[(group + 3) % 4]);
}

/// Four steps.
[[gnu::target("+crypto"), gnu::always_inline]] inline void steps(Halves& halves, uint32x4_t words,
                                                                 std::size_t group)
{
    const uint32x4_t input = vaddq_u32(words, vld1q_u32(&roundConstants[4 * group]));
    const uint32x4_t abcd = halves.abcd;
    halves.abcd = vsha256hq_u32(abcd, halves.efgh, input);
    halves.efgh = vsha256h2q_u32(halves.efgh, abcd, input);
}

} // namespace

bool hasHardware()
{
    return (getauxval(AT_HWCAP) & HWCAP_SHA2) != 0;
}

[[gnu::target("+crypto")]] void compressHardware(Word* state, const unsigned char* blocks,
                                                 std::size_t count)
{
    Halves halves{vld1q_u32(state), vld1q_u32(state + 4)};
    for (; count != 0; --count, blocks += 64) {
        const Halves before = halves;
        uint32x4_t ring[4];
        for (std::size_t group = 0; group < 4; ++group) {
            ring[group] = loadWords(blocks + 16 * group);
            steps(halves, ring[group], group);
        }
        for (std::size_t group = 4; group < 16; ++group) {
            ring[group % 4] = nextWords(ring, group);
            steps(halves, ring[group % 4], group);
        }
        halves.abcd = vaddq_u32(halves.abcd, before.abcd);
        halves.efgh = vaddq_u32(halves.efgh, before.efgh);
    }
    vst1q_u32(state, halves.abcd);
    vst1q_u32(state + 4, halves.efgh);
}

} // namespace sha256

#endif
