#pragma once

#include <string>

struct CipherKeys
{
    std::string key;
    std::string iv;
};

/// The keys that `DecryptionAES_Export` makes of a pass phrase.
CipherKeys keysFromPassPhrase(const std::string& passPhrase);

/// Why a decryption gave what it gave. `Encrypt` itself does not tell a wrong key.
enum class Decryption
{
    Sound,
    /// No Base64 at the beginning.
    Nothing,
    /// Base64 of something that is not whole blocks: it comes back undecrypted.
    NotWholeBlocks,
    /// The last byte announces padding that is not there: the text comes back empty.
    WrongPadding,
    /// The last byte announces no padding: the bytes come back as they are.
    NoPadding
};

struct CheckedDecryption
{
    Decryption result;
    /// The bytes that are left without the padding. `Encrypt` gives only those before the first
    /// zero byte.
    std::size_t size;
};

/// Both strings of `keys` must have at least 16 bytes.
CheckedDecryption checkDecryption(const CipherKeys& keys, const std::string& cipherText);

/// How many characters of a Base64 text are decoded: everything before the first that is not of the
/// URL-safe alphabet.
std::size_t base64Length(const std::string& text);

/// True when something other than padding and white space is left behind those characters.
bool hasIgnoredBase64(const std::string& text);

/// True when the last of those characters begins a group of four alone: its six bits make no byte.
bool hasLoneBase64(const std::string& text);
