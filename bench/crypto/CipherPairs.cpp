// The peer's key set-up functions are deprecated, but the newer ones hide which part of them is
// set-up.
#define OPENSSL_SUPPRESS_DEPRECATED

#include "bench/crypto/Pairs.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/Encrypt.h"

#include <mcrypt.h>
#include <nettle/aes.h>
#include <nettle/cfb.h>
#include <openssl/aes.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace {

const std::string key = "0123456789abcdefghijklmnopqrstuv";
const std::string iv = "fedcba9876543210vutsrqponmlkjihg";

using Operation = std::function<void()>;

/// Our cipher over a buffer, forwards or backwards.
Operation ours(int blockSize, int mode, bool encrypts, std::size_t size)
{
    auto cipher = std::make_shared<AesEncrypt>();
    cipher->MakeKey(key.data(), iv.data(), 16, blockSize);
    const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
    return [=, in = sampleBytes(size), out = std::string(size, '\0')]() mutable {
        (*cipher.*operation)(in.data(), out.data(), size, mode);
    };
}

using EvpContext = std::shared_ptr<EVP_CIPHER_CTX>;

EvpContext makeEvp(bool encrypts)
{
    EvpContext context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
    EVP_CipherInit_ex(context.get(), EVP_aes_128_cbc(), nullptr, bytesOf(key), bytesOf(iv),
                      encrypts ? 1 : 0);
    EVP_CIPHER_CTX_set_padding(context.get(), 0);
    return context;
}

Operation openSslCbc(bool encrypts, std::size_t size)
{
    return [context = makeEvp(encrypts), in = sampleBytes(size),
            out = std::string(size + 16, '\0')]() mutable {
        int length = 0;
        EVP_CipherUpdate(context.get(), bytesOf(out), &length, bytesOf(in),
                         static_cast<int>(in.size()));
    };
}

Operation nettleEcb(bool encrypts, std::size_t size)
{
    aes128_ctx context{};
    if (encrypts)
        aes128_set_encrypt_key(&context, bytesOf(key));
    else
        aes128_set_decrypt_key(&context, bytesOf(key));
    const auto operation = encrypts ? &aes128_encrypt : &aes128_decrypt;
    return [=, in = sampleBytes(size), out = std::string(size, '\0')]() mutable {
        operation(&context, size, bytesOf(out), bytesOf(in));
    };
}

Operation nettleCfb(bool encrypts, std::size_t size)
{
    aes128_ctx context{};
    aes128_set_encrypt_key(&context, bytesOf(key));
    const auto operation = encrypts ? &cfb_encrypt : &cfb_decrypt;
    return [=, chain = iv, in = sampleBytes(size), out = std::string(size, '\0')]() mutable {
        const auto cipher = reinterpret_cast<nettle_cipher_func*>(&aes128_encrypt);
        operation(&context, cipher, AES_BLOCK_SIZE, bytesOf(chain), size, bytesOf(out),
                  bytesOf(in));
    };
}

Operation mcrypt(int blockSize, int mode, bool encrypts, std::size_t size)
{
    static constexpr const char* modes[] = {"ecb", "cbc", "ncfb"};
    std::string algorithm = "rijndael-" + std::to_string(8 * blockSize);
    std::string modeName = modes[mode];
    MCRYPT module = mcrypt_module_open(algorithm.data(), nullptr, modeName.data(), nullptr);
    std::string moduleKey = key;
    std::string moduleIv = iv;
    mcrypt_generic_init(module, moduleKey.data(), 16, moduleIv.data());
    const auto operation = encrypts ? &mcrypt_generic : &mdecrypt_generic;
    return [=, buffer = sampleBytes(size)]() mutable {
        operation(module, buffer.data(), static_cast<int>(buffer.size()));
    };
}

std::string nameOf(const std::string& what, bool encrypts, std::size_t size)
{
    return what + (encrypts ? " encrypt, " : " decrypt, ") + std::to_string(size) + " bytes";
}

void addBlockModes(Pairs& pairs, std::size_t size)
{
    for (const bool encrypts : {true, false}) {
        pairs.push_back({nameOf("AES-128 CBC / OpenSSL masked", encrypts, size), size,
                         encrypts ? 1.0 : 1.2, ours(16, 1, encrypts, size),
                         openSslCbc(encrypts, size)});
        pairs.push_back({nameOf("AES-128 ECB / nettle C", encrypts, size), size, 1.3,
                         ours(16, 0, encrypts, size), nettleEcb(encrypts, size)});
        pairs.push_back({nameOf("AES-128 CFB / nettle C", encrypts, size), size, 1.3,
                         ours(16, 2, encrypts, size), nettleCfb(encrypts, size)});
    }
}

