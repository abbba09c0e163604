// Nothing here may include <iostream>, which would bring an initialiser of the streams of its own.

#include "tests/crypto/EarlyDecryption.h"

#include "crypto/Encrypt.h"

namespace {

// Neither is whole blocks: "x\1" has padding that matches, "x\3\2" has not.
[[gnu::init_priority(101)]] const EarlyDecryption early{Encrypt::DecryptionAES("k", "v", "eAE"),
                                                        Encrypt::DecryptionAES("k", "v", "eAMC")};

} // namespace

const EarlyDecryption& earlyDecryption()
{
    return early;
}
