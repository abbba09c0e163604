// The exported decryption entry, in a file of its own: it alone needs a function of the host
// libraries.

#include "crypto/Encrypt.h"

#include "crypto/Decryption.h"
#include "host/HostLibraries.h"

#include <memory>
#include <string>
#include <utility>

namespace {

/// A text that does not fit the array is refused.
std::unique_ptr<char[]> copyOf(const std::string& text)
{
    if (text.size() > longestExportedText)
        return nullptr;
    auto array = std::make_unique<char[]>(longestExportedText + 1);
    strcpy_s(array.get(), static_cast<int>(text.size() + 1), text.c_str());
    return array;
}

std::unique_ptr<char[]> decrypt(const std::string& passPhrase, const std::string& cipherText)
{
    CipherKeys keys = keysFromPassPhrase(passPhrase);
    return copyOf(Encrypt::DecryptionAES(std::move(keys.key), std::move(keys.iv), cipherText));
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
