#include "crypto/rijndael/RijndaelBitExtraction.h"

#include "crypto/rijndael/RijndaelModes.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/rijndael/AesLayout.h"

#include <gtest/gtest.h>

namespace {

/// CBC encryption of 16-byte blocks with the bytes taken out as `Direction` does.
template <class Direction>
std::string encrypt(const AesLayout& layout, const std::string& text, std::string& chain)
{
    const rijndael::Schedule schedule{layout.encryptionKeys,
                                      static_cast<std::size_t>(layout.rounds), nullptr, nullptr};
    GuardedBuffer out(text.size());
    rijndael::cbcEncrypt(rijndael::Cipher<Direction, 4>(schedule),
                         {text.data(), out.data(), text.size() / 16}, chain.data());
    EXPECT_TRUE(out.isIntact());
    return toHex(out.content());
}

class RijndaelBitExtraction : public testing::TestWithParam<int>
{
};

// Which of the two the cipher takes depends on the processor.
TEST_P(RijndaelBitExtraction, GivesWhatShiftsGive)
{
    if (!rijndael::hasBitExtraction())
        GTEST_SKIP() << "this processor has no instruction for it, so the cipher takes shifts";
    RandomBytes random(51);
    AesEncrypt cipher;
    cipher.MakeKey(random(32).data(), random(16).data(), GetParam(), 16);
    for (const std::size_t blocks : {1U, 2U, 9U}) {
        const std::string text = random(16 * blocks);
        std::string shiftedChain = random(16);
        std::string extractedChain = shiftedChain;
        const AesLayout layout = layoutOf(cipher);
        EXPECT_EQ(encrypt<rijndael::Forward>(layout, text, shiftedChain),
                  encrypt<rijndael::ForwardByBitExtraction>(layout, text, extractedChain));
        EXPECT_EQ(shiftedChain, extractedChain);
    }
}

INSTANTIATE_TEST_SUITE_P(KeyLengths, RijndaelBitExtraction, testing::Values(16, 24, 32));

} // namespace
