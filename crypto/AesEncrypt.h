#pragma once

#include <cstdint>

namespace rijndael {
struct Schedule;
}

/// Rijndael with keys and blocks of 16, 24 or 32 bytes each (16-byte blocks are AES), with a
/// chaining register and the modes ECB, CBC and CFB over whole blocks.
///
/// Nothing reports failure: an invalid call returns without effect. Keys, chains and blocks are raw
/// bytes; no operation looks for or writes a terminator. No pointer but a key's is checked: the
/// others must not be null where the call has an effect. Key material is not wiped. Use one object
/// from one thread at a time. The order of the members is relied upon by callers outside.
class AesEncrypt
{
public:
    /// Every other number is ECB too.
    enum Mode : int
    {
        ECB = 0,
        CBC = 1,
        CFB = 2 ///< with feedback of whole blocks
    };

    /// Not initialised: every operation but `MakeKey` does nothing.
    AesEncrypt() = default;
    virtual ~AesEncrypt() = default;

    AesEncrypt(const AesEncrypt&) = default;
    AesEncrypt& operator=(const AesEncrypt&) = default;

    /// Sets key and chain (IV). Reads `keyLength` bytes of `key` and `blockSize` bytes of `chain`,
    /// both of which are 16, 24 or 32. With another number or a null key the object stays as it
    /// was, usable with its earlier key. `chain` must not be null.
    void MakeKey(const char* key, const char* chain, int keyLength = 16, int blockSize = 16);

    /// Encrypts one block from `in` to `out`, which may be the same. Leaves the chain alone.
    void EncryptBlock(const char* in, char* out);

    /// Decrypts one block from `in` to `out`, which may be the same. Leaves the chain alone.
    void DecryptBlock(const char* in, char* out);

    /// `EncryptBlock` for 16-byte blocks.
    void DefEncryptBlock(const char* in, char* out);

    /// `DecryptBlock` for 16-byte blocks.
    void DefDecryptBlock(const char* in, char* out);

    /// XORs one block of `other` into `buffer`.
    void Xor(char* buffer, const char* other);

    /// Encrypts `n` bytes from `in` to `out`; nothing where `n` is not a multiple of the block
    /// size. CBC and CFB go on from the chain that the last call left. `out` may be `in` for ECB
    /// and CBC.
    void Encrypt(const char* in, char* out, unsigned long n, int mode);

    /// Decrypts `n` bytes, likewise. `out` may be `in` for ECB only.
    void Decrypt(const char* in, char* out, unsigned long n, int mode);

private:
    static constexpr int maxRounds = 14;
    static constexpr int maxColumns = 8;
    static constexpr int maxBlockSize = 4 * maxColumns;

    template <int KeyWords>
    void expandKeyFor(const char* key);
    template <int KeyWords, int Columns>
    void expandKey(const char* key);
    template <int Columns>
    void invertSchedule();
    rijndael::Schedule encryption();
    rijndael::Schedule decryption();
    bool isWholeBlocks(unsigned long n) const;
    void encryptInOrder(const char* in, char* out, unsigned long n, int mode);
    void decryptInOrder(const char* in, char* out, unsigned long n, int mode);

    bool m_initialised = false;
    std::uint32_t m_encryptionKeys[maxRounds + 1][maxColumns] = {};
    std::uint32_t m_decryptionKeys[maxRounds + 1][maxColumns] = {};
    std::int32_t m_keyLength = 0;
    std::int32_t m_blockSize = 0;
    std::int32_t m_rounds = 0;
    char m_initialChain[maxBlockSize] = {};
    char m_chain[maxBlockSize] = {};
    std::uint32_t m_keyScratch[maxColumns] = {};
    std::uint32_t m_blockScratchA[maxColumns] = {};
    std::uint32_t m_blockScratchT[maxColumns] = {};
};
