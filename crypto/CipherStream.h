#pragma once

#include "crypto/AesEncrypt.h"
#include "crypto/CipherKeys.h"
#include "crypto/Decryption.h"

#include <cstdint>
#include <optional>
#include <string>

/// What `Encrypt::EncryptionAES` gives for a text that comes in pieces.
class EncryptionStream
{
public:
    explicit EncryptionStream(const CipherKeys& keys);

    /// Takes the next `count` bytes of the text; gives what is ready of the cipher text.
    std::string add(const char* bytes, std::size_t count);
    /// The rest of the cipher text. The stream is of no use afterwards.
    std::string finish();

    /// Where the first zero byte stands, if there is one: from there on everything is encrypted as
    /// zeros.
    std::optional<std::uint64_t> zeroByte() const { return m_zeroByte; }

private:
    std::string encrypted(std::size_t count);

    AesEncrypt m_cipher;
    std::string m_pending;
    std::uint64_t m_size = 0;
    std::optional<std::uint64_t> m_zeroByte;
};

/// What `Encrypt::DecryptionAES` gives for a cipher text that comes in pieces, with the reason.
class DecryptionStream
{
public:
    explicit DecryptionStream(const CipherKeys& keys);

    /// Takes the next `count` characters of the cipher text; gives what is ready of the text.
    std::string add(const char* characters, std::size_t count);
    /// The rest of the text as the bytes of a decryption, with its padding and its reason. Where
    /// that is neither Decrypted nor NoPadding, what has been given so far is to be dropped.
    Decryption finish();

    /// How many bytes come behind the first zero byte, where the library ends the text, itself
    /// included.
    std::uint64_t leftOut() const { return m_leftOut; }

private:
    void decode(const std::string& characters);
    void decrypt();
    std::string beforeZero(std::string bytes);

    AesEncrypt m_cipher;
    std::string m_characters; ///< fewer than a group of four
    std::string m_encrypted;  ///< fewer than a block
    std::string m_decrypted;  ///< among which the padding may be
    std::size_t m_cipherSize = 0;
    bool m_hasEnded = false; ///< a character that is no Base64 has come
    bool m_hasZero = false;
    std::uint64_t m_leftOut = 0;
};
