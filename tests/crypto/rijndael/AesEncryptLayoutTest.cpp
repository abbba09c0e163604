#include "crypto/AesEncrypt.h"

#include "crypto/rijndael/RijndaelTables.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/MemberSlot.h"
#include "tests/crypto/rijndael/AesLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace {

static_assert(sizeof(AesEncrypt) == 1144);
static_assert(offsetof(AesLayout, initialised) == 8);
static_assert(offsetof(AesLayout, encryptionKeys) == 12);
static_assert(offsetof(AesLayout, decryptionKeys) == 492);
static_assert(offsetof(AesLayout, keyLength) == 972);
static_assert(offsetof(AesLayout, initialChain) == 984);
static_assert(offsetof(AesLayout, blockScratchT) == 1112);
static_assert(std::has_virtual_destructor_v<AesEncrypt>);

TEST(AesEncryptLayout, OnlyTheDestructorIsVirtual)
{
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::MakeKey));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::EncryptBlock));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::DecryptBlock));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::DefEncryptBlock));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::DefDecryptBlock));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::Xor));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::Encrypt));
    EXPECT_EQ(-1, virtualSlot(&AesEncrypt::Decrypt));
}

template <class Field>
bool isZero(const Field& field)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&field);
    return std::all_of(bytes, bytes + sizeof field, [](unsigned char byte) { return byte == 0; });
}

TEST(AesEncryptLayout, EverythingIsZeroAfterConstruction)
{
    alignas(AesEncrypt) unsigned char storage[sizeof(AesEncrypt)];
    std::fill(std::begin(storage), std::end(storage), static_cast<unsigned char>(0xcc));
    auto* cipher = new (storage) AesEncrypt;
    const AesLayout layout = layoutOf(*cipher);
    EXPECT_FALSE(layout.initialised);
    EXPECT_TRUE(isZero(layout.encryptionKeys) && isZero(layout.decryptionKeys));
    EXPECT_TRUE(isZero(layout.keyLength) && isZero(layout.blockSize) && isZero(layout.rounds));
    EXPECT_TRUE(isZero(layout.initialChain) && isZero(layout.chain) && isZero(layout.keyScratch));
    EXPECT_TRUE(isZero(layout.blockScratchA) && isZero(layout.blockScratchT));
    cipher->~AesEncrypt();
}

struct Sizes
{
    int keyLength;
    int blockSize;
    int rounds;
};

class AesEncryptSchedule : public testing::TestWithParam<Sizes>
{
protected:
    void SetUp() override { cipher.MakeKey(key.data(), chain.data(), m_key, m_block); }

    /// The schedule as one run of words, in the textbook's way.
    std::vector<std::uint32_t> expandedWords() const { return expandedWords(scheduleWords); }

    std::vector<std::uint32_t> expandedWords(std::size_t count) const
    {
        std::vector<std::uint32_t> words;
        for (std::size_t i = 0; i < keyWords; ++i)
            words.push_back(bigEndian(key.substr(4 * i, 4)));
        for (std::size_t i = keyWords; i < count; ++i)
            words.push_back(words[i - keyWords] ^ changed(words.back(), i));
        return words;
    }

    std::uint32_t changed(std::uint32_t word, std::size_t i) const
    {
        if (i % keyWords == 0) {
            const std::uint32_t constant = rijndael::roundConstants[i / keyWords - 1];
            return substituted(word << 8 | word >> 24) ^ constant << 24;
        }
        return keyWords == 8 && i % 8 == 4 ? substituted(word) : word;
    }

    static std::uint32_t substituted(std::uint32_t word)
    {
        std::string bytes;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(rijndael::sBox[word >> shift & 0xff]);
        return bigEndian(bytes);
    }

    static std::uint32_t bigEndian(const std::string& bytes)
    {
        return static_cast<std::uint32_t>(std::stoul(toHex(bytes), nullptr, 16));
    }

    /// The MixColumns image, which undoes what decryption keys have been through.
    static std::uint32_t mixed(std::uint32_t word)
    {
        std::uint32_t result = 0;
        for (int row = 0; row < 4; ++row) {
            const auto byte = static_cast<rijndael::Byte>(word >> (24 - 8 * row));
            const auto column = rijndael::timesColumn(byte, {2, 1, 1, 3});
            result ^= rijndael::rotateRight(column, 8 * row);
        }
        return result;
    }

    /// One 16-byte block by the textbook's rounds, under the first four words of each row.
    std::string encryptedByFirstColumns(std::string state) const
    {
        const AesLayout layout = layoutOf(cipher);
        addRow(state, layout.encryptionKeys[0]);
        for (std::size_t row = 1; row <= rounds; ++row) {
            state = shifted(state);
            for (std::size_t i = 0; i < 16; i += 4)
                storeWord(state, i, roundWord(state, i, row == rounds));
            addRow(state, layout.encryptionKeys[row]);
        }
        return state;
    }

