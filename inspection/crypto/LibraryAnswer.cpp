#include "inspection/crypto/LibraryAnswer.h"

#include "crypto/Encrypt.h"

#include <memory>

LibraryAnswer LibraryAnswer::underPassPhrase(const std::string& passPhrase,
                                             const std::string& cipherText)
{
    const std::unique_ptr<char[]> text(
        DecryptionAES_Export(passPhrase.c_str(), cipherText.c_str()));
    if (text)
        return {KeySource::PassPhrase, text.get()};
    return {KeySource::PassPhrase, withKeys(keysFromPassPhrase(passPhrase), cipherText).text, true};
}

LibraryAnswer LibraryAnswer::withKeys(const CipherKeys& keys, const std::string& cipherText)
{
    return {KeySource::KeyAndIv, Encrypt::DecryptionAES(keys.key, keys.iv, cipherText)};
}
