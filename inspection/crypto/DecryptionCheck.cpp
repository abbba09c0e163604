#include "inspection/crypto/DecryptionCheck.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/Encrypt.h"

#include <algorithm>

namespace {

constexpr int blockSize = 16;
constexpr std::size_t maxPadding = 22; // what Encrypt accepts

std::string decryptBlocks(const CipherKeys& keys, const std::string& bytes)
{
    AesEncrypt cipher;
    cipher.MakeKey(keys.key.data(), keys.iv.data(), blockSize, blockSize);
    std::string plain(bytes.size(), '\0');
    cipher.Decrypt(bytes.data(), plain.data(), bytes.size(), AesEncrypt::CBC);
    return plain;
}

CheckedDecryption checkPadding(const std::string& plain)
{
    const std::size_t count = static_cast<unsigned char>(plain.back());
    if (count == 0 || count > maxPadding || count > plain.size())
        return {Decryption::NoPadding, plain.size()};
    const auto padding = plain.end() - static_cast<std::ptrdiff_t>(count);
    const auto different = [&plain](char byte) { return byte != plain.back(); };
    if (std::any_of(padding, plain.end(), different))
        return {Decryption::WrongPadding, 0};
    return {Decryption::Sound, plain.size() - count};
}

} // namespace

CipherKeys keysFromPassPhrase(const std::string& passPhrase)
{
    const std::string hash = Encrypt::Sha256Encode(passPhrase);
    return {hash.substr(0, 32), hash.substr(0, 16)};
}

CheckedDecryption checkDecryption(const CipherKeys& keys, const std::string& cipherText)
{
    const std::string bytes = Base64Encoder::Decode(cipherText);
    if (bytes.empty())
        return {Decryption::Nothing, 0};
    if (bytes.size() % blockSize != 0) // what passes for padding is taken off all the same
        return {Decryption::NotWholeBlocks, checkPadding(bytes).size};
    return checkPadding(decryptBlocks(keys, bytes));
}

std::size_t base64Length(const std::string& text)
{
    constexpr const char* alphabet =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    return std::min(text.find_first_not_of(alphabet), text.size());
}

bool hasIgnoredBase64(const std::string& text)
{
    return text.find_first_not_of("= \t\r\n", base64Length(text)) != std::string::npos;
}

bool hasLoneBase64(const std::string& text)
{
    return base64Length(text) % 4 == 1;
}
