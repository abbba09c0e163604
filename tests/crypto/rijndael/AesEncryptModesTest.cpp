#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"
#include "tests/crypto/rijndael/AesLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

namespace {

std::string xorOf(std::string a, const std::string& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        a[i] = static_cast<char>(a[i] ^ b[i]);
    return a;
}

struct Setup
{
    int blockSize;
    int mode;
};

void PrintTo(const Setup& setup, std::ostream* stream)
{
    *stream << setup.blockSize << "-byte blocks, mode " << setup.mode;
}

/// Each mode over whole buffers against its definition by single blocks.
class AesEncryptModes : public testing::TestWithParam<Setup>
{
protected:
    AesEncrypt fresh() const
    {
        AesEncrypt cipher;
        cipher.MakeKey(key.data(), iv.data(), 16, GetParam().blockSize);
        return cipher;
    }

    std::string encrypt(AesEncrypt& cipher, const std::string& in) const
    {
        GuardedBuffer out(in.size());
        cipher.Encrypt(in.data(), out.data(), in.size(), GetParam().mode);
        EXPECT_TRUE(out.isIntact());
        return out.content();
    }

    std::string decrypt(AesEncrypt& cipher, const std::string& in) const
    {
        GuardedBuffer out(in.size());
        cipher.Decrypt(in.data(), out.data(), in.size(), GetParam().mode);
        EXPECT_TRUE(out.isIntact());
        return out.content();
    }

    std::string forward(const std::string& block) const
    {
        std::string out(size, '\0');
        fresh().EncryptBlock(block.data(), out.data());
        return out;
    }

    std::string defined(const std::string& in) const
    {
        std::string out;
        std::string chain = iv.substr(0, size);
        for (std::size_t i = 0; i < in.size(); i += size) {
            const std::string block = in.substr(i, size);
            switch (GetParam().mode) {
            case 1: chain = forward(xorOf(chain, block)); break;
            case 2: chain = xorOf(forward(chain), block); break;
            default: chain = forward(block); break;
            }
            out += chain;
        }
        return out;
    }

    std::string chainOf(const AesEncrypt& cipher) const { return {layoutOf(cipher).chain, size}; }