    static std::uint32_t roundWord(const std::string& state, std::size_t place, bool isLast)
    {
        const std::uint32_t word = substituted(bigEndian(state.substr(place, 4)));
        return isLast ? word : mixed(word);
    }

    /// Row r of the four columns, r bytes to the left.
    static std::string shifted(const std::string& state)
    {
        std::string result;
        for (std::size_t i = 0; i < 16; ++i)
            result += state[(i + 4 * (i % 4)) % 16];
        return result;
    }

    static void addRow(std::string& state, const std::uint32_t* row)
    {
        for (std::size_t i = 0; i < 16; i += 4)
            storeWord(state, i, bigEndian(state.substr(i, 4)) ^ row[i / 4]);
    }

    static void storeWord(std::string& state, std::size_t place, std::uint32_t word)
    {
        for (std::size_t i = 0; i < 4; ++i)
            state[place + i] = static_cast<char>(word >> (24 - 8 * i));
    }

    const std::string key = RandomBytes(1)(32);
    const std::string chain = RandomBytes(2)(40);
    const int m_key = GetParam().keyLength;
    const int m_block = GetParam().blockSize;
    const std::size_t keyWords = static_cast<std::size_t>(m_key) / 4;
    const std::size_t columns = static_cast<std::size_t>(m_block) / 4;
    const std::size_t rounds = static_cast<std::size_t>(GetParam().rounds);
    const std::size_t scheduleWords = columns * (rounds + 1);
    AesEncrypt cipher;
};

TEST_P(AesEncryptSchedule, SizesAndRoundsAreStored)
{
    const AesLayout layout = layoutOf(cipher);
    EXPECT_TRUE(layout.initialised);
    EXPECT_EQ(m_key, layout.keyLength);
    EXPECT_EQ(m_block, layout.blockSize);
    EXPECT_EQ(GetParam().rounds, layout.rounds);
}

TEST_P(AesEncryptSchedule, ExactlyOneBlockOfTheChainIsCopiedTwice)
{
    const AesLayout layout = layoutOf(cipher);
    const auto size = static_cast<std::size_t>(m_block);
    const std::string expected = chain.substr(0, size) + std::string(32 - size, '\0');
    EXPECT_EQ(expected, std::string(layout.initialChain, 32));
    EXPECT_EQ(expected, std::string(layout.chain, 32));
}

TEST_P(AesEncryptSchedule, EncryptionWordsAreInRowsOfOneBlock)
{
    const AesLayout layout = layoutOf(cipher);
    const std::vector<std::uint32_t> words = expandedWords();
    for (std::size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(words[i], layout.encryptionKeys[i / columns][i % columns]) << "word " << i;
}

TEST_P(AesEncryptSchedule, DecryptionRowsAreTheReverseWithInnerRowsUnmixed)
{
    const AesLayout layout = layoutOf(cipher);
    for (std::size_t row = 0; row <= rounds; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::uint32_t word = layout.decryptionKeys[row][column];
            const bool isInner = row > 0 && row < rounds;
            EXPECT_EQ(layout.encryptionKeys[rounds - row][column], isInner ? mixed(word) : word);
        }
    }
}

TEST_P(AesEncryptSchedule, NothingIsWrittenBeyondTheWordsInUse)
{
    const AesLayout layout = layoutOf(cipher);
    for (std::size_t row = 0; row < 15; ++row) {
        for (std::size_t column = row <= rounds ? columns : 0; column < 8; ++column) {
            EXPECT_EQ(0U, layout.encryptionKeys[row][column]);
            EXPECT_EQ(0U, layout.decryptionKeys[row][column]);
        }
    }
}

// The last group is computed as a whole, although the schedule may take only some of its words.
TEST_P(AesEncryptSchedule, KeyScratchHoldsTheLastGroupOfKeyWords)
{
    const std::size_t groups = (scheduleWords + keyWords - 1) / keyWords;
    const std::vector<std::uint32_t> words = expandedWords(groups * keyWords);
    const AesLayout layout = layoutOf(cipher);
    for (std::size_t i = 0; i < 8; ++i) {
        const std::uint32_t expected = i < keyWords ? words[words.size() - keyWords + i] : 0;
        EXPECT_EQ(expected, layout.keyScratch[i]) << "word " << i;
    }
}

TEST_P(AesEncryptSchedule, RefusedKeyChangesNothing)
{
    const std::string before = bytesOfMembers(cipher);
    const std::string other(40, 'o');
    cipher.MakeKey(nullptr, other.data(), 16, 16);
    cipher.MakeKey(other.data(), other.data(), 20, 16);
    cipher.MakeKey(other.data(), other.data(), 16, 20);
    EXPECT_EQ(toHex(before), toHex(bytesOfMembers(cipher)));
}

