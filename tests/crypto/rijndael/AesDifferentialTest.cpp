#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <memory>
#include <tuple>

namespace {

using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

const EVP_CIPHER* peerCipher(int keyLength, int mode)
{
    static constexpr const char* modes[] = {"ecb", "cbc", "cfb"};
    const std::string name = "aes-" + std::to_string(8 * keyLength) + "-" + modes[mode];
    return EVP_get_cipherbyname(name.c_str());
}

/// OpenSSL's AES, with padding off.
class Peer
{
public:
    Peer(const std::string& key, const std::string& iv, int mode, bool encrypts)
        : m_context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free)
    {
        EVP_CipherInit_ex(m_context.get(), peerCipher(static_cast<int>(key.size()), mode), nullptr,
                          bytes(key), bytes(iv), encrypts ? 1 : 0);
        EVP_CIPHER_CTX_set_padding(m_context.get(), 0);
    }

    std::string operator()(const std::string& in)
    {
        std::string out(in.size(), '\0');
        int length = 0;
        EVP_CipherUpdate(m_context.get(), reinterpret_cast<unsigned char*>(out.data()), &length,
                         bytes(in), static_cast<int>(in.size()));
        EXPECT_EQ(in.size(), static_cast<std::size_t>(length));
        return out;
    }

private:
    static const unsigned char* bytes(const std::string& text)
    {
        return reinterpret_cast<const unsigned char*>(text.data());
    }

    Context m_context;
};

class AesAgainstOpenSsl : public testing::TestWithParam<std::tuple<int, int>>
{
};

TEST_P(AesAgainstOpenSsl, GivesTheSameBytesOverSeveralCalls)
{
    const auto [keyLength, mode] = GetParam();
    RandomBytes random(static_cast<unsigned int>(100 * keyLength + mode));
    for (int round = 0; round < 20; ++round) {
        const std::string key = random(static_cast<std::size_t>(keyLength));
        const std::string iv = random(16);
        for (const bool encrypts : {true, false}) {
            Peer peer(key, iv, mode, encrypts);
            const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
            AesEncrypt cipher;
            cipher.MakeKey(key.data(), iv.data(), keyLength, 16);
            for (const std::size_t blocks : {1U, 2U, 7U, 16U, 33U}) {
                const std::string in = random(16 * blocks);
                GuardedBuffer out(in.size());
                (cipher.*operation)(in.data(), out.data(), in.size(), mode);
                ASSERT_EQ(toHex(peer(in)), toHex(out.content()));
                ASSERT_TRUE(out.isIntact());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, AesAgainstOpenSsl,
                         testing::Combine(testing::Values(16, 24, 32), testing::Values(0, 1, 2)));

} // namespace
