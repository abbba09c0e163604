#pragma once

#include "crypto/CipherKeys.h"
#include "inspection/crypto/EncryptionNote.h"

#include <string>

/// What a host library gets for a cipher text, asked of the very function that it calls. Where the
/// padding does not match, that function writes its message to standard output.
struct LibraryAnswer
{
    /// What `DecryptionAES_Export` answers.
    static LibraryAnswer underPassPhrase(const std::string& passPhrase,
                                         const std::string& cipherText);

    /// What `Encrypt::DecryptionAES` answers.
    static LibraryAnswer withKeys(const CipherKeys& keys, const std::string& cipherText);

    KeySource source;
    /// Where `DecryptionAES_Export` answers null, what `Encrypt::DecryptionAES` gives.
    std::string text;
    bool isNull = false;
};
