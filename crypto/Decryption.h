#pragma once

#include "crypto/CipherKeys.h"

#include <cstddef>
#include <string>

/// Why a decryption gave what it gave.
enum class DecryptionReason
{
    Decrypted,
    /// The cipher text does not begin with Base64: the text is empty.
    NothingDecoded,
    /// What the Base64 stands for is not whole blocks: it comes back undecrypted. What passes for
    /// padding is removed all the same.
    NotWholeBlocks,
    /// The last byte announces padding that is not there: the text is empty.
    WrongPadding,
    /// The last byte announces no padding: the bytes come back as they are.
    NoPadding
};

/// A decryption with everything that `Encrypt::DecryptionAES` does not tell.
struct Decryption
{
    enum class Padding
    {
        Removed,
        Absent,
        Mismatched
    };

    /// The bytes without their padding; zero bytes may be among them. Empty where the padding does
    /// not match.
    std::string bytes;
    Padding padding = Padding::Absent;
    /// How many bytes the Base64 of the cipher text stands for.
    std::size_t cipherSize = 0;

    DecryptionReason reason() const;

    /// What `Encrypt::DecryptionAES` gives: the bytes before the first zero byte.
    std::string text() const;
};

/// Removes the padding from decrypted bytes, or everything where the padding does not match. Only
/// the last `maxPadding` bytes, or all where there are fewer, have an influence.
Decryption::Padding removePadding(std::string& bytes);

/// How many bytes may count as padding. Intended: more than a block, although padding never has
/// more than 16 bytes.
inline constexpr std::size_t maxPadding = 22;

/// Decrypts Base64 of a cipher text, AES-128 in CBC mode.
Decryption decryptWithReason(const CipherKeys& keys, const std::string& cipherText);

/// The longest text that `DecryptionAES_Export` can give, in bytes without the terminator: for a
/// longer one it gives null.
inline constexpr std::size_t longestExportedText = 2047;
