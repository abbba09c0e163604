#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/Decryption.h"
#include "crypto/Encrypt.h"
#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"

#include <cstdio>
#include <memory>
#include <string>

namespace {

// The padding as its bytes stand there, one after the other. Intended: up to 22 of them.
std::string unpaddedPlainly(std::string bytes)
{
    const std::size_t count = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back());
    if (count >= 1 && count <= 22 && count <= bytes.size()) {
        for (std::size_t i = bytes.size() - count; i < bytes.size(); ++i) {
            if (static_cast<unsigned char>(bytes[i]) != count)
                return {};
        }
        bytes.resize(bytes.size() - count);
    }
    return bytes.substr(0, bytes.find('\0'));
}

struct Keys
{
    std::string key;
    std::string iv;
};

// The exported entry's, as it derives them from the pass phrase.
Keys keysOf(const std::string& passPhrase)
{
    const std::string fingerprint = Encrypt::Sha256Encode(passPhrase);
    return {fingerprint.substr(0, 32), fingerprint.substr(0, 16)};
}

// Blocks that decrypt to what was given: the ends are those that matter, and random Base64 has none
// of them.
std::string encryptedBlocks(const Keys& keys, std::string plain)
{
    plain.resize(plain.size() / 16 * 16);
    std::string key = keys.key;
    std::string iv = keys.iv;
    key.resize(16);
    iv.resize(16);
    AesEncrypt cipher;
    cipher.MakeKey(key.data(), iv.data(), 16, 16);
    std::string blocks(plain.size(), '\0');
    cipher.Encrypt(plain.data(), blocks.data(), plain.size(), 1);
    expectThat(Encrypt::DecryptionAES(
                   keys.key, keys.iv,
                   Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(blocks.data()),
                                         static_cast<unsigned int>(blocks.size()))) ==
                   unpaddedPlainly(plain),
               "blocks are decrypted and their padding is removed");
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(blocks.data()),
                                 static_cast<unsigned int>(blocks.size()));
}

void expectBothEntriesToAgree(const std::string& passPhrase, const std::string& cipherText)
{
    const Keys keys = keysOf(passPhrase);
    const std::string text = Encrypt::DecryptionAES(keys.key, keys.iv, cipherText);
    const std::unique_ptr<char[]> exported(
        DecryptionAES_Export(passPhrase.c_str(), cipherText.c_str()));
    expectThat((exported == nullptr) == (text.size() > longestExportedText),
               "only what does not fit is refused");
    expectThat(!exported || text == exported.get(), "the exported entry gives the same text");
}

} // namespace

// The message about wrong padding is written to the standard output, a million times over.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    return std::freopen("/dev/null", "w", stdout) ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::string passPhrase = input.text();
    const bool isCipherText = input.ConsumeBool();
    const std::string rest = input.ConsumeRemainingBytesAsString();
    if (isCipherText) {
        expectBothEntriesToAgree(passPhrase, rest.substr(0, rest.find('\0')));
        return 0;
    }
    const Keys keys = keysOf(passPhrase);
    expectBothEntriesToAgree(passPhrase, encryptedBlocks(keys, rest));
    const std::string plain = rest.substr(0, rest.find('\0'));
    expectThat(Encrypt::DecryptionAES(keys.key, keys.iv,
                                      Encrypt::EncryptionAES(keys.key, keys.iv, plain)) == plain,
               "what was encrypted is decrypted again");
    return 0;
}
