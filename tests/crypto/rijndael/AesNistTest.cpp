#include "crypto/AesEncrypt.h"

#include "tests/crypto/Bytes.h"
#include "tests/crypto/VectorFile.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

struct NistMode
{
    const char* prefix;
    int mode;
};

void PrintTo(const NistMode& mode, std::ostream* stream)
{
    *stream << mode.prefix;
}

using NistFile = std::tuple<NistMode, const char*, const char*>;

/// NIST's known-answer and multi-block vectors.
class AesNistVectors : public testing::TestWithParam<NistFile>
{
protected:
    static std::string fileName()
    {
        const auto& [mode, kind, bits] = GetParam();
        return std::string("ciphers/AES/") + mode.prefix + kind + bits + ".rsp";
    }

    static std::string crypt(const VectorRecord& record)
    {
        const bool encrypts = record.at("section") == "[ENCRYPT]";
        const std::string key = fromHex(record.at("KEY"));
        const std::string iv = record.count("IV") != 0 ? fromHex(record.at("IV")) : key;
        const std::string in = fromHex(record.at(encrypts ? "PLAINTEXT" : "CIPHERTEXT"));
        const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
        AesEncrypt cipher;
        cipher.MakeKey(key.data(), iv.data(), static_cast<int>(key.size()), 16);
        GuardedBuffer out(in.size());
        (cipher.*operation)(in.data(), out.data(), in.size(), std::get<0>(GetParam()).mode);
        EXPECT_TRUE(out.isIntact());
        return toHex(out.content());
    }
};

TEST_P(AesNistVectors, AreReproduced)
{
    const std::vector<VectorRecord> records = readVectors(fileName());
    ASSERT_GE(records.size(), 10U) << fileName();
    for (const VectorRecord& record : records) {
        const bool encrypts = record.at("section") == "[ENCRYPT]";
        EXPECT_EQ(record.at(encrypts ? "CIPHERTEXT" : "PLAINTEXT"), crypt(record))
            << fileName() << " " << record.at("section") << " " << record.at("COUNT");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, AesNistVectors,
    testing::Combine(testing::Values(NistMode{"ECB/ECB", 0}, NistMode{"CBC/CBC", 1},
                                     NistMode{"CFB/CFB128", 2}),
                     testing::Values("GFSbox", "KeySbox", "VarKey", "VarTxt", "MMT"),
                     testing::Values("128", "192", "256")));

} // namespace
