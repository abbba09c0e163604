#include "inspection/crypto/LibraryAnswer.h"

#include "crypto/Encrypt.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* passPhrase = "quay side";

std::string encrypted(const std::string& plain)
{
    const CipherKeys keys = keysFromPassPhrase(passPhrase);
    return Encrypt::EncryptionAES(keys.key, keys.iv, plain);
}

TEST(LibraryAnswer, IsWhatTheExportedEntryGives)
{
    const LibraryAnswer answer = LibraryAnswer::underPassPhrase(passPhrase, encrypted("text"));
    EXPECT_EQ(answer.source, KeySource::PassPhrase);
    EXPECT_EQ(answer.text, "text");
    EXPECT_FALSE(answer.isNull);
}

TEST(LibraryAnswer, TellsThatTheExportedEntryGivesNull)
{
    const std::string longest(2047, 'x');
    EXPECT_FALSE(LibraryAnswer::underPassPhrase(passPhrase, encrypted(longest)).isNull);
    const LibraryAnswer answer =
        LibraryAnswer::underPassPhrase(passPhrase, encrypted(longest + "x"));
    EXPECT_TRUE(answer.isNull);
    EXPECT_EQ(answer.source, KeySource::PassPhrase);
    EXPECT_EQ(answer.text, longest + "x");
}

TEST(LibraryAnswer, IsOfAnyLengthWithKeys)
{
    const std::string text(2048, 'x');
    const LibraryAnswer answer =
        LibraryAnswer::withKeys(keysFromPassPhrase(passPhrase), encrypted(text));
    EXPECT_EQ(answer.source, KeySource::KeyAndIv);
    EXPECT_EQ(answer.text, text);
    EXPECT_FALSE(answer.isNull);
}

} // namespace
