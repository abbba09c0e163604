#pragma once

#include <QCoreApplication>

#include <cstdint>
#include <optional>
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
    /// The same for a text of `size` bytes whose first zero byte stands there, if there is one.
    static QString of(std::uint64_t size, std::optional<std::uint64_t> zeroByte, KeySource source);
};