TEST_P(AesEncryptSchedule, LaterKeyReplacesSizesRoundsAndBothChains)
{
    AesEncrypt reused;
    reused.MakeKey(std::string(32, 'x').data(), std::string(32, 'y').data(), 32, 32);
    reused.MakeKey(key.data(), chain.data(), m_key, m_block);
    const AesLayout expected = layoutOf(cipher);
    const AesLayout layout = layoutOf(reused);
    EXPECT_EQ(expected.rounds, layout.rounds);
    const auto size = static_cast<std::size_t>(m_block);
    EXPECT_EQ(chain.substr(0, size), std::string(layout.chain, size));
    EXPECT_EQ(chain.substr(0, size), std::string(layout.initialChain, size));
    const std::vector<std::uint32_t> words = expandedWords();
    for (std::size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(words[i], layout.encryptionKeys[i / columns][i % columns]);
}

// The 16-byte path works on locals; the general one uses the object's scratch words.
TEST_P(AesEncryptSchedule, BlockScratchIsLeftAloneBy16ByteBlocksOnly)
{
    const std::string in = RandomBytes(3)(96);
    for (int direction = 0; direction < 2; ++direction) {
        AesEncrypt fresh;
        fresh.MakeKey(key.data(), chain.data(), m_key, m_block);
        GuardedBuffer out(96);
        if (direction == 0)
            fresh.EncryptBlock(in.data(), out.data());
        else
            fresh.DecryptBlock(in.data(), out.data());
        const AesLayout layout = layoutOf(fresh);
        EXPECT_EQ(m_block == 16, isZero(layout.blockScratchA));
        EXPECT_EQ(m_block == 16, isZero(layout.blockScratchT));
    }
}

TEST_P(AesEncryptSchedule, BuffersOf16ByteBlocksLeaveTheBlockScratchAlone)
{
    const std::string in = RandomBytes(3)(96);
    GuardedBuffer out(96);
    for (const int mode : {0, 1, 2}) {
        cipher.Encrypt(in.data(), out.data(), 96, mode);
        cipher.Decrypt(in.data(), out.data(), 96, mode);
    }
    EXPECT_EQ(m_block == 16, isZero(layoutOf(cipher).blockScratchA));
    EXPECT_EQ(m_block == 16, isZero(layoutOf(cipher).blockScratchT));
}

// They take the first four words of each row, and no scratch words, whatever the block size.
TEST_P(AesEncryptSchedule, Default16ByteOperationsTakeSixteenBytesOfAnySetUp)
{
    const std::string in = RandomBytes(4)(16);
    const std::string before = bytesOfMembers(cipher);
    GuardedBuffer encrypted(16);
    cipher.DefEncryptBlock(in.data(), encrypted.data());
    EXPECT_EQ(toHex(encryptedByFirstColumns(in)), toHex(encrypted.content()));
    EXPECT_TRUE(encrypted.isIntact());
    GuardedBuffer decrypted(16);
    cipher.DefDecryptBlock(encrypted.data(), decrypted.data());
    EXPECT_EQ(toHex(in), toHex(decrypted.content()));
    EXPECT_TRUE(decrypted.isIntact());
    EXPECT_EQ(toHex(before), toHex(bytesOfMembers(cipher)));
}

INSTANTIATE_TEST_SUITE_P(AllSizes, AesEncryptSchedule,
                         testing::Values(Sizes{16, 16, 10}, Sizes{16, 24, 12}, Sizes{16, 32, 14},
                                         Sizes{24, 16, 12}, Sizes{24, 24, 12}, Sizes{24, 32, 14},
                                         Sizes{32, 16, 14}, Sizes{32, 24, 14}, Sizes{32, 32, 14}));

// FIPS-197, appendix A.
TEST(AesEncryptLayout, ScheduleHasThePublishedWords)
{
    AesEncrypt cipher;
    const std::string key = fromHex("2b7e151628aed2a6abf7158809cf4f3c");
    cipher.MakeKey(key.data(), key.data(), 16, 16);
    const AesLayout layout = layoutOf(cipher);
    EXPECT_EQ(0x2b7e1516U, layout.encryptionKeys[0][0]);
    EXPECT_EQ(0xa0fafe17U, layout.encryptionKeys[1][0]);
    EXPECT_EQ(0xb6630ca6U, layout.encryptionKeys[10][3]);
    EXPECT_EQ(0xb6630ca6U, layout.decryptionKeys[0][3]);
    EXPECT_EQ(0x09cf4f3cU, layout.decryptionKeys[10][3]);
    EXPECT_EQ(0x0c7b5a63U, layout.decryptionKeys[1][0]);
    EXPECT_EQ(0xb6630ca6U, layout.keyScratch[3]);
    EXPECT_EQ(0U, layout.keyScratch[4]);
}

} // namespace
