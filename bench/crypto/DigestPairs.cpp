#include "bench/crypto/Pairs.h"

#include "crypto/MD5.h"
#include "crypto/Sha256.h"

#include <openssl/evp.h>

#include <memory>

namespace {

std::function<void()> openSsl(const EVP_MD* algorithm, const std::string& text)
{
    return [=] {
        unsigned char digest[EVP_MAX_MD_SIZE];
        EVP_Digest(text.data(), text.size(), digest, nullptr, algorithm, nullptr);
    };
}

void addSha256(Pairs& pairs, std::size_t size)
{
    const std::string text = sampleBytes(size);
    const auto own = [message = std::vector<unsigned char>(text.begin(), text.end()),
                      sha = std::make_shared<Sha256>(),
                      digest = std::vector<unsigned char>()]() mutable {
        sha->encrypt(message, &digest);
    };
    pairs.push_back({"SHA-256 / OpenSSL, " + std::to_string(size) + " bytes", size, 1.0, own,
                     openSsl(EVP_sha256(), text)});
}

/// Text of the lower half of the byte values has the peer's digest too.
void addMD5(Pairs& pairs, std::size_t size)
{
    std::string text = sampleBytes(size);
    for (char& character : text)
        character = static_cast<char>(character & 0x7f);
    pairs.push_back({"MD5 / OpenSSL, " + std::to_string(size) + " bytes", size, 1.0,
                     [text] { MD5().Encode(text); }, openSsl(EVP_md5(), text)});
}

} // namespace

void addDigestPairs(Pairs& pairs)
{
    for (const std::size_t size : {1024U, 16384U, 65536U}) {
        addSha256(pairs, size);
        addMD5(pairs, size);
    }
}
