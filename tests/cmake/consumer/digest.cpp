// Only the crypto library, not this file, needs anything of the host library.

#include "crypto/Encrypt.h"

#include <iostream>

int main()
{
    std::cout << Encrypt::Sha256Encode("abc") << '\n';
}
