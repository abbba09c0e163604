#include "crypto/Encrypt.h"

#include "tests/crypto/AllocationMonitor.h"
#include "tests/crypto/BoundedCopyRecorder.h"
#include "tests/crypto/CapturedOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

class DecryptionExport : public testing::Test
{
protected:
    void SetUp() override { g_boundedCopies = {}; }

    /// The cipher text under a pass phrase, made by the façade.
    static std::string cipherFor(const std::string& passPhrase, const std::string& plain)
    {
        const std::string hash = Encrypt::Sha256Encode(passPhrase);
        return Encrypt::EncryptionAES(hash.substr(0, 16), hash.substr(0, 16), plain);
    }

    static std::unique_ptr<char[]> decrypt(const char* passPhrase, const std::string& cipher)
    {
        return std::unique_ptr<char[]>(DecryptionAES_Export(passPhrase, cipher.c_str()));
    }
};

TEST_F(DecryptionExport, GivesThePlainTextInAnArray)
{
    for (const char* text : {"", "x", "plain text", "\xe4\xb8\xad\xe6\x96\x87"}) {
        const auto result = decrypt("pass phrase", cipherFor("pass phrase", text));
        ASSERT_TRUE(result);
        EXPECT_STREQ(text, result.get());
    }
}

// 2048 characters can be written, whatever the text's length.
TEST_F(DecryptionExport, AlwaysAllocatesTheWholeArray)
{
    const auto result = decrypt("p", cipherFor("p", "x"));
    ASSERT_TRUE(result);
    std::fill(result.get(), result.get() + 2048, 'y');
    EXPECT_EQ('y', result[2047]);
    const std::string cipher = cipherFor("p", "x");
    const AllocationMonitor monitor;
    decrypt("p", cipher);
    EXPECT_EQ(2048U, AllocationMonitor::largest());
}

TEST_F(DecryptionExport, CopiesOnceWithTheSizeOfTheTextAndItsTerminator)
{
    decrypt("pass phrase", cipherFor("pass phrase", "plain text"));
    ASSERT_EQ(1U, g_boundedCopies.copies.size());
    EXPECT_EQ(11, g_boundedCopies.copies[0].size);
    EXPECT_EQ("plain text", g_boundedCopies.copies[0].source);
}

TEST_F(DecryptionExport, AcceptsAnEmptyPassPhraseAsAZeroKey)
{
    const std::string zeros(16, '\0');
    const auto result = decrypt("", Encrypt::EncryptionAES(zeros, zeros, "plain text"));
    ASSERT_TRUE(result);
    EXPECT_STREQ("plain text", result.get());
}

TEST_F(DecryptionExport, AcceptsAnEmptyCipherText)
{
    const auto result = decrypt("p", "");
    ASSERT_TRUE(result);
    EXPECT_STREQ("", result.get());
}

TEST_F(DecryptionExport, ReportsMismatchedPaddingOnStandardOutput)
{
    const CapturedOutput output;
    const auto result = decrypt("p", "eAMC"); // "x\3\2"
    ASSERT_TRUE(result);
    EXPECT_STREQ("", result.get());
    EXPECT_EQ("去填充失败！解密出错！！\n", output.text());
}

TEST_F(DecryptionExport, GivesNullForNullArguments)
{
    EXPECT_EQ(nullptr, DecryptionAES_Export("p", nullptr));
    EXPECT_EQ(nullptr, DecryptionAES_Export(nullptr, "QUJD"));
    EXPECT_EQ(nullptr, DecryptionAES_Export(nullptr, nullptr));
    EXPECT_TRUE(g_boundedCopies.copies.empty());
}

TEST_F(DecryptionExport, GivesTheLongestTextThatFits)
{
    const std::string text(2047, 'x');
    const auto result = decrypt("p", cipherFor("p", text));
    ASSERT_TRUE(result);
    EXPECT_EQ(text, result.get());
    EXPECT_EQ(2048, g_boundedCopies.copies.at(0).size);
}

TEST_F(DecryptionExport, RefusesTextsThatDoNotFit)
{
    for (const std::size_t size : {2048U, 2049U, 100000U})
        EXPECT_EQ(nullptr, decrypt("p", cipherFor("p", std::string(size, 'x'))));
    EXPECT_TRUE(g_boundedCopies.copies.empty());
}

TEST_F(DecryptionExport, LetsNoExceptionOut)
{
    for (const auto behaviour :
         {BoundedCopyRecorder::ThrowsException, BoundedCopyRecorder::ThrowsInt}) {
        g_boundedCopies.behaviour = behaviour;
        EXPECT_EQ(nullptr, decrypt("p", cipherFor("p", "text")));
    }
    EXPECT_EQ(2U, g_boundedCopies.copies.size());
}

TEST_F(DecryptionExport, ReleasesItsArrayWhenTheCopyThrows)
{
    const std::string cipher = cipherFor("p", "text");
    g_boundedCopies.copies.reserve(1);
    g_boundedCopies.behaviour = BoundedCopyRecorder::ThrowsInt;
    const AllocationMonitor monitor;
    decrypt("p", cipher);
    EXPECT_EQ(0, AllocationMonitor::balance());
}

// Each allocation fails in turn, until none is left that could.
TEST_F(DecryptionExport, GivesNullForEveryFailingAllocation)
{
    const std::string passPhrase(50, 'p');
    const std::string cipher = cipherFor(passPhrase, std::string(100, 'x'));
    std::size_t allowed = 0;
    for (bool failed = true; failed; ++allowed) {
        g_boundedCopies.copies.clear();
        char* result = nullptr;
        long balance = 0;
        {
            const AllocationMonitor monitor(allowed);
            result = DecryptionAES_Export(passPhrase.c_str(), cipher.c_str());
            failed = AllocationMonitor::hasFailed();
            balance = AllocationMonitor::balance();
        }
        const std::unique_ptr<char[]> owner(result);
        EXPECT_EQ(failed, result == nullptr) << "allocation " << allowed;
        if (failed) {
            EXPECT_EQ(0, balance) << "allocation " << allowed;
        }
    }
    EXPECT_GT(allowed, 5U);
}

} // namespace
