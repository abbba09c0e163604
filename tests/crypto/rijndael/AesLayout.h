#pragma once

#include "crypto/AesEncrypt.h"
#include "tests/crypto/ObjectLayout.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// The members of AesEncrypt in the order that callers outside rely upon.
struct AesLayout
{
    void* virtualTable;
    bool initialised;
    std::uint32_t encryptionKeys[15][8];
    std::uint32_t decryptionKeys[15][8];
    std::int32_t keyLength;
    std::int32_t blockSize;
    std::int32_t rounds;
    char initialChain[32];
    char chain[32];
    std::uint32_t keyScratch[8];
    std::uint32_t blockScratchA[8];
    std::uint32_t blockScratchT[8];
};

/// The bytes of the members of `cipher`; zeros between them, where there is nothing.
inline std::string bytesOfMembers(const AesEncrypt& cipher)
{
    constexpr std::size_t gap = offsetof(AesLayout, initialised) + sizeof(bool);
    std::string bytes = bytesOf(cipher);
    return bytes.replace(gap, offsetof(AesLayout, encryptionKeys) - gap,
                         offsetof(AesLayout, encryptionKeys) - gap, '\0');
}

/// What `cipher` holds.
inline AesLayout layoutOf(const AesEncrypt& cipher)
{
    return readLayout<AesLayout>(cipher);
}