void addLargerBlocks(Pairs& pairs, std::size_t size)
{
    static constexpr const char* modes[] = {"ECB", "CBC", "CFB"};
    for (const int blockSize : {24, 32}) {
        for (int mode = 0; mode < 3; ++mode) {
            const std::string what =
                "Rijndael-" + std::to_string(8 * blockSize) + " " + modes[mode] + " / libmcrypt";
            for (const bool encrypts : {true, false})
                pairs.push_back({nameOf(what, encrypts, size), size, 1.5,
                                 ours(blockSize, mode, encrypts, size),
                                 mcrypt(blockSize, mode, encrypts, size)});
        }
    }
}

void addKeySetUp(Pairs& pairs)
{
    for (const int length : {16, 24, 32}) {
        const auto make = [length, cipher = std::make_shared<AesEncrypt>()] {
            cipher->MakeKey(key.data(), iv.data(), length, 16);
        };
        const auto peer = [length, schedules = std::make_shared<std::pair<AES_KEY, AES_KEY>>()] {
            AES_set_encrypt_key(bytesOf(key), 8 * length, &schedules->first);
            AES_set_decrypt_key(bytesOf(key), 8 * length, &schedules->second);
        };
        pairs.push_back({"Key set-up / OpenSSL AES_set_*_key, " + std::to_string(length) + " bytes",
                         static_cast<std::size_t>(length), 1.1, make, peer});
    }
}

/// The pass phrase's fingerprint in URL-safe characters, of which the first sixteen are the key.
std::string peerKey(const std::string& passPhrase)
{
    unsigned char digest[32];
    EVP_Digest(passPhrase.data(), passPhrase.size(), digest, nullptr, EVP_sha256(), nullptr);
    std::string text(48, '\0');
    EVP_EncodeBlock(bytesOf(text), digest, sizeof digest);
    std::replace(text.begin(), text.end(), '+', '-');
    std::replace(text.begin(), text.end(), '/', '_');
    return text;
}

/// DecryptionAES_Export, composed from the peer's functions.
std::unique_ptr<char[]> peerDecryption(const std::string& passPhrase, std::string text)
{
    const std::string material = peerKey(passPhrase);
    std::replace(text.begin(), text.end(), '-', '+');
    std::replace(text.begin(), text.end(), '_', '/');
    std::string raw(text.size(), '\0');
    EVP_DecodeBlock(bytesOf(raw), bytesOf(text), static_cast<int>(text.size()));
    const int size = static_cast<int>(text.size() / 4 * 3) -
                     static_cast<int>(std::count(text.end() - 2, text.end(), '='));
    const EvpContext context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
    EVP_DecryptInit_ex(context.get(), EVP_aes_128_cbc(), nullptr, bytesOf(material),
                       bytesOf(material));
    auto plain = std::make_unique<char[]>(2048);
    auto* out = reinterpret_cast<unsigned char*>(plain.get());
    int length = 0;
    int rest = 0;
    EVP_DecryptUpdate(context.get(), out, &length, bytesOf(raw), size);
    EVP_DecryptFinal_ex(context.get(), out + length, &rest);
    out[length + rest] = '\0';
    return plain;
}

void addExport(Pairs& pairs)
{
    const std::string passPhrase = "a pass phrase";
    const std::string hash = Encrypt::Sha256Encode(passPhrase);
    const std::string cipher =
        Encrypt::EncryptionAES(hash.substr(0, 16), hash.substr(0, 16), std::string(1024, 'x'));
    const auto own = [=] {
        return std::unique_ptr<char[]>(DecryptionAES_Export(passPhrase.c_str(), cipher.c_str()));
    };
    const auto peer = [=] { return peerDecryption(passPhrase, cipher); };
    if (std::strcmp(own().get(), peer().get()) != 0)
        throw std::logic_error("the peer's decryption gives another text");
    pairs.push_back({"DecryptionAES_Export / OpenSSL EVP masked, 1024 bytes", 1024, 1.5,
                     [own] { own(); }, [peer] { peer(); }});
}

/// The same once more, each message with empty caches: what a library waits for that decrypts one
/// now and then. Loading the tables is most of it, of which the peers have fewer.
Pairs coldTwins(const Pairs& pairs, std::size_t size)
{
    constexpr double coldShare = 0.8;
    Pairs twins;
    for (Pair twin : pairs) {
        if (twin.bytes != size)
            continue;
        twin.name += ", cold";
        twin.wanted *= coldShare;
        twin.isCold = true;
        twins.push_back(std::move(twin));
    }
    return twins;
}

} // namespace

void addCipherPairs(Pairs& pairs)
{
    for (const std::size_t size : {1024U, 65536U})
        addBlockModes(pairs, size);
    for (const std::size_t size : {1056U, 65568U})
        addLargerBlocks(pairs, size / 96 * 96);
    addKeySetUp(pairs);
    addExport(pairs);
    const Pairs cold = coldTwins(pairs, 1024);
    pairs.insert(pairs.end(), cold.begin(), cold.end());
}

void addMaskProbe(Pairs& pairs)
{
    const Operation probe = openSslCbc(false, 65536);
    pairs.push_back({"probe", 65536, 0, probe, probe});
}
