#include "crypto/CipherStream.h"

#include "crypto/Encrypt.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const CipherKeys keys{"sixteen byte key", "sixteen byte iv!"};

std::string textOf(std::size_t size)
{
    std::string text;
    for (std::size_t i = 0; i < size; ++i)
        text += static_cast<char>('a' + i % 26);
    return text;
}

/// Feeds a stream in pieces of generated sizes.
template <typename Stream>
std::string inPieces(Stream& stream, const std::string& text, std::mt19937& random)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t count = std::min<std::size_t>(random() % 70, text.size() - at);
        result += stream.add(text.data() + at, count);
        at += count;
    }
    return result;
}

std::string encrypted(const std::string& text, std::mt19937& random)
{
    EncryptionStream stream(keys);
    std::string result = inPieces(stream, text, random);
    return result + stream.finish();
}

TEST(CipherStream, EncryptsAsTheWholeTextIsEncrypted)
{
    std::mt19937 random(1);
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string text = textOf(size);
        EXPECT_EQ(encrypted(text, random), Encrypt::EncryptionAES(keys.key, keys.iv, text)) << size;
    }
}

TEST(CipherStream, EncryptsZerosFromTheFirstZeroByteOn)
{
    std::mt19937 random(2);
    std::string text = textOf(200);
    text[100] = '\0';
    EXPECT_EQ(encrypted(text, random), Encrypt::EncryptionAES(keys.key, keys.iv, text));
    EncryptionStream stream(keys);
    stream.add(text.data(), 50);
    EXPECT_FALSE(stream.zeroByte());
    stream.add(text.data() + 50, 150);
    EXPECT_EQ(stream.zeroByte(), 100U);
}

TEST(CipherStream, DecryptsAsTheWholeTextIsDecrypted)
{
    std::mt19937 random(3);
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string text = textOf(size);
        const std::string cipher = Encrypt::EncryptionAES(keys.key, keys.iv, text);
        DecryptionStream stream(keys);
        std::string result = inPieces(stream, cipher, random);
        const Decryption end = stream.finish();
        EXPECT_EQ(result + end.bytes, text);
        EXPECT_EQ(end.reason(), DecryptionReason::Decrypted);
    }
}

TEST(CipherStream, TellsTheReasonThatTheWholeTextHas)
{
    std::mt19937 random(4);
    const std::string cipher = Encrypt::EncryptionAES(keys.key, keys.iv, textOf(100));
    const std::string texts[] = {"", "!", cipher.substr(0, 64), cipher.substr(0, 30),
                                 cipher.substr(0, 128) + " " + cipher};
    for (const std::string& text : texts) {
        const Decryption whole = decryptWithReason(keys, text);
        DecryptionStream stream(keys);
        inPieces(stream, text, random);
        const Decryption end = stream.finish();
        EXPECT_EQ(end.reason(), whole.reason()) << text;
        EXPECT_EQ(end.cipherSize, whole.cipherSize) << text;
    }
}

TEST(CipherStream, TellsEveryReasonUnderWrongKeys)
{
    std::mt19937 random(5);
    for (int attempt = 0; attempt < 500; ++attempt) {
        const CipherKeys wrong{std::to_string(attempt), "iv"};
        const std::string cipher = Encrypt::EncryptionAES(keys.key, keys.iv, textOf(60));
        DecryptionStream stream(wrong);
        inPieces(stream, cipher, random);
        EXPECT_EQ(stream.finish().reason(), decryptWithReason(wrong, cipher).reason());
    }
}

TEST(CipherStream, EndsTheTextBeforeItsFirstZeroByte)
{
    std::mt19937 random(6);
    std::string text = textOf(200);
    text[100] = '\0';
    const std::string cipher = Encrypt::EncryptionAES(keys.key, keys.iv, text);
    DecryptionStream stream(keys);
    std::string result = inPieces(stream, cipher, random);
    EXPECT_EQ(result + stream.finish().bytes, text.substr(0, 100));
    EXPECT_EQ(stream.leftOut(), 100U);
}

} // namespace
