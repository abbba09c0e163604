// Encrypts a text and prints what the exported entry makes of it. Only the crypto library, not this
// file, needs anything of the host library.

#include "crypto/Encrypt.h"

#include <iostream>
#include <memory>

int main()
{
    const std::string key = Encrypt::Sha256Encode("pass phrase").substr(0, 16);
    const std::string cipher = Encrypt::EncryptionAES(key, key, "plain text");
    const std::unique_ptr<char[]> plain(DecryptionAES_Export("pass phrase", cipher.c_str()));
    std::cout << plain.get() << '\n';
}
