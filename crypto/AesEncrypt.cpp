// The rounds are limited by chains of look-ups and XORs: the XORs are to stay in the order that
// they are written in, and the words in general registers.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC optimize("no-tree-reassoc", "no-tree-slp-vectorize")
#endif

#include "crypto/AesEncrypt.h"

#include "crypto/rijndael/RijndaelBitExtraction.h"
#include "crypto/rijndael/RijndaelModes.h"

#include <algorithm>
#include <functional>
#include <type_traits>

namespace {

using rijndael::Backward;
using rijndael::byteOf;
using rijndael::Forward;
using rijndael::Schedule;
using rijndael::Word;

bool isLength(int length)
{
    return length == 16 || length == 24 || length == 32;
}

/// Calls `function(cipher)` with the cipher for `blockSize`.
template <class Direction, class Function>
void withCipher(int blockSize, const Schedule& schedule, Function function)
{
    switch (blockSize) {
    case 16: function(rijndael::Cipher<Direction, 4>(schedule)); break;
    case 24: function(rijndael::Cipher<Direction, 6>(schedule)); break;
    default: function(rijndael::Cipher<Direction, 8>(schedule)); break;
    }
}

template <class Direction>
void processBlock(int blockSize, const Schedule& schedule, const char* in, char* out)
{
    withCipher<Direction>(blockSize, schedule, [=](const auto& cipher) {
        constexpr std::size_t columns = std::decay_t<decltype(cipher)>::columns;
        rijndael::store(out, cipher(rijndael::load<columns>(in), {}));
    });
}

/// SubBytes for each byte of a word of the key schedule.
Word subWord(Word word)
{
    const auto& table = rijndael::sBox;
    return Word{table[byteOf<0>(word)]} << 24 | Word{table[byteOf<1>(word)]} << 16 |
           Word{table[byteOf<2>(word)]} << 8 | Word{table[byteOf<3>(word)]};
}

/// InvMixColumns for one column.
Word invMixColumn(Word word)
{
    const auto& tables = rijndael::invMixColumnsTables;
    return tables[0][byteOf<0>(word)] ^ tables[1][byteOf<1>(word)] ^ tables[2][byteOf<2>(word)] ^
           tables[3][byteOf<3>(word)];
}

/// The next group of words of the key schedule from the last one.
template <int KeyWords>
void nextKeyWords(Word (&words)[KeyWords], rijndael::Byte constant)
{
    const Word last = words[KeyWords - 1];
    words[0] ^= subWord(last << 8 | last >> 24) ^ Word { constant } << 24;
    for (int i = 1; i < KeyWords; ++i)
        words[i] ^= KeyWords == 8 && i == 4 ? subWord(words[i - 1]) : words[i - 1];
}

bool overlap(const char* a, const char* b, unsigned long size)
{
    const std::less<const char*> before;
    return before(a, b + size) && before(b, a + size);
}

} // namespace

void AesEncrypt::MakeKey(const char* key, const char* chain, int keyLength, int blockSize)
{
    if (!key || !isLength(keyLength) || !isLength(blockSize))
        return;
    m_keyLength = keyLength;
    m_blockSize = blockSize;
    m_rounds = std::max(keyLength, blockSize) / 4 + 6;
    std::copy_n(chain, blockSize, m_initialChain);
    std::copy_n(chain, blockSize, m_chain);
    switch (keyLength) {
    case 16: expandKeyFor<4>(key); break;
    case 24: expandKeyFor<6>(key); break;
    default: expandKeyFor<8>(key); break;
    }
    m_initialised = true;
}

template <int KeyWords>
void AesEncrypt::expandKeyFor(const char* key)
{
    switch (m_blockSize) {
    case 16: expandKey<KeyWords, 4>(key); break;
    case 24: expandKey<KeyWords, 6>(key); break;
    default: expandKey<KeyWords, 8>(key); break;
    }
}

// Every word of the rows in use is written, so there is nothing to clear first.
template <int KeyWords, int Columns>
void AesEncrypt::expandKey(const char* key)
{
    constexpr int rounds = std::max(KeyWords, Columns) + 6;
    constexpr int total = (rounds + 1) * Columns;
    Word words[KeyWords];
    for (Word& word : words) {
        word = rijndael::loadWord(key);
        key += sizeof word;
    }
    for (int placed = 0, group = 0;; ++group) {
        for (int i = 0; i < KeyWords && placed < total; ++i, ++placed)
            m_encryptionKeys[placed / Columns][placed % Columns] = words[i];
        if (placed == total)
            break;
        nextKeyWords(words, rijndael::roundConstants[static_cast<std::size_t>(group)]);
    }
    std::copy_n(words, KeyWords, m_keyScratch);
    invertSchedule<Columns>();
}

/// The decryption rows are the encryption rows backwards, the inner ones through InvMixColumns.
template <int Columns>
void AesEncrypt::invertSchedule()
{
    std::copy_n(m_encryptionKeys[m_rounds], Columns, m_decryptionKeys[0]);
    for (int row = 1; row < m_rounds; ++row) {
        std::transform(m_encryptionKeys[m_rounds - row], m_encryptionKeys[m_rounds - row] + Columns,
                       m_decryptionKeys[row], invMixColumn);
    }
    std::copy_n(m_encryptionKeys[0], Columns, m_decryptionKeys[m_rounds]);
}

