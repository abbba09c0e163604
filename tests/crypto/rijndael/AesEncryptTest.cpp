#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct BlockSample
{
    const char* name;
    const char* key;
    const char* plain;
    const char* cipher;
};

void PrintTo(const BlockSample& sample, std::ostream* stream)
{
    *stream << sample.name;
}

constexpr const char* fipsPlain = "00112233445566778899aabbccddeeff";
constexpr const char* pi = "3243f6a8885a308d313198a2e03707344a4093822299f31d0082efa98ec4e6c8";
constexpr const char* e = "2b7e151628aed2a6abf7158809cf4f3c762e7160f38b4da56a784d9045190cfe";

class BlockSamples : public testing::TestWithParam<BlockSample>
{
protected:
    /// Key and plain text as long as the sample says: the published ones are prefixes of each
    /// other.
    static AesEncrypt makeCipher(const BlockSample& sample)
    {
        const std::string key = fromHex(sample.key);
        AesEncrypt cipher;
        cipher.MakeKey(key.data(), std::string(32, '\0').data(), static_cast<int>(key.size()),
                       static_cast<int>(fromHex(sample.cipher).size()));
        return cipher;
    }
};

TEST_P(BlockSamples, Encrypts)
{
    const std::string cipherText = fromHex(GetParam().cipher);
    GuardedBuffer out(cipherText.size());
    makeCipher(GetParam()).EncryptBlock(fromHex(GetParam().plain).data(), out.data());
    EXPECT_EQ(GetParam().cipher, toHex(out.content()));
    EXPECT_TRUE(out.isIntact());
}

TEST_P(BlockSamples, Decrypts)
{
    const std::string cipherText = fromHex(GetParam().cipher);
    GuardedBuffer out(cipherText.size());
    makeCipher(GetParam()).DecryptBlock(cipherText.data(), out.data());
    EXPECT_EQ(std::string(GetParam().plain).substr(0, 2 * cipherText.size()), toHex(out.content()));
    EXPECT_TRUE(out.isIntact());
}

TEST_P(BlockSamples, WorkInPlace)
{
    std::string block = fromHex(GetParam().plain);
    const std::string plain = block;
    AesEncrypt cipher = makeCipher(GetParam());
    cipher.EncryptBlock(block.data(), block.data());
    EXPECT_EQ(GetParam().cipher, toHex(block).substr(0, std::string(GetParam().cipher).size()));
    cipher.DecryptBlock(block.data(), block.data());
    EXPECT_EQ(plain, block);
}

// FIPS-197, appendices B and C.
INSTANTIATE_TEST_SUITE_P(
    Fips197, BlockSamples,
    testing::Values(BlockSample{"B", "2b7e151628aed2a6abf7158809cf4f3c",
                                "3243f6a8885a308d313198a2e0370734",
                                "3925841d02dc09fbdc118597196a0b32"},
                    BlockSample{"C.1", "000102030405060708090a0b0c0d0e0f", fipsPlain,
                                "69c4e0d86a7b0430d8cdb78070b4c55a"},
                    BlockSample{"C.2", "000102030405060708090a0b0c0d0e0f1011121314151617",
                                fipsPlain, "dda97ca4864cdfe06eaf70a0ec0d7191"},
                    BlockSample{"C.3",
                                "000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f",
                                fipsPlain, "8ea2b7ca516745bfeafc49904b496089"}));

// Gladman's samples for every size of Rijndael: digits of e encrypt digits of pi.
const std::string key16 = std::string(e).substr(0, 32);
const std::string key24 = std::string(e).substr(0, 48);

INSTANTIATE_TEST_SUITE_P(
    AllSizes, BlockSamples,
    testing::Values(
        BlockSample{"16/24", key24.c_str(), pi, "f9fb29aefc384a250340d833b87ebc00"},
        BlockSample{"16/32", e, pi, "1a6e6c2c662e7da6501ffb62bc9e93f3"},
        BlockSample{"24/16", key16.c_str(), pi, "b24d275489e82bb8f7375e0d5fcdb1f481757c538b65148a"},
        BlockSample{"24/24", key24.c_str(), pi, "725ae43b5f3161de806a7c93e0bca93c967ec1ae1b71e1cf"},
        BlockSample{"24/32", e, pi, "0ebacf199e3315c2e34b24fcc7c46ef4388aa475d66c194c"},
        BlockSample{"32/16", key16.c_str(), pi,
                    "7d15479076b69a46ffb3b3beae97ad8313f622f67fedb487de9f06b9ed9c8f19"},
        BlockSample{"32/24", key24.c_str(), pi,
                    "5d7101727bb25781bf6715b0e6955282b9610e23a43c2eb062699f0ebf5887b2"},
        BlockSample{"32/32", e, pi,
                    "a49406115dfb30a40418aafa4869b7c6a886ff31602a7dd19c889dc64f7e4e7a"}));

