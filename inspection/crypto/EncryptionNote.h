#pragma once

#include <QCoreApplication>

#include <string>

/// Where the keys of an encryption or decryption come from.
enum class KeySource
{
    PassPhrase, ///< as `DecryptionAES_Export` takes it
    KeyAndIv
};

/// Words for what cannot be read back of an encrypted text.
class EncryptionNote
{
    Q_DECLARE_TR_FUNCTIONS(EncryptionNote)

public:
    /// Empty when all of the text can be read back.
    static QString of(const std::string& plain, KeySource source);
};