rijndael::Schedule AesEncrypt::encryption()
{
    return {m_encryptionKeys, static_cast<std::size_t>(m_rounds), m_blockScratchA, m_blockScratchT};
}

rijndael::Schedule AesEncrypt::decryption()
{
    return {m_decryptionKeys, static_cast<std::size_t>(m_rounds), m_blockScratchA, m_blockScratchT};
}

void AesEncrypt::EncryptBlock(const char* in, char* out)
{
    if (m_initialised && m_blockSize == 16)
        DefEncryptBlock(in, out);
    else if (m_initialised)
        processBlock<Forward>(m_blockSize, encryption(), in, out);
}

void AesEncrypt::DecryptBlock(const char* in, char* out)
{
    if (m_initialised && m_blockSize == 16)
        DefDecryptBlock(in, out);
    else if (m_initialised)
        processBlock<Backward>(m_blockSize, decryption(), in, out);
}

void AesEncrypt::DefEncryptBlock(const char* in, char* out)
{
    if (m_initialised)
        processBlock<Forward>(16, encryption(), in, out);
}

void AesEncrypt::DefDecryptBlock(const char* in, char* out)
{
    if (m_initialised)
        processBlock<Backward>(16, decryption(), in, out);
}

void AesEncrypt::Xor(char* buffer, const char* other)
{
    if (!m_initialised)
        return;
    std::transform(buffer, buffer + m_blockSize, other, buffer,
                   [](char a, char b) { return static_cast<char>(a ^ b); });
}

// Intended: neither "Object not Initialized" nor "Data not multiple of Block Size" is raised or
// shown; the call is ignored.
bool AesEncrypt::isWholeBlocks(unsigned long n) const
{
    return m_initialised && n != 0 && n % static_cast<unsigned long>(m_blockSize) == 0;
}

// Intended: every mode but CBC and CFB is ECB.
void AesEncrypt::Encrypt(const char* in, char* out, unsigned long n, int mode)
{
    if (!isWholeBlocks(n))
        return;
    if (overlap(in, out, n))
        return encryptInOrder(in, out, n, mode);
    const rijndael::Buffers buffers{in, out, n / static_cast<unsigned long>(m_blockSize)};
    if (m_blockSize == 16 && mode == CBC && rijndael::hasBitExtraction())
        return rijndael::cbcEncrypt(
            rijndael::Cipher<rijndael::ForwardByBitExtraction, 4>(encryption()), buffers, m_chain);
    withCipher<Forward>(m_blockSize, encryption(), [&](const auto& cipher) {
        switch (mode) {
        case CBC: return rijndael::cbcEncrypt(cipher, buffers, m_chain);
        case CFB: return rijndael::cfbEncrypt(cipher, buffers, m_chain);
        default: return rijndael::ecb(cipher, buffers);
        }
    });
}

void AesEncrypt::Decrypt(const char* in, char* out, unsigned long n, int mode)
{
    if (!isWholeBlocks(n))
        return;
    if (overlap(in, out, n))
        return decryptInOrder(in, out, n, mode);
    const rijndael::Buffers buffers{in, out, n / static_cast<unsigned long>(m_blockSize)};
    if (mode == CFB) // which decrypts with the forward cipher
        return withCipher<Forward>(m_blockSize, encryption(), [&](const auto& cipher) {
            rijndael::cfbDecrypt(cipher, buffers, m_chain);
        });
    withCipher<Backward>(m_blockSize, decryption(), [&](const auto& cipher) {
        if (mode == CBC)
            rijndael::cbcDecrypt(cipher, buffers, m_chain);
        else
            rijndael::ecb(cipher, buffers);
    });
}

// Overlapping buffers are taken one block at a time and one step at a time, so that their result
// does not depend on how many blocks the fast path has in flight.
void AesEncrypt::encryptInOrder(const char* in, char* out, unsigned long n, int mode)
{
    for (const char* end = in + n; in != end; in += m_blockSize, out += m_blockSize) {
        if (mode == CBC) {
            Xor(m_chain, in);
            EncryptBlock(m_chain, out);
        } else if (mode == CFB) {
            EncryptBlock(m_chain, out);
            Xor(out, in);
        } else {
            EncryptBlock(in, out);
            continue;
        }
        std::copy_n(out, m_blockSize, m_chain);
    }
}

// Intended: the chain is taken from the input after the output has been written.
void AesEncrypt::decryptInOrder(const char* in, char* out, unsigned long n, int mode)
{
    for (const char* end = in + n; in != end; in += m_blockSize, out += m_blockSize) {
        if (mode == CBC) {
            DecryptBlock(in, out);
            Xor(out, m_chain);
        } else if (mode == CFB) {
            EncryptBlock(m_chain, out);
            Xor(out, in);
        } else {
            DecryptBlock(in, out);
            continue;
        }
        std::copy_n(in, m_blockSize, m_chain);
    }
}
