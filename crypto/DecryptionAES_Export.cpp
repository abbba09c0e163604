// The exported decryption entry, in a file of its own: it alone needs a function of the host
// libraries.

#include "crypto/Encrypt.h"

#include "host/HostLibraries.h"

#include <memory>
#include <string>

namespace {

constexpr std::size_t arraySize = 2048;
constexpr std::size_t keySize = 32;
constexpr std::size_t ivSize = 16;

/// A text that does not fit the array is refused.
std::unique_ptr<char[]> copyOf(const std::string& text)
{
    if (text.size() >= arraySize)
        return nullptr;
    auto array = std::make_unique<char[]>(arraySize);
    strcpy_s(array.get(), static_cast<int>(text.size() + 1), text.c_str());
    return array;
}

// Intended: the cipher takes 16 bytes of the key, so key and IV are the same.
std::unique_ptr<char[]> decrypt(const std::string& passPhrase, const std::string& cipherText)
{
    const std::string hash = Encrypt::Sha256Encode(passPhrase);
    return copyOf(
        Encrypt::DecryptionAES(hash.substr(0, keySize), hash.substr(0, ivSize), cipherText));
}

} // namespace

char* DecryptionAES_Export(const char* passPhrase, const char* cipherText)
{
    if (!passPhrase || !cipherText)
        return nullptr;
    try {
        return decrypt(passPhrase, cipherText).release();
    } catch (...) {
        return nullptr;
    }
}
