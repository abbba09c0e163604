#pragma once

#include <cstddef>
#include <string>

class AesEncrypt;

/// What texts are encrypted and decrypted with: AES-128 in CBC mode. The cipher uses the first
/// `cipherKeySize` bytes of both and counts shorter ones as if filled up with zero bytes.
struct CipherKeys
{
    std::string key;
    std::string iv;
};

/// How many bytes of a key and of an IV are used.
inline constexpr std::size_t cipherKeySize = 16;

/// How many bytes the cipher encrypts and decrypts at a time.
inline constexpr std::size_t cipherBlockSize = 16;

/// The keys that `DecryptionAES_Export` makes of a pass phrase.
CipherKeys keysFromPassPhrase(const std::string& passPhrase);

/// A fresh cipher with these keys.
AesEncrypt makeCipher(const CipherKeys& keys);
