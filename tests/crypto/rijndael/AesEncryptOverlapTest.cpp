#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"
#include "tests/crypto/rijndael/AesLayout.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

constexpr std::size_t blocks = 5;

/// Block size, mode and whether it encrypts.
class AesOverlap : public testing::TestWithParam<std::tuple<int, int, bool>>
{
protected:
    AesEncrypt fresh() const
    {
        AesEncrypt cipher;
        cipher.MakeKey(key.data(), iv.data(), 16, std::get<0>(GetParam()));
        return cipher;
    }

    void process(AesEncrypt& cipher, const char* in, char* out) const
    {
        const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
        (cipher.*operation)(in, out, blocks * size, mode);
    }

    /// The steps of the mode, each of them done before the next one begins. The chain is `chain`.
    void takeSteps(const char* in, char* out)
    {
        for (std::size_t i = 0; i < blocks; ++i, in += size, out += size) {
            if (mode == 2)
                takeCfbSteps(in, out);
            else if (mode == 1)
                takeCbcSteps(in, out);
            else
                copy(encrypts ? forward(in) : backward(in), out);
        }
    }

    void takeCbcSteps(const char* in, char* out)
    {
        if (encrypts) {
            add(chain.data(), in);
            copy(forward(chain.data()), out);
            copy(out, chain.data());
        } else {
            copy(backward(in), out);
            add(out, chain.data());
            copy(in, chain.data());
        }
    }

    void takeCfbSteps(const char* in, char* out)
    {
        copy(forward(chain.data()), out);
        add(out, in);
        copy(encrypts ? out : in, chain.data());
    }

    std::string forward(const char* block) const
    {
        std::string result(size, '\0');
        fresh().EncryptBlock(block, result.data());
        return result;
    }

    std::string backward(const char* block) const
    {
        std::string result(size, '\0');
        fresh().DecryptBlock(block, result.data());
        return result;
    }

    void copy(const std::string& from, char* to) const { from.copy(to, size); }
    void copy(const char* from, char* to) const { copy(std::string(from, size), to); }

    void add(char* buffer, const char* other) const
    {
        for (std::size_t i = 0; i < size; ++i)
            buffer[i] = static_cast<char>(buffer[i] ^ other[i]);
    }

    /// Compares a buffer after the operation with one after the steps, from one place to another.
    void compare(std::size_t from, std::size_t to)
    {
        std::string expected = text;
        takeSteps(expected.data() + from, expected.data() + to);
        std::string buffer = text;
        AesEncrypt cipher = fresh();
        process(cipher, buffer.data() + from, buffer.data() + to);
        EXPECT_EQ(toHex(expected), toHex(buffer));
        if (mode != 0) {
            EXPECT_EQ(toHex(chain), toHex(std::string(layoutOf(cipher).chain, size)));
        }
    }

    const std::size_t size = static_cast<std::size_t>(std::get<0>(GetParam()));
    const int mode = std::get<1>(GetParam());
    const bool encrypts = std::get<2>(GetParam());
    const std::string key = RandomBytes(21)(16);
    const std::string iv = RandomBytes(22)(32);
    const std::string text = RandomBytes(23)((blocks + 2) * size);
    std::string chain = iv.substr(0, size);
};

TEST_P(AesOverlap, InPlaceFollowsTheSteps)
{
    compare(size, size);
}

TEST_P(AesOverlap, OneBlockAheadFollowsTheSteps)
{
    compare(size, 2 * size);
}

TEST_P(AesOverlap, OneBlockBehindFollowsTheSteps)
{
    compare(size, 0);
}

TEST_P(AesOverlap, SixteenBytesAheadFollowTheSteps)
{
    compare(size, size + 16);
}

TEST_P(AesOverlap, SixteenBytesBehindFollowTheSteps)
{
    compare(size, size - 16);
}

INSTANTIATE_TEST_SUITE_P(All, AesOverlap,
                         testing::Combine(testing::Values(16, 24, 32), testing::Values(0, 1, 2),
                                          testing::Bool()));

/// What the steps come to for output over input.
class AesInPlace : public testing::TestWithParam<int>
{
protected:
    AesEncrypt fresh() const
    {
        AesEncrypt cipher;
        cipher.MakeKey(key.data(), iv.data(), 16, GetParam());
        return cipher;
    }

    const std::size_t size = static_cast<std::size_t>(GetParam());
    const std::string key = RandomBytes(21)(16);
    const std::string iv = RandomBytes(22)(32);
    const std::string text = RandomBytes(23)(blocks * size);
};

TEST_P(AesInPlace, EcbAndCbcEncryptAsElsewhere)
{
    for (const int mode : {0, 1}) {
        std::string expected(text.size(), '\0');
        fresh().Encrypt(text.data(), expected.data(), text.size(), mode);
        std::string buffer = text;
        fresh().Encrypt(buffer.data(), buffer.data(), buffer.size(), mode);
        EXPECT_EQ(toHex(expected), toHex(buffer)) << "mode " << mode;
    }
}

TEST_P(AesInPlace, EcbDecryptsAsElsewhere)
{
    std::string buffer = text;
    AesEncrypt cipher = fresh();
    cipher.Encrypt(buffer.data(), buffer.data(), buffer.size(), 0);
    cipher.Decrypt(buffer.data(), buffer.data(), buffer.size(), 0);
    EXPECT_EQ(toHex(text), toHex(buffer));
}

TEST_P(AesInPlace, CfbLosesTheText)
{
    const std::string zeros(text.size(), '\0');
    for (const auto operation : {&AesEncrypt::Encrypt, &AesEncrypt::Decrypt}) {
        std::string buffer = text;
        AesEncrypt cipher = fresh();
        (cipher.*operation)(buffer.data(), buffer.data(), buffer.size(), 2);
        EXPECT_EQ(toHex(zeros), toHex(buffer));
        EXPECT_EQ(zeros.substr(0, size), std::string(layoutOf(cipher).chain, size));
    }
}

INSTANTIATE_TEST_SUITE_P(BlockSizes, AesInPlace, testing::Values(16, 24, 32));

} // namespace
