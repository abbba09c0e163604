#include "tests/crypto/Digests.h"

#include "tests/crypto/Bytes.h"

#include <openssl/evp.h>

std::string peerDigest(const char* name, std::string_view text)
{
    std::string digest(EVP_MAX_MD_SIZE, '\0');
    unsigned int size = 0;
    EVP_Digest(text.data(), text.size(), reinterpret_cast<unsigned char*>(digest.data()), &size,
               EVP_get_digestbyname(name), nullptr);
    return toHex(digest.substr(0, size));
}
