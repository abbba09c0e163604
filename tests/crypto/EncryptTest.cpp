#include "crypto/Encrypt.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/MD5.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/CapturedOutput.h"
#include "tests/crypto/Digests.h"
#include "tests/crypto/EarlyDecryption.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <memory>

namespace {

const std::string key = "0123456789abcdef";
const std::string iv = "fedcba9876543210";
const std::string message = "去填充失败！解密出错！！\n";

/// The cipher text of whole blocks as they are, without padding.
std::string cipherOf(const std::string& blocks, const std::string& cipherKey = key,
                     const std::string& cipherIv = iv)
{
    AesEncrypt cipher;
    cipher.MakeKey(cipherKey.data(), cipherIv.data(), 16, 16);
    std::string out(blocks.size(), '\0');
    cipher.Encrypt(blocks.data(), out.data(), blocks.size(), AesEncrypt::CBC);
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(out.data()),
                                 static_cast<unsigned int>(out.size()));
}

/// The same operation by OpenSSL.
std::string peerEncryption(const std::string& plain)
{
    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
        EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
    const auto bytes = [](const std::string& text) {
        return reinterpret_cast<const unsigned char*>(text.data());
    };
    EVP_EncryptInit_ex(context.get(), EVP_aes_128_cbc(), nullptr, bytes(key), bytes(iv));
    std::vector<unsigned char> out(plain.size() + 16);
    int length = 0;
    int rest = 0;
    EVP_EncryptUpdate(context.get(), out.data(), &length, bytes(plain),
                      static_cast<int>(plain.size()));
    EVP_EncryptFinal_ex(context.get(), out.data() + length, &rest);
    return Base64Encoder::Encode(out.data(), static_cast<unsigned int>(length + rest));
}

std::string withoutZeros(std::string bytes)
{
    for (char& byte : bytes) {
        if (byte == '\0')
            byte = '1';
    }
    return bytes;
}

TEST(Sha256Encode, IsAnUnpaddedFingerprint)
{
    EXPECT_EQ("ungWv48Bz-pBQUDeXa4iI7ADYaOWF3qctBD_YfIAFa0", Encrypt::Sha256Encode("abc"));
    EXPECT_EQ(43U, Encrypt::Sha256Encode(std::string(1000, 'x')).size());
}

TEST(Sha256Encode, OfAnEmptyTextIsEmpty)
{
    EXPECT_EQ("", Encrypt::Sha256Encode(""));
}

TEST(Sha256Encode, EndsTheTextAtItsFirstZeroByte)
{
    EXPECT_EQ(Encrypt::Sha256Encode("abc"), Encrypt::Sha256Encode(std::string("abc\0def", 7)));
    EXPECT_EQ(Encrypt::Sha256Encode("abc"), Encrypt::Sha256Encode(std::string("abc\0", 4)));
}

// The digest of no bytes, which is not what an empty text gives.
TEST(Sha256Encode, OfALeadingZeroByteIsTheDigestOfNothing)
{
    const std::string digest = fromHex(peerDigest("SHA256", ""));
    const std::string expected = Base64Encoder::UrlEncode(
        Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(digest.data()), 32));
    EXPECT_EQ(43U, expected.size());
    EXPECT_EQ(expected, Encrypt::Sha256Encode(std::string(1, '\0')));
    EXPECT_EQ(expected, Encrypt::Sha256Encode(std::string("\0abc", 4)));
}

TEST(EncryptionAES, EqualsOpenSslForEveryLength)
{
    RandomBytes random(41);
    for (std::size_t length = 0; length <= 100; ++length) {
        const std::string plain = withoutZeros(random(length));
        const std::string cipher = Encrypt::EncryptionAES(key, iv, plain);
        EXPECT_EQ(peerEncryption(plain), cipher) << length << " bytes";
        EXPECT_EQ(plain, Encrypt::DecryptionAES(key, iv, cipher)) << length << " bytes";
    }
}

TEST(EncryptionAES, AlwaysAddsPadding)
{
    const std::string empty = Encrypt::EncryptionAES(key, iv, "");
    EXPECT_EQ(24U, empty.size());
    EXPECT_EQ("==", empty.substr(22));
    EXPECT_EQ(cipherOf(std::string(16, '\x10')), empty);
    EXPECT_EQ(cipherOf(key + std::string(16, '\x10')), Encrypt::EncryptionAES(key, iv, key));
    EXPECT_EQ(32U, Base64Encoder::Decode(Encrypt::EncryptionAES(key, iv, key)).size());
}