class AesEncryptOperations : public testing::Test
{
protected:
    const std::string key = fromHex("000102030405060708090a0b0c0d0e0f");
    const std::string chain = std::string(32, '\x11');
    const std::string plain = fromHex(fipsPlain);
    AesEncrypt cipher;
};

TEST_F(AesEncryptOperations, Default16ByteOperationsAreTheBlockOperations)
{
    cipher.MakeKey(key.data(), chain.data(), 16, 16);
    GuardedBuffer out(16);
    cipher.DefEncryptBlock(plain.data(), out.data());
    EXPECT_EQ("69c4e0d86a7b0430d8cdb78070b4c55a", toHex(out.content()));
    cipher.DefDecryptBlock(out.data(), out.data());
    EXPECT_EQ(plain, out.content());
    EXPECT_TRUE(out.isIntact());
}

TEST_F(AesEncryptOperations, MakeKeyTakesSixteenAndSixteenByDefault)
{
    cipher.MakeKey(key.data(), chain.data());
    GuardedBuffer out(16);
    cipher.EncryptBlock(plain.data(), out.data());
    EXPECT_EQ("69c4e0d86a7b0430d8cdb78070b4c55a", toHex(out.content()));
}

TEST_F(AesEncryptOperations, XorAddsOneBlock)
{
    for (const int size : {16, 24, 32}) {
        cipher.MakeKey(key.data(), chain.data(), 16, size);
        GuardedBuffer buffer(40);
        cipher.Xor(buffer.data(), std::string(40, '\x0f').data());
        const auto count = static_cast<std::size_t>(size);
        EXPECT_EQ(std::string(count, '\x55') + std::string(40 - count, GuardedBuffer::mark),
                  buffer.content());
        EXPECT_TRUE(buffer.isIntact());
    }
}

TEST_F(AesEncryptOperations, NothingHappensBeforeMakeKey)
{
    GuardedBuffer out(32);
    cipher.EncryptBlock(plain.data(), out.data());
    cipher.DecryptBlock(plain.data(), out.data());
    cipher.DefEncryptBlock(plain.data(), out.data());
    cipher.DefDecryptBlock(plain.data(), out.data());
    cipher.Xor(out.data(), plain.data());
    for (const int mode : {0, 1, 2}) {
        cipher.Encrypt(plain.data(), out.data(), 16, mode);
        cipher.Decrypt(plain.data(), out.data(), 16, mode);
    }
    EXPECT_TRUE(out.isUntouched());
}

struct RefusedSizes
{
    int keyLength;
    int blockSize;
};

class RefusedKeys : public testing::TestWithParam<RefusedSizes>
{
};

TEST_P(RefusedKeys, LeaveAFreshObjectUninitialised)
{
    AesEncrypt cipher;
    const std::string bytes(64, 'k');
    cipher.MakeKey(bytes.data(), bytes.data(), GetParam().keyLength, GetParam().blockSize);
    GuardedBuffer out(32);
    cipher.EncryptBlock(bytes.data(), out.data());
    EXPECT_TRUE(out.isUntouched());
}

TEST_P(RefusedKeys, LeaveTheEarlierKeyInUse)
{
    AesEncrypt cipher;
    const std::string key = fromHex("000102030405060708090a0b0c0d0e0f");
    cipher.MakeKey(key.data(), std::string(16, '\0').data(), 16, 16);
    const std::string bytes(64, 'k');
    cipher.MakeKey(bytes.data(), bytes.data(), GetParam().keyLength, GetParam().blockSize);
    cipher.MakeKey(nullptr, bytes.data(), 16, 16);
    GuardedBuffer out(16);
    cipher.EncryptBlock(fromHex(fipsPlain).data(), out.data());
    EXPECT_EQ("69c4e0d86a7b0430d8cdb78070b4c55a", toHex(out.content()));
}

INSTANTIATE_TEST_SUITE_P(Sizes, RefusedKeys,
                         testing::Values(RefusedSizes{0, 16}, RefusedSizes{15, 16},
                                         RefusedSizes{17, 16}, RefusedSizes{20, 16},
                                         RefusedSizes{28, 16}, RefusedSizes{33, 16},
                                         RefusedSizes{-16, 16}, RefusedSizes{16, 0},
                                         RefusedSizes{16, 8}, RefusedSizes{16, 20},
                                         RefusedSizes{32, 31}, RefusedSizes{16, -24},
                                         RefusedSizes{16, 64}));

} // namespace
