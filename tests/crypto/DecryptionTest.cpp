#include "crypto/Decryption.h"

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/Encrypt.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/CapturedOutput.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Padding = Decryption::Padding;
using Reason = DecryptionReason;

const CipherKeys keys{"0123456789abcdef", "fedcba9876543210"};

std::string encoded(const std::string& bytes)
{
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(bytes.data()),
                                 static_cast<unsigned int>(bytes.size()));
}

/// The cipher text of whole blocks as they are, without padding.
std::string cipherOf(const std::string& blocks)
{
    std::string out(blocks.size(), '\0');
    makeCipher(keys).Encrypt(blocks.data(), out.data(), blocks.size(), AesEncrypt::CBC);
    return encoded(out);
}

std::string run(std::size_t count, int byte)
{
    return std::string(count, static_cast<char>(byte));
}

struct ReasonRow
{
    const char* name;
    std::string cipherText;
    std::size_t cipherSize;
    Reason reason;
    Padding padding;
    std::string bytes;
};

void PrintTo(const ReasonRow& row, std::ostream* stream)
{
    *stream << row.name;
}

class DecryptionReasons : public testing::TestWithParam<ReasonRow>
{
};

TEST_P(DecryptionReasons, AreTold)
{
    const Decryption decryption = decryptWithReason(keys, GetParam().cipherText);
    EXPECT_EQ(GetParam().reason, decryption.reason());
    EXPECT_EQ(GetParam().padding, decryption.padding);
    EXPECT_EQ(GetParam().cipherSize, decryption.cipherSize);
    EXPECT_EQ(toHex(GetParam().bytes), toHex(decryption.bytes));
}

// The result and the message of the façade are what the reason says.
TEST_P(DecryptionReasons, FitWhatTheFacadeDoes)
{
    const CapturedOutput output;
    const Decryption decryption = decryptWithReason(keys, GetParam().cipherText);
    EXPECT_EQ("", output.text());
    EXPECT_EQ(decryption.text(), Encrypt::DecryptionAES(keys.key, keys.iv, GetParam().cipherText));
    EXPECT_EQ(GetParam().padding == Padding::Mismatched, !output.text().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Nothing, DecryptionReasons,
    testing::Values(ReasonRow{"nothing", "", 0, Reason::NothingDecoded, Padding::Absent, ""},
                    ReasonRow{"a lone character", "Q", 0, Reason::NothingDecoded, Padding::Absent,
                              ""},
                    ReasonRow{"foreign", "*QUJD", 0, Reason::NothingDecoded, Padding::Absent, ""}));

INSTANTIATE_TEST_SUITE_P(
    Blocks, DecryptionReasons,
    testing::Values(ReasonRow{"one byte", encoded("x"), 1, Reason::NotWholeBlocks, Padding::Absent,
                              "x"},
                    ReasonRow{"15 bytes", encoded(run(15, 'x')), 15, Reason::NotWholeBlocks,
                              Padding::Absent, run(15, 'x')},
                    ReasonRow{"16 bytes", cipherOf(run(15, 'x') + run(1, 1)), 16, Reason::Decrypted,
                              Padding::Removed, run(15, 'x')},
                    ReasonRow{"17 bytes", encoded(run(17, 'x')), 17, Reason::NotWholeBlocks,
                              Padding::Absent, run(17, 'x')},
                    ReasonRow{"padded", encoded("hello\3\3\3"), 8, Reason::NotWholeBlocks,
                              Padding::Removed, "hello"},
                    ReasonRow{"mismatched", encoded("hello\2\3\3"), 8, Reason::NotWholeBlocks,
                              Padding::Mismatched, ""}));

INSTANTIATE_TEST_SUITE_P(
    Paddings, DecryptionReasons,
    testing::Values(ReasonRow{"0", cipherOf(run(15, 'x') + run(1, 0)), 16, Reason::NoPadding,
                              Padding::Absent, run(15, 'x') + run(1, 0)},
                    ReasonRow{"1", cipherOf(run(15, 'x') + run(1, 1)), 16, Reason::Decrypted,
                              Padding::Removed, run(15, 'x')},
                    ReasonRow{"2 with 1 there", cipherOf(run(15, 'x') + run(1, 2)), 16,
                              Reason::WrongPadding, Padding::Mismatched, ""},
                    ReasonRow{"16 of one block", cipherOf(run(16, 16)), 16, Reason::Decrypted,
                              Padding::Removed, ""},
                    ReasonRow{"17 of one block", cipherOf(run(16, 17)), 16, Reason::NoPadding,
                              Padding::Absent, run(16, 17)},
                    ReasonRow{"22 of two blocks", cipherOf(run(10, 'x') + run(22, 22)), 32,
                              Reason::Decrypted, Padding::Removed, run(10, 'x')},
                    ReasonRow{"22 with 21 there", cipherOf(run(11, 'x') + run(21, 22)), 32,
                              Reason::WrongPadding, Padding::Mismatched, ""},
                    ReasonRow{"23 of two blocks", cipherOf(run(9, 'x') + run(23, 23)), 32,
                              Reason::NoPadding, Padding::Absent, run(9, 'x') + run(23, 23)},
                    ReasonRow{"255", cipherOf(run(16, 255)), 16, Reason::NoPadding, Padding::Absent,
                              run(16, 255)}));

TEST(DecryptionTest, KeepsTheBytesBehindAZeroByteThatTheTextEndsAt)
{
    const Decryption decryption =
        decryptWithReason(keys, cipherOf("ab" + run(1, 0) + "cd" + run(11, 11)));
    EXPECT_EQ(std::string("ab\0cd", 5), decryption.bytes);
    EXPECT_EQ("ab", decryption.text());
}

TEST(DecryptionTest, FitsTheFacadeForRandomCipherTexts)
{
    RandomBytes random(57);
    for (std::size_t length = 0; length <= 300; ++length) {
        const std::string cipherText = encoded(random(length));
        const CapturedOutput output;
        const Decryption decryption = decryptWithReason(keys, cipherText);
        EXPECT_EQ(decryption.text(), Encrypt::DecryptionAES(keys.key, keys.iv, cipherText));
        EXPECT_EQ(decryption.padding == Padding::Mismatched, !output.text().empty()) << length;
    }
}

TEST(CipherKeysTest, OfAPassPhraseAreTheBeginningOfItsFingerprint)
{
    const std::string fingerprint = Encrypt::Sha256Encode("pass phrase");
    const CipherKeys made = keysFromPassPhrase("pass phrase");
    EXPECT_EQ(fingerprint.substr(0, 32), made.key);
    EXPECT_EQ(fingerprint.substr(0, 16), made.iv);
    EXPECT_EQ("", keysFromPassPhrase("").key);
    EXPECT_EQ("", keysFromPassPhrase("").iv);
}

TEST(CipherKeysTest, AreThoseOfTheExportedEntryUpToItsLongestText)
{
    const CipherKeys made = keysFromPassPhrase("pass phrase");
    for (const std::size_t size : {longestExportedText, longestExportedText + 1}) {
        const std::string cipherText =
            Encrypt::EncryptionAES(made.key, made.iv, std::string(size, 'x'));
        const std::unique_ptr<char[]> exported(
            DecryptionAES_Export("pass phrase", cipherText.c_str()));
        EXPECT_EQ(size <= longestExportedText, exported != nullptr) << size;
        if (exported) {
            EXPECT_EQ(decryptWithReason(made, cipherText).text(), exported.get());
        }
    }
}

} // namespace