TEST(EncryptionAES, ReplacesEverythingFromAnEmbeddedZeroOnByZeros)
{
    const std::string plain("abc\0defghij", 11);
    const std::string padded = "abc" + std::string(8, '\0') + std::string(5, '\5');
    EXPECT_EQ(cipherOf(padded), Encrypt::EncryptionAES(key, iv, plain));
    EXPECT_EQ("abc", Encrypt::DecryptionAES(key, iv, cipherOf(padded)));
}

TEST(EncryptionAES, UsesOnlySixteenBytesOfKeyAndIv)
{
    EXPECT_EQ(Encrypt::EncryptionAES(key, iv, "text"),
              Encrypt::EncryptionAES(key + "more", iv + "more", "text"));
    EXPECT_EQ("text", Encrypt::DecryptionAES(key + "x", iv + "y", //
                                             Encrypt::EncryptionAES(key, iv, "text")));
}

// A zero byte is one of the sixteen, not the end.
TEST(EncryptionAES, TakesZeroBytesInKeyAndIvAsTheyAre)
{
    const std::string zeroKey("ab\0defghijklmnop", 16);
    const std::string zeroIv("A\0CDEFGHIJKLMNO\0", 16);
    const std::string cipher = Encrypt::EncryptionAES(zeroKey, zeroIv, "text");
    EXPECT_EQ(cipherOf("text" + std::string(12, '\x0c'), zeroKey, zeroIv), cipher);
    EXPECT_EQ("text", Encrypt::DecryptionAES(zeroKey, zeroIv, cipher));
    const std::string keyPrefix = "ab" + std::string(14, '\0');
    const std::string ivPrefix = "A" + std::string(15, '\0');
    EXPECT_NE(Encrypt::EncryptionAES(keyPrefix, zeroIv, "text"), cipher);
    EXPECT_NE(Encrypt::EncryptionAES(zeroKey, ivPrefix, "text"), cipher);
}

class ShortKeys : public testing::TestWithParam<std::size_t>
{
};

/// A string on the heap with other bytes behind its end, which stay there when it is moved.
std::string shortened(std::size_t length, char byte)
{
    std::string text(64, byte);
    text.resize(length);
    return text;
}

TEST_P(ShortKeys, CountAsFilledUpWithZeros)
{
    const std::size_t length = GetParam();
    std::string longKey(length, 'k');
    std::string longIv(length, 'v');
    longKey.resize(16, '\0');
    longIv.resize(16, '\0');
    const std::string cipher = Encrypt::EncryptionAES(longKey, longIv, "plain text");
    EXPECT_EQ(cipher,
              Encrypt::EncryptionAES(shortened(length, 'k'), shortened(length, 'v'), "plain text"));
    EXPECT_EQ("plain text",
              Encrypt::DecryptionAES(shortened(length, 'k'), shortened(length, 'v'), cipher));
}

INSTANTIATE_TEST_SUITE_P(Lengths, ShortKeys, testing::Values(0, 1, 7, 8, 14, 15));

struct PaddingRow
{
    const char* name;
    std::string blocks;
    std::string plain;
    bool fails;
};

void PrintTo(const PaddingRow& row, std::ostream* stream)
{
    *stream << row.name;
}

class Unpadding : public testing::TestWithParam<PaddingRow>
{
};

TEST_P(Unpadding, RemovesKeepsOrFails)
{
    const CapturedOutput output;
    EXPECT_EQ(toHex(GetParam().plain),
              toHex(Encrypt::DecryptionAES(key, iv, cipherOf(GetParam().blocks))));
    EXPECT_EQ(GetParam().fails ? message : "", output.text());
}

std::string run(std::size_t count, char byte)
{
    return std::string(count, byte);
}

INSTANTIATE_TEST_SUITE_P(
    Values, Unpadding,
    testing::Values(
        PaddingRow{"0 keeps", run(15, 'x') + run(1, 0), run(15, 'x'), false},
        PaddingRow{"1 removes", run(15, 'x') + run(1, 1), run(15, 'x'), false},
        PaddingRow{"2 removes", run(14, 'x') + run(2, 2), run(14, 'x'), false},
        PaddingRow{"2 alone fails", run(15, 'x') + run(1, 2), "", true},
        PaddingRow{"16 of one block", run(16, 16), "", false},
        PaddingRow{"16 of two blocks", run(16, 'x') + run(16, 16), run(16, 'x'), false},
        PaddingRow{"15 after another fails", run(2, 'x') + run(14, 15), "", true},
        PaddingRow{"17 of one block keeps", run(16, 17), run(16, 17), false},
        PaddingRow{"22 of one block keeps", run(16, 22), run(16, 22), false},
        PaddingRow{"17 of two blocks", run(15, 'x') + run(17, 17), run(15, 'x'), false},
        PaddingRow{"20 of two blocks", run(12, 'x') + run(20, 20), run(12, 'x'), false},
        PaddingRow{"22 of two blocks", run(10, 'x') + run(22, 22), run(10, 'x'), false},
        PaddingRow{"22 mismatched fails", run(11, 'x') + run(21, 22), "", true},
        PaddingRow{"23 keeps", run(9, 'x') + run(23, 23), run(9, 'x') + run(23, 23), false},
        PaddingRow{"a high byte keeps", run(31, 'x') + run(1, '\x90'),
                   run(31, 'x') + run(1, '\x90'), false},
        PaddingRow{"a minus one keeps", run(31, 'x') + run(1, '\xff'),
                   run(31, 'x') + run(1, '\xff'), false},
        PaddingRow{"first byte alone differs", run(1, 'x') + run(15, 16), "", true},
        PaddingRow{"a zero ends the text", "ab" + run(11, 0) + run(3, 3), "ab", false}));

