#pragma once

#include <string>

/// What decryption gave before any ordinary static object of the program was constructed.
struct EarlyDecryption
{
    std::string plain;
    std::string mismatched;
};

const EarlyDecryption& earlyDecryption();
