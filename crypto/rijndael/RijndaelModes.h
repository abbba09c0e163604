#pragma once

#include "crypto/rijndael/RijndaelBlock.h"

#include <algorithm>
#include <cstddef>

/// Whole buffers through the cipher, which must not overlap.
///
/// The chain stays in registers from the first block to the last. Where the output of a
/// block is XORed into the input of the next, everything else is XORed beforehand, and goes into
/// the last round's key. Modes whose blocks do not depend on each other take two 16-byte blocks at
/// a time: one alone leaves the processor waiting for its look-ups. Larger blocks have enough
/// columns to keep it busy.
namespace rijndael {

/// The round keys of one direction. The general block sizes leave their last state before the final
/// round in the scratch words.
struct Schedule
{
    const KeyRow* keys;
    std::size_t rounds;
    Word* scratchA;
    Word* scratchT;
};

struct Buffers
{
    const char* in;
    char* out;
    std::size_t blocks;
};

template <class Way, std::size_t Count>
class Cipher
{
public:
    using Direction = Way;
    using Block = State<Count>;
    static constexpr std::size_t columns = Count;
    static constexpr std::size_t size = 4 * columns;

    explicit Cipher(const Schedule& schedule)
        : m_schedule(schedule), m_firstKey(keyOf(0)), m_lastKey(keyOf(schedule.rounds))
    {
    }

    const Block& firstKey() const { return m_firstKey; }
    const Block& lastKey() const { return m_lastKey; }

    /// The rounds between the first AddRoundKey and the last round.
    [[gnu::always_inline]] Block innerRounds(Block state) const
    {
        state = round<Direction>(state, m_schedule.keys[1]);
        for (std::size_t row = 2; row < m_schedule.rounds; row += 2) {
            state = round<Direction>(state, m_schedule.keys[row]);
            state = round<Direction>(state, m_schedule.keys[row + 1]);
        }
        storeScratch(state);
        return state;
    }

    /// The same for two blocks at once, of the size that leaves no scratch.
    [[gnu::always_inline]] void innerRounds(Block& first, Block& second) const
    {
        static_assert(columns == 4);
        for (std::size_t row = 1; row < m_schedule.rounds; ++row) {
            first = round<Direction>(first, m_schedule.keys[row]);
            second = round<Direction>(second, m_schedule.keys[row]);
        }
    }

    /// One block, XORed with `mask`.
    [[gnu::noinline]] Block operator()(const Block& block, const Block& mask) const
    {
        return lastRound<Direction>(innerRounds(exclusiveOr(block, m_firstKey)),
                                    exclusiveOr(mask, m_lastKey));
    }

    /// Two blocks, XORed with a mask each.
    [[gnu::always_inline]] void pair(Block& first, Block& second, const Block& firstMask,
                                     const Block& secondMask) const
    {
        first = exclusiveOr(first, m_firstKey);
        second = exclusiveOr(second, m_firstKey);
        innerRounds(first, second);
        first = lastRound<Direction>(first, exclusiveOr(firstMask, m_lastKey));
        second = lastRound<Direction>(second, exclusiveOr(secondMask, m_lastKey));
    }

private:
    Block keyOf(std::size_t row) const
    {
        Block key;
        std::copy_n(m_schedule.keys[row], columns, key.begin());
        return key;
    }

    [[gnu::always_inline]] void storeScratch(const Block& state) const
    {
        if constexpr (columns != 4) {
            std::copy_n(state.begin(), columns, m_schedule.scratchA);
            std::copy_n(state.begin(), columns, m_schedule.scratchT);
        }
    }

    Schedule m_schedule;
    Block m_firstKey;
    Block m_lastKey;
};

/// Takes the blocks in pairs where that pays: `next(in)` is called for each block in order and
/// gives what goes through the cipher and what its result is XORed with.
template <class C, class Next>
[[gnu::always_inline]] inline void forEachBlock(const C& cipher, Buffers buffers, Next next)
{
    constexpr std::size_t size = C::size;
    if constexpr (C::columns == 4) {
        for (; buffers.blocks >= 2; buffers.blocks -= 2) {
            auto [first, firstMask] = next(buffers.in);
            auto [second, secondMask] = next(buffers.in + size);
            cipher.pair(first, second, firstMask, secondMask);
            store(buffers.out, first);
            store(buffers.out + size, second);
            buffers.in += 2 * size;
            buffers.out += 2 * size;
        }
    }
    for (; buffers.blocks != 0; --buffers.blocks) {
        const auto [block, mask] = next(buffers.in);
        store(buffers.out, cipher(block, mask));
        buffers.in += size;
        buffers.out += size;
    }
}

template <class C>
struct Task
{
    typename C::Block block;
    typename C::Block mask;
};

template <class C>
void ecb(const C& cipher, const Buffers& buffers)
{
    forEachBlock(cipher, buffers, [](const char* in) { return Task<C>{load<C::columns>(in), {}}; });
}

template <class C>
void cbcDecrypt(const C& cipher, const Buffers& buffers, char* chain)
{
    auto previous = load<C::columns>(chain);
    forEachBlock(cipher, buffers, [&previous](const char* in) {
        const Task<C> task{load<C::columns>(in), previous};
        previous = task.block;
        return task;
    });
    store(chain, previous);
}

template <class C>
void cfbDecrypt(const C& cipher, const Buffers& buffers, char* chain)
{
    auto previous = load<C::columns>(chain);
    forEachBlock(cipher, buffers, [&previous](const char* in) {
        const Task<C> task{previous, load<C::columns>(in)};
        previous = task.mask;
        return task;
    });
    store(chain, previous);
}

/// The state goes from block to block with the next input and the first key already in it.
template <class C>
void cbcEncrypt(const C& cipher, const Buffers& buffers, char* chain)
{
    const char* in = buffers.in;
    auto state =
        exclusiveOr(load<C::columns>(chain), exclusiveOr(load<C::columns>(in), cipher.firstKey()));
    for (std::size_t i = 1; i <= buffers.blocks; ++i) {
        typename C::Block next{};
        if (i < buffers.blocks)
            next = exclusiveOr(load<C::columns>(in + i * C::size), cipher.firstKey());
        state = lastRound<typename C::Direction>(cipher.innerRounds(state),
                                                 exclusiveOr(next, cipher.lastKey()));
        store(buffers.out + (i - 1) * C::size, exclusiveOr(state, next));
    }
    store(chain, state);
}

template <class C>
void cfbEncrypt(const C& cipher, const Buffers& buffers, char* chain)
{
    const auto bothKeys = exclusiveOr(cipher.firstKey(), cipher.lastKey());
    auto state = exclusiveOr(load<C::columns>(chain), cipher.firstKey());
    for (std::size_t i = 0; i < buffers.blocks; ++i) {
        const auto input = load<C::columns>(buffers.in + i * C::size);
        state = lastRound<typename C::Direction>(cipher.innerRounds(state),
                                                 exclusiveOr(input, bothKeys));
        store(buffers.out + i * C::size, exclusiveOr(state, cipher.firstKey()));
    }
    store(chain, exclusiveOr(state, cipher.firstKey()));
}

} // namespace rijndael
