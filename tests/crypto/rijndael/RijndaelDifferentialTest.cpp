#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>
#include <mcrypt.h>

#include <tuple>

namespace {

/// libmcrypt's Rijndael, which knows 24- and 32-byte blocks.
class Peer
{
public:
    Peer(std::string key, std::string iv, int blockSize, int mode)
        : m_module(open("rijndael-" + std::to_string(8 * blockSize), mode))
    {
        mcrypt_generic_init(m_module, key.data(), static_cast<int>(key.size()), iv.data());
    }

    ~Peer()
    {
        mcrypt_generic_deinit(m_module);
        mcrypt_module_close(m_module);
    }

    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    std::string operator()(std::string text, bool encrypts)
    {
        const auto size = static_cast<int>(text.size());
        const int result = encrypts ? mcrypt_generic(m_module, text.data(), size)
                                    : mdecrypt_generic(m_module, text.data(), size);
        EXPECT_EQ(0, result);
        return text;
    }

private:
    static MCRYPT open(std::string algorithm, int mode)
    {
        static constexpr const char* modes[] = {"ecb", "cbc", "ncfb"};
        std::string name = modes[mode];
        return mcrypt_module_open(algorithm.data(), nullptr, name.data(), nullptr);
    }

    MCRYPT m_module;
};

class RijndaelAgainstMcrypt : public testing::TestWithParam<std::tuple<int, int, int>>
{
};

TEST_P(RijndaelAgainstMcrypt, GivesTheSameBytesOverSeveralCalls)
{
    const auto [keyLength, blockSize, mode] = GetParam();
    RandomBytes random(static_cast<unsigned int>(1000 * keyLength + 10 * blockSize + mode));
    for (int round = 0; round < 5; ++round) {
        const std::string key = random(static_cast<std::size_t>(keyLength));
        const std::string iv = random(static_cast<std::size_t>(blockSize));
        for (const bool encrypts : {true, false}) {
            Peer peer(key, iv, blockSize, mode);
            const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
            AesEncrypt cipher;
            cipher.MakeKey(key.data(), iv.data(), keyLength, blockSize);
            for (const std::size_t blocks : {1U, 2U, 7U, 16U}) {
                const std::string in = random(static_cast<std::size_t>(blockSize) * blocks);
                GuardedBuffer out(in.size());
                (cipher.*operation)(in.data(), out.data(), in.size(), mode);
                ASSERT_EQ(toHex(peer(in, encrypts)), toHex(out.content()));
                ASSERT_TRUE(out.isIntact());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, RijndaelAgainstMcrypt,
                         testing::Combine(testing::Values(16, 24, 32), testing::Values(16, 24, 32),
                                          testing::Values(0, 1, 2)));

} // namespace
