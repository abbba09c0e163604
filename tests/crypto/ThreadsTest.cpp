#include "crypto/Base64Encoder.h"
#include "crypto/CipherStream.h"
#include "crypto/Encrypt.h"
#include "crypto/MD5.h"
#include "crypto/Sha256.h"
#include "crypto/md5/Md5Stream.h"
#include "crypto/sha256/Sha256Stream.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

// Calls `work` in several threads at once and returns what each of them got.
std::vector<std::string> inThreads(const std::function<std::string()>& work)
{
    std::vector<std::string> results(4);
    std::vector<std::thread> threads;
    for (std::string& result : results)
        threads.emplace_back([&result, &work] { result = work(); });
    for (std::thread& thread : threads)
        thread.join();
    return results;
}

// Each thread has objects of its own, as the documentation asks for; what they share are tables.
void expectSameEverywhere(const std::function<std::string()>& work)
{
    const std::string expected = work();
    for (const std::string& result : inThreads([&] {
             std::string last;
             for (int i = 0; i < 50; ++i)
                 last = work();
             return last;
         }))
        EXPECT_EQ(expected, result);
}

const std::string text(1000, 'x');

TEST(CryptoInThreads, TextIsEncryptedAndDecrypted)
{
    expectSameEverywhere([] {
        const std::string cipherText = Encrypt::EncryptionAES("key", "iv", text);
        EXPECT_EQ(text, Encrypt::DecryptionAES("key", "iv", cipherText));
        return cipherText;
    });
}

TEST(CryptoInThreads, TheExportedEntryDecrypts)
{
    const std::string fingerprint = Encrypt::Sha256Encode("pass phrase");
    const std::string cipherText =
        Encrypt::EncryptionAES(fingerprint.substr(0, 16), fingerprint.substr(0, 16), text);
    expectSameEverywhere([&] {
        const std::unique_ptr<char[]> plain(
            DecryptionAES_Export("pass phrase", cipherText.c_str()));
        return std::string(plain.get());
    });
}

TEST(CryptoInThreads, FingerprintsAreMixed)
{
    expectSameEverywhere([] { return Encrypt::KdEncode(text, "other"); });
}

TEST(CryptoInThreads, DigestsOfObjectsOfTheirOwn)
{
    expectSameEverywhere([] { return Sha256().getHexMessageDigest(text) + MD5().Encode(text); });
}

TEST(CryptoInThreads, DigestsOfStreams)
{
    expectSameEverywhere([] {
        Md5Stream md5;
        Sha256Stream sha256;
        md5.add(text.data(), text.size());
        sha256.add(text.data(), text.size());
        md5.end();
        while (md5.pad(1000)) {
        }
        return md5.hexDigest() + sha256.hexDigest();
    });
}

TEST(CryptoInThreads, Base64BothWays)
{
    expectSameEverywhere([] {
        const std::string encoded =
            Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(text.data()),
                                  static_cast<unsigned int>(text.size()));
        EXPECT_EQ(text, Base64Encoder::Decode(encoded));
        return encoded;
    });
}

} // namespace
