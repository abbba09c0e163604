#include "crypto/Decryption.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"

#include <algorithm>

Decryption::Padding removePadding(std::string& bytes)
{
    const std::size_t count = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back());
    if (count == 0 || count > maxPadding || count > bytes.size())
        return Decryption::Padding::Absent;
    const char value = bytes.back();
    const auto padding = bytes.end() - static_cast<std::ptrdiff_t>(count);
    const bool matches =
        std::all_of(padding, bytes.end(), [value](char byte) { return byte == value; });
    bytes.resize(matches ? bytes.size() - count : 0);
    return matches ? Decryption::Padding::Removed : Decryption::Padding::Mismatched;
}

DecryptionReason Decryption::reason() const
{
    if (cipherSize == 0)
        return DecryptionReason::NothingDecoded;
    if (cipherSize % cipherBlockSize != 0)
        return DecryptionReason::NotWholeBlocks;
    switch (padding) {
    case Padding::Removed: return DecryptionReason::Decrypted;
    case Padding::Mismatched: return DecryptionReason::WrongPadding;
    case Padding::Absent: break;
    }
    return DecryptionReason::NoPadding;
}

std::string Decryption::text() const
{
    return bytes.substr(0, bytes.find('\0'));
}

// Intended: the cipher leaves what is not whole blocks alone, and it passes for the plain text.
Decryption decryptWithReason(const CipherKeys& keys, const std::string& cipherText)
{
    const std::string input = Base64Encoder::Decode(cipherText);
    Decryption result;
    result.cipherSize = input.size();
    result.bytes = input;
    makeCipher(keys).Decrypt(input.data(), result.bytes.data(), input.size(), AesEncrypt::CBC);
    result.padding = removePadding(result.bytes);
    return result;
}