std::string encoded(const std::string& bytes)
{
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(bytes.data()),
                                 static_cast<unsigned int>(bytes.size()));
}

class PartialBlocks : public testing::TestWithParam<PaddingRow>
{
};

TEST_P(PartialBlocks, PassForPlainTextThatIsUnpaddedToo)
{
    const CapturedOutput output;
    EXPECT_EQ(GetParam().plain, Encrypt::DecryptionAES(key, iv, encoded(GetParam().blocks)));
    EXPECT_EQ(GetParam().fails ? message : "", output.text());
}

INSTANTIATE_TEST_SUITE_P(Texts, PartialBlocks,
                         testing::Values(PaddingRow{"plain", "hello", "hello", false},
                                         PaddingRow{"padded", "hello\3\3\3", "hello", false},
                                         PaddingRow{"mismatched", "hello\2\3\3", "", true},
                                         PaddingRow{"all padding", run(5, 5), "", false},
                                         PaddingRow{"more than all", run(5, 6), run(5, 6), false},
                                         PaddingRow{"one", run(1, 1), "", false},
                                         PaddingRow{"17 of 17", run(17, 17), "", false},
                                         PaddingRow{"zero inside", std::string("he\0llo", 6), "he",
                                                    false},
                                         PaddingRow{"mismatched behind a zero",
                                                    std::string("he\0l\2\3\3", 7), "", true}));

TEST(DecryptionAES, OfNothingIsEmpty)
{
    const CapturedOutput output;
    EXPECT_EQ("", Encrypt::DecryptionAES(key, iv, ""));
    EXPECT_EQ("", Encrypt::DecryptionAES(key, iv, "=AAAA"));
    EXPECT_EQ("", Encrypt::DecryptionAES("", "", "*"));
    EXPECT_EQ("", output.text());
}

TEST(DecryptionAES, ReadsTheCipherTextUpToTheFirstForeignCharacter)
{
    const std::string cipher = Encrypt::EncryptionAES(key, iv, "text");
    EXPECT_EQ("text", Encrypt::DecryptionAES(key, iv, cipher + " and more"));
    EXPECT_EQ("text", Encrypt::DecryptionAES(key, iv, Base64Encoder::UrlEncode(cipher)));
}

// The message of the second one goes to the streams before their initialiser.
TEST(DecryptionAES, WorksForEarlierStaticObjects)
{
    EXPECT_EQ("x", earlyDecryption().plain);
    EXPECT_EQ("", earlyDecryption().mismatched);
}

TEST(KdEncode, MixesTheFingerprintsCharacterByCharacter)
{
    const std::string x = Encrypt::Sha256Encode("first");
    const std::string y = Encrypt::Sha256Encode("second");
    std::string mixed;
    for (std::size_t i = 0; i < 43; ++i)
        mixed += std::string(1, x[i]) + y[i];
    EXPECT_EQ(peerDigest("MD5", mixed), Encrypt::KdEncode("first", "second"));
    EXPECT_NE(Encrypt::KdEncode("second", "first"), Encrypt::KdEncode("first", "second"));
}

TEST(KdEncode, TakesTheOtherFingerprintAloneWhereOneTextIsEmpty)
{
    const std::string expected = peerDigest("MD5", Encrypt::Sha256Encode("text"));
    EXPECT_EQ(expected, Encrypt::KdEncode("text", ""));
    EXPECT_EQ(expected, Encrypt::KdEncode("", "text"));
}

TEST(KdEncode, OfTwoEmptyTextsIsTheDigestOfNothing)
{
    EXPECT_EQ("d41d8cd98f00b204e9800998ecf8427e", Encrypt::KdEncode("", ""));
    EXPECT_EQ(MD5().Encode(""), Encrypt::KdEncode("", ""));
}

} // namespace
