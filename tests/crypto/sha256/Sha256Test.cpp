#include "crypto/Sha256.h"

#include "crypto/sha256/Sha256Compression.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/Digests.h"
#include "tests/crypto/VectorFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace {

std::string digestOf(const std::string& text)
{
    std::vector<unsigned char> digest(3, 7);
    EXPECT_TRUE(Sha256().encrypt(toVector(text), &digest));
    return toHex(toString(digest));
}

class Sha256NistVectors : public testing::TestWithParam<const char*>
{
};

TEST_P(Sha256NistVectors, AreReproduced)
{
    const std::vector<VectorRecord> records = readVectors(GetParam());
    std::size_t checked = 0;
    for (const VectorRecord& record : records) {
        if (record.count("Msg") == 0)
            continue;
        const std::size_t bits = std::stoul(record.at("Len"));
        EXPECT_EQ(record.at("MD"), digestOf(fromHex(record.at("Msg")).substr(0, bits / 8)))
            << GetParam() << ", length " << bits;
        ++checked;
    }
    EXPECT_GE(checked, 60U);
}

INSTANTIATE_TEST_SUITE_P(Files, Sha256NistVectors,
                         testing::Values("hashes/SHA2/SHA256ShortMsg.rsp",
                                         "hashes/SHA2/SHA256LongMsg.rsp"));

/// A thousand digests, each of the three digests before it.
std::string monteCarloRound(const std::string& seed)
{
    Sha256 sha;
    std::vector<unsigned char> window;
    for (int i = 0; i < 3; ++i)
        window.insert(window.end(), seed.begin(), seed.end());
    std::vector<unsigned char> digest;
    for (int i = 0; i < 1000; ++i) {
        sha.encrypt(window, &digest);
        window.erase(window.begin(), window.begin() + 32);
        window.insert(window.end(), digest.begin(), digest.end());
    }
    return toString(digest);
}

TEST(Sha256Nist, MonteCarloIsReproduced)
{
    const std::vector<VectorRecord> records = readVectors("hashes/SHA2/SHA256Monte.rsp");
    ASSERT_GE(records.size(), 100U);
    std::string seed = fromHex(records.front().at("Seed"));
    for (std::size_t i = 1; i < records.size(); ++i) {
        seed = monteCarloRound(seed);
        ASSERT_EQ(records[i].at("MD"), toHex(seed)) << "round " << i;
    }
}

TEST(Sha256Encrypt, EqualsOpenSslForEveryShortLength)
{
    RandomBytes random(5);
    for (std::size_t length = 0; length <= 260; ++length) {
        const std::string text = random(length);
        EXPECT_EQ(peerDigest("SHA256", text), digestOf(text)) << length << " bytes";
    }
}

TEST(Sha256Encrypt, EqualsOpenSslForLongMessages)
{
    RandomBytes random(6);
    for (const std::size_t length : {4095U, 4096U, 65591U, 1000003U}) {
        const std::string text = random(length);
        EXPECT_EQ(peerDigest("SHA256", text), digestOf(text)) << length << " bytes";
    }
}

TEST(Sha256Encrypt, RefusesANullDigest)
{
    EXPECT_FALSE(Sha256().encrypt(toVector("abc"), nullptr));
}

TEST(Sha256Encrypt, LeavesObjectAndMessageFitForReuse)
{
    Sha256 sha;
    const std::vector<unsigned char> message = toVector("abc");
    std::vector<unsigned char> first;
    std::vector<unsigned char> second;
    sha.encrypt(message, &first);
    sha.encrypt(message, &second);
    EXPECT_EQ(first, second);
    EXPECT_EQ("abc", toString(message));
}

TEST(Sha256Encrypt, MayReplaceTheMessage)
{
    std::vector<unsigned char> bytes = toVector("abc");
    EXPECT_TRUE(Sha256().encrypt(bytes, &bytes));
    EXPECT_EQ(peerDigest("SHA256", "abc"), toHex(toString(bytes)));
}

TEST(Sha256HexDigest, OfAbcIsInUpperCase)
{
    EXPECT_EQ("BA7816BF8F01CFEA414140DE5DAE2223B00361A396177A9CB410FF61F20015AD",
              Sha256().getHexMessageDigest("abc"));
}

TEST(Sha256HexDigest, OfAnEmptyTextIsEmpty)
{
    EXPECT_EQ("", Sha256().getHexMessageDigest(""));
}

TEST(Sha256HexDigest, CoversEmbeddedZerosAndHighBytes)
{
    RandomBytes random(7);
    for (const std::size_t length : {1U, 55U, 56U, 63U, 64U, 119U}) {
        std::string text = random(length);
        text.front() = '\0';
        std::string expected = peerDigest("SHA256", text);
        std::transform(expected.begin(), expected.end(), expected.begin(),
                       [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        EXPECT_EQ(expected, Sha256().getHexMessageDigest(text));
    }
}

TEST(Sha256Compression, HardwareAndPortablePathAgree)
{
    if (!sha256::hasHardware())
        GTEST_SKIP() << "this processor has no SHA-256 instructions";
    RandomBytes random(8);
    for (std::size_t blocks = 0; blocks < 20; ++blocks) {
        const std::vector<unsigned char> message = toVector(random(64 * blocks));
        std::uint32_t portable[8];
        std::copy_n(random(32).data(), 32, reinterpret_cast<char*>(portable));
        std::uint32_t hardware[8];
        std::copy_n(portable, 8, hardware);
        sha256::compressPortable(portable, message.data(), blocks);
        sha256::compressHardware(hardware, message.data(), blocks);
        EXPECT_TRUE(std::equal(portable, portable + 8, hardware)) << blocks << " blocks";
    }
}

TEST(Sha256Compression, PortablePathIsTheStagesToo)
{
    const std::vector<unsigned char> block = toVector(RandomBytes(9)(64));
    std::uint32_t portable[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<std::uint32_t> staged(portable, portable + 8);
    sha256::compressPortable(portable, block.data(), 1);
    std::vector<std::uint32_t> words;
    Sha256().structureWords(block, &words);
    Sha256().transform(words, &staged);
    EXPECT_EQ(staged, std::vector<std::uint32_t>(portable, portable + 8));
}

} // namespace
