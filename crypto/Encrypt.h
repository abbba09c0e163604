#pragma once

#include <string>

/// Text into cipher text and back, and short fingerprints of text. Strings are containers of bytes;
/// cipher texts are URL-safe Base64 with padding. Any thread may call.
///
/// The cipher is AES-128 in CBC mode. Key and IV are the first 16 bytes of their strings; shorter
/// ones count as if filled up with zero bytes.
class Encrypt
{
public:
    /// The SHA-256 digest of `text` up to its first zero byte, as 43 characters of URL-safe Base64
    /// without padding. An empty text gives an empty string.
    static std::string Sha256Encode(const std::string& text);

    /// The cipher text of `plain`, padded as PKCS#7 does. In a text with a zero byte, everything
    /// between the first one and the end is encrypted as zeros.
    static std::string EncryptionAES(std::string key, std::string iv, const std::string& plain);

    /// The plain text of `cipherText` up to its first zero byte. A last byte of 1 to 22 that is not
    /// above the text's size counts as padding, of which so many bytes are removed (intended: 22 is
    /// more than a block); padding that does not match gives an empty string and a message on
    /// standard output. Any other last byte leaves the text as it is. A cipher that is not whole
    /// blocks passes for plain text.
    static std::string DecryptionAES(std::string key, std::string iv,
                                     const std::string& cipherText);

    /// The MD5 digest, as 32 lower-case hexadecimal characters, of the fingerprints of `first` and
    /// `second`, character by character in turn.
    static std::string KdEncode(const std::string& first, const std::string& second);
};

/// The plain text of `cipherText` under the pass phrase, both terminated by zero, as
/// `DecryptionAES` gives it: zero-terminated, in an array of 2048 characters that the caller owns
/// and releases with delete[]. Null where an argument is null, where the text has 2048 characters
/// or more and where memory is short; nothing is thrown.
extern "C" [[gnu::visibility("default")]] char* DecryptionAES_Export(const char* passPhrase,
                                                                     const char* cipherText);