    const std::string key = RandomBytes(11)(16);
    const std::string iv = RandomBytes(12)(32);
    const std::size_t size = static_cast<std::size_t>(GetParam().blockSize);
    const std::string text = RandomBytes(13)(7 * size);
};

TEST_P(AesEncryptModes, EncryptionFollowsTheDefinitionForOddAndEvenCounts)
{
    for (std::size_t blocks = 1; blocks <= 7; ++blocks) {
        AesEncrypt cipher = fresh();
        const std::string in = text.substr(0, blocks * size);
        EXPECT_EQ(toHex(defined(in)), toHex(encrypt(cipher, in)));
    }
}

TEST_P(AesEncryptModes, DecryptionUndoesEncryptionForOddAndEvenCounts)
{
    for (std::size_t blocks = 1; blocks <= 7; ++blocks) {
        AesEncrypt cipher = fresh();
        const std::string in = text.substr(0, blocks * size);
        EXPECT_EQ(toHex(in), toHex(decrypt(cipher, defined(in))));
    }
}

TEST_P(AesEncryptModes, ChainGoesOnInTheNextCall)
{
    for (std::size_t split = 1; split < 7; ++split) {
        AesEncrypt encrypting = fresh();
        std::string cipherText = encrypt(encrypting, text.substr(0, split * size));
        cipherText += encrypt(encrypting, text.substr(split * size));
        EXPECT_EQ(toHex(defined(text)), toHex(cipherText));
        AesEncrypt decrypting = fresh();
        std::string plain = decrypt(decrypting, cipherText.substr(0, split * size));
        plain += decrypt(decrypting, cipherText.substr(split * size));
        EXPECT_EQ(toHex(text), toHex(plain));
    }
}

TEST_P(AesEncryptModes, ChainIsTheLastCipherBlockAfterwards)
{
    const std::string cipherText = defined(text);
    const std::string expected =
        GetParam().mode == 0 ? iv.substr(0, size) : cipherText.substr(cipherText.size() - size);
    AesEncrypt encrypting = fresh();
    encrypt(encrypting, text);
    EXPECT_EQ(toHex(expected), toHex(chainOf(encrypting)));
    AesEncrypt decrypting = fresh();
    decrypt(decrypting, cipherText);
    EXPECT_EQ(toHex(expected), toHex(chainOf(decrypting)));
    EXPECT_EQ(iv.substr(0, size), std::string(layoutOf(decrypting).initialChain, size));
}

TEST_P(AesEncryptModes, SingleBlocksLeaveTheChainAlone)
{
    AesEncrypt cipher = fresh();
    std::string block = text.substr(0, size);
    cipher.EncryptBlock(block.data(), block.data());
    cipher.DecryptBlock(block.data(), block.data());
    EXPECT_EQ(iv.substr(0, size), chainOf(cipher));
}

TEST_P(AesEncryptModes, OtherLengthsThanWholeBlocksDoNothing)
{
    for (const std::size_t n : {std::size_t{0}, std::size_t{1}, size - 1, size + 1, 2 * size - 1}) {
        AesEncrypt cipher = fresh();
        GuardedBuffer out(text.size());
        cipher.Encrypt(text.data(), out.data(), n, GetParam().mode);
        cipher.Decrypt(text.data(), out.data(), n, GetParam().mode);
        EXPECT_TRUE(out.isUntouched());
        EXPECT_EQ(iv.substr(0, size), chainOf(cipher));
    }
}

INSTANTIATE_TEST_SUITE_P(All, AesEncryptModes,
                         testing::Values(Setup{16, 0}, Setup{16, 1}, Setup{16, 2}, Setup{24, 0},
                                         Setup{24, 1}, Setup{24, 2}, Setup{32, 0}, Setup{32, 1},
                                         Setup{32, 2}));

class LongLengths : public testing::TestWithParam<int>
{
};

// Without its upper half it is one block of 24 bytes.
TEST_P(LongLengths, Have64Bits)
{
    constexpr unsigned long n = (1UL << 32) + 24;
    static_assert(n % 24 != 0);
    const std::string text = RandomBytes(15)(24);
    AesEncrypt cipher;
    cipher.MakeKey(text.data(), text.data(), 16, 24);
    GuardedBuffer out(48);
    cipher.Encrypt(text.data(), out.data(), n, GetParam());
    EXPECT_TRUE(out.isUntouched());
    cipher.Decrypt(text.data(), out.data(), n, GetParam());
    EXPECT_TRUE(out.isUntouched());
    EXPECT_EQ(toHex(text), toHex(std::string(layoutOf(cipher).chain, 24)));
}

INSTANTIATE_TEST_SUITE_P(Modes, LongLengths, testing::Values(0, 1, 2));

class OtherModes : public testing::TestWithParam<std::tuple<int, int>>
{
};

TEST_P(OtherModes, AreEcb)
{
    const auto [mode, blockSize] = GetParam();
    const auto size = static_cast<std::size_t>(3 * blockSize);
    const std::string text = RandomBytes(14)(size);
    AesEncrypt cipher;
    cipher.MakeKey(text.data(), text.data(), 16, blockSize);
    std::string expected(size, '\0');
    cipher.Encrypt(text.data(), expected.data(), size, 0);
    GuardedBuffer out(size);
    cipher.Encrypt(text.data(), out.data(), size, mode);
    EXPECT_EQ(toHex(expected), toHex(out.content()));
    cipher.Decrypt(expected.data(), out.data(), size, mode);
    EXPECT_EQ(toHex(text), toHex(out.content()));
    const auto block = static_cast<std::size_t>(blockSize);
    EXPECT_EQ(text.substr(0, block), std::string(layoutOf(cipher).chain, block));
}

INSTANTIATE_TEST_SUITE_P(Numbers, OtherModes,
                         testing::Combine(testing::Values(3, 4, 5, 6, 7, 8, 256, 257, 258, 65537,
                                                          65538, -1, -2, INT_MAX, INT_MIN),
                                          testing::Values(16, 24, 32)));

} // namespace
