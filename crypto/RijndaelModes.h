#pragma once

#include "crypto/RijndaelBlock.h"

#include <cstddef>

/// Whole buffers through the cipher. The chain stays in registers from the first block to the last,
/// and modes whose blocks do not depend on each other take two at a time: one block alone leaves
/// the processor waiting for its look-ups. The buffers must not overlap.
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

/// All rounds of one block, or of two at once.
template <class Direction, std::size_t Columns>
class Cipher : public BlockCipher<Direction, Columns>
{
    using Base = BlockCipher<Direction, Columns>;

public:
    using Block = typename Base::Block;
    static constexpr std::size_t size = 4 * Columns;

    explicit Cipher(const Schedule& schedule) : Base(schedule.keys), m_schedule(schedule) {}

    [[gnu::always_inline]] Block operator()(const Block& block) const
    {
        Block state = this->firstKey(block);
        for (std::size_t row = 1; row < m_schedule.rounds; ++row)
            state = this->tableRound(state, row);
        keep(state);
        return this->lastRound(state, m_schedule.rounds);
    }

    [[gnu::always_inline]] void pair(Block& first, Block& second) const
    {
        first = this->firstKey(first);
        second = this->firstKey(second);
        for (std::size_t row = 1; row < m_schedule.rounds; ++row) {
            first = this->tableRound(first, row);
            second = this->tableRound(second, row);
        }
        keep(second);
        first = this->lastRound(first, m_schedule.rounds);
        second = this->lastRound(second, m_schedule.rounds);
    }

private:
    [[gnu::always_inline]] void keep(const Block& state) const
    {
        if constexpr (Columns != 4) {
            for (std::size_t i = 0; i < Columns; ++i)
                m_schedule.scratchA[i] = m_schedule.scratchT[i] = state[i];
        }
    }

    Schedule m_schedule;
};

/// Calls `one(in, out)` for each block, or `two(in, out)` for two of them.
template <class CipherType, class Two, class One>
[[gnu::always_inline]] inline void forEachPair(Buffers buffers, Two two, One one)
{
    constexpr std::size_t size = CipherType::size;
    for (; buffers.blocks >= 2; buffers.blocks -= 2) {
        two(buffers.in, buffers.out);
        buffers.in += 2 * size;
        buffers.out += 2 * size;
    }
    if (buffers.blocks != 0)
        one(buffers.in, buffers.out);
}

template <class CipherType>
void ecb(const CipherType& cipher, const Buffers& buffers)
{
    using C = CipherType;
    const auto two = [&cipher](const char* in, char* out) {
        auto first = C::load(in);
        auto second = C::load(in + C::size);
        cipher.pair(first, second);
        C::store(out, first);
        C::store(out + C::size, second);
    };
    const auto one = [&cipher](const char* in, char* out) { C::store(out, cipher(C::load(in))); };
    forEachPair<C>(buffers, two, one);
}

template <class CipherType>
void cbcEncrypt(const CipherType& cipher, const Buffers& buffers, char* chain)
{
    using C = CipherType;
    auto state = C::load(chain);
    for (std::size_t i = 0; i < buffers.blocks; ++i) {
        state = cipher(C::add(C::load(buffers.in + i * C::size), state.data()));
        C::store(buffers.out + i * C::size, state);
    }
    C::store(chain, state);
}

template <class CipherType>
void cbcDecrypt(const CipherType& cipher, const Buffers& buffers, char* chain)
{
    using C = CipherType;
    auto previous = C::load(chain);
    const auto two = [&cipher, &previous](const char* in, char* out) {
        const auto input = C::load(in);
        auto first = input;
        auto second = C::load(in + C::size);
        cipher.pair(first, second);
        C::store(out, C::add(first, previous.data()));
        C::store(out + C::size, C::add(second, input.data()));
        previous = C::load(in + C::size);
    };
    const auto one = [&cipher, &previous](const char* in, char* out) {
        const auto input = C::load(in);
        C::store(out, C::add(cipher(input), previous.data()));
        previous = input;
    };
    forEachPair<C>(buffers, two, one);
    C::store(chain, previous);
}

template <class CipherType>
void cfbEncrypt(const CipherType& cipher, const Buffers& buffers, char* chain)
{
    using C = CipherType;
    auto state = C::load(chain);
    for (std::size_t i = 0; i < buffers.blocks; ++i) {
        const auto input = C::load(buffers.in + i * C::size);
        state = C::add(cipher(state), input.data());
        C::store(buffers.out + i * C::size, state);
    }
    C::store(chain, state);
}

template <class CipherType>
void cfbDecrypt(const CipherType& cipher, const Buffers& buffers, char* chain)
{
    using C = CipherType;
    auto previous = C::load(chain);
    const auto two = [&cipher, &previous](const char* in, char* out) {
        const auto input = C::load(in);
        auto first = previous;
        auto second = input;
        cipher.pair(first, second);
        C::store(out, C::add(first, input.data()));
        previous = C::load(in + C::size);
        C::store(out + C::size, C::add(second, previous.data()));
    };
    const auto one = [&cipher, &previous](const char* in, char* out) {
        const auto input = C::load(in);
        C::store(out, C::add(cipher(previous), input.data()));
        previous = input;
    };
    forEachPair<C>(buffers, two, one);
    C::store(chain, previous);
}

} // namespace rijndael
