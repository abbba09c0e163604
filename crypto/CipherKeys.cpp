#include "crypto/CipherKeys.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Encrypt.h"

#include <algorithm>
#include <array>

namespace {

/// The first 16 bytes, with zeros for those that are not there.
std::array<char, cipherKeySize> firstBytes(const std::string& text)
{
    std::array<char, cipherKeySize> bytes{};
    std::copy_n(text.begin(), std::min(text.size(), cipherKeySize), bytes.begin());
    return bytes;
}

} // namespace

// Intended: the cipher uses 16 of the key's 32 bytes, so key and IV are the same.
CipherKeys keysFromPassPhrase(const std::string& passPhrase)
{
    const std::string hash = Encrypt::Sha256Encode(passPhrase);
    return {hash.substr(0, 32), hash.substr(0, 16)};
}

AesEncrypt makeCipher(const CipherKeys& keys)
{
    AesEncrypt cipher;
    cipher.MakeKey(firstBytes(keys.key).data(), firstBytes(keys.iv).data(), cipherKeySize,
                   cipherBlockSize);
    return cipher;
}
